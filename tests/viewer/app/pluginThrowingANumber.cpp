// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

// A module that cannot start and does not say why.

#include <QtGlobal>

extern "C" Q_DECL_EXPORT void initPlugin()
{
    throw 7;
}
