// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QString>
#include <QStringList>
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

/// Does what was left to the event loop, and what that leaves to it in its turn.
inline void settle()
{
    for (int i = 0; i < 10; ++i) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
}

/// What the selected rows of a view show, in the order in which they were selected.
inline QStringList selectedNames(const QAbstractItemView &view)
{
    QStringList names;
    const QModelIndexList indexes = view.selectionModel()->selectedIndexes();
    for (const QModelIndex &index : indexes)
        names.append(index.data().toString());
    return names;
}

} // namespace widgets
