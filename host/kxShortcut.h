// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/kxHostExport.h"

#include <QString>
#include <QVector>

/// The host's register of keyboard shortcuts, for display and for finding clashes. It handles no
/// key: a module acts on its own keys. GUI thread only.
class KXHOST_EXPORT kxShortcut
{
public:
    /// One registered key.
    struct Entry
    {
        QString category;    ///< translated name of the module; empty for none
        int key;             ///< Qt::Key
        int modifiers;       ///< Qt::KeyboardModifiers
        QString description; ///< translated name of the command; empty for none
    };

    kxShortcut() = delete;

    /// Makes a key known. The same key may be registered more than once, even in one category. Called
    /// by modules while they start.
    /// @param category    translated name of the module; kept as given, also when empty
    /// @param key         Qt::Key; any number is kept
    /// @param modifiers   Qt::KeyboardModifiers; 0 for none; any number is kept
    /// @param description translated name of the command; kept as given, also when empty
    static void addKey(const QString &category, int key, int modifiers, const QString &description);

    /// The text of a key with its modifiers.
    /// @param key       Qt::Key; 0 for none; any other number counts as a key, whatever its text
    /// @param modifiers Qt::KeyboardModifiers; 0 for none; any other bit counts as one of the key
    /// @param portable  in the form for files, which is the same on every platform, and not as the
    ///                  platform shows it in menus
    /// @return empty when there is no key
    static QString convertKey(int key, int modifiers, bool portable);

    /// All registered keys. For the host.
    /// @return in the order of their registration; empty for none
    static QVector<Entry> registeredKeys();

    /// Forgets all registered keys. For the host, between two runs of its modules.
    static void clear();
};
