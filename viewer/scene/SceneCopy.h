// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "viewer/scene/Scene.h"

/// Copies of nodes with all that lies in them, within a scene or from one into another.
namespace viewer {

/// Puts a copy of a node into a scene, which may be its own. The copy has no parent yet; ids are
/// given in pre-order.
QRPC::NodeId copyTree(const Scene &from, QRPC::NodeId original, Scene *to);

/// A scene of copies of the listed nodes, in tree order. Nodes that lie in other listed ones travel
/// inside them.
Scene extract(const Scene &scene, const QRPC::NodeList &nodes);

} // namespace viewer
