// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/edit/EditGesture.h"
#include "viewer/edit/OffsetList.h"
#include "viewer/edit/SelectionShape.h"

#include <QKeyEvent>

#include <algorithm>

namespace viewer {

using QRPC::NodeId;
using QRPC::NodeList;

namespace {

constexpr double ShortWay = 1.0; // points
constexpr double LongWay = 10.0;

/// The way on which an arrow key sends overlays, in points, y upwards; nothing for other keys.
std::optional<QPointF> wayOf(const QKeyEvent &event)
{
    const Qt::KeyboardModifiers modifiers = event.modifiers() & ~Qt::KeypadModifier;
    if (modifiers != Qt::NoModifier && modifiers != Qt::ShiftModifier)
        return std::nullopt;
    const double way = modifiers == Qt::ShiftModifier ? LongWay : ShortWay;
    switch (event.key()) {
    case Qt::Key_Left:
        return QPointF(-way, 0);
    case Qt::Key_Right:
        return QPointF(way, 0);
    case Qt::Key_Up:
        return QPointF(0, way);
    case Qt::Key_Down:
        return QPointF(0, -way);
    default:
        return std::nullopt;
    }
}

} // namespace

Qt::KeyboardModifiers modifiersAfter(const QKeyEvent &event)
{
    Qt::KeyboardModifiers modifiers = event.modifiers();
    const bool isDown = event.type() == QEvent::KeyPress;
    if (event.key() == Qt::Key_Shift)
        modifiers.setFlag(Qt::ShiftModifier, isDown);
    if (event.key() == Qt::Key_Control)
        modifiers.setFlag(Qt::ControlModifier, isDown);
    return modifiers;
}

bool EditGesture::claims(const QKeyEvent &event) const
{
    if (isUnderWay())
        return true;
    const bool isForSelection =
        wayOf(event) || (event.key() == Qt::Key_Escape && event.modifiers() == Qt::NoModifier);
    return isForSelection && !m_stage->selection().isEmpty();
}

bool EditGesture::keyPress(const QKeyEvent &event)
{
    if (!claims(event))
        return false;
    if (event.key() == Qt::Key_Escape) {
        if (isUnderWay())
            cancel();
        else
            select({});
    } else if (m_state == State::Dragging) {
        drag(modifiersAfter(event));
    } else if (!isUnderWay()) {
        nudge(*wayOf(event));
    }
    return true;
}

bool EditGesture::keyRelease(const QKeyEvent &event)
{
    if (m_state == State::Dragging)
        drag(modifiersAfter(event));
    return isTaken();
}

void EditGesture::nudge(const QPointF &points)
{
    const Scene &scene = m_service->scene();
    const NodeList nodes = moved();
    m_service->setOffsets(movedOn(offsetsOf(scene, nodes), points));
    const auto shown = std::find_if(nodes.begin(), nodes.end(),
                                    [&scene](NodeId node) { return scene.isActive(node); });
    m_nudged = shown == nodes.end() ? 0 : *shown;
    m_nudgeShown.start();
    emit changed();
}

std::optional<Qt::CursorShape> EditGesture::cursor(const QPointF &place,
                                                   Qt::KeyboardModifiers modifiers) const
{
    switch (m_state) {
    case State::Watching:
        return std::nullopt;
    case State::Banding:
        return Qt::CrossCursor;
    case State::Dragging:
        return Qt::SizeAllCursor;
    default:
        return idleCursor(groundAt(toView(place)), modifiers);
    }
}

std::optional<Qt::CursorShape> EditGesture::idleCursor(const Ground &ground,
                                                       Qt::KeyboardModifiers modifiers) const
{
    if (ground.grip == 0) {
        return modifiers & Qt::ShiftModifier ? std::optional<Qt::CursorShape>(Qt::CrossCursor)
                                             : std::nullopt;
    }
    const bool isSelected = m_stage->selection().contains(ground.order.first());
    if (modifiers & (Qt::ShiftModifier | Qt::ControlModifier) && !isSelected)
        return Qt::DragCopyCursor;
    if (modifiers & Qt::ControlModifier)
        return Qt::PointingHandCursor;
    return moved().contains(ground.grip) ? Qt::SizeAllCursor : Qt::PointingHandCursor;
}

} // namespace viewer
