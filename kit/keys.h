// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <Qt>

class QWidget;

/// Keys of a keyboard that hit a widget, with or without the focus.
namespace keys {

/// Presses and releases a key. False when nobody took the press.
bool press(QWidget *widget, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

/// The same for each character of a Latin text.
void type(QWidget *widget, const char *text);

} // namespace keys
