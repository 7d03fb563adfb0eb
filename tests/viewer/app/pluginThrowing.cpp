// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

// A module that cannot start.

#include <QtGlobal>

#include <stdexcept>

extern "C" Q_DECL_EXPORT void initPlugin()
{
    throw std::runtime_error("no room for me");
}
