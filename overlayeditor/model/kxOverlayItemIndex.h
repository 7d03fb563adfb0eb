// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/QRPC.h"

#include <QHash>
#include <QSet>

class QStandardItem;
class QStandardItemModel;

/// Knows every living kxOverlayItem by its node, so that a look-up which misses s_itemMap needs no
/// walk of the tree, and knows the items that a model has taken out and not destroyed.
///
/// Items enter and leave it by themselves, from their constructors and destructor; the models ask.
/// It decides nothing about the tree. GUI thread only.
class kxOverlayItemIndex
{
public:
    /// The one index of the process, which outlives all items.
    static kxOverlayItemIndex &the();

    /// A living item whose node is not known yet: Qt reads it into a copy after it was made.
    void addUnread(QStandardItem *item);

    /// The node of a living item changed; either id may be 0 for none.
    void changeId(QStandardItem *item, QRPC::NodeId before, QRPC::NodeId now);

    /// The item, which showed the node, is being destroyed.
    void remove(QStandardItem *item, QRPC::NodeId id);

    /// The first item in pre-order that shows the node in the model's tree; null for none.
    QStandardItem *find(QRPC::NodeId id, const QStandardItemModel *model);

    /// `model` has taken the item out of its tree and left it alive, without an owner.
    void setDetached(QStandardItem *item, const QStandardItemModel *model);

    /// The item has an owner again.
    void setAttached(QStandardItem *item);

    /// Destroys all that `model` has taken out and that has found no owner since.
    void destroyDetached(const QStandardItemModel *model);

private:
    void readUnread();
    void forget(QStandardItem *item, QRPC::NodeId id);

    QMultiHash<QRPC::NodeId, QStandardItem *> m_items;
    QSet<QStandardItem *> m_unread;
    QHash<QStandardItem *, const QStandardItemModel *> m_detached;
};
