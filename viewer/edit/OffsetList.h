// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "viewer/scene/OverlayService.h"

/// Offsets of several overlays that are moved together: pure functions.
namespace viewer {

/// The offsets that overlays have now.
QVector<NodeOffset> offsetsOf(const Scene &scene, const QRPC::NodeList &overlays);

/// All of them moved on by the same points, in few digits; what is lost is far below a pixel. A
/// coordinate that does not move keeps every digit.
QVector<NodeOffset> movedOn(QVector<NodeOffset> offsets, const QPointF &points);

} // namespace viewer
