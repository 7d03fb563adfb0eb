// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QApplication>
#include <QHash>
#include <QProxyStyle>
#include <QWheelEvent>
#include <QtTest>

/// What the tests of the widgets do to them beside QTest's own mouse and keys.
namespace widgetinput {

/// Shows `window` and waits until it takes keys.
inline bool showActive(QWidget *window)
{
    window->show();
    window->activateWindow();
    return QTest::qWaitForWindowActive(window);
}

/// Types each character of `text` at whatever has the focus.
inline void typeAtFocus(const QString &text)
{
    for (const QChar character : text)
        QTest::keyClick(QApplication::focusWidget(), character.toLatin1());
}

/// Turns the wheel one notch away from the user, over the middle of `widget`. True when taken.
inline bool turnWheel(QWidget *widget)
{
    const QPointF place = widget->rect().center();
    QWheelEvent event(place, widget->mapToGlobal(place.toPoint()), QPoint(), QPoint(0, 120),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    event.ignore();
    QSpontaneKeyEvent::setSpontaneous(&event);
    return qApp->notify(widget, &event) && event.isAccepted();
}

/// Presses, moves and releases the left button, all in coordinates of `widget`.
inline void drag(QWidget *widget, const QPoint &from, const QVector<QPoint> &way)
{
    QTest::mousePress(widget, Qt::LeftButton, Qt::NoModifier, from);
    for (const QPoint &point : way) {
        QMouseEvent move(QEvent::MouseMove, point, widget->mapToGlobal(point), Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(widget, &move);
    }
    QTest::mouseRelease(widget, Qt::LeftButton, Qt::NoModifier, way.isEmpty() ? from : way.last());
}

/// A style that counts how often it has polished each widget that was given it.
class PolishCounter : public QProxyStyle
{
public:
    QHash<const QWidget *, int> counts;

    using QProxyStyle::polish;
    void polish(QWidget *widget) override
    {
        ++counts[widget];
        QProxyStyle::polish(widget);
    }
};

} // namespace widgetinput
