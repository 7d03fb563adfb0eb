// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

// How the model follows what the overlay service announces.

#include "overlayeditor/model/kxOverlayQtModel.h"

#include "host/kxOverlayService.h"
#include "overlayeditor/kxServices.h"
#include "overlayeditor/model/kxOverlayItem.h"
#include "overlayeditor/model/kxOverlayItemIndex.h"
#include "overlayeditor/model/kxOverlayItemMap.h"

#include <QScopedValueRollback>

#include <algorithm>
#include <tuple>
#include <vector>

namespace {

/// True when `item` is `ancestor` or lies in it.
bool liesIn(const QStandardItem *item, const QStandardItem *ancestor)
{
    while (item && item != ancestor)
        item = item->parent();
    return item != nullptr;
}

/// By parent, and from the last row to the first: the rows that are still to come keep their
/// numbers, and the current row is not pushed from one doomed row to the next.
QVector<QStandardItem *> inOrderOfRemoval(const QVector<QStandardItem *> &items)
{
    QHash<const QStandardItem *, int> parents; // each with the order of its first appearance
    std::vector<std::tuple<int, int, QStandardItem *>> places;
    places.reserve(size_t(items.size()));
    for (QStandardItem *item : items) {
        const int parent =
            *parents.insert(item->parent(), parents.value(item->parent(), parents.size()));
        places.emplace_back(parent, -item->row(), item);
    }
    std::stable_sort(places.begin(), places.end(), [](const auto &a, const auto &b) {
        return std::tie(std::get<0>(a), std::get<1>(a)) < std::tie(std::get<0>(b), std::get<1>(b));
    });
    QVector<QStandardItem *> ordered;
    ordered.reserve(items.size());
    for (const auto &place : places)
        ordered.append(std::get<2>(place));
    return ordered;
}

} // namespace

QStandardItem *kxOverlayQtModel::createItem(QRPC::NodeId id)
{
    const kxTurns::Hold hold(&m_turns);
    return obtainItem(id, Detached::Reuse);
}

QStandardItem *kxOverlayQtModel::knownItem(QRPC::NodeId id, Detached detached) const
{
    QStandardItem *item = itemFromId(id);
    if (!item || isInTree(item) || detached == Detached::Reuse)
        return item;
    s_itemMap.erase(id);
    return nullptr;
}

QStandardItem *kxOverlayQtModel::obtainItem(QRPC::NodeId id, Detached detached)
{
    QStandardItem *item = knownItem(id, detached);
    if (!item) {
        item = new kxOverlayItem(id);
        appendChildren(item, id, detached);
    }
    return item;
}

void kxOverlayQtModel::appendChildren(QStandardItem *item, QRPC::NodeId id, Detached detached)
{
    const int count = kxService<kxOverlayService>()->getChildCount(id);
    for (int i = 0; i < count; ++i) {
        const QRPC::NodeId childId = kxService<kxOverlayService>()->getChild(id, i);
        if (QStandardItem *known = knownItem(childId, detached)) {
            // It may still hang where it was before; appending it there as well would leave an
            // empty row here.
            removeFromParent(known);
            item->appendRow(known);
            kxOverlayItemIndex::the().setAttached(known);
            continue;
        }
        // Appended before it is filled: appending walks all that lies in the child, at each level.
        auto *child = new kxOverlayItem(childId);
        item->appendRow(child);
        appendChildren(child, childId, detached);
    }
}

void kxOverlayQtModel::nodeAddedUpdate(QRPC::NodeId id)
{
    nodesAddedUpdate({id});
}

void kxOverlayQtModel::nodesAddedUpdate(const QRPC::NodeList &list)
{
    m_turns.take([this, list] { add(list); });
}

void kxOverlayQtModel::add(const QRPC::NodeList &list)
{
    ItemSet incomplete;
    for (const QRPC::NodeId id : list)
        addNode(id, &incomplete);
}

void kxOverlayQtModel::addNode(QRPC::NodeId id, ItemSet *incomplete)
{
    QRPC::NodeId child = 0;
    QRPC::NodeId parent = id;
    QStandardItem *anchor = nullptr;
    // An ancestor whose row was taken out comes back with its node: it holds nothing in the tree.
    do {
        if (parent == 0)
            return;
        child = parent;
        parent = kxService<kxOverlayService>()->getParent(child);
        anchor = itemFromId(parent);
    } while (!anchor || !isInTree(anchor));

    QStandardItem *item = obtainItem(child, Detached::Forget);
    // Inserting an item that has its row already would add an empty one.
    if (isInTree(item))
        return;
    int row = kxService<kxOverlayService>()->getChildIndex(parent, child);
    // Earlier siblings may be announced later: a row beyond the end would lose the item.
    if (row < 0 || row > anchor->rowCount())
        incomplete->insert(anchor);
    if (incomplete->contains(anchor))
        row = rowBehindEarlierSibling(anchor, parent, row);
    anchor->insertRow(row, item);
    kxOverlayItemIndex::the().setAttached(item);
}

int kxOverlayQtModel::rowBehindEarlierSibling(const QStandardItem *parent, QRPC::NodeId parentId,
                                              int row) const
{
    for (int i = row - 1; i >= 0; --i) {
        const QRPC::NodeId sibling = kxService<kxOverlayService>()->getChild(parentId, i);
        const QStandardItem *item = itemFromId(sibling);
        if (item && parent->child(item->row()) == item)
            return item->row() + 1;
    }
    return 0;
}

void kxOverlayQtModel::removeFromParent(QStandardItem *item)
{
    const int row = item->row();
    if (row < 0)
        return;
    const kxTurns::Hold hold(&m_turns);
    // Not takeChild() and then removeRow(): that invalidates the row's indexes before its removal
    // is announced, and a selection model with a range that begins there crashes.
    getParent(item)->takeRow(row);
    kxOverlayItemIndex::the().setDetached(item, this);
}

void kxOverlayQtModel::nodeRemovedUpdate(QRPC::NodeId id)
{
    nodesRemovedUpdate({id});
}

void kxOverlayQtModel::announceLeaving(const QRPC::NodeList &nodes)
{
    QModelIndexList rows;
    for (const QRPC::NodeId id : nodes) {
        if (const QStandardItem *item = kxOverlayItemIndex::the().find(id, this))
            rows.append(item->index());
    }
    Q_EMIT nodesAboutToGo(rows);
}

void kxOverlayQtModel::nodesRemovedUpdate(const QRPC::NodeList &list)
{
    m_turns.take([this, list] { remove(list); });
}

void kxOverlayQtModel::remove(const QRPC::NodeList &list)
{
    QVector<QStandardItem *> items;
    for (const QRPC::NodeId id : list) {
        if (QStandardItem *item = itemFromId(id))
            items.append(item);
    }
    announceLeaving(list);
    const QVector<QStandardItem *> ordered = inOrderOfRemoval(items);
    for (QStandardItem *item : ordered)
        removeFromParent(item);
}

void kxOverlayQtModel::nodesMoved(const QRPC::NodeList &nodes, const QRPC::NodeList &parents,
                                  const QRPC::NodeList &afters)
{
    if (!m_updating)
        m_turns.take([this, nodes, parents, afters] { move(nodes, parents, afters); });
}

void kxOverlayQtModel::move(const QRPC::NodeList &nodes, const QRPC::NodeList &parents,
                            const QRPC::NodeList &afters)
{
    announceLeaving(nodes);
    rememberItems(nodes);
    for (int i = 0; i < nodes.size(); ++i) {
        QStandardItem *item = itemFromId(nodes.at(i));
        if (item)
            removeFromParent(item);
        else
            item = createItem(nodes.at(i));
        if (!place(item, parents.value(i), afters.value(i)) && !isInTree(item))
            kxOverlayItemIndex::the().setDetached(item, this);
    }
}

void kxOverlayQtModel::rememberItems(const QRPC::NodeList &nodes) const
{
    for (const QRPC::NodeId id : nodes) {
        QStandardItem *item = kxOverlayItemIndex::the().find(id, this);
        if (item && !s_itemMap[id])
            s_itemMap[id] = item;
    }
}

bool kxOverlayQtModel::place(QStandardItem *item, QRPC::NodeId parentId, QRPC::NodeId afterId)
{
    QStandardItem *parent = itemFromId(parentId);
    // An item cannot hold itself: a parent that still lies in it makes the place unknown.
    if (!parent || item == invisibleRootItem() || liesIn(parent, item))
        return false;
    const QStandardItem *after = itemFromId(afterId);
    if (after && parent->child(after->row()) != after)
        return false;
    parent->insertRow(after ? after->row() + 1 : 0, item);
    kxOverlayItemIndex::the().setAttached(item);
    return true;
}

void kxOverlayQtModel::updateName(const QRPC::NodeList &list)
{
    if (m_updating)
        return;
    const kxTurns::Hold hold(&m_turns);
    const QScopedValueRollback<bool> guard(m_updating, true);
    for (const QRPC::NodeId id : list) {
        if (QStandardItem *item = itemFromId(id))
            item->setData(kxService<kxOverlayService>()->getName(id), Qt::DisplayRole);
    }
}

void kxOverlayQtModel::updateEnabledState(const QRPC::NodeList &list)
{
    m_turns.take([this, list] { refreshStates(list); });
}

void kxOverlayQtModel::refreshStates(const QRPC::NodeList &list)
{
    ItemSet refreshedSwitches;
    ItemSet refreshed;
    for (const QRPC::NodeId id : list) {
        QStandardItem *item = itemFromId(id);
        if (!item)
            continue;
        updateCheckState(item, id);
        QStandardItem *parent = getParent(item);
        const QRPC::NodeId parentId = getNodeId(parent);
        if (!kxService<kxOverlayService>()->isActive(parentId))
            continue;
        if (!kxService<kxOverlayService>()->isSwitch(parentId)) {
            updateActiveStates({item}, &refreshed);
            continue;
        }
        // Once a list: each of its children would refresh all the others again.
        if (refreshedSwitches.contains(parent))
            continue;
        refreshedSwitches.insert(parent);
        QVector<QStandardItem *> children;
        for (int row = 0; row < parent->rowCount(); ++row) {
            children.append(parent->child(row));
            updateCheckState(children.last(), getNodeId(children.last()));
        }
        updateActiveStates(children, &refreshed);
    }
}

void kxOverlayQtModel::updateCheckState(QStandardItem *item, QRPC::NodeId id)
{
    const bool enabled = kxService<kxOverlayService>()->isEnabled(id);
    item->setData(int(enabled ? Qt::Checked : Qt::Unchecked), Qt::CheckStateRole);
}

/// Refreshes each row once a list: a list that names all nodes of a chain would refresh the last as
/// often as there are nodes.
void kxOverlayQtModel::updateActiveStates(QVector<QStandardItem *> stack, ItemSet *refreshed)
{
    while (!stack.isEmpty()) {
        QStandardItem *item = stack.takeLast();
        if (refreshed->contains(item))
            continue;
        refreshed->insert(item);
        const bool active = kxService<kxOverlayService>()->isActive(getNodeId(item));
        item->setData(active, kxOverlayItem::ActiveRole);
        for (int row = 0; row < item->rowCount(); ++row)
            stack.append(item->child(row));
    }
}

void kxOverlayQtModel::modelReset()
{
    m_turns.take([this] { fill(); }, kxTurns::Missed::Reset);
}

void kxOverlayQtModel::fill()
{
    s_itemMap.clear();
    clear();
    kxOverlayItemIndex::the().destroyDetached(this);

    const QRPC::NodeId root = kxService<kxOverlayService>()->getRootNode();
    invisibleRootItem()->setData(root, kxOverlayItem::NodeIdRole);
    for (int i = 0; i < kxService<kxOverlayService>()->getChildCount(root); ++i) {
        QStandardItem *item = createItem(kxService<kxOverlayService>()->getChild(root, i));
        // Only a service that changes its tree in an answer names a child twice.
        if (!isInTree(item))
            invisibleRootItem()->appendRow(item);
    }
}
