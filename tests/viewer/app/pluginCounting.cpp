// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

// A module that only counts how often it is entered.

#include "host/initPlugin.h"

static int s_calls = 0;

void initPlugin()
{
    ++s_calls;
}

extern "C" Q_DECL_EXPORT int callsOfInitPlugin()
{
    return s_calls;
}
