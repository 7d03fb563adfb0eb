// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/EditFocus.h"

#include <QApplication>
#include <QMenu>
#include <QMenuBar>

namespace viewer {

EditFocus::EditFocus(QObject *parent) : QObject(parent), m_widget(QApplication::focusWidget())
{
    connect(qApp, &QApplication::focusChanged, this, &EditFocus::follow);
}

void EditFocus::follow(const QWidget *old, QWidget *now)
{
    Q_UNUSED(old)
    // The menu bar takes the focus while it is used by key, the window manager at any time.
    if (!now || qobject_cast<QMenuBar *>(now) || qobject_cast<QMenu *>(now))
        return;
    m_widget = now;
    emit changed();
}

} // namespace viewer
