// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/KeyList.h"

#include <QCoreApplication>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>

namespace viewer {

namespace {

constexpr int Modifiers = int(Qt::KeyboardModifierMask);

/// The name of a command alone. Scripts without Latin letters have the menu's key behind it: "保存(S)".
QString plainText(const QAction &action)
{
    static const QRegularExpression key(QStringLiteral("\\([A-Z0-9]\\)$"));
    return action.iconText().remove(QStringLiteral("…")).remove(key);
}

/// The toolkit knows more function keys than keyboards have.
bool isUnknown(int key)
{
    return key > Qt::Key_F12 && key <= Qt::Key_F35;
}

bool actsIn(KeyScope scope, const QAction &action)
{
    return scope == KeyScope::Anywhere || action.shortcutContext() == Qt::WindowShortcut
           || action.shortcutContext() == Qt::ApplicationShortcut;
}

void addKeys(const QList<QAction *> &actions, const QString &category, KeyScope scope,
             QVector<kxShortcut::Entry> *keys)
{
    for (const QAction *action : actions) {
        if (action->menu())
            addKeys(action->menu()->actions(), category, scope, keys);
        if (!actsIn(scope, *action))
            continue;
        const QList<QKeySequence> sequences = action->shortcuts();
        for (const QKeySequence &sequence : sequences) {
            const int key = sequence[0] & ~Modifiers;
            // A key pressed after another one is no clash with a single one.
            if (sequence.count() == 1 && !isUnknown(key))
                keys->append({category, key, sequence[0] & Modifiers, plainText(*action)});
        }
    }
}

} // namespace

QVector<kxShortcut::Entry> menuKeys(const QMenuBar &menuBar, const QString &category,
                                    KeyScope scope)
{
    QVector<kxShortcut::Entry> keys;
    addKeys(menuBar.actions(), category, scope, &keys);
    return keys;
}

QStringList keyClashes(const QVector<kxShortcut::Entry> &own,
                       const QVector<kxShortcut::Entry> &registered)
{
    QStringList clashes;
    for (const kxShortcut::Entry &key : own) {
        for (const kxShortcut::Entry &other : registered) {
            if (key.key != other.key || key.modifiers != other.modifiers)
                continue;
            clashes.append(QCoreApplication::translate(
                               "KeyList", R"(%1 is the key of "%2" in the menu and of "%3" in %4.)")
                               .arg(kxShortcut::convertKey(key.key, key.modifiers, false),
                                    key.description, other.description, other.category));
        }
    }
    return clashes;
}

} // namespace viewer
