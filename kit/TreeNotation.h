// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/QRPC.h"

#include <QString>

#include <vector>

/// A tree of nodes written on one line: `g2(a3 b4-) s5*(c6)`.
///
/// A name alone is an overlay, a name with brackets a group, a star behind the name makes a switch,
/// a minus behind it a disabled node. The digits that end a name are the node's id; a name without
/// any leaves the id open.
namespace notation {

enum class Kind { Overlay, Group, Switch };

/// One node of the line, with what stands in its brackets.
struct Node
{
    QString name;
    QRPC::NodeId id = 0; ///< 0 when the name states none
    Kind kind = Kind::Overlay;
    bool enabled = true;
    std::vector<Node> children;
};

/// Reads the line; a line that cannot be read ends the test program with the place.
std::vector<Node> parse(const QString &line);

/// The id that a name states by its last digits; 0 when it ends in none.
QRPC::NodeId idOf(const QString &name);

} // namespace notation
