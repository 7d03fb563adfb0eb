// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "viewer/edit/EditView.h"
#include "viewer/edit/Snapping.h"
#include "viewer/scene/OverlayService.h"

namespace viewer {

struct DrawnOverlay;

/// One drag of overlays, from the moment when they begin to move until they are let go: one step of
/// the history, or none when they were put back. Made by the gesture. Movements are in pixels of
/// the view, as the mouse has gone since it was pressed.
class DragMove
{
public:
    /// How the overlays follow the mouse.
    enum Rule {
        Plain = 0,
        Straight = 1, ///< along the direction in which the mouse has gone further
        Free = 2      ///< to where the mouse is, without snapping
    };

    /// `nodes` are moved by `grip`, one of them that is drawn.
    DragMove(OverlayService *service, const EditView &view, const std::vector<DrawnOverlay> &drawn,
             const QRPC::NodeList &nodes, QRPC::NodeId grip);

    /// Moves the overlays to where the mouse wants them, or to the lines that are near.
    void moveBy(QPointF way, int rules);

    /// Puts the overlays back to exactly where they were. The drag is over then.
    void putBack();

    QRPC::NodeId grip() const { return m_grip; }

    /// The lines that the overlays are on now.
    const QVector<Guide> &guides() const { return m_guides; }

private:
    QPointF snapped(QPointF way, int rules) const;

    OverlayService *m_service;
    EditView m_view;
    QRPC::NodeId m_grip;
    QVector<NodeOffset> m_start;
    Snapping m_lines;
    MovedShape m_shape;
    QVector<Guide> m_guides;
    StepGroup m_step;
};

} // namespace viewer
