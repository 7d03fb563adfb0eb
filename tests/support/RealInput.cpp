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

QStringList moveTo(const QWidget &widget, const QPoint &place)
{
    const QPoint global = widget.mapToGlobal(place) * widget.devicePixelRatioF();
    return {QStringLiteral("mousemove"), QString::number(global.x()), QString::number(global.y())};
}

} // namespace

namespace realInput {

void click(const QWidget &widget, const QPoint &place, const QStringList &heldKeys)
{
    QStringList arguments = moveTo(widget, place);
    for (const QString &held : heldKeys)
        arguments << QStringLiteral("keydown") << held;
    arguments << QStringLiteral("click") << QStringLiteral("1");
    for (const QString &held : heldKeys)
        arguments << QStringLiteral("keyup") << held;
    run(arguments);
}

void drag(const QWidget &widget, const QPoint &from, const QPoint &to)
{
    QStringList arguments = moveTo(widget, from);
    arguments << QStringLiteral("mousedown") << QStringLiteral("1");
    // A hand does not jump: what follows the mouse sees places in between.
    constexpr int steps = 4;
    for (int step = 1; step <= steps; ++step)
        arguments << moveTo(widget, from + (to - from) * step / steps);
    arguments << QStringLiteral("mouseup") << QStringLiteral("1");
    run(arguments);
}

void key(const QString &name)
{
    run({QStringLiteral("key"), name});
}

} // namespace realInput
