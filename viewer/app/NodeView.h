// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/QRPC.h"

#include <QModelIndexList>
#include <QPointer>

class QAbstractItemView;
class QEvent;
class QItemSelectionModel;
class QWidget;

namespace viewer {

/// An item view of some module whose rows show nodes of the overlay service, as the host sees it.
///
/// Modules tell the host nothing about their selections. But a row that shows a node carries its id
/// under the agreed role, and a view has a selection model, so that a command of the host can act
/// on what the user has selected in the view where the focus is, whichever module made it. A small
/// value; the view may go at any time. GUI thread only.
class NodeView
{
public:
    NodeView() = default;

    /// The view that a widget is; none when it is not one whose rows carry node ids.
    explicit NodeView(QWidget *widget);

    bool isNull() const { return m_view.isNull(); }

    /// What tells of changes of the selection; null when there is no view.
    QItemSelectionModel *selectionModel() const;

    /// The nodes of the selected rows, in the order in which they were selected.
    QRPC::NodeList selectedNodes() const;

    /// The nodes of all open rows of a tree.
    QRPC::NodeList openNodes() const;

    /// Opens the rows of nodes, where the view is a tree.
    void open(const QRPC::NodeList &nodes);

    /// Makes the rows of nodes the selection, in one change, and brings the first into view.
    void select(const QRPC::NodeList &nodes);

    /// Has the keys of the view go on from the selection, where they would from a row that is not
    /// selected. The selection stays as it is.
    void makeSelectionCurrent();

    /// Lets the view have an event as its own. False when there is no view, or it has no use for it.
    bool send(QEvent *event);

private:
    QModelIndexList rowsOf(const QRPC::NodeList &nodes) const;

    QPointer<QAbstractItemView> m_view;
};

} // namespace viewer
