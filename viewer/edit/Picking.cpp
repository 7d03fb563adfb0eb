// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/edit/Picking.h"

#include <algorithm>

namespace viewer {

using QRPC::NodeId;
using QRPC::NodeList;

namespace {

QRectF atLeast(const QRectF &box, double size)
{
    const double across = std::max(0.0, (size - box.width()) / 2);
    const double along = std::max(0.0, (size - box.height()) / 2);
    return box.adjusted(-across, -along, across, along);
}

} // namespace

NodeList pickOrder(const std::vector<DrawnOverlay> &drawn, const QPointF &at, double leastSize)
{
    NodeList order;
    for (auto overlay = drawn.rbegin(); overlay != drawn.rend(); ++overlay) {
        if (atLeast(overlay->cover, leastSize).contains(at))
            order.append(overlay->node);
    }
    return order;
}

NodeId nextPick(const NodeList &order, NodeId last)
{
    return order.isEmpty() ? 0 : order.at((order.indexOf(last) + 1) % order.size());
}

bool spansView(const QRectF &box, const QSize &view)
{
    const bool across = box.left() <= 0 && box.right() >= view.width();
    const bool along = box.top() <= 0 && box.bottom() >= view.height();
    return across || along;
}

NodeId gripOf(const NodeList &order, const QSet<NodeId> &moved, const QSet<NodeId> &spanning)
{
    const auto first = [&order](const auto &accepts) {
        const auto found = std::find_if(order.begin(), order.end(), accepts);
        return found == order.end() ? NodeId(0) : *found;
    };
    if (order.isEmpty() || moved.contains(order.first()))
        return order.value(0);
    const NodeId below =
        first([&](NodeId node) { return moved.contains(node) && !spanning.contains(node); });
    if (below != 0)
        return below;
    if (!spanning.contains(order.first()))
        return order.first();
    return first([&](NodeId node) { return moved.contains(node); });
}

NodeList pickedByBand(const std::vector<DrawnOverlay> &drawn, const QRectF &band, const QSize &view)
{
    const QRectF seen(QPointF(), view);
    NodeList picked;
    for (const DrawnOverlay &overlay : drawn) {
        const bool spans = spansView(overlay.cover, view);
        if (spans ? band.contains(overlay.cover & seen) : band.intersects(overlay.cover))
            picked.append(overlay.node);
    }
    return picked;
}

} // namespace viewer
