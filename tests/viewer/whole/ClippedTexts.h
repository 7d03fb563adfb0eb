// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

class QWidget;

/// The visible texts of a window that have less room than they need: labels, buttons, list boxes,
/// number fields, headers, tabs, menus and bars; and panes that scroll sideways. Lists, paths and titles
/// of panels are shortened on purpose and not looked at.
namespace clippedTexts {

/// One line for each, with class, object name, text and the two widths or heights.
QStringList of(const QWidget *window);

} // namespace clippedTexts
