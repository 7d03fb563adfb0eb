// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "viewer/scene/Node.h"

#include <QRectF>
#include <QSize>

/// Where overlays stand: pure geometry, without fonts, files or a painter. Pixels run from the top
/// left corner of the view, y downwards.
namespace viewer {

/// The view that overlays are drawn in.
struct ViewGeometry
{
    QSize size;        ///< in pixels
    double dpi = 96.0; ///< dots per inch; a point is dpi / 72 pixels

    double pixelsPerPoint() const { return dpi / 72.0; }
};

/// Height of one line of text or of the picture, in pixels: 0 where the overlay's size is none (not
/// positive, not finite), and never more than what can be drawn without harm.
double heightInPixels(const Overlay &overlay, const ViewGeometry &view);

/// The point of a rectangle at relative coordinates: x from left (0) to right (1), y from bottom (0)
/// to top (1).
QPointF pointAt(const QPointF &relative, const QRectF &rectangle);

/// Puts a box of this size where the overlay belongs: the point of the box at the overlay's relative
/// position lies on the point of the view at the same position, moved by the offset. An empty
/// rectangle when position or offset are not finite.
QRectF placeBox(const Overlay &overlay, const QSizeF &box, const ViewGeometry &view);

/// The box behind a text: the text's own box, with a margin that grows with the line's height. It is
/// no part of the own box, so that texts line up with and without it.
QRectF backgroundBox(const QRectF &textBox, double lineHeight);

/// The colour of that box: black transparency is opaque, white invisible, by the channels' average.
/// Invalid when there is no background colour.
QColor backgroundColor(const Overlay &overlay);

} // namespace viewer
