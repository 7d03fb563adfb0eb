// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/ViewEditing.h"

#include "host/kxShortcut.h"
#include "viewer/app/NoticeArea.h"
#include "viewer/app/ViewArea.h"
#include "viewer/edit/ReadOut.h"

#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>

#include <algorithm>

namespace viewer {

namespace {

bool isKeyOfModules(const QKeyEvent &event)
{
    const QVector<kxShortcut::Entry> keys = kxShortcut::registeredKeys();
    return std::any_of(keys.begin(), keys.end(), [&event](const kxShortcut::Entry &key) {
        return key.key == event.key() && key.modifiers == int(event.modifiers());
    });
}

} // namespace

ViewEditing::ViewEditing(OverlayService *service, OverlayPainter *painter, ViewArea *area)
    : QObject(area)
    , m_service(service)
    , m_painter(painter)
    , m_area(area)
    , m_selection(area->window(), service)
    , m_gesture(service, this)
    , m_layer(new EditLayer([this] { return feedback(); }))
{
    area->addLayer(m_layer);
    area->setInputFilter(this);
    const auto redraw = qOverload<>(&EditLayer::update);
    connect(&m_selection, &ViewSelection::changed, m_layer, redraw);
    connect(&m_gesture, &EditGesture::changed, m_layer, redraw);
    // What was dragged is no more.
    connect(service, &kxOverlayService::modelReset, &m_gesture, &EditGesture::abandon);
}

std::vector<DrawnOverlay> ViewEditing::drawnOverlays() const
{
    const ViewGeometry geometry = view().geometry;
    return m_painter->drawnOverlays(geometry.size, geometry.dpi);
}

bool ViewEditing::eventFilter(QObject *watched, QEvent *event)
{
    return watched == m_area->background() ? handle(event) : QObject::eventFilter(watched, event);
}

/// Whether an event of the background is taken.
bool ViewEditing::handle(QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        return pressMouse(*static_cast<QMouseEvent *>(event));
    case QEvent::MouseMove:
        return moveMouse(*static_cast<QMouseEvent *>(event));
    case QEvent::MouseButtonRelease:
        return m_gesture.release(*static_cast<QMouseEvent *>(event));
    case QEvent::ShortcutOverride:
        event->setAccepted(m_gesture.claims(*static_cast<QKeyEvent *>(event)));
        return event->isAccepted();
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
        return pressKey(*static_cast<QKeyEvent *>(event));
    case QEvent::ContextMenu:
        return openMenu(*static_cast<QContextMenuEvent *>(event));
    case QEvent::Leave:
        m_place.reset();
        return false;
    case QEvent::FocusOut:
    case QEvent::Hide:
        m_gesture.cancel();
        return false;
    default:
        return false;
    }
}

bool ViewEditing::pressMouse(const QMouseEvent &event)
{
    m_place = event.localPos();
    m_area->background()->setFocus(Qt::MouseFocusReason);
    const bool isTaken = m_gesture.press(event);
    if (isTaken)
        showCursor(event.modifiers());
    return isTaken;
}

bool ViewEditing::moveMouse(const QMouseEvent &event)
{
    m_place = event.localPos();
    const bool isTaken = m_gesture.move(event);
    // While a button is down on it, the view shows a shape of its own.
    if (isTaken || event.buttons() == Qt::NoButton)
        showCursor(event.modifiers());
    return isTaken;
}

bool ViewEditing::pressKey(const QKeyEvent &event)
{
    const bool isDown = event.type() == QEvent::KeyPress;
    const bool isTaken = isDown ? m_gesture.keyPress(event) : m_gesture.keyRelease(event);
    if (QGuiApplication::mouseButtons() == Qt::NoButton)
        showCursor(modifiersAfter(event));
    if (isTaken || !isDown)
        return isTaken;
    if (event.key() == Qt::Key_Escape && event.modifiers() == Qt::NoModifier)
        return m_area->notices()->dismissNewest();
    return sendKeyOfModules(event);
}

/// Modules watch for their keys in their own view of the nodes, but what is picked here is selected
/// there too.
bool ViewEditing::sendKeyOfModules(const QKeyEvent &event)
{
    if (!isKeyOfModules(event))
        return false;
    QKeyEvent theirs(event);
    return m_selection.nodeView().send(&theirs);
}

/// The module's menu, for what is selected once the overlay under the mouse is among it.
bool ViewEditing::openMenu(const QContextMenuEvent &event)
{
    if (event.reason() == QContextMenuEvent::Mouse && !m_gesture.pickForMenu(event.pos()))
        return true;
    QContextMenuEvent theirs(event);
    m_selection.nodeView().send(&theirs);
    return true;
}

void ViewEditing::showCursor(Qt::KeyboardModifiers modifiers)
{
    if (!m_place)
        return;
    const Qt::CursorShape own = m_area->ownCursor();
    m_area->background()->setCursor(m_gesture.cursor(*m_place, modifiers).value_or(own));
}

EditFeedback ViewEditing::feedback() const
{
    EditFeedback feedback;
    feedback.band = m_gesture.band();
    if (m_selection.nodes().isEmpty() && feedback.band.isEmpty())
        return feedback;
    const std::vector<DrawnOverlay> drawn = drawnOverlays();
    if (feedback.band.isEmpty() || m_gesture.bandAdds())
        feedback.outlines = outlinesOf(m_service->scene(), m_selection.nodes(), drawn);
    if (!feedback.band.isEmpty())
        feedback.bandBoxes = outlinesOf(m_service->scene(), m_gesture.bandNodes(), drawn).overlays;
    feedback.guides = m_gesture.guides();
    if (m_gesture.movedNode() != 0)
        addPlace(m_gesture.movedNode(), &feedback);
    return feedback;
}

void ViewEditing::addPlace(QRPC::NodeId node, EditFeedback *feedback) const
{
    const Node *found = m_service->scene().find(node);
    const ViewGeometry geometry = view().geometry;
    const QRectF box = m_painter->boxOf(node, geometry.size, geometry.dpi);
    if (!found || box.isEmpty())
        return;
    const QPointF &position = found->overlay.position;
    feedback->tie = {pointAt(position, QRectF(QPointF(), geometry.size)), pointAt(position, box)};
    feedback->readOut = readOutOf(found->overlay);
    // Below the overlay, where the mouse is.
    const double at = m_gesture.isDragging() ? m_gesture.place().x() : box.left();
    feedback->readOutBeside = QRectF(at, box.top(), 0, box.height());
}

} // namespace viewer
