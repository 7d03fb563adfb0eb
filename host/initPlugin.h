// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/qglobal.h>

/// The entry of a module, and all that its shared library exports.
///
/// A host calls it on the GUI thread, after it has created the application and registered all
/// services, and before it announces kxOverlayService::modelReset() and kxBaseService::init(). It
/// looks it up by this name, with local binding, and never unloads the library: the module lives
/// until the process ends. The first call builds the module; later ones do nothing. An exception
/// thrown by a service comes out of it and leaves nothing behind, and the next call tries again.
extern "C" Q_DECL_EXPORT void initPlugin();
