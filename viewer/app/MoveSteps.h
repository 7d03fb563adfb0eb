// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/kxOverlayService.h"

#include <QVector>

#include <optional>

namespace viewer {

/// The ways in which nodes are moved without a mouse, one step at a time.
enum class MoveStep { Up, Down, In, Out };

/// The arguments of one kxOverlayService::moveNodes().
struct NodeMove
{
    QRPC::NodeId parent = 0;
    int row = -1;
};

/// The nodes by their parents, each list in the order of `nodes`. What lies in another listed node
/// travels inside that one and is left out, as are unknown nodes and the root.
QVector<QRPC::NodeList> siblingsOf(kxOverlayService *service, const QRPC::NodeList &nodes);

/// Where siblings go with one step; none where there is nowhere to go.
/// - Up and Down: as one block past the next sibling that does not move itself.
/// - In: to the end of the group directly above, else to the top of the one directly below.
/// - Out: out of their group, to stand directly behind it.
std::optional<NodeMove> planStep(kxOverlayService *service, const QRPC::NodeList &siblings,
                                 MoveStep step);

} // namespace viewer
