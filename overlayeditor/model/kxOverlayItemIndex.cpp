// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "overlayeditor/model/kxOverlayItemIndex.h"

#include "overlayeditor/model/kxOverlayItem.h"

#include <QStandardItemModel>
#include <QVector>

#include <algorithm>
#include <iterator>

namespace {

QRPC::NodeId nodeIdOf(const QStandardItem *item)
{
    return item->data(kxOverlayItem::NodeIdRole).toUInt();
}

/// The rows that lead from the top of the tree to the item.
QVector<int> pathOf(const QStandardItem *item)
{
    QVector<int> rows;
    for (; item; item = item->parent())
        rows.prepend(item->row());
    return rows;
}

bool standsBefore(const QStandardItem *left, const QStandardItem *right)
{
    const QVector<int> a = pathOf(left);
    const QVector<int> b = pathOf(right);
    return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end());
}

} // namespace

kxOverlayItemIndex &kxOverlayItemIndex::the()
{
    static kxOverlayItemIndex index;
    return index;
}

void kxOverlayItemIndex::addUnread(QStandardItem *item)
{
    m_unread.insert(item);
}

void kxOverlayItemIndex::changeId(QStandardItem *item, QRPC::NodeId before, QRPC::NodeId now)
{
    if (before != 0 || m_unread.contains(item))
        forget(item, before);
    if (now == 0)
        m_unread.insert(item);
    else
        m_items.insert(now, item);
}

void kxOverlayItemIndex::remove(QStandardItem *item, QRPC::NodeId id)
{
    forget(item, id);
    m_detached.remove(item);
}

QStandardItem *kxOverlayItemIndex::find(QRPC::NodeId id, const QStandardItemModel *model)
{
    readUnread();
    QStandardItem *first = nullptr;
    for (auto it = m_items.constFind(id); it != m_items.constEnd() && it.key() == id; ++it) {
        QStandardItem *item = it.value();
        if (item->model() != model || nodeIdOf(item) != id)
            continue;
        // A drop shows a node twice until the view has removed the dragged row.
        if (!first || standsBefore(item, first))
            first = item;
    }
    return first;
}

void kxOverlayItemIndex::setDetached(QStandardItem *item, const QStandardItemModel *model)
{
    m_detached.insert(item, model);
}

void kxOverlayItemIndex::setAttached(QStandardItem *item)
{
    m_detached.remove(item);
}

void kxOverlayItemIndex::destroyDetached(const QStandardItemModel *model)
{
    const QList<QStandardItem *> items = m_detached.keys(model);
    for (QStandardItem *item : items) {
        // A caller may have given it an owner by hand, which destroys it in its own time.
        if (m_detached.contains(item) && !item->parent() && !item->model())
            delete item;
    }
}

void kxOverlayItemIndex::readUnread()
{
    for (auto it = m_unread.begin(); it != m_unread.end();) {
        const QRPC::NodeId id = nodeIdOf(*it);
        if (id != 0)
            m_items.insert(id, *it);
        it = id != 0 ? m_unread.erase(it) : std::next(it);
    }
}

void kxOverlayItemIndex::forget(QStandardItem *item, QRPC::NodeId id)
{
    if (m_unread.remove(item) || m_items.remove(id, item) > 0)
        return;
    // The id was replaced behind the item's back, by reading the item from a stream.
    for (auto it = m_items.begin(); it != m_items.end();)
        it = it.value() == item ? m_items.erase(it) : std::next(it);
}
