// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "kit/RecordingService.h"

#include <QRegularExpression>
#include <QScopedValueRollback>
#include <QSet>

#include <algorithm>

using notation::Kind;

namespace {

using Node = RecordingService::Node;

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
        announceCreated({id});
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
    QVector<Node *> copies;
    const QVector<Node *> originals = m_applies ? tops(nodes) : QVector<Node *>();
    for (Node *original : originals) {
        Node *copy = copyOf(*original);
        QVector<Node *> &siblings = original->parent->children;
        int row = siblings.indexOf(original) + 1;
        while (row < siblings.size()
               && (originals.contains(siblings.at(row)) || copies.contains(siblings.at(row))))
            ++row;
        siblings.insert(row, copy);
        QRPC::NodeList changed;
        enterDisabled({copy}, &changed);
        copies.append(copy);
    }
    if (!copies.isEmpty())
        announceCreated(idsOf(inOrder(copies)));
    finish(line);
}

void RecordingService::deleteNodes(const QRPC::NodeList &nodes)
{
    const QString line = noteWrite("deleteNodes", nodes, QString());
    const QRPC::NodeList doomed = m_applies ? idsOf(inOrder(tops(nodes))) : QRPC::NodeList();
    erase(doomed);
    if (!doomed.isEmpty())
        announce([this, doomed] { Q_EMIT nodesRemoved(doomed); }, true);
    finish(line);
}

void RecordingService::groupNodes(const QRPC::NodeList &nodes)
{
    const QString line = noteWrite("groupNodes", nodes, QString());
    const QVector<Node *> members = m_applies ? tops(nodes) : QVector<Node *>();
    if (!members.isEmpty()) {
        const Node *topmost = inOrder(members).constFirst();
        Node *parent = topmost->parent;
        const QString name = QStringLiteral("n%1").arg(m_nextId);
        Node *group = adopt(parent, parent->children.indexOf(const_cast<Node *>(topmost)),
                            notation::Node{name, m_nextId, Kind::Group, true, {}});
        QRPC::NodeList changed;
        enterDisabled({group}, &changed);
        const QRPC::NodeList created{group->id};
        announce([this, created] { Q_EMIT nodesAdded(created); }, true);
        applyMove(idsOf(members), group, -1);
        announce([this, created] { Q_EMIT nodesCreated(created); }, true);
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
    const QVector<Node *> before = children;
    const bool staysInside = std::all_of(block.cbegin(), block.cend(),
                                         [target](Node *node) { return node->parent == target; });
    for (Node *node : block)
        node->parent->children.removeOne(node);
    int at = anchor ? children.indexOf(anchor) : children.size();
    for (Node *node : block) {
        children.insert(at++, node);
        node->parent = target;
    }
    if (staysInside && children == before)
        return;
    QRPC::NodeList switchedOff;
    enterDisabled(block, &switchedOff);
    announceMove(block, switchedOff);
}

void RecordingService::announceMove(const QVector<Node *> &block, const QRPC::NodeList &switchedOff)
{
    QRPC::NodeList parents;
    QRPC::NodeList afters;
    QVector<Node *> restated = known(switchedOff);
    for (const Node *node : block) {
        const QVector<Node *> &siblings = node->parent->children;
        const Node *before = siblings.value(siblings.indexOf(const_cast<Node *>(node)) - 1);
        parents.append(node->parent->id);
        afters.append(before ? before->id : 0);
        Node *top = find(highestDisabled(node));
        if (!restated.contains(top))
            restated.append(top);
    }
    const QRPC::NodeList moved = idsOf(block);
    const QRPC::NodeList changed = idsOf(inOrder(restated));
    const QScopedValueRollback<bool> announcing(m_announcesMove, true);
    announce([=] { Q_EMIT nodesMoved(moved, parents, afters); }, false);
    announce([=] { Q_EMIT enabledStateChanged(changed); }, false);
}

void RecordingService::announceCreated(const QRPC::NodeList &nodes)
{
    announce([this, nodes] { Q_EMIT nodesAdded(nodes); }, true);
    announce([this, nodes] { Q_EMIT nodesCreated(nodes); }, true);
}

/// What adds or removes waits until the move that is being announced is over, and all that comes
/// behind it waits with it.
void RecordingService::announce(const std::function<void()> &signal, bool isStructural)
{
    if ((!m_announcesMove || !isStructural) && m_queued.isEmpty()) {
        signal();
        return;
    }
    m_queued.append(signal);
    QMetaObject::invokeMethod(
        this, [this] { sendQueued(); }, Qt::QueuedConnection);
}

void RecordingService::sendQueued()
{
    const QVector<std::function<void()>> waiting = std::exchange(m_queued, {});
    for (const std::function<void()> &signal : waiting)
        signal();
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
    const QRPC::NodeList announced = idsOf(inOrder(changed));
    if (!announced.isEmpty())
        announce([this, announced] { Q_EMIT enabledStateChanged(announced); }, false);
}
