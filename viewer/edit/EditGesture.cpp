// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/edit/EditGesture.h"

#include "viewer/edit/Picking.h"
#include "viewer/edit/SelectionShape.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QStyleHints>

#include <algorithm>

namespace viewer {

using QRPC::NodeId;
using QRPC::NodeList;

namespace {

constexpr double LeastSize = 8.0; // of what a hand can hit, in device-independent pixels
constexpr int NudgeShown = 2000;  // milliseconds: as long as nudges are one run

bool sameNodes(const NodeList &a, const NodeList &b)
{
    return QSet<NodeId>(a.begin(), a.end()) == QSet<NodeId>(b.begin(), b.end());
}

int rulesFor(Qt::KeyboardModifiers modifiers)
{
    return (modifiers.testFlag(Qt::ShiftModifier) ? DragMove::Straight : DragMove::Plain)
           | (modifiers.testFlag(Qt::ControlModifier) ? DragMove::Free : DragMove::Plain);
}

bool choosesSeveral(Qt::KeyboardModifiers modifiers)
{
    return (modifiers & (Qt::ShiftModifier | Qt::ControlModifier)) != 0;
}

} // namespace

EditGesture::EditGesture(OverlayService *service, EditStage *stage, QObject *parent)
    : QObject(parent)
    , m_service(service)
    , m_stage(stage)
{
    m_nudgeShown.setSingleShot(true);
    m_nudgeShown.setInterval(NudgeShown);
    connect(&m_nudgeShown, &QTimer::timeout, this, [this] {
        m_nudged = 0;
        emit changed();
    });
}

EditGesture::~EditGesture() = default;

bool EditGesture::press(const QMouseEvent &event)
{
    if (event.button() != Qt::LeftButton || isUnderWay())
        return isTaken();
    m_pressedAt = m_at = toView(event.localPos());
    m_pickedByPress = false;
    const Ground ground = groundAt(m_at);
    m_grip = ground.grip;
    if (m_grip == 0) {
        pressGround(event, ground);
        return isTaken();
    }
    enter(State::Pressed);
    if (!choosesSeveral(event.modifiers()) && !moved().contains(m_grip)) {
        select({m_grip});
        m_pickedByPress = true;
    }
    return true;
}

void EditGesture::pressGround(const QMouseEvent &event, const Ground &ground)
{
    const bool isRepeated = event.type() == QEvent::MouseButtonDblClick;
    if (event.modifiers() & Qt::ShiftModifier)
        enter(State::Banding);
    else if (isRepeated && ground.order.isEmpty())
        enter(State::Idle); // that click means the view
    else
        enter(State::Watching);
}

bool EditGesture::move(const QMouseEvent &event)
{
    if (m_state != State::Idle && !(event.buttons() & Qt::LeftButton))
        abandon(); // the release went elsewhere
    if (m_state == State::Idle || m_state == State::Spent)
        return isTaken();
    m_at = toView(event.localPos());
    m_bandAdds = event.modifiers().testFlag(Qt::ControlModifier);
    const bool hasLeft = !isNear(m_at, m_pressedAt);
    if (m_state == State::Watching && hasLeft)
        enter(State::Idle);
    if (m_state == State::Pressed && hasLeft)
        startDrag();
    if (m_state == State::Dragging)
        drag(event.modifiers());
    if (m_state == State::Banding)
        emit changed();
    return isTaken();
}

bool EditGesture::release(const QMouseEvent &event)
{
    const bool wasTaken = isTaken();
    if (event.button() != Qt::LeftButton)
        return wasTaken;
    m_at = toView(event.localPos());
    m_bandAdds = event.modifiers().testFlag(Qt::ControlModifier);
    const bool isClick = isNear(m_at, m_pressedAt);
    const State state = m_state;
    if (state == State::Banding && !isClick)
        endBand();
    abandon();
    if (isClick && (state == State::Watching || state == State::Pressed || state == State::Banding))
        click(event.modifiers());
    return wasTaken;
}

bool EditGesture::pickForMenu(const QPointF &place)
{
    if (isTaken())
        return false;
    const Ground ground = groundAt(toView(place));
    if (!ground.order.isEmpty() && !moved().contains(ground.grip))
        select({ground.order.first()});
    return true;
}

void EditGesture::cancel()
{
    const bool goesOn = isUnderWay();
    if (m_drag)
        m_drag->putBack();
    abandon();
    if (goesOn)
        m_state = State::Spent;
}

void EditGesture::abandon()
{
    if (m_drag) {
        m_drag.reset();
        m_service->history().endGesture(); // a nudge that follows is a step of its own
    }
    enter(State::Idle);
}

void EditGesture::enter(State state)
{
    m_state = state;
    m_nudged = 0;
    emit changed();
}

bool EditGesture::isNear(const QPointF &a, const QPointF &b) const
{
    const double distance = QGuiApplication::styleHints()->startDragDistance();
    return (a - b).manhattanLength() <= m_stage->view().pixels(distance);
}

EditGesture::Ground EditGesture::groundAt(const QPointF &at) const
{
    const EditView view = m_stage->view();
    const std::vector<DrawnOverlay> drawn = m_stage->drawnOverlays();
    QSet<NodeId> spanning;
    for (const DrawnOverlay &overlay : drawn) {
        if (spansView(overlay.cover, view.geometry.size))
            spanning.insert(overlay.node);
    }
    const NodeList order = pickOrder(drawn, at, view.pixels(LeastSize));
    const NodeList nodes = moved();
    return {order, gripOf(order, {nodes.begin(), nodes.end()}, spanning)};
}

/// The overlays that a drag or a nudge moves.
NodeList EditGesture::moved() const
{
    return overlaysOf(m_service->scene(), m_stage->selection());
}

void EditGesture::select(const NodeList &nodes)
{
    if (!sameNodes(nodes, m_stage->selection()))
        m_stage->select(nodes);
}

void EditGesture::click(Qt::KeyboardModifiers modifiers)
{
    const NodeList order = groundAt(m_pressedAt).order;
    NodeList selection = m_stage->selection();
    if (order.isEmpty()) {
        if (!choosesSeveral(modifiers))
            select({});
        return;
    }
    if (modifiers & Qt::ControlModifier) {
        if (selection.removeAll(order.first()) == 0)
            selection.append(order.first());
        select(selection);
        return;
    }
    const NodeId pick = m_pickedByPress ? m_grip : pickAgain(order);
    select(modifiers & Qt::ShiftModifier ? selection + NodeList{pick} : NodeList{pick});
    m_lastPick = pick;
    m_lastPlace = m_pressedAt;
}

/// The topmost overlay, or the one below the last pick when that was made here and still holds.
NodeId EditGesture::pickAgain(const NodeList &order) const
{
    const bool goesOn =
        isNear(m_pressedAt, m_lastPlace) && m_stage->selection().contains(m_lastPick);
    return nextPick(order, goesOn ? m_lastPick : 0);
}

void EditGesture::startDrag()
{
    m_lastPick = 0;
    if (!moved().contains(m_grip))
        select(m_stage->selection() + NodeList{m_grip});
    const NodeList nodes = moved();
    if (!nodes.contains(m_grip)) {
        enter(State::Idle);
        return;
    }
    m_service->history().endGesture();
    m_drag.emplace(m_service, m_stage->view(), m_stage->drawnOverlays(), nodes, m_grip);
    enter(State::Dragging);
}

void EditGesture::drag(Qt::KeyboardModifiers modifiers)
{
    m_drag->moveBy(m_at - m_pressedAt, rulesFor(modifiers));
    emit changed();
}

QRectF EditGesture::band() const
{
    if (m_state != State::Banding || isNear(m_at, m_pressedAt))
        return {};
    return QRectF(m_pressedAt, m_at).normalized();
}

NodeList EditGesture::bandNodes() const
{
    const QRectF area = band();
    return area.isEmpty()
               ? NodeList()
               : pickedByBand(m_stage->drawnOverlays(), area, m_stage->view().geometry.size);
}

void EditGesture::endBand()
{
    const NodeList inBand = bandNodes();
    NodeList nodes = m_bandAdds ? m_stage->selection() : NodeList();
    const QSet<NodeId> known(nodes.begin(), nodes.end());
    std::copy_if(inBand.begin(), inBand.end(), std::back_inserter(nodes),
                 [&known](NodeId node) { return !known.contains(node); });
    select(nodes);
}

QVector<Guide> EditGesture::guides() const
{
    return m_drag ? m_drag->guides() : QVector<Guide>();
}

NodeId EditGesture::movedNode() const
{
    return m_drag ? m_drag->grip() : m_nudged;
}

} // namespace viewer
