// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/support/RealDrag.h"

#include "tests/support/RealInput.h"

#include <QDropEvent>
#include <QWidget>
#include <QWindow>
#include <QtTest>

#include <utility>

namespace {

constexpr int patience = 20000; // milliseconds; a sanitized program on a busy machine is slow
constexpr int nudgeInterval = 20;

} // namespace

RealDrag::RealDrag(QWidget *target, Aim aim) : m_target(target), m_aim(std::move(aim))
{
    // The window sees a drag that its widgets refuse; those do not.
    m_target->window()->windowHandle()->installEventFilter(this);
    connect(&m_nudges, &QTimer::timeout, this, &RealDrag::nudge);
}

RealDrag::~RealDrag() = default;

bool RealDrag::runFrom(QWidget *source, const QPoint &from)
{
    m_source = source;
    m_place = from;
    source->installEventFilter(this);
    realInput::moveTo(*source, from);
    realInput::press();
    return finish();
}

bool RealDrag::runFromElsewhere()
{
    approach();
    return finish();
}

bool RealDrag::finish()
{
    // The loop of a drag ends with the drag only.
    QTimer::singleShot(patience, this, &RealDrag::giveUp);
    return QTest::qWaitFor([this] { return m_phase == Phase::Over; }, 2 * patience) && !m_failed;
}

void RealDrag::giveUp()
{
    if (m_phase == Phase::Over)
        return;
    qWarning("the drag got stuck in phase %d", int(m_phase));
    m_failed = true;
    m_phase = Phase::Over;
    m_nudges.stop();
    realInput::key(QStringLiteral("Escape"));
    realInput::release();
}

bool RealDrag::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_source) {
        followWindowEvent(event);
    } else if (m_phase == Phase::Leaving
               && (event->type() == QEvent::MouseButtonPress
                   || event->type() == QEvent::MouseMove)) {
        QTimer::singleShot(0, this, &RealDrag::leave);
    }
    return false;
}

void RealDrag::leave()
{
    if (m_phase != Phase::Leaving)
        return;
    m_place += QPoint(6, 0);
    realInput::moveTo(*m_source, m_place);
}

void RealDrag::approach()
{
    m_phase = Phase::Approaching;
    m_isBeside = false;
    nudge();
    m_nudges.start(nudgeInterval);
}

/// A place that the mouse stands on already is not announced, and another application leaves out
/// moves as long as it waits for the answer to the one before. A hand never rests either.
void RealDrag::nudge()
{
    m_isBeside = !m_isBeside;
    realInput::moveTo(*m_target, m_aim() + QPoint(m_isBeside ? 3 : 0, 0));
}

void RealDrag::followWindowEvent(QEvent *event)
{
    switch (event->type()) {
    case QEvent::DragEnter:
        if (m_phase == Phase::Leaving) {
            m_phase = Phase::Approaching;
            QTimer::singleShot(0, this, &RealDrag::approach);
            break;
        }
        Q_FALLTHROUGH();
    case QEvent::DragMove:
        noteArrival(static_cast<QDropEvent *>(event)->pos());
        break;
    case QEvent::Drop:
    case QEvent::DragLeave:
        if (m_phase == Phase::Dropping)
            m_phase = Phase::Over;
        break;
    default:
        break;
    }
}

void RealDrag::noteArrival(const QPoint &place)
{
    if (m_phase != Phase::Approaching || place != aimInWindow())
        return;
    m_phase = Phase::Arrived;
    m_nudges.stop();
    QTimer::singleShot(0, this, &RealDrag::arrive);
}

void RealDrag::arrive()
{
    const QPoint before = m_aim();
    if (m_beforeDrop)
        std::exchange(m_beforeDrop, nullptr)();
    if (m_aim() != before) {
        approach();
        return;
    }
    m_phase = Phase::Dropping;
    realInput::release();
}

QPoint RealDrag::aimInWindow() const
{
    return m_target->mapTo(m_target->window(), m_aim());
}
