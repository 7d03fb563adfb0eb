// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "conformance/module/MouseDrag.h"

#include <QApplication>
#include <QMouseEvent>
#include <QWidget>
#include <QWindow>

#include <utility>

namespace conformance {

MouseDrag::MouseDrag(QWidget *widget, Aim aim) : m_widget(widget), m_aim(std::move(aim))
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &MouseDrag::finish);
}

MouseDrag::~MouseDrag() = default;

bool MouseDrag::runFrom(const QPoint &place)
{
    m_timer.start(0);
    const int distance = QApplication::startDragDistance() + 1;
    sendToWidget(QEvent::MouseButtonPress, place);
    // The first move makes it a drag, the second begins it, and comes back at its end.
    sendToWidget(QEvent::MouseMove, place + QPoint(distance, 0));
    sendToWidget(QEvent::MouseMove, place + QPoint(2 * distance, 0));
    m_timer.stop();
    if (!m_dragged)
        sendToWidget(QEvent::MouseButtonRelease, place);
    // The toolkit posts the release once more, which would end the next drag.
    QCoreApplication::sendPostedEvents(m_widget->window()->windowHandle());
    return m_dragged;
}

void MouseDrag::finish()
{
    m_dragged = true;
    sendToWindow(QEvent::MouseMove, m_aim());
    if (m_beforeDrop) {
        m_beforeDrop();
        sendToWindow(QEvent::MouseMove, m_aim() + QPoint(1, 0));
    }
    sendToWindow(QEvent::MouseButtonRelease, m_aim());
}

void MouseDrag::sendToWidget(int type, const QPoint &place)
{
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(QEvent::Type(type), place, m_widget->mapTo(m_widget->window(), place),
                      m_widget->mapToGlobal(place), button, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(m_widget, &event);
}

void MouseDrag::sendToWindow(int type, const QPoint &place)
{
    const bool isRelease = type == QEvent::MouseButtonRelease;
    const QPoint inWindow = m_widget->mapTo(m_widget->window(), place);
    QMouseEvent event(QEvent::Type(type), inWindow, inWindow, m_widget->mapToGlobal(place),
                      isRelease ? Qt::LeftButton : Qt::NoButton,
                      isRelease ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(m_widget->window()->windowHandle(), &event);
}

} // namespace conformance
