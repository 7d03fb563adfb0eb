// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "overlayeditor/kxOverlayTreeView.h"

#include "overlayeditor/kxSelectionRanges.h"
#include "overlayeditor/model/kxDropTrace.h"
#include "overlayeditor/model/kxOverlayQtModel.h"

#include <QEvent>
#include <QScopedValueRollback>

kxOverlayTreeView::kxOverlayTreeView(QWidget *parent) : QTreeView(parent) {}

kxOverlayTreeView::~kxOverlayTreeView() = default;

kxOverlayQtModel *kxOverlayTreeView::overlayModel() const
{
    return qobject_cast<kxOverlayQtModel *>(model());
}

bool kxOverlayTreeView::event(QEvent *event)
{
    if (event->type() == QEvent::KeyPress)
        event->accept(); // whoever handles a key may count on that
    return QTreeView::event(event);
}

void kxOverlayTreeView::dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                                    const QVector<int> &roles)
{
    const bool isName = roles.isEmpty() || roles.contains(Qt::DisplayRole);
    // The toolkit writes the row's name over what was typed, whatever has changed.
    if (!isName && isPersistentEditorOpen(topLeft))
        update(topLeft);
    else
        QTreeView::dataChanged(topLeft, bottomRight, roles);
}

void kxOverlayTreeView::startDrag(Qt::DropActions supportedActions)
{
    deselectHiddenRows();
    const QScopedValueRollback<bool> dragging(m_dragging, true);
    const kxDropTrace trace(overlayModel());
    const QRPC::NodeList openNodes = openNodesIn(selectionModel()->selectedIndexes());
    QTreeView::startDrag(supportedActions);
    // Only now the view has removed the rows that it takes for the dragged ones.
    overlayModel()->settle(trace);
    open(openNodes);
    selectDropped(trace);
}

void kxOverlayTreeView::dropEvent(QDropEvent *event)
{
    if (m_dragging) {
        QTreeView::dropEvent(event);
        return;
    }
    const kxDropTrace trace(overlayModel());
    QTreeView::dropEvent(event);
    // The rows themselves are moved, and a row that leaves its place is closed.
    const QRPC::NodeList openNodes = openNodesIn(trace.droppedRows());
    overlayModel()->settle(trace, kxOverlayQtModel::Copies::Discard);
    open(openNodes);
    selectDropped(trace);
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

/// The nodes of the rows, and of those inside them, whose rows are open.
QRPC::NodeList kxOverlayTreeView::openNodesIn(const QModelIndexList &rows) const
{
    QRPC::NodeList nodes;
    const QModelIndexList openRows = openRowsIn(rows);
    for (const QModelIndex &index : openRows)
        nodes.append(overlayModel()->getNodeId(index));
    return nodes;
}

QModelIndexList kxOverlayTreeView::openRowsIn(const QModelIndexList &rows) const
{
    QModelIndexList openRows;
    QSet<QModelIndex> visited;
    for (const QModelIndex &index : rows)
        collectOpen(index, &visited, &openRows);
    return openRows;
}

/// Visits a row once, however many of its ancestors are among the rows.
void kxOverlayTreeView::collectOpen(const QModelIndex &index, QSet<QModelIndex> *visited,
                                    QModelIndexList *open) const
{
    if (visited->contains(index))
        return;
    visited->insert(index);
    if (isExpanded(index))
        open->append(index);
    for (int row = 0; row < model()->rowCount(index); ++row)
        collectOpen(model()->index(row, 0, index), visited, open);
}

void kxOverlayTreeView::closeRows(const QModelIndexList &rows)
{
    // While a layout is due, closing a row is a note and no layout of its own.
    scheduleDelayedItemsLayout();
    const QModelIndexList openRows = openRowsIn(rows);
    for (const QModelIndex &index : openRows)
        collapse(index);
}

void kxOverlayTreeView::open(const QRPC::NodeList &nodes)
{
    for (const QRPC::NodeId node : nodes)
        expand(overlayModel()->indexFromId(node));
}

void kxOverlayTreeView::selectDropped(const kxDropTrace &trace)
{
    QItemSelection dropped;
    // What comes from elsewhere may name a node twice; a row is selected once.
    QSet<QRPC::NodeId> seen;
    const QRPC::NodeList nodes = trace.droppedNodes();
    for (const QRPC::NodeId node : nodes) {
        const QModelIndex index = overlayModel()->indexFromId(node);
        if (index.isValid() && !seen.contains(node))
            kxSelectionRanges::append(&dropped, index);
        seen.insert(node);
    }
    // A drop of nodes that are not here moves nothing and takes nobody's selection away.
    if (dropped.isEmpty())
        return;
    selectionModel()->select(dropped, QItemSelectionModel::ClearAndSelect);
    makeCurrent(dropped.constFirst().topLeft());
}

/// The keyboard goes on from here, but a closed group is not opened for it.
void kxOverlayTreeView::makeCurrent(const QModelIndex &index)
{
    QModelIndex shown = index;
    for (QModelIndex group = index.parent(); group.isValid(); group = group.parent()) {
        if (!isExpanded(group))
            shown = group;
    }
    selectionModel()->setCurrentIndex(shown, QItemSelectionModel::NoUpdate);
}
