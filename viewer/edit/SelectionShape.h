// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "viewer/render/OverlayPainter.h"

/// What a selection of nodes comes to in the view: the overlays that it means and their outlines.
/// Pure functions of a scene.
namespace viewer {

/// The overlays that nodes stand for, in the order of the tree, each once: an overlay for itself, a
/// group or switch for all in it, shown or not, so that a group stays as it is when it is moved.
QRPC::NodeList overlaysOf(const Scene &scene, const QRPC::NodeList &nodes);

/// Boxes to be outlined, around all that an overlay covers, in pixels of the view. What is not drawn has
/// none.
struct Outlines
{
    QVector<QRectF> overlays; ///< of the selected overlays
    QVector<QRectF> members;  ///< of overlays in a selected group or switch that are not selected
    QVector<QRectF> groups;   ///< around all that a selected group or switch shows
};

Outlines outlinesOf(const Scene &scene, const QRPC::NodeList &selection,
                    const std::vector<DrawnOverlay> &drawn);

} // namespace viewer
