// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/scene/MoveRule.h"
#include "viewer/scene/NodeLists.h"
#include "viewer/scene/OverlayService.h"
#include "viewer/scene/SceneCopy.h"

#include <QScopedValueRollback>

#include <algorithm>

namespace viewer {

using QRPC::NodeId;
using QRPC::NodeList;

namespace {

/// The pattern of counted names of a kind, with "%1" for the number.
QString namePattern(NodeKind kind)
{
    switch (kind) {
    case NodeKind::Group:
        return OverlayService::tr("Group %1");
    case NodeKind::Switch:
        return OverlayService::tr("Switch %1");
    case NodeKind::Overlay:
        return OverlayService::tr("Text %1");
    case NodeKind::Root:
        break;
    }
    return {};
}

constexpr int HighestCounted = 1000000000; // leaves room for the numbers of new nodes

/// The number in a name that follows the pattern; 0 in any other name, and where it is too high to
/// count on from.
int numberIn(const QString &name, const QString &pattern)
{
    const int before = pattern.indexOf(QLatin1String("%1"));
    const int after = pattern.size() - before - 2;
    const int digits = name.size() - before - after;
    if (before < 0 || digits < 1 || !name.startsWith(pattern.leftRef(before))
        || !name.endsWith(pattern.rightRef(after)))
        return 0;
    const int number = name.midRef(before, digits).toInt();
    return number <= HighestCounted ? number : 0;
}

Operation creationOf(NodeKind kind)
{
    return kind == NodeKind::Group    ? Operation::CreateGroup
           : kind == NodeKind::Switch ? Operation::CreateSwitch
                                      : Operation::CreateOverlay;
}

QString nameOfCopy(const QString &name)
{
    return name.isEmpty() ? OverlayService::tr("Copy") : OverlayService::tr("%1 Copy").arg(name);
}

} // namespace

void OverlayService::countName(NodeKind kind, const QString &name)
{
    int &highest = m_highestNumbers[int(kind)];
    highest = std::max(highest, numberIn(name, namePattern(kind)));
}

Node OverlayService::newNode(NodeKind kind)
{
    Node node;
    node.kind = kind;
    node.name = namePattern(kind).arg(++m_highestNumbers[int(kind)]);
    if (node.isOverlay())
        node.overlay.text = tr("Text");
    return node;
}

/// A listener may have deleted what was only just added.
void OverlayService::announceCreated(const NodeList &nodes)
{
    announceStructure([this, nodes] {
        const NodeList created = knownNodes(m_scene, nodes);
        if (!created.isEmpty())
            Q_EMIT nodesCreated(created);
    });
}

NodeId OverlayService::create(NodeKind kind, NodeId parent)
{
    sendPostponed();
    const Node *target = m_scene.find(parent);
    if (!target || !target->canHoldNodes())
        return 0;
    const NodeId id = m_scene.add(newNode(kind));
    m_scene.append(parent, id);
    recordAdded(creationOf(kind), {id});
    announceStructure(&kxOverlayService::nodesAdded, {id});
    announceCreated({id});
    return id;
}

NodeId OverlayService::createOverlay(NodeId parent)
{
    return create(NodeKind::Overlay, parent);
}

NodeId OverlayService::createGroup(NodeId parent)
{
    return create(NodeKind::Group, parent);
}

NodeId OverlayService::createSwitch(NodeId parent)
{
    return create(NodeKind::Switch, parent);
}

QHash<NodeId, QSet<NodeId>> OverlayService::byParent(const NodeList &nodes) const
{
    QHash<NodeId, QSet<NodeId>> children;
    for (const NodeId id : nodes)
        children[m_scene.find(id)->parent].insert(id);
    return children;
}

/// The copies of neighbours stand together, behind the last of them: a view that has all of them
/// selected keeps one range of rows, where copies in between would cut it into as many as there are.
NodeList OverlayService::copyBehind(NodeId parent, const QSet<NodeId> &originals)
{
    NodeList copies;
    std::vector<NodeId> result;
    std::vector<NodeId> run;
    const auto endRun = [&] {
        result.insert(result.end(), run.begin(), run.end());
        run.clear();
    };
    const std::vector<NodeId> children = m_scene.find(parent)->children;
    for (const NodeId child : children) {
        if (!originals.contains(child))
            endRun();
        result.push_back(child);
        if (!originals.contains(child))
            continue;
        const NodeId copy = copyTree(m_scene, child, &m_scene);
        m_scene.setName(copy, nameOfCopy(m_scene.find(child)->name));
        copies.append(copy);
        run.push_back(copy);
    }
    endRun();
    m_scene.setChildren(parent, std::move(result));
    return copies;
}

void OverlayService::duplicateNodes(const NodeList &nodes)
{
    sendPostponed();
    const NodeList originals = inTreeOrder(m_scene, topNodes(m_scene, nodes));
    const QHash<NodeId, QSet<NodeId>> children = byParent(originals);
    QSet<NodeId> done;
    NodeList copies;
    for (const NodeId original : originals) {
        const NodeId parent = m_scene.find(original)->parent;
        if (done.contains(parent))
            continue;
        done.insert(parent);
        copies += copyBehind(parent, children.value(parent));
    }
    copies = inTreeOrder(m_scene, copies);
    if (!copies.isEmpty())
        recordAdded(Operation::Duplicate, copies, originals);
    announceStructure(&kxOverlayService::nodesAdded, copies);
    announceCreated(copies);
}

NodeList OverlayService::insertScene(const Scene &scene, NodeId parent, int row)
{
    sendPostponed();
    const Node *target = m_scene.find(parent);
    if (!target || !target->canHoldNodes() || scene.root().children.empty())
        return {};
    NodeList copies;
    for (const NodeId original : scene.root().children)
        copies.append(copyTree(scene, original, &m_scene));
    scene.forEach([this](const Node &node) { countName(node.kind, node.name); });
    std::vector<NodeId> children = m_scene.find(parent)->children;
    const bool isEnd = row < 0 || std::size_t(row) > children.size();
    children.insert(isEnd ? children.end() : children.begin() + row, copies.cbegin(),
                    copies.cend());
    m_scene.setChildren(parent, std::move(children));
    recordAdded(Operation::Paste, copies);
    announceStructure(&kxOverlayService::nodesAdded, copies);
    announceCreated(copies);
    return copies;
}

void OverlayService::removeFromParents(const NodeList &nodes)
{
    const QHash<NodeId, QSet<NodeId>> leaving = byParent(nodes);
    for (auto it = leaving.cbegin(); it != leaving.cend(); ++it) {
        std::vector<NodeId> children = m_scene.find(it.key())->children;
        const auto leaves = [&it](NodeId id) { return it->contains(id); };
        children.erase(std::remove_if(children.begin(), children.end(), leaves), children.end());
        m_scene.setChildren(it.key(), std::move(children));
    }
}

void OverlayService::deleteNodes(const NodeList &nodes)
{
    sendPostponed();
    const NodeList tops = inTreeOrder(m_scene, topNodes(m_scene, nodes));
    SceneChange change;
    change.before = SceneChange::placesOf(m_scene, tops);
    Step step = stepOf(Operation::Delete, tops);
    removeFromParents(tops);
    for (const NodeId id : tops)
        change.take(&m_scene, id);
    step.changes.push_back(std::move(change));
    m_history.record(std::move(step));
    announceStructure(&kxOverlayService::nodesRemoved, tops);
}

void OverlayService::groupNodes(const NodeList &nodes)
{
    sendPostponed();
    const NodeList tops = inTreeOrder(m_scene, topNodes(m_scene, nodes));
    if (tops.isEmpty())
        return;
    const Node &first = *m_scene.find(tops.constFirst());
    const Node &parent = *m_scene.find(first.parent);
    const bool takesOver = parent.shown != 0 && tops.contains(parent.shown);
    m_history.open(stepOf(Operation::Group, tops));
    const NodeId group = m_scene.add(newNode(NodeKind::Group));
    std::vector<NodeId> siblings = parent.children;
    siblings.insert(siblings.begin() + first.row, group);
    m_scene.setChildren(parent.id, std::move(siblings));
    recordAdded(Operation::Group, {group});
    announceStructure(&kxOverlayService::nodesAdded, {group});
    if (m_scene.find(group)) // a listener may have deleted it
        fillGroup(group, tops, takesOver);
    m_history.close();
    announceCreated({group});
}

void OverlayService::fillGroup(NodeId group, const NodeList &nodes, bool takesOver)
{
    MovePlan plan = planMove(m_scene, nodes, group, -1);
    if (plan.block.isEmpty())
        return;
    const NodeList block = plan.block;
    SceneChange change = relinked(std::move(plan), group);
    const Node &node = *m_scene.find(group);
    const Node &parent = *m_scene.find(node.parent);
    NodeList enabledChanged;
    if (takesOver && parent.isSwitch() && parent.shown == 0) {
        change.noteValue(node, Property::Enabled, true);
        m_scene.setEnabled(group, true);
        enabledChanged.append(group);
    }
    record(Operation::Group, block, std::move(change));
    announceMove(block, enabledChanged);
}

void OverlayService::moveNodes(const NodeList &nodes, NodeId newParent, int row)
{
    sendPostponed();
    MovePlan plan = planMove(m_scene, nodes, newParent, row);
    if (plan.block.isEmpty())
        return;
    const NodeList block = plan.block;
    SceneChange change = relinked(std::move(plan), newParent);
    NodeList disabled;
    for (const SceneChange::Value &value : change.values)
        disabled.append(value.node);
    record(Operation::Move, block, std::move(change));
    announceMove(block, disabled);
}

/// Carries a plan out. What it gives has values for the nodes that had to be disabled alone.
SceneChange OverlayService::relinked(MovePlan plan, NodeId newParent)
{
    SceneChange change;
    change.before = SceneChange::placesOf(m_scene, plan.block);
    NodeList fromElsewhere;
    for (const NodeId id : qAsConst(plan.block)) {
        if (m_scene.find(id)->parent != newParent)
            fromElsewhere.append(id);
    }
    removeFromParents(fromElsewhere);
    const NodeList disabled = m_scene.setChildren(newParent, std::move(plan.children));
    change.after = SceneChange::placesOf(m_scene, plan.block);
    for (const NodeId id : disabled)
        change.values.push_back({id, Property::Enabled, true, false});
    return change;
}

void OverlayService::announceMove(const NodeList &block, const NodeList &enabledChanged)
{
    const NodeList enabledNodes = inTreeOrder(m_scene, reachedBy(block) + enabledChanged);
    const QScopedValueRollback<int> announcing(m_announcedMoves, m_announcedMoves + 1);
    announcePlaces(block);
    announce(&kxOverlayService::enabledStateChanged, enabledNodes);
}

/// Announces the places that moved nodes have now.
void OverlayService::announcePlaces(const NodeList &block)
{
    if (block.isEmpty())
        return;
    NodeList parents;
    NodeList afters;
    for (const NodeId id : block) {
        const Node &node = *m_scene.find(id);
        const std::vector<NodeId> &siblings = m_scene.find(node.parent)->children;
        parents.append(node.parent);
        afters.append(node.row > 0 ? siblings[std::size_t(node.row) - 1] : 0);
    }
    const QScopedValueRollback<int> announcing(m_announcedMoves, m_announcedMoves + 1);
    announce([=] { Q_EMIT nodesMoved(block, parents, afters); });
}

/// The nodes from which a move may have changed what is active. A module looks no further than an
/// inactive parent, so the topmost disabled node is named.
NodeList OverlayService::reachedBy(const NodeList &block) const
{
    NodeList reached;
    QHash<NodeId, NodeId> closed; // by parent
    for (const NodeId id : block) {
        const NodeId parent = m_scene.find(id)->parent;
        if (!closed.contains(parent))
            closed.insert(parent, m_scene.isActive(parent) ? 0 : highestDisabled(m_scene, parent));
        const NodeId top = closed.value(parent);
        reached.append(top != 0 ? top : id);
    }
    return reached;
}

} // namespace viewer
