// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "viewer/scene/Scene.h"

namespace viewer {

/// What a move comes to: the nodes that really move, in the order in which they stand afterwards,
/// and all children of the new parent afterwards. An empty block means that nothing happens.
struct MovePlan
{
    QRPC::NodeList block;
    std::vector<QRPC::NodeId> children;
};

/// The one rule by which nodes are moved, for drops, grouping and scripts alike. It gives what an
/// item view arrives at when it inserts the dragged rows and then removes the source rows, so that
/// a tree that mirrors the scene stays equal to it without being rebuilt:
/// - nodes that lie in another listed one travel inside it; the new parent and what holds it stay;
/// - all positions are taken before anything moves; the block goes before the first child at or
///   behind `row` that does not move itself;
/// - the block is ordered by source row; of several nodes with equal rows in different parents only
///   the first takes part in that order, the others follow at the end in list order.
MovePlan planMove(const Scene &scene, const QRPC::NodeList &nodes, QRPC::NodeId newParent, int row);

} // namespace viewer
