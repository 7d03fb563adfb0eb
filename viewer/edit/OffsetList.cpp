// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/edit/OffsetList.h"

#include <cmath>

namespace viewer {

namespace {

double moved(double offset, double points)
{
    return points == 0.0 ? offset : std::round((offset + points) * 1000.0) / 1000.0;
}

} // namespace

QVector<NodeOffset> offsetsOf(const Scene &scene, const QRPC::NodeList &overlays)
{
    QVector<NodeOffset> offsets;
    for (const QRPC::NodeId node : overlays)
        offsets.append({node, scene.find(node)->overlay.offset});
    return offsets;
}

QVector<NodeOffset> movedOn(QVector<NodeOffset> offsets, const QPointF &points)
{
    for (NodeOffset &entry : offsets) {
        entry.offset = {moved(entry.offset.x(), points.x()), moved(entry.offset.y(), points.y())};
    }
    return offsets;
}

} // namespace viewer
