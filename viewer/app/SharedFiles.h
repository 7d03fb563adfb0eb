// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

/// The files that the viewer is shipped with: in the build tree beside the program, where it is
/// installed in the folder of shared data next to the program's.
namespace viewer::sharedfiles {

/// The folders of that name, the nearest first; they need not exist.
QStringList folders(const QString &name);

/// The first file of that name in one of the folders; empty where there is none.
QString find(const QString &folder, const QString &file);

} // namespace viewer::sharedfiles
