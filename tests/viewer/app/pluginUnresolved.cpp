// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

// A module that was built for a host library with more functions than this one has.

#include <QtGlobal>

extern "C" void functionOfAnotherHost();

extern "C" Q_DECL_EXPORT void initPlugin()
{
    functionOfAnotherHost();
}
