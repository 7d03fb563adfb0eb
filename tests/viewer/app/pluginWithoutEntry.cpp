// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

// A shared library like any other: no module.

#include <QtGlobal>

extern "C" Q_DECL_EXPORT int somethingElse()
{
    return 0;
}
