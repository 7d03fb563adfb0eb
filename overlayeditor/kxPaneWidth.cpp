// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "overlayeditor/kxPaneWidth.h"

#include <QEvent>
#include <QScrollArea>
#include <QScrollBar>

kxPaneWidth::kxPaneWidth(QScrollArea *pane) : QObject(pane), m_pane(pane)
{
    pane->widget()->installEventFilter(this);
}

bool kxPaneWidth::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::Show)
        fit();
    return QObject::eventFilter(watched, event);
}

void kxPaneWidth::fit()
{
    const int needed = m_pane->widget()->minimumSizeHint().width()
                       + m_pane->verticalScrollBar()->sizeHint().width() + 2 * m_pane->frameWidth();
    m_pane->setMinimumWidth(qMax(needed, m_pane->minimumWidth()));
}
