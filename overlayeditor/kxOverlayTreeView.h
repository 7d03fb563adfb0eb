// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/QRPC.h"

#include <QSet>
#include <QTreeView>

class kxDropTrace;
class kxOverlayQtModel;

/// The tree view of the editor. Created by the editor, owned by its window; GUI thread only.
///
/// It adds three things to the toolkit's view. After a drop the tree equals the service, the dropped
/// nodes are selected and open as before, and the keyboard goes on from them. By itself a drop
/// leaves closed copies that show what the rows showed when the drag began, and the view then
/// removes every row that is selected by then, dragged or not. So rows that a filter hides are
/// deselected when a drag begins, and once the drag is over the model settles what it touched.
///
/// A name that is being edited stays as it was typed until the service gives the row another.
///
/// And a key that the editor has let pass is the view's alone: the editor passes it on as ignored,
/// and what the view does not take back its parent handles once more. Tab would go two steps.
class kxOverlayTreeView : public QTreeView
{
    Q_OBJECT

public:
    explicit kxOverlayTreeView(QWidget *parent = nullptr);
    ~kxOverlayTreeView() override;

    /// Closes rows that are about to leave their places, with all that lies in them. They would be
    /// closed one by one as they go, each of which costs a walk over all that are still open.
    void closeRows(const QModelIndexList &rows);

    /// A change that leaves the name alone leaves a name alone that is being edited.
    void dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                     const QVector<int> &roles = QVector<int>()) override;

protected:
    bool event(QEvent *event) override;
    void startDrag(Qt::DropActions supportedActions) override;
    void dropEvent(QDropEvent *event) override;

private:
    kxOverlayQtModel *overlayModel() const;
    void deselectHiddenRows();
    bool isHidden(QModelIndex index) const;
    QRPC::NodeList openNodesIn(const QModelIndexList &rows) const;
    QModelIndexList openRowsIn(const QModelIndexList &rows) const;
    void collectOpen(const QModelIndex &index, QSet<QModelIndex> *visited,
                     QModelIndexList *open) const;
    void open(const QRPC::NodeList &nodes);
    void selectDropped(const kxDropTrace &trace);
    void makeCurrent(const QModelIndex &index);

    bool m_dragging = false;
};
