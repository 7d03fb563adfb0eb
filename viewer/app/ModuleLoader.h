// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>
#include <QStringList>

namespace viewer {

/// Loads plug-ins: shared libraries that export `initPlugin`. A library stays loaded to the end of
/// the process, because the objects that it made live as long. Used by the session on the GUI thread,
/// once the services are registered.
class ModuleLoader
{
    Q_DECLARE_TR_FUNCTIONS(viewer::ModuleLoader)

public:
    /// The plug-in that is loaded when the user names none: the editor beside the executable, as in
    /// the folder of a build, or else where it is installed.
    static QString defaultPlugin();

    /// Loads the library and calls its entry. Returns what went wrong, naming the file and the
    /// reason; empty when the module started.
    static QString load(const QString &file);
};

} // namespace viewer
