// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "viewer/scene/Scene.h"

#include <QSet>

/// What the service does with the node lists that modules hand in: pure functions of a scene and a
/// list. Each costs time in proportion to the list and the ancestors of its nodes, every ancestor
/// being visited once.
namespace viewer {

/// The ids that are known and not the root, each once, in list order.
QRPC::NodeList knownNodes(const Scene &scene, const QRPC::NodeList &nodes);

/// The known nodes that lie in no other node of the list, in list order.
QRPC::NodeList topNodes(const Scene &scene, const QRPC::NodeList &nodes);

/// Known nodes in pre-order of the tree, each once.
QRPC::NodeList inTreeOrder(const Scene &scene, const QRPC::NodeList &nodes);

/// The node itself, its parent and so on, up to the root.
QSet<QRPC::NodeId> pathToRoot(const Scene &scene, QRPC::NodeId node);

/// The highest disabled node among a node and its ancestors; the node itself when all are enabled.
QRPC::NodeId highestDisabled(const Scene &scene, QRPC::NodeId node);

} // namespace viewer
