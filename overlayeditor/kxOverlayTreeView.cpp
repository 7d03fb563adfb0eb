// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "overlayeditor/kxOverlayTreeView.h"

#include "overlayeditor/kxSelectionRanges.h"
#include "overlayeditor/model/kxDropTrace.h"
#include "overlayeditor/model/kxOverlayQtModel.h"

#include <QScopedValueRollback>

kxOverlayTreeView::kxOverlayTreeView(QWidget *parent) : QTreeView(parent) {}

kxOverlayTreeView::~kxOverlayTreeView() = default;

kxOverlayQtModel *kxOverlayTreeView::overlayModel() const
{
    return qobject_cast<kxOverlayQtModel *>(model());
}

void kxOverlayTreeView::startDrag(Qt::DropActions supportedActions)
{
    deselectHiddenRows();
    const QScopedValueRollback<bool> dragging(m_dragging, true);
    const kxDropTrace trace(overlayModel());
    QTreeView::startDrag(supportedActions);
    // Only now the view has removed the rows that it takes for the dragged ones.
    settle(trace);
}

void kxOverlayTreeView::dropEvent(QDropEvent *event)
{
    if (m_dragging) {
        QTreeView::dropEvent(event);
        return;
    }
    const kxDropTrace trace(overlayModel());
    QTreeView::dropEvent(event);
    settle(trace);
}

void kxOverlayTreeView::deselectHiddenRows()
{
    const QModelIndexList indexes = selectionModel()->selectedIndexes();
    QItemSelection visible;
    for (const QModelIndex &index : indexes) {
        if (!isHidden(index))
            kxSelectionRanges::append(&visible, index);
    }
    if (visible.indexes().size() < indexes.size())
        selectionModel()->select(visible, QItemSelectionModel::ClearAndSelect);
}

bool kxOverlayTreeView::isHidden(QModelIndex index) const
{
    while (index.isValid() && !isRowHidden(index.row(), index.parent()))
        index = index.parent();
    return index.isValid();
}

void kxOverlayTreeView::settle(const kxDropTrace &trace)
{
    if (trace.droppedNodes().isEmpty())
        return;
    overlayModel()->settle(trace);
    QItemSelection dropped;
    const QRPC::NodeList nodes = trace.droppedNodes();
    for (const QRPC::NodeId node : nodes) {
        const QModelIndex index = overlayModel()->indexFromId(node);
        if (index.isValid())
            kxSelectionRanges::append(&dropped, index);
    }
    selectionModel()->select(dropped, QItemSelectionModel::ClearAndSelect);
}
