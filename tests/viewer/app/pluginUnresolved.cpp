// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

// A module that was built for a host library with more functions than this one has.

#include "host/initPlugin.h"

extern "C" void functionOfAnotherHost();

void initPlugin()
{
    functionOfAnotherHost();
}
