// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "viewer/app/EditLayer.h"
#include "viewer/app/ViewSelection.h"
#include "viewer/edit/EditGesture.h"

namespace viewer {

class ViewArea;

/// Makes a view area one in which overlays are picked and moved: takes the mouse and the keys of its
/// background before that does, hands them to the gesture, and shows the selection and what is being
/// done with it. Made by the session; owned by the area, goes before service and painter.
class ViewEditing : public QObject, private EditStage
{
    Q_OBJECT

public:
    ViewEditing(OverlayService *service, OverlayPainter *painter, ViewArea *area);

    ViewSelection *selectionOfView() { return &m_selection; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    EditView view() const override { return m_layer->view(); }
    std::vector<DrawnOverlay> drawnOverlays() const override;
    QRPC::NodeList selection() const override { return m_selection.nodes(); }
    void select(const QRPC::NodeList &nodes) override { m_selection.select(nodes); }

    bool handle(QEvent *event);
    bool pressMouse(const QMouseEvent &event);
    bool moveMouse(const QMouseEvent &event);
    bool pressKey(const QKeyEvent &event);
    bool sendKeyOfModules(const QKeyEvent &event);
    bool openMenu(const QContextMenuEvent &event);
    void showCursor(Qt::KeyboardModifiers modifiers);
    EditFeedback feedback() const;
    void addPlace(QRPC::NodeId node, EditFeedback *feedback) const;

    OverlayService *m_service;
    OverlayPainter *m_painter;
    ViewArea *m_area;
    ViewSelection m_selection;
    EditGesture m_gesture;
    EditLayer *m_layer;
    std::optional<QPointF> m_place; // of the mouse, while it is over the background
};

} // namespace viewer
