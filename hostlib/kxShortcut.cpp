// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/kxShortcut.h"

#include <QKeySequence>

namespace {

QVector<kxShortcut::Entry> &entries()
{
    static QVector<kxShortcut::Entry> all;
    return all;
}

} // namespace

void kxShortcut::addKey(const QString &category, int key, int modifiers, const QString &description)
{
    entries().append({category, key, modifiers, description});
}

QString kxShortcut::convertKey(int key, int modifiers, bool portable)
{
    if (key == 0)
        return {};
    return QKeySequence(key | modifiers)
        .toString(portable ? QKeySequence::PortableText : QKeySequence::NativeText);
}

QVector<kxShortcut::Entry> kxShortcut::registeredKeys()
{
    return entries();
}

void kxShortcut::clear()
{
    entries().clear();
}
