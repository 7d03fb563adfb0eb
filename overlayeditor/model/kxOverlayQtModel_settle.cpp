// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

// Makes rows equal to the service again, after a drag and after what could not be followed at once.

#include "overlayeditor/model/kxOverlayQtModel.h"

#include "host/kxOverlayService.h"
#include "overlayeditor/kxServices.h"
#include "overlayeditor/model/kxDropTrace.h"
#include "overlayeditor/model/kxOverlayItem.h"
#include "overlayeditor/model/kxOverlayItemIndex.h"

#include <QPersistentModelIndex>
#include <QVector>

void kxOverlayQtModel::settle(const kxDropTrace &trace, Copies copies)
{
    const kxTurns::Hold hold(&m_turns);
    // Mending one place may shift or remove rows of the next.
    const QModelIndexList rows = trace.insertedRows();
    const QVector<QPersistentModelIndex> inserted(rows.begin(), rows.end());
    const QRPC::NodeList nodes = trace.droppedNodes();
    const NodeSet dropped(nodes.begin(), nodes.end());
    for (const QPersistentModelIndex &copy : inserted) {
        if (!copy.isValid())
            continue;
        // One that does not belong here would draw in what its node has elsewhere.
        if (copies == Copies::Discard || !isInPlace(itemFromIndex(copy)))
            removeRow(copy.row(), copy.parent());
        else
            settleSubtree(itemFromIndex(copy), dropped);
    }
    const QModelIndexList parents = trace.touchedParents();
    const QVector<QPersistentModelIndex> remaining(parents.begin(), parents.end());
    for (int i = 0; i < remaining.size(); ++i) {
        // The root is the index that never was valid.
        const bool isRoot = !parents.at(i).isValid();
        if (isRoot || remaining.at(i).isValid())
            settleChildren(isRoot ? invisibleRootItem() : itemFromIndex(remaining.at(i)), dropped);
    }
}

/// Mends the rows that differ, as after a drop, so that the others stay selected and open.
void kxOverlayQtModel::catchUp(kxTurns::Missed missed)
{
    if (missed == kxTurns::Missed::Reset) {
        fill();
        return;
    }
    settleChildren(invisibleRootItem(), {});
    for (int row = 0; row < rowCount(); ++row)
        settleSubtree(item(row), {});
}

bool kxOverlayQtModel::isInPlace(QStandardItem *item) const
{
    return itemFromId(kxService<kxOverlayService>()->getParent(getNodeId(item))) == getParent(item);
}

void kxOverlayQtModel::settleSubtree(QStandardItem *item, const NodeSet &dropped)
{
    const QRPC::NodeId id = getNodeId(item);
    item->setData(kxService<kxOverlayService>()->getName(id), Qt::DisplayRole);
    updateCheckState(item, id);
    const bool active = kxService<kxOverlayService>()->isActive(id);
    if (item->data(kxOverlayItem::ActiveRole).toBool() != active)
        item->setData(active, kxOverlayItem::ActiveRole);
    settleChildren(item, dropped);
    for (int row = 0; row < item->rowCount(); ++row)
        settleSubtree(item->child(row), dropped);
}

void kxOverlayQtModel::settleChildren(QStandardItem *parent, const NodeSet &dropped)
{
    // The root's row carries no id before the first reset.
    const QRPC::NodeId parentId = parent == invisibleRootItem()
                                      ? kxService<kxOverlayService>()->getRootNode()
                                      : getNodeId(parent);
    const int count = kxService<kxOverlayService>()->getChildCount(parentId);
    QVector<QRPC::NodeId> nodes;
    nodes.reserve(count);
    for (int i = 0; i < count; ++i)
        nodes.append(kxService<kxOverlayService>()->getChild(parentId, i));

    NodeSet missing(nodes.begin(), nodes.end());
    for (int row = 0; row < nodes.size();) {
        const QRPC::NodeId id = nodes.at(row);
        // A row in the way that shows no node still to come is a ghost or a second copy.
        while (parent->rowCount() > row && !missing.contains(getNodeId(parent->child(row))))
            parent->removeRow(row);
        missing.remove(id);
        if (!dropped.contains(id))
            makeWay(parent, row, id, dropped);
        if (row >= parent->rowCount() || getNodeId(parent->child(row)) != id) {
            QStandardItem *item = takeForRow(parent, row, id);
            if (!item) {
                nodes.removeAt(row);
                continue;
            }
            parent->insertRow(row, item);
            // It shows what it was in its old place.
            settleSubtree(item, dropped);
        }
        ++row;
    }
    if (parent->rowCount() > nodes.size())
        parent->removeRows(nodes.size(), parent->rowCount() - nodes.size());
    // Rows of a table make room for all their columns.
    if (parent->columnCount() > 1)
        parent->setColumnCount(1);
}

/// Puts the rows of dropped nodes that stand in front of a row last, where they are found in turn: a
/// row that nobody dragged stays, with whatever a view knows about it.
void kxOverlayQtModel::makeWay(QStandardItem *parent, int row, QRPC::NodeId id,
                               const NodeSet &dropped)
{
    int left = rowOf(parent, row, id) - row;
    for (; left > 0 && dropped.contains(getNodeId(parent->child(row))); --left)
        parent->appendRow(parent->takeRow(row));
}

/// The first row of a node from a row on; -1 for none.
int kxOverlayQtModel::rowOf(const QStandardItem *parent, int from, QRPC::NodeId id) const
{
    for (int row = from; row < parent->rowCount(); ++row) {
        if (getNodeId(parent->child(row)) == id)
            return row;
    }
    return -1;
}

/// The item of a node that belongs at a row: from further down, from another parent, or new. Null
/// where the node's row holds the parent, which only a service can bring about that moves more than
/// it was asked to.
QStandardItem *kxOverlayQtModel::takeForRow(QStandardItem *parent, int row, QRPC::NodeId id)
{
    const int other = rowOf(parent, row, id);
    if (other >= 0)
        return parent->takeRow(other).constFirst();
    QStandardItem *item = obtainItem(id, Detached::Forget);
    for (const QStandardItem *at = parent; at; at = at->parent()) {
        if (at == item)
            return nullptr;
    }
    removeFromParent(item);
    kxOverlayItemIndex::the().setAttached(item);
    return item;
}
