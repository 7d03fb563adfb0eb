// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QVariant>
#include <QWidget>

/// The widgets of a module's window, which are public by their object names.
namespace widgets {

/// The widget of this class and name; ends the program when there is none.
template<class T>
T *child(const QWidget &window, const char *name)
{
    auto *found = window.findChild<T *>(QString::fromLatin1(name));
    if (!found)
        qFatal("the window has no %s that is a %s", name, T::staticMetaObject.className());
    return found;
}

/// Marked as mixed: by the value true, which is the only one that is ever set.
inline bool isMarked(const QWidget &control)
{
    const QVariant marking = control.property("multiselect");
    return marking.isValid() && marking == QVariant(true);
}

} // namespace widgets
