// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QPoint>
#include <QTimer>

#include <functional>

class QEvent;
class QWidget;

/// One drag and drop with the real mouse, made step by step: each step waits for what the one before
/// has caused, because the events of a drag are handled in an event loop of its own and the X server
/// joins movements that come too fast. Made by a test for one drag; its display has to be real.
class RealDrag : public QObject
{
    Q_OBJECT

public:
    /// Where to drop, in coordinates of the target; asked anew once something has changed.
    using Aim = std::function<QPoint()>;

    /// Drops onto `target`, which is in a shown window.
    RealDrag(QWidget *target, Aim aim);
    ~RealDrag() override;

    /// What happens while the mouse stands over the place of the drop, button still down.
    void setBeforeDrop(const std::function<void()> &action) { m_beforeDrop = action; }

    /// Presses the mouse in a widget of this program, drags and drops. False when no drag began or
    /// the place of the drop was not reached.
    bool runFrom(QWidget *source, const QPoint &from);

    /// Goes on with a drag that another program has begun.
    bool runFromElsewhere();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    enum class Phase { Leaving, Approaching, Arrived, Dropping, Over };

    bool finish();
    void giveUp();
    void leave();
    void approach();
    void nudge();
    void followWindowEvent(QEvent *event);
    void noteArrival(const QPoint &place);
    void arrive();
    QPoint aimInWindow() const;

    QWidget *m_target;
    QWidget *m_source = nullptr;
    Aim m_aim;
    std::function<void()> m_beforeDrop;
    Phase m_phase = Phase::Leaving;
    QPoint m_place; // where the mouse is, in the source while leaving it
    QTimer m_nudges;
    bool m_isBeside = false;
    bool m_failed = false;
};
