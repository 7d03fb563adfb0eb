// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

namespace viewer {

/// A length that is stated in pixels of a display of 96 dots per inch, in those of the display that
/// `widget` is on: what stands beside text grows with it. For windows, on the GUI thread.
inline int scaled(int length, const QWidget *widget)
{
    return qRound(length * widget->logicalDpiX() / 96.0);
}

} // namespace viewer
