// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPair>
#include <QVector>

/// One object of the form of the editor's window: its name and class, the object that it belongs to
/// and, in a grid, its cell. A plain value; tests and checks of the form walk over the list.
struct FormMember
{
    const char *name;
    const char *className;
    const char
        *parent; ///< "window" for the window itself; empty: within another one, not its child
    int row;     ///< -1 for what lies in no grid
    int column;

    /// All of them, in the order of their declaration.
    static const QVector<FormMember> &all();

    /// The controls that are enabled and disabled with the selection, by name and in that order.
    static const QVector<const char *> &inputs();

    /// The texts of labels and buttons, by name.
    static const QVector<QPair<const char *, const char *>> &texts();
};
