// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "kit/RecordingService.h"

#include <QRegularExpression>
#include <QSet>

#include <algorithm>

using notation::Kind;

namespace {

using Node = RecordingService::Node;

int depthOf(const Node *node)
{
    int depth = 0;
    for (const Node *at = node->parent; at; at = at->parent)
        ++depth;
    return depth;
}

QRPC::NodeList idsOf(const QVector<Node *> &nodes)
{
    QRPC::NodeList ids;
    for (const Node *node : nodes)
        ids.append(node->id);
    return ids;
}

/// The order in which a move lays its nodes down: by source row, and the later nodes of one source
/// row behind all others.
QVector<Node *> inBlockOrder(const QVector<Node *> &nodes)
{
    QVector<QPair<int, Node *>> first;
    QVector<Node *> later;
    QSet<int> rows;
    for (Node *node : nodes) {
        const int row = node->parent->children.indexOf(node);
        if (rows.contains(row))
            later.append(node);
        else
            first.append(qMakePair(row, node));
        rows.insert(row);
    }
    std::sort(first.begin(), first.end(),
              [](const auto &a, const auto &b) { return a.first < b.first; });
    QVector<Node *> block;
    for (const auto &entry : qAsConst(first))
        block.append(entry.second);
    return block + later;
}

QRPC::NodeId highestDisabled(const Node *node)
{
    QRPC::NodeId highest = node->id;
    for (const Node *at = node; at; at = at->parent) {
        if (!at->enabled)
            highest = at->id;
    }
    return highest;
}

} // namespace

QRPC::NodeId RecordingService::getRootNode()
{
    note(QStringLiteral("getRootNode"));
    return rootId;
}

QRPC::NodeId RecordingService::getParent(QRPC::NodeId id)
{
    note(QStringLiteral("getParent %1").arg(id));
    const Node *node = find(id);
    return node && node->parent ? node->parent->id : 0;
}

int RecordingService::getChildCount(QRPC::NodeId id)
{
    note(QStringLiteral("getChildCount %1").arg(id));
    const Node *node = find(id);
    return node ? node->children.size() : 0;
}

QRPC::NodeId RecordingService::getChild(QRPC::NodeId id, int index)
{
    note(QStringLiteral("getChild %1 %2").arg(id).arg(index));
    const Node *node = find(id);
    const Node *child = node ? node->children.value(index) : nullptr;
    return child ? child->id : 0;
}

int RecordingService::getChildIndex(QRPC::NodeId parent, QRPC::NodeId child)
{
    note(QStringLiteral("getChildIndex %1 %2").arg(parent).arg(child));
    const Node *node = find(parent);
    return node ? node->children.indexOf(find(child)) : -1;
}

bool RecordingService::isOverlay(QRPC::NodeId id)
{
    note(QStringLiteral("isOverlay %1").arg(id));
    const Node *node = find(id);
    return node && node->kind == Kind::Overlay;
}

bool RecordingService::isSwitch(QRPC::NodeId id)
{
    note(QStringLiteral("isSwitch %1").arg(id));
    const Node *node = find(id);
    return node && (node->kind == Kind::Switch || node->claimsToBeSwitch);
}

bool RecordingService::isEnabled(QRPC::NodeId id)
{
    note(QStringLiteral("isEnabled %1").arg(id));
    const Node *node = find(id);
    return node && node->enabled;
}

bool RecordingService::isActive(QRPC::NodeId id)
{
    note(QStringLiteral("isActive %1").arg(id));
    const Node *node = find(id);
    return node && isActiveNode(*node);
}

QRPC::NodeId RecordingService::createOverlay(QRPC::NodeId parent)
{
    return create("createOverlay", parent, Kind::Overlay);
}

QRPC::NodeId RecordingService::createGroup(QRPC::NodeId parent)
{
    return create("createGroup", parent, Kind::Group);
}

QRPC::NodeId RecordingService::createSwitch(QRPC::NodeId parent)
{
    return create("createSwitch", parent, Kind::Switch);
}

QRPC::NodeId RecordingService::create(const char *operation, QRPC::NodeId parentId, Kind kind)
{
    const QString line = QStringLiteral("%1 %2").arg(QLatin1String(operation)).arg(parentId);
    note(line);
    Node *parent = find(parentId);
    QRPC::NodeId id = 0;
    if (m_applies && parent && parent->kind != Kind::Overlay) {
        const QString name = QStringLiteral("n%1").arg(m_nextId);
        Node *node = adopt(parent, -1, notation::Node{name, m_nextId, kind, true, {}});
        QRPC::NodeList changed;
        enterDisabled({node}, &changed);
        id = node->id;
        Q_EMIT nodesAdded({id});
        Q_EMIT nodesCreated({id});
    }
    finish(line);
    return id;
}

RecordingService::Node *RecordingService::copyOf(const Node &source)
{
    static const QRegularExpression number(QStringLiteral("[0-9]+$"));
    Node *copy = addNode(m_nextId, source.kind, source.name);
    const QRPC::NodeId id = copy->id;
    *copy = source;
    copy->id = id;
    copy->name = QString(source.name).remove(number) + QString::number(id);
    copy->children.clear();
    for (const Node *child : source.children) {
        copy->children.append(copyOf(*child));
        copy->children.last()->parent = copy;
    }
    return copy;
}

void RecordingService::duplicateNodes(const QRPC::NodeList &nodes)
{
    const QString line = noteWrite("duplicateNodes", nodes, QString());
    QRPC::NodeList copies;
    const QVector<Node *> originals = m_applies ? tops(nodes) : QVector<Node *>();
    for (Node *original : originals) {
        Node *copy = copyOf(*original);
        QVector<Node *> &siblings = original->parent->children;
        int row = siblings.indexOf(original) + 1;
        while (row < siblings.size()
               && (originals.contains(siblings.at(row)) || copies.contains(siblings.at(row)->id)))
            ++row;
        siblings.insert(row, copy);
        QRPC::NodeList changed;
        enterDisabled({copy}, &changed);
        copies.append(copy->id);
    }
    if (!copies.isEmpty()) {
        std::sort(copies.begin(), copies.end(), [this](QRPC::NodeId a, QRPC::NodeId b) {
            return node(a).parent == node(b).parent
                       ? node(a).parent->children.indexOf(&node(a))
                             < node(b).parent->children.indexOf(&node(b))
                       : node(a).parent->id < node(b).parent->id;
        });
        Q_EMIT nodesAdded(copies);
        Q_EMIT nodesCreated(copies);
    }
    finish(line);
}

void RecordingService::deleteNodes(const QRPC::NodeList &nodes)
{
    const QString line = noteWrite("deleteNodes", nodes, QString());
    const QRPC::NodeList doomed = m_applies ? idsOf(tops(nodes)) : QRPC::NodeList();
    erase(doomed);
    if (!doomed.isEmpty())
        Q_EMIT nodesRemoved(doomed);
    finish(line);
}

void RecordingService::groupNodes(const QRPC::NodeList &nodes)
{
    const QString line = noteWrite("groupNodes", nodes, QString());
    const QVector<Node *> members = m_applies ? tops(nodes) : QVector<Node *>();
    if (!members.isEmpty()) {
        const QRPC::NodeList order = allIds();
        Node *topmost = *std::min_element(members.begin(), members.end(),
                                          [&order](const Node *a, const Node *b) {
                                              return order.indexOf(a->id) < order.indexOf(b->id);
                                          });
        Node *parent = topmost->parent;
        const QString name = QStringLiteral("n%1").arg(m_nextId);
        Node *group = adopt(parent, parent->children.indexOf(topmost),
                            notation::Node{name, m_nextId, Kind::Group, true, {}});
        QRPC::NodeList changed;
        enterDisabled({group}, &changed);
        Q_EMIT nodesAdded({group->id});
        applyMove(idsOf(members), group, -1);
        Q_EMIT nodesCreated({group->id});
    }
    finish(line);
}

void RecordingService::moveNodes(const QRPC::NodeList &nodes, QRPC::NodeId newParent, int row)
{
    const QString line =
        noteWrite("moveNodes", nodes, QStringLiteral("%1 %2").arg(newParent).arg(row));
    Node *target = find(newParent);
    if (m_applies && target && target->kind != Kind::Overlay)
        applyMove(nodes, target, row);
    finish(line);
}

void RecordingService::applyMove(const QRPC::NodeList &nodes, Node *target, int row)
{
    QVector<Node *> moved = tops(nodes);
    for (const Node *at = target; at; at = at->parent)
        moved.removeOne(const_cast<Node *>(at));
    if (moved.isEmpty())
        return;
    QVector<Node *> &children = target->children;
    int anchorRow = row < 0 || row > children.size() ? children.size() : row;
    while (anchorRow < children.size() && moved.contains(children.at(anchorRow)))
        ++anchorRow;
    Node *anchor = children.value(anchorRow);
    const QVector<Node *> block = inBlockOrder(moved);
    for (Node *node : block)
        node->parent->children.removeOne(node);
    int at = anchor ? children.indexOf(anchor) : children.size();
    for (Node *node : block) {
        children.insert(at++, node);
        node->parent = target;
    }
    QRPC::NodeList switchedOff;
    enterDisabled(block, &switchedOff);
    announceMove(block, switchedOff);
}

void RecordingService::announceMove(const QVector<Node *> &block, const QRPC::NodeList &switchedOff)
{
    QRPC::NodeList parents;
    QRPC::NodeList afters;
    QRPC::NodeList restated = switchedOff;
    for (const Node *node : block) {
        const QVector<Node *> &siblings = node->parent->children;
        const Node *before = siblings.value(siblings.indexOf(const_cast<Node *>(node)) - 1);
        parents.append(node->parent->id);
        afters.append(before ? before->id : 0);
        const QRPC::NodeId top = highestDisabled(node);
        if (!restated.contains(top))
            restated.append(top);
    }
    Q_EMIT nodesMoved(idsOf(block), parents, afters);
    Q_EMIT enabledStateChanged(restated);
}

/// A switch that shows a child already lets newcomers in disabled only; of newcomers alone the
/// first stays enabled.
void RecordingService::enterDisabled(const QVector<Node *> &entered, QRPC::NodeList *changed)
{
    const Node *parent = entered.first()->parent;
    if (parent->kind != Kind::Switch)
        return;
    bool shown =
        std::any_of(parent->children.cbegin(), parent->children.cend(),
                    [&entered](Node *child) { return child->enabled && !entered.contains(child); });
    for (Node *node : entered) {
        if (node->enabled && shown) {
            node->enabled = false;
            changed->append(node->id);
        }
        shown = shown || node->enabled;
    }
}

void RecordingService::setEnabled(const QRPC::NodeList &nodes, bool enabled)
{
    const QString line =
        noteWrite("setEnabled", nodes, enabled ? QStringLiteral("true") : QStringLiteral("false"));
    if (m_applies)
        applyEnabled(nodes, enabled);
    finish(line);
}

void RecordingService::applyEnabled(const QRPC::NodeList &nodes, bool enabled)
{
    QVector<QPair<Node *, bool>> before;
    const auto change = [&before](Node *node, bool value) {
        if (node->enabled != value)
            before.append(qMakePair(node, node->enabled));
        node->enabled = value;
    };
    const QVector<Node *> targets = known(nodes);
    for (Node *node : targets) {
        if (enabled && node->parent->kind == Kind::Switch) {
            for (Node *sibling : qAsConst(node->parent->children))
                change(sibling, false);
        }
        change(node, enabled);
    }
    QVector<Node *> changed;
    QSet<Node *> seen;
    for (const auto &[node, value] : qAsConst(before)) {
        if (!seen.contains(node) && node->enabled != value)
            changed.append(node);
        seen.insert(node);
    }
    std::stable_sort(changed.begin(), changed.end(),
                     [](Node *a, Node *b) { return depthOf(a) < depthOf(b); });
    if (!changed.isEmpty())
        Q_EMIT enabledStateChanged(idsOf(changed));
}
