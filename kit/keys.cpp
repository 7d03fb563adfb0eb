// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "kit/keys.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

namespace keys {

namespace {

bool send(QWidget *widget, int key, Qt::KeyboardModifiers modifiers, const QString &text)
{
    QKeyEvent press(QEvent::KeyPress, key, modifiers, text);
    QApplication::sendEvent(widget, &press);
    QKeyEvent release(QEvent::KeyRelease, key, modifiers, text);
    QApplication::sendEvent(widget, &release);
    return press.isAccepted();
}

} // namespace

bool press(QWidget *widget, Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    return send(widget, key, modifiers, QString());
}

void type(QWidget *widget, const char *text)
{
    for (const char *at = text; *at; ++at)
        send(widget, QChar::toUpper(uint(*at)), Qt::NoModifier, QString(QLatin1Char(*at)));
}

} // namespace keys
