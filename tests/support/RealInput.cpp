// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/support/RealInput.h"

#include <QProcess>
#include <QWidget>

namespace {

const auto program = QStringLiteral("xdotool");

void run(const QStringList &arguments)
{
    const int code = QProcess::execute(program, arguments);
    if (code != 0)
        qWarning("xdotool %s ended with %d", qPrintable(arguments.join(' ')), code);
}

QStringList motion(const QWidget &widget, const QPoint &place)
{
    const QPoint global = widget.mapToGlobal(place) * widget.devicePixelRatioF();
    return {"mousemove", QString::number(global.x()), QString::number(global.y())};
}

} // namespace

namespace realInput {

void click(const QWidget &widget, const QPoint &place, const QStringList &heldKeys)
{
    QStringList arguments = motion(widget, place);
    for (const QString &held : heldKeys)
        arguments << "keydown" << held;
    arguments << "click"
              << "1";
    for (const QString &held : heldKeys)
        arguments << "keyup" << held;
    run(arguments);
}

void rightClick(const QWidget &widget, const QPoint &place)
{
    run(motion(widget, place) + QStringList{"click", "3"});
}

void key(const QString &name)
{
    run({"key", name});
}

void type(const QString &text)
{
    run({"type", "--delay", "10", "--", text});
}

void keyDown(const QString &name)
{
    run({"keydown", name});
}

void keyUp(const QString &name)
{
    run({"keyup", name});
}

void startDrag(const QWidget &widget, const QPoint &from, const QPoint &to)
{
    // The X server merges moves that follow one another at once; a hand is slower.
    const QStringList pause{"sleep", "0.05"};
    QStringList arguments = motion(widget, from) + pause + QStringList{"mousedown", "1"};
    constexpr int steps = 4;
    for (int step = 1; step <= steps; ++step)
        arguments +=
            motion(widget, from + (to - from) * step / steps + QPoint(step % 2, 0)) + pause;
    arguments += motion(widget, to) + pause + QStringList{"mouseup", "1"};
    if (!QProcess::startDetached(program, arguments))
        qWarning("xdotool could not be started");
}

void moveTo(const QWidget &widget, const QPoint &place)
{
    run(motion(widget, place));
}

void press()
{
    run({"mousedown", "1"});
}

void release()
{
    run({"mouseup", "1"});
}

} // namespace realInput
