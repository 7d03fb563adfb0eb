// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "viewer/render/OverlayPainter.h"

#include <QSet>

/// Which overlays a place or a part of the view means: pure geometry over what the painter has
/// drawn, in pixels.
namespace viewer {

/// The overlays at a place, the topmost first. What is thinner than `leastSize` is taken for that
/// size, so that a hairline can be hit.
QRPC::NodeList pickOrder(const std::vector<DrawnOverlay> &drawn, const QPointF &at,
                         double leastSize);

/// The one below `last`, and the topmost again after the lowest. The topmost when `last` is not
/// among them, 0 when there is none.
QRPC::NodeId nextPick(const QRPC::NodeList &order, QRPC::NodeId last);

/// Whether an overlay reaches from one edge of the view to the opposite one, as a shade or a frame
/// does: behind everything else it would leave no empty place.
bool spansView(const QRectF &box, const QSize &view);

/// The overlay of `order` by which a drag takes hold of what moves, `moved`; 0 where the
/// drag means the view. It is the topmost one that moves already. One that does not move takes its
/// place when only overlays that span the view move below it; such a one is no place to take
/// hold of unless it moves.
QRPC::NodeId gripOf(const QRPC::NodeList &order, const QSet<QRPC::NodeId> &moved,
                    const QSet<QRPC::NodeId> &spanning);

/// The overlays that a rubber band touches, the lowest first. Those that span the view have to lie
/// in it, as far as they are seen.
QRPC::NodeList pickedByBand(const std::vector<DrawnOverlay> &drawn, const QRectF &band,
                            const QSize &view);

} // namespace viewer
