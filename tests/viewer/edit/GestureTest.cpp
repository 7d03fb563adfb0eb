// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/viewer/edit/GestureTest.h"

#include <QKeyEvent>
#include <QMouseEvent>

using namespace viewer;

void GestureTest::init()
{
    ServiceTest::init();
    m_ratio = 1.0;
    m_selection.clear();
    m_selections = 0;
    open("a b g(c) s{d e-}");
    m_gesture = std::make_unique<EditGesture>(&service(), this);
    place("a", {20, 20});
    place("b", {50, 30});
    place("c", {200, 150});
    place("d", {300, 240});
    place("e", {20, 200});
    service().history().clear();
}

void GestureTest::cleanup()
{
    m_gesture.reset();
    ServiceTest::cleanup();
}

void GestureTest::place(const char *name, const QPointF &at)
{
    service().setPosition(ids(name), {0, 1});
    service().setOffset(ids(name), {at.x(), -at.y()});
}

EditView GestureTest::view() const
{
    return {{(QSizeF(400, 300) * m_ratio).toSize(), 72 * m_ratio}, m_ratio};
}

std::vector<DrawnOverlay> GestureTest::drawnOverlays() const
{
    std::vector<DrawnOverlay> drawn;
    for (const char *name : {"a", "b", "c", "d", "e"}) {
        const Node *node = scene().find(id(name));
        if (!node || !scene().isActive(node->id))
            continue;
        const bool spans = node->overlay.text == "wide";
        const QSizeF size = QSizeF(spans ? 400 : 60, 30) * m_ratio;
        const QRectF box = placeBox(node->overlay, size, view().geometry);
        drawn.push_back({node->id, box, box});
    }
    return drawn;
}

void GestureTest::select(const QRPC::NodeList &nodes)
{
    m_selection = nodes;
    ++m_selections;
}

bool GestureTest::send(QEvent::Type type, const QPointF &at, Qt::MouseButton button,
                       Qt::MouseButtons buttons, Qt::KeyboardModifiers modifiers)
{
    const QMouseEvent event(type, at, button, buttons, modifiers);
    if (type == QEvent::MouseMove)
        return m_gesture->move(event);
    return type == QEvent::MouseButtonRelease ? m_gesture->release(event) : m_gesture->press(event);
}

bool GestureTest::press(const QPointF &at, Qt::KeyboardModifiers modifiers, Qt::MouseButton button)
{
    return send(QEvent::MouseButtonPress, at, button, button, modifiers);
}

bool GestureTest::pressAgain(const QPointF &at)
{
    return send(QEvent::MouseButtonDblClick, at, Qt::LeftButton, Qt::LeftButton, {});
}

bool GestureTest::move(const QPointF &at, Qt::KeyboardModifiers modifiers, Qt::MouseButtons buttons)
{
    return send(QEvent::MouseMove, at, Qt::NoButton, buttons, modifiers);
}

bool GestureTest::release(const QPointF &at, Qt::KeyboardModifiers modifiers,
                          Qt::MouseButton button)
{
    return send(QEvent::MouseButtonRelease, at, button, Qt::NoButton, modifiers);
}

void GestureTest::click(const QPointF &at, Qt::KeyboardModifiers modifiers)
{
    press(at, modifiers);
    release(at, modifiers);
}

void GestureTest::drag(const QPointF &from, const QPointF &to, Qt::KeyboardModifiers modifiers)
{
    press(from, modifiers);
    move((from + to) / 2, modifiers);
    move(to, modifiers);
    release(to, modifiers);
}

bool GestureTest::key(int key, Qt::KeyboardModifiers modifiers)
{
    return m_gesture->keyPress({QEvent::KeyPress, key, modifiers});
}

bool GestureTest::keyUp(int key, Qt::KeyboardModifiers modifiers)
{
    return m_gesture->keyRelease({QEvent::KeyRelease, key, modifiers});
}

QString GestureTest::selected() const
{
    QStringList names;
    for (const QRPC::NodeId node : m_selection)
        names.append(scene().find(node)->name);
    return names.join(' ');
}

QPointF GestureTest::placeOf(const char *name) const
{
    const QPointF offset = scene().find(id(name))->overlay.offset;
    return {offset.x(), -offset.y()};
}

QStringList GestureTest::steps()
{
    const QUndoStack &stack = *service().history().stack();
    QStringList names;
    for (int i = 0; i < stack.index(); ++i)
        names.append(stack.text(i));
    return names;
}
