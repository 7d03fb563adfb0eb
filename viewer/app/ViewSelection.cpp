// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/ViewSelection.h"

#include "host/kxOverlayService.h"

#include <QAbstractItemView>

namespace viewer {

ViewSelection::ViewSelection(QWidget *window, const kxOverlayService *service, QObject *parent)
    : QObject(parent)
    , m_window(window)
{
    // Once the modules know of the nodes too.
    connect(service, &kxOverlayService::modelReset, this, &ViewSelection::look,
            Qt::QueuedConnection);
    connect(service, &kxOverlayService::nodesAdded, this, &ViewSelection::look,
            Qt::QueuedConnection);
    // And have selected what is new.
    connect(
        service, &kxOverlayService::nodesCreated, this, [this] { m_view.makeSelectionCurrent(); },
        Qt::QueuedConnection);
}

QRPC::NodeList ViewSelection::nodes() const
{
    if (m_view.isNull())
        return m_own;
    if (!m_known)
        m_known = m_view.selectedNodes();
    return *m_known;
}

void ViewSelection::select(const QRPC::NodeList &nodes)
{
    m_own = nodes;
    if (m_view.isNull())
        emit changed();
    else
        m_view.select(nodes);
}

void ViewSelection::look()
{
    if (!m_view.isNull())
        return;
    const QList<QAbstractItemView *> views = m_window->findChildren<QAbstractItemView *>();
    for (QAbstractItemView *view : views) {
        m_view = NodeView(view);
        if (m_view.isNull())
            continue;
        follow();
        return;
    }
}

void ViewSelection::follow()
{
    const QItemSelectionModel *selection = m_view.selectionModel();
    const QAbstractItemModel *model = selection->model();
    connect(selection, &QItemSelectionModel::selectionChanged, this, &ViewSelection::forget);
    // Rows that go take their selection along, not always with a word.
    connect(model, &QAbstractItemModel::rowsRemoved, this, &ViewSelection::forget);
    connect(model, &QAbstractItemModel::modelReset, this, &ViewSelection::forget);
    forget();
}

void ViewSelection::forget()
{
    m_known.reset();
    emit changed();
}

} // namespace viewer
