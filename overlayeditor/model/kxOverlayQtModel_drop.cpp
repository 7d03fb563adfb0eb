// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

// Drag and drop: moves the dragged nodes through the overlay service.

#include "overlayeditor/model/kxOverlayQtModel.h"

#include "host/kxOverlayService.h"
#include "overlayeditor/kxServices.h"

#include <QDataStream>
#include <QMimeData>
#include <QPersistentModelIndex>
#include <QScopedValueRollback>

#include <algorithm>
#include <iterator>

namespace {

const QLatin1String
    s_treeItems("application/pimo-overlaytree-items"); // a group or switch among them
const QLatin1String s_overlayItems("application/pimo-overlay-items"); // overlays only

QRPC::NodeList decodeNodes(const QMimeData *data)
{
    const QByteArray bytes =
        data->data(data->hasFormat(s_treeItems) ? s_treeItems : s_overlayItems);
    QDataStream stream(bytes);
    QRPC::NodeList nodes;
    while (!stream.atEnd()) {
        qint32 node = 0;
        qint32 parent = 0; // as it was when the drag began; the service knows the present one
        stream >> node >> parent;
        nodes.append(QRPC::NodeId(node));
    }
    return nodes;
}

} // namespace

Qt::DropActions kxOverlayQtModel::supportedDropActions() const
{
    return Qt::MoveAction;
}

QStringList kxOverlayQtModel::mimeTypes() const
{
    return QStandardItemModel::mimeTypes() << s_treeItems << s_overlayItems;
}

QMimeData *kxOverlayQtModel::mimeData(const QModelIndexList &indexes) const
{
    if (indexes.isEmpty())
        return nullptr;
    // The base gives up at an index without a row.
    QModelIndexList rows;
    std::copy_if(indexes.begin(), indexes.end(), std::back_inserter(rows),
                 [this](const QModelIndex &index) { return itemFromIndex(index) != nullptr; });
    QMimeData *data = rows.isEmpty() ? new QMimeData : QStandardItemModel::mimeData(rows);
    // All ids before the first question: the service may change its tree in an answer.
    QRPC::NodeList nodes;
    for (const QModelIndex &index : qAsConst(rows))
        nodes.append(getNodeId(index));
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    bool anyGroup = false;
    for (const QRPC::NodeId id : qAsConst(nodes)) {
        if (id == 0)
            continue;
        anyGroup |= !kxService<kxOverlayService>()->isOverlay(id);
        stream << qint32(id) << qint32(kxService<kxOverlayService>()->getParent(id));
    }
    data->setData(anyGroup ? s_treeItems : s_overlayItems, bytes);
    return data;
}

bool kxOverlayQtModel::dropMimeData(const QMimeData *data, Qt::DropAction action, int row,
                                    int column, const QModelIndex &parent)
{
    if (!data || action != Qt::MoveAction)
        return false;
    if (!data->hasFormat(s_treeItems) && !data->hasFormat(s_overlayItems))
        return QStandardItemModel::dropMimeData(data, Qt::MoveAction, row, column, parent);

    // The service may reset or remove the target before it returns.
    const QPersistentModelIndex place(parent);
    QRPC::NodeId target = getNodeId(parent);
    if (target == 0)
        target = kxService<kxOverlayService>()->getRootNode();
    const QRPC::NodeList nodes = decodeNodes(data);
    {
        const QScopedValueRollback<bool> guard(m_updating, true);
        kxService<kxOverlayService>()->moveNodes(nodes, target, row);
    }
    // Before the copies are there, while a node has one row only.
    Q_EMIT nodesDropped(nodes, place);
    if (parent.isValid() && !place.isValid())
        return false;
    const kxTurns::Hold hold(&m_turns);
    return QStandardItemModel::dropMimeData(data, Qt::MoveAction, row, column, place);
}
