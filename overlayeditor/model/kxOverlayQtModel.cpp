// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

// Life cycle, look-up and edits of the model; what the service announces is in
// kxOverlayQtModel_mirror.cpp, drag and drop in kxOverlayQtModel_drop.cpp.

#include "overlayeditor/model/kxOverlayQtModel.h"

#include "host/kxOverlayService.h"
#include "overlayeditor/kxConnect.h"
#include "overlayeditor/kxServices.h"
#include "overlayeditor/model/kxOverlayItem.h"
#include "overlayeditor/model/kxOverlayItemIndex.h"
#include "overlayeditor/model/kxOverlayItemMap.h"

#include <QPersistentModelIndex>
#include <QScopedValueRollback>

kxOverlayQtModel::kxOverlayQtModel()
    : m_turns(this, [this](kxTurns::Missed missed) { catchUp(missed); })
{
    // Under exactly these names, so that signals queued from another thread are delivered.
    qRegisterMetaType<QRPC::NodeId>("QRPC::NodeId");
    qRegisterMetaType<QRPC::NodeList>("QRPC::NodeList");

    setItemPrototype(new kxOverlayItem);

    const kxConnection connections[] = {
        {SIGNAL(nodesAdded(const QRPC::NodeList &)),
         SLOT(nodesAddedUpdate(const QRPC::NodeList &))},
        {SIGNAL(nodesRemoved(const QRPC::NodeList &)),
         SLOT(nodesRemovedUpdate(const QRPC::NodeList &))},
        {SIGNAL(nameChanged(const QRPC::NodeList &)), SLOT(updateName(const QRPC::NodeList &))},
        {SIGNAL(nodesMoved(const QRPC::NodeList &, const QRPC::NodeList &, const QRPC::NodeList &)),
         SLOT(nodesMoved(const QRPC::NodeList &, const QRPC::NodeList &, const QRPC::NodeList &))},
        {SIGNAL(enabledStateChanged(const QRPC::NodeList &)),
         SLOT(updateEnabledState(const QRPC::NodeList &))},
        {SIGNAL(modelReset()), SLOT(modelReset())},
    };
    kxConnectAll(kxService<kxOverlayService>(), this, connections);
}

kxOverlayQtModel::~kxOverlayQtModel()
{
    kxOverlayItemIndex::the().destroyDetached(this);
}

QRPC::NodeId kxOverlayQtModel::getNodeId(const QModelIndex &index) const
{
    return getNodeId(itemFromIndex(index));
}

QRPC::NodeId kxOverlayQtModel::getNodeId(const QStandardItem *item) const
{
    return item ? item->data(kxOverlayItem::NodeIdRole).toUInt() : 0;
}

QStandardItem *kxOverlayQtModel::itemFromId(QRPC::NodeId id) const
{
    if (id == kxService<kxOverlayService>()->getRootNode())
        return invisibleRootItem();
    const auto cached = s_itemMap.find(id);
    if (cached != s_itemMap.end() && cached->second)
        return cached->second;
    if (id == 0)
        return nullptr;
    QStandardItem *item = getNodeId(invisibleRootItem()) == id
                              ? invisibleRootItem()
                              : kxOverlayItemIndex::the().find(id, this);
    if (item)
        s_itemMap[id] = item;
    return item;
}

QModelIndex kxOverlayQtModel::indexFromId(QRPC::NodeId id) const
{
    const QStandardItem *item = itemFromId(id);
    return item ? item->index() : QModelIndex();
}

QStandardItem *kxOverlayQtModel::getParent(QStandardItem *item) const
{
    QStandardItem *parent = item->parent();
    return parent ? parent : invisibleRootItem();
}

bool kxOverlayQtModel::isInTree(const QStandardItem *item) const
{
    return item->model() == this;
}

bool kxOverlayQtModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (m_updating) {
        const kxTurns::Hold hold(&m_turns);
        return QStandardItemModel::setData(index, value, role);
    }

    const QRPC::NodeList list{getNodeId(index)};
    // The service may reset or remove the row before it returns.
    const QPersistentModelIndex target(index);
    {
        const QScopedValueRollback<bool> guard(m_updating, true);
        if (role == Qt::CheckStateRole)
            kxService<kxOverlayService>()->setEnabled(list, value.toBool());
        else if (role == Qt::EditRole)
            kxService<kxOverlayService>()->setName(list, value.toString());
    }
    if (!target.isValid()) {
        // A new row of the node may have been made before its name was written.
        if (index.isValid())
            updateName(list);
        return false;
    }
    const kxTurns::Hold hold(&m_turns);
    return QStandardItemModel::setData(target, value, role);
}

bool kxOverlayQtModel::removeRows(int row, int count, const QModelIndex &parent)
{
    const kxTurns::Hold hold(&m_turns);
    return QStandardItemModel::removeRows(row, count, parent);
}
