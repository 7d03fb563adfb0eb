// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "Overlays.h"

#include <QFileInfo>
#include <QFont>
#include <QFontInfo>
#include <QMap>
#include <QScopedValueRollback>
#include <QTimer>

#include <algorithm>

namespace minimal {

//! [active]
bool Overlays::isActive(NodeId id)
{
    const Node *node = find(id);
    while (node && node->enabled && node->parent != 0)
        node = find(node->parent);
    return node && node->enabled; // the root always is
}
//! [active]

//! [lists]
NodeList Overlays::subtree(NodeId top)
{
    NodeList nodes;
    walk(top, &nodes);
    return nodes;
}

void Overlays::walk(NodeId top, NodeList *nodes)
{
    nodes->append(top);
    const NodeList children = ask(top, &Node::children);
    for (const NodeId child : children)
        walk(child, nodes);
}

/// The nodes of a list that there are, each once, without the root: no operation takes more.
NodeList Overlays::known(const NodeList &nodes)
{
    NodeList result;
    QSet<NodeId> seen{Root};
    for (const NodeId id : nodes) {
        if (!find(id) || seen.contains(id))
            continue;
        seen.insert(id);
        result.append(id);
    }
    return result;
}

/// The known nodes that lie in no other node of the list. The others go where these go.
NodeList Overlays::tops(const NodeList &nodes)
{
    const NodeList listed = known(nodes);
    const QSet<NodeId> members(listed.begin(), listed.end());
    NodeList result;
    for (const NodeId id : listed) {
        NodeId above = getParent(id);
        while (above != 0 && !members.contains(above))
            above = getParent(above);
        if (above == 0)
            result.append(id);
    }
    return result;
}

NodeList Overlays::inTreeOrder(const NodeList &nodes)
{
    const QSet<NodeId> wanted(nodes.begin(), nodes.end());
    NodeList result;
    const NodeList all = subtree(Root);
    for (const NodeId id : all) {
        if (wanted.contains(id))
            result.append(id);
    }
    return result;
}

/// What writes reach: no other node has their values.
NodeList Overlays::overlaysIn(const NodeList &nodes)
{
    NodeList result = known(nodes);
    const auto isOther = [this](NodeId id) { return !isOverlay(id); };
    result.erase(std::remove_if(result.begin(), result.end(), isOther), result.end());
    return result;
}
//! [lists]

//! [announce]
/// Names the nodes that are still there: a listener that came first may have deleted some.
void Overlays::send(Signal signal, const NodeList &nodes)
{
    const NodeList there = inTreeOrder(known(nodes));
    if (!there.isEmpty())
        Q_EMIT(this->*signal)(there);
}

void Overlays::announce(Signal signal, const NodeList &nodes)
{
    announce([this, signal, nodes] { send(signal, nodes); });
}

void Overlays::announce(const Announcement &announcement)
{
    m_waiting.append(announcement);
    sendWaiting();
    Q_EMIT changed();
}

void Overlays::sendWaiting()
{
    while (!m_isMoving && !m_waiting.isEmpty())
        m_waiting.takeFirst()();
}
//! [announce]

//! [announceMove]
/// What listeners do in answer to a move is announced when moveNodes() has returned: the tree that is
/// being dropped on cannot take new rows before.
void Overlays::announceMove(const Announcement &announcement)
{
    if (m_isMoving) { // a listener moves in its turn
        announce(announcement);
        return;
    }
    const QScopedValueRollback<bool> moving(m_isMoving, true);
    announcement();
    Q_EMIT changed();
    QTimer::singleShot(0, this, &Overlays::sendWaiting);
}
//! [announceMove]

//! [create]
NodeId Overlays::create(Kind kind, NodeId parent)
{
    sendWaiting();
    if (!find(parent) || isOverlay(parent))
        return 0;
    Node node;
    node.kind = kind;
    node.name = kind == Kind::Group    ? tr("Group")
                : kind == Kind::Switch ? tr("Switch")
                                       : tr("Text");
    if (kind == Kind::Overlay) {
        node.text = tr("Text");
        node.font = QFontInfo(QFont()).family();
        node.fontColor = Qt::white;
        node.backgroundColor = Qt::black;
        node.transparency = Qt::white; // invisible
        node.size = 20;
        node.position = {0.5, 0.5};
    }
    const NodeId id = insert(node, parent, getChildCount(parent));
    announce(&S::nodesAdded, {id});
    announce(&S::nodesCreated, {id});
    return id;
}

NodeId Overlays::insert(const Node &node, NodeId parent, int row)
{
    const NodeId id = ++m_lastId; // never given again
    m_nodes[id] = node;
    admit(parent, {id});
    find(id)->parent = parent;
    find(parent)->children.insert(row, id);
    return id;
}

/// Called before nodes come to a parent: a switch that shows a child takes in others disabled.
void Overlays::admit(NodeId parent, const NodeList &newcomers)
{
    if (!isSwitch(parent))
        return;
    const NodeList children = ask(parent, &Node::children);
    bool isShowing = std::any_of(children.begin(), children.end(),
                                 [this](NodeId child) { return isEnabled(child); });
    for (const NodeId id : newcomers) {
        if (getParent(id) == parent || !isEnabled(id))
            continue;
        find(id)->enabled = !isShowing;
        isShowing = true;
    }
}
//! [create]

//! [duplicate]
void Overlays::duplicateNodes(const NodeList &nodes)
{
    sendWaiting();
    const NodeList originals = inTreeOrder(tops(nodes));
    NodeList copies;
    // From the last to the first, so that the copy of each goes before those of its later neighbours.
    for (int i = originals.size() - 1; i >= 0; --i) {
        const NodeId parent = getParent(originals.at(i));
        int row = getChildIndex(parent, originals.at(i)) + 1;
        while (originals.contains(getChild(parent, row)))
            ++row; // behind the last neighbour that is copied too
        copies.append(copy(originals.at(i), parent, row));
    }
    announce(&S::nodesAdded, copies);
    announce(&S::nodesCreated, copies);
}

NodeId Overlays::copy(NodeId original, NodeId parent, int row)
{
    Node node = *find(original);
    const NodeList children = node.children;
    node.parent = 0;
    node.children.clear();
    const NodeId id = insert(node, parent, row);
    for (const NodeId child : children)
        copy(child, id, getChildCount(id));
    return id;
}
//! [duplicate]

//! [delete]
void Overlays::deleteNodes(const NodeList &nodes)
{
    sendWaiting();
    const NodeList gone = inTreeOrder(tops(nodes));
    for (const NodeId top : gone) {
        find(getParent(top))->children.removeOne(top);
        const NodeList all = subtree(top);
        for (const NodeId id : all)
            m_nodes.erase(id);
    }
    if (!gone.isEmpty())
        announce([this, gone] { Q_EMIT nodesRemoved(gone); });
}
//! [delete]

//! [group]
void Overlays::groupNodes(const NodeList &nodes)
{
    sendWaiting();
    const NodeList members = inTreeOrder(tops(nodes));
    if (members.isEmpty())
        return;
    Node node;
    node.name = tr("Group");
    const NodeId parent = getParent(members.first());
    const NodeId group = insert(node, parent, getChildIndex(parent, members.first()));
    announce(&S::nodesAdded, {group});
    moveNodes(members, group, -1);
    announce(&S::nodesCreated, {group});
}
//! [group]

//! [move]
void Overlays::moveNodes(const NodeList &nodes, NodeId newParent, int row)
{
    sendWaiting();
    NodeList block = tops(nodes);
    for (NodeId above = newParent; above != 0; above = getParent(above))
        block.removeOne(above); // nothing moves into itself
    if (block.isEmpty() || !find(newParent) || isOverlay(newParent))
        return;
    block = inBlockOrder(block);

    // The new row of children: the old one, in which the block stands before the child at `row`.
    const NodeList before = find(newParent)->children;
    const int place = row < 0 || row > before.size() ? before.size() : row;
    NodeList after;
    for (int i = 0; i <= before.size(); ++i) {
        if (i == place)
            after += block;
        if (i < before.size() && !block.contains(before.at(i)))
            after.append(before.at(i));
    }
    if (after == before)
        return;

    const QSet<NodeId> enabledBefore = enabledNodes();
    admit(newParent, block);
    for (const NodeId id : qAsConst(block)) {
        find(getParent(id))->children.removeOne(id);
        find(id)->parent = newParent;
    }
    find(newParent)->children = after;

    NodeList parents;
    NodeList afters;
    NodeList states = changedSince(enabledBefore);
    for (const NodeId id : qAsConst(block)) {
        parents.append(newParent);
        afters.append(getChild(newParent, after.indexOf(id) - 1)); // 0 for the first
        states.append(highestDisabled(id));
    }
    announceMove([=] {
        Q_EMIT nodesMoved(block, parents, afters);
        send(&S::enabledStateChanged, states);
    });
}

/// Ordered by the rows that they come from: of each row the first in the list, then all others.
NodeList Overlays::inBlockOrder(const NodeList &nodes)
{
    QMap<int, NodeId> firstOfRow;
    NodeList others;
    for (const NodeId id : nodes) {
        const int row = getChildIndex(getParent(id), id);
        if (firstOfRow.contains(row))
            others.append(id);
        else
            firstOfRow.insert(row, id);
    }
    return firstOfRow.values() + others;
}
//! [move]

//! [enabled]
void Overlays::setEnabled(const NodeList &nodes, bool enabled)
{
    const QSet<NodeId> before = enabledNodes();
    const NodeList listed = known(nodes);
    for (const NodeId id : listed) {
        const NodeId parent = getParent(id);
        const bool isChoice = enabled && isSwitch(parent);
        const NodeList others = isChoice ? ask(parent, &Node::children) : NodeList();
        for (const NodeId other : others)
            find(other)->enabled = false; // a switch shows one child
        find(id)->enabled = enabled;
    }
    announce(&S::enabledStateChanged, changedSince(before));
}

QSet<NodeId> Overlays::enabledNodes()
{
    QSet<NodeId> enabled;
    for (const auto &[id, node] : m_nodes) {
        if (node.enabled)
            enabled.insert(id);
    }
    return enabled;
}

NodeList Overlays::changedSince(const QSet<NodeId> &enabledBefore)
{
    NodeList changed;
    for (const auto &[id, node] : m_nodes) {
        if (node.enabled != enabledBefore.contains(id))
            changed.append(id);
    }
    return changed;
}

/// The topmost disabled node among a node and its ancestors; the node itself when all are enabled.
NodeId Overlays::highestDisabled(NodeId id)
{
    NodeId highest = id;
    for (NodeId above = id; above != 0; above = getParent(above)) {
        if (!isEnabled(above))
            highest = above;
    }
    return highest;
}
//! [enabled]

//! [special]
void Overlays::setName(const NodeList &nodes, const QString &name)
{
    announce(&S::nameChanged, store(known(nodes), &Node::name, name)); // not of overlays alone
}

void Overlays::setOverlayType(const NodeList &nodes, int type)
{
    const NodeList changed = store(overlaysIn(nodes), &Node::type, type);
    // The new type reveals values that the panel has not shown: they are announced with it.
    for (const Signal signal :
         {&S::overlayTypeChanged, &S::textChanged, &S::fontChanged, &S::fontColorChanged,
          &S::backgroundColorChanged, &S::backgroundTransparencyChanged, &S::imageChanged})
        announce(signal, changed);
}

void Overlays::setImage(const NodeList &nodes, const QString &path)
{
    // Users type relative paths too. A host with scene files begins them at the file's folder.
    const QString file = path.isEmpty() ? path : QFileInfo(path).absoluteFilePath();
    const NodeList listed = overlaysIn(nodes);
    const NodeList changed = store(listed, &Node::image, file);
    // The path that is there already means: read the file anew.
    announce(&S::imageChanged, file.isEmpty() ? changed : listed);
}

void Overlays::setOffset(const NodeList &nodes, const QPointF &offset)
{
    const NodeList listed = overlaysIn(nodes);
    const NodeList changed = store(listed, &Node::offsetX, offset.x());
    announce(&S::offsetChanged, changed + store(listed, &Node::offsetY, offset.y()));
}
//! [special]

} // namespace minimal
