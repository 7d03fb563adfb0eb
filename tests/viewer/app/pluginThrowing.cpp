// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

// A module that cannot start.

#include "host/initPlugin.h"

#include <stdexcept>

void initPlugin()
{
    throw std::runtime_error("no room for me");
}
