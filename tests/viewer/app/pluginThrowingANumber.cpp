// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

// A module that cannot start and does not say why.

#include "host/initPlugin.h"

void initPlugin()
{
    throw 7;
}
