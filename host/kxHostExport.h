// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/qglobal.h>

/// Marks what the shared host library offers to modules. The classes must be visible across
/// libraries: the registry finds a service by the address of its type name, which is one address
/// for all only while the type is exported from one shared library.
#if defined(KXHOST_BUILD)
#define KXHOST_EXPORT Q_DECL_EXPORT
#else
#define KXHOST_EXPORT Q_DECL_IMPORT
#endif
