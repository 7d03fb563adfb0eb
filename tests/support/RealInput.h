// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPoint>
#include <QStringList>

class QWidget;

/// Mouse and keys as a user gives them: events of the X server, made by xdotool, that travel through
/// the window manager. For tests with a display of their own; each call returns when the events are
/// on their way, so that a test waits for what they do.
namespace realInput {

/// Clicks at a place in a widget with the left button, while the named keys ("ctrl") are held.
void click(const QWidget &widget, const QPoint &place, const QStringList &heldKeys = {});

/// Clicks with the right button.
void rightClick(const QWidget &widget, const QPoint &place);

/// Presses and releases a key by its X name ("Delete", "ctrl+a").
void key(const QString &name);

/// Presses and releases the keys of a text, one after another.
void type(const QString &text);

/// The halves of key().
void keyDown(const QString &name);
void keyUp(const QString &name);

/// Drags with the left button from one place of a widget to another one. The moves come while the
/// drag runs in an event loop of its own, so that the test goes on at once and waits for the drop.
void startDrag(const QWidget &widget, const QPoint &from, const QPoint &to);

/// The steps of a drag, for who waits in between.
void moveTo(const QWidget &widget, const QPoint &place);
void press();
void release();

} // namespace realInput
