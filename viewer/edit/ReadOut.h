// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "viewer/scene/Node.h"

#include <QStringList>

namespace viewer {

/// Where an overlay stands, in lines for the user: its offset in points and its anchor, which is
/// called as in the lists of modules where it has a name.
QStringList readOutOf(const Overlay &overlay);

} // namespace viewer
