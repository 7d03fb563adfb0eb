// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/render/OverlayLayout.h"

#include <algorithm>
#include <cmath>

namespace viewer {

namespace {

constexpr double LargestHeight = 8192.0; // beyond it glyphs cost more than any view can show

bool isFinite(const QPointF &point)
{
    return std::isfinite(point.x()) && std::isfinite(point.y());
}

} // namespace

double heightInPixels(const Overlay &overlay, const ViewGeometry &view)
{
    const double unit = overlay.isAbsolute() ? view.pixelsPerPoint() : double(view.size.height());
    const double height = double(overlay.size) * unit;
    return height > 0.0 && std::isfinite(height) ? std::min(height, LargestHeight) : 0.0;
}

QPointF pointAt(const QPointF &relative, const QRectF &rectangle)
{
    return {rectangle.left() + relative.x() * rectangle.width(),
            rectangle.top() + (1.0 - relative.y()) * rectangle.height()};
}

QRectF placeBox(const Overlay &overlay, const QSizeF &box, const ViewGeometry &view)
{
    const QPointF at = overlay.position;
    if (!isFinite(at) || !isFinite(overlay.offset))
        return {};
    const QPointF offset = overlay.offset * view.pixelsPerPoint();
    const double left = at.x() * (view.size.width() - box.width()) + offset.x();
    const double top = (1.0 - at.y()) * (view.size.height() - box.height()) - offset.y();
    return {QPointF(left, top), box};
}

QRectF backgroundBox(const QRectF &textBox, double lineHeight)
{
    const double across = 0.35 * lineHeight;
    const double along = 0.15 * lineHeight;
    return textBox.adjusted(-across, -along, across, along);
}

QColor backgroundColor(const Overlay &overlay)
{
    QColor color = overlay.backgroundColor;
    if (!color.isValid())
        return color;
    const QColor transparency = overlay.backgroundTransparency.toRgb();
    const double average =
        (transparency.redF() + transparency.greenF() + transparency.blueF()) / 3.0;
    color.setAlphaF(color.alphaF() * (1.0 - average));
    return color;
}

} // namespace viewer
