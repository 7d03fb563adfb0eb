// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/qglobal.h>

/// The entry of a host that is built as a shared library: all that a program needs to check the
/// host's services without its application.
///
/// It is looked up by this name, with local binding, and called once, on the GUI thread, after the
/// application object was created. It registers every service of the host in
/// kxKernelServiceFactory::the(), the overlay service with any scene, best with an empty one, and
/// keeps them alive until the process ends. It announces nothing and starts no event loop. A host
/// that offers no user interface registers neither main window nor platform service, and its
/// controller service says so. Errors come out of it as a std::exception.
extern "C" Q_DECL_EXPORT void initHost();
