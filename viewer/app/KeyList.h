// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/kxShortcut.h"

#include <QStringList>

class QMenuBar;

namespace viewer {

/// Where a key of the menus must act to count: anywhere, or in the whole window, modules included.
enum class KeyScope { Anywhere, WholeWindow };

/// The keys of the application's own menus, as entries like those that modules register, under the
/// category `category`. A command is named by the icon text of its action, which stays the same
/// where its text tells more.
QVector<kxShortcut::Entry> menuKeys(const QMenuBar &menuBar, const QString &category,
                                    KeyScope scope = KeyScope::Anywhere);

/// One line for each key of the application that a module has registered too, naming both commands.
QStringList keyClashes(const QVector<kxShortcut::Entry> &own,
                       const QVector<kxShortcut::Entry> &registered);

} // namespace viewer
