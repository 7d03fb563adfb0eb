// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

class QWidget;

namespace viewer {

/// Names the page of the user guide that tells of a widget and of all that lies in it.
void setHelpId(QWidget *widget, const QString &helpId);

/// The page that tells of a widget: its own or that of the nearest widget around it; empty for none, and
/// for null.
QString helpIdOf(const QWidget *widget);

} // namespace viewer
