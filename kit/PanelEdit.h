// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QVector>

class QWidget;

/// An edit in the panel as the user's hand makes it, and the one call that it causes. A plain value.
struct PanelEdit
{
    const char *name;
    void (*make)(const QWidget &window);
    const char *call; ///< line of the log, %1 standing for the selection

    /// An edit of each control.
    static const QVector<PanelEdit> &all();
};
