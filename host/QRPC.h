// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QMetaType>
#include <QtGlobal>

/// The node types that cross the service boundary. Signal and slot signatures must spell them in
/// full (`QRPC::NodeList`), because string connections compare the spelling.
namespace QRPC {

/// Identifies a node that the overlay service holds. 0 stands for no node.
using NodeId = quint32;

/// Ordered list of nodes: what every service signal, command and property write carries. Empty for none.
using NodeList = QList<NodeId>;

} // namespace QRPC
