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

void EditFocus::includeArea(const QWidget *area, const ViewSelection *selection)
{
    m_area = area;
    m_selection = selection;
}

NodeView EditFocus::nodeView() const
{
    const bool isInArea = m_area && m_selection && m_widget && m_area->isAncestorOf(m_widget);
    return isInArea ? m_selection->nodeView() : NodeView(m_widget);
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
