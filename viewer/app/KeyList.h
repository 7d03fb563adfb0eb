// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/kxShortcut.h"

#include <QStringList>

class QMenuBar;

namespace viewer {

/// The keys of the application's own menus, as entries like those that modules register, under the
/// category `category`.
QVector<kxShortcut::Entry> menuKeys(const QMenuBar &menuBar, const QString &category);

/// One line for each key of the application that a module has registered too, naming both commands.
QStringList keyClashes(const QVector<kxShortcut::Entry> &own,
                       const QVector<kxShortcut::Entry> &registered);

} // namespace viewer
