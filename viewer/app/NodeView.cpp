// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/NodeView.h"

#include <QCoreApplication>
#include <QHash>
#include <QTreeView>

#include <functional>

namespace viewer {

namespace {

constexpr int NodeIdRole = Qt::UserRole + 1;

QRPC::NodeId nodeOf(const QModelIndex &index)
{
    return index.data(NodeIdRole).toUInt();
}

void visitRows(const QAbstractItemModel &model,
               const std::function<void(const QModelIndex &)> &visit)
{
    QModelIndexList parents{QModelIndex()};
    while (!parents.isEmpty()) {
        const QModelIndex parent = parents.takeLast();
        for (int row = 0; row < model.rowCount(parent); ++row) {
            const QModelIndex index = model.index(row, 0, parent);
            visit(index);
            if (model.hasChildren(index))
                parents.append(index);
        }
    }
}

/// Rows as ranges, in their order; rows that follow one another are one range, because a selection
/// model compares each range with each.
QItemSelection rangesOf(const QModelIndexList &rows)
{
    QItemSelection ranges;
    for (int first = 0, next = 1; first < rows.size(); first = next++) {
        while (next < rows.size()
               && rows.at(next) == rows.at(next - 1).siblingAtRow(rows.at(next - 1).row() + 1))
            ++next;
        ranges.append(QItemSelectionRange(rows.at(first), rows.at(next - 1)));
    }
    return ranges;
}

} // namespace

NodeView::NodeView(QWidget *widget)
{
    auto *view = qobject_cast<QAbstractItemView *>(widget);
    if (view && view->model() && nodeOf(view->model()->index(0, 0)) != 0)
        m_view = view;
}

QItemSelectionModel *NodeView::selectionModel() const
{
    return m_view ? m_view->selectionModel() : nullptr;
}

QRPC::NodeList NodeView::selectedNodes() const
{
    QRPC::NodeList nodes;
    if (!m_view)
        return nodes;
    const QModelIndexList indexes = m_view->selectionModel()->selectedIndexes();
    for (const QModelIndex &index : indexes) {
        if (nodeOf(index) != 0)
            nodes.append(nodeOf(index));
    }
    return nodes;
}

QRPC::NodeList NodeView::openNodes() const
{
    QRPC::NodeList nodes;
    if (const auto *tree = qobject_cast<QTreeView *>(m_view)) {
        visitRows(*tree->model(), [&](const QModelIndex &index) {
            if (tree->isExpanded(index))
                nodes.append(nodeOf(index));
        });
    }
    return nodes;
}

void NodeView::open(const QRPC::NodeList &nodes)
{
    auto *tree = qobject_cast<QTreeView *>(m_view);
    if (!tree)
        return;
    const QModelIndexList rows = rowsOf(nodes);
    for (const QModelIndex &row : rows)
        tree->expand(row);
}

void NodeView::select(const QRPC::NodeList &nodes)
{
    if (!m_view)
        return;
    const QModelIndexList rows = rowsOf(nodes);
    const QItemSelection selection = rangesOf(rows);
    m_view->selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    m_view->selectionModel()->setCurrentIndex(rows.value(0), QItemSelectionModel::NoUpdate);
}

void NodeView::makeSelectionCurrent()
{
    if (!m_view)
        return;
    QItemSelectionModel *selection = m_view->selectionModel();
    const QItemSelection ranges = selection->selection();
    if (!ranges.isEmpty() && !selection->isSelected(selection->currentIndex()))
        selection->setCurrentIndex(ranges.constFirst().topLeft(), QItemSelectionModel::NoUpdate);
}

bool NodeView::send(QEvent *event)
{
    return m_view && QCoreApplication::sendEvent(m_view, event) && event->isAccepted();
}

/// The rows of nodes, in the order of the list.
QModelIndexList NodeView::rowsOf(const QRPC::NodeList &nodes) const
{
    QHash<QRPC::NodeId, QModelIndex> found;
    visitRows(*m_view->model(),
              [&found](const QModelIndex &index) { found.insert(nodeOf(index), index); });
    QModelIndexList rows;
    for (const QRPC::NodeId node : nodes) {
        if (found.contains(node))
            rows.append(found.value(node));
    }
    return rows;
}

} // namespace viewer
