// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/support/RealInput.h"

#include <QProcess>
#include <QWidget>

namespace {

void run(const QStringList &arguments)
{
    const int code = QProcess::execute(QStringLiteral("xdotool"), arguments);
    if (code != 0)
        qWarning("xdotool %s ended with %d", qPrintable(arguments.join(' ')), code);
}

} // namespace

namespace realInput {

void click(const QWidget &widget, const QPoint &place, const QStringList &heldKeys)
{
    const QPoint global = widget.mapToGlobal(place) * widget.devicePixelRatioF();
    QStringList arguments{QStringLiteral("mousemove"), QString::number(global.x()),
                          QString::number(global.y())};
    for (const QString &held : heldKeys)
        arguments << QStringLiteral("keydown") << held;
    arguments << QStringLiteral("click") << QStringLiteral("1");
    for (const QString &held : heldKeys)
        arguments << QStringLiteral("keyup") << held;
    run(arguments);
}

void key(const QString &name)
{
    run({QStringLiteral("key"), name});
}

} // namespace realInput
