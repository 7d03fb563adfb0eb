// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

// A module that only counts how often it is entered.

#include <QtGlobal>

static int s_calls = 0;

extern "C" Q_DECL_EXPORT void initPlugin()
{
    ++s_calls;
}

extern "C" Q_DECL_EXPORT int callsOfInitPlugin()
{
    return s_calls;
}
