// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/edit/DragMove.h"

#include "viewer/edit/OffsetList.h"
#include "viewer/render/OverlayPainter.h"

#include <QSet>

#include <cmath>

namespace viewer {

using QRPC::NodeId;
using QRPC::NodeList;

namespace {

constexpr double SnapDistance = 6.0; // device-independent pixels

QPointF straightened(const QPointF &way)
{
    return std::abs(way.x()) < std::abs(way.y()) ? QPointF(0, way.y()) : QPointF(way.x(), 0);
}

} // namespace

DragMove::DragMove(OverlayService *service, const EditView &view,
                   const std::vector<DrawnOverlay> &drawn, const NodeList &nodes, NodeId grip)
    : m_service(service)
    , m_view(view)
    , m_grip(grip)
    , m_start(offsetsOf(service->scene(), nodes))
    , m_lines(view.geometry.size)
    , m_step(service, Operation::MoveInView, nodes)
{
    const Scene &scene = service->scene();
    const QRectF seen(QPointF(), view.geometry.size);
    m_lines.addAnchor(pointAt(scene.find(grip)->overlay.position, seen));
    const QSet<NodeId> moved(nodes.begin(), nodes.end());
    for (const DrawnOverlay &overlay : drawn) {
        const QPointF position = scene.find(overlay.node)->overlay.position;
        if (!moved.contains(overlay.node))
            m_lines.addOverlay(overlay.box, pointAt(position, seen));
        else
            m_shape.box |= overlay.box;
        if (overlay.node == grip)
            m_shape.reference = pointAt(position, overlay.box);
    }
}

void DragMove::moveBy(QPointF way, int rules)
{
    if ((rules & Straight) != 0)
        way = straightened(way);
    const double scale = m_view.geometry.pixelsPerPoint();
    if ((rules & Free) == 0)
        way = snapped(way, rules);
    const QPointF points(way.x() / scale, -way.y() / scale);
    m_service->history().joinNext();
    m_service->setOffsets(movedOn(m_start, points));
    const MovedShape now = m_shape.translated(QPointF(points.x(), -points.y()) * scale);
    m_guides = (rules & Free) == 0 ? m_lines.guides(now) : QVector<Guide>();
}

/// The way to the nearest lines; where there are none, whole points.
QPointF DragMove::snapped(QPointF way, int rules) const
{
    const Snap snap = m_lines.snap(m_shape.translated(way), m_view.pixels(SnapDistance));
    const double point = m_view.geometry.pixelsPerPoint();
    const bool keepsX = (rules & Straight) != 0 && way.x() == 0.0;
    const bool keepsY = (rules & Straight) != 0 && !keepsX;
    if (!keepsX)
        way.rx() = snap.x ? way.x() + *snap.x : std::round(way.x() / point) * point;
    if (!keepsY)
        way.ry() = snap.y ? way.y() + *snap.y : std::round(way.y() / point) * point;
    return way;
}

void DragMove::putBack()
{
    m_step.rollBack();
}

} // namespace viewer
