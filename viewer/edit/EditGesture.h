// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "viewer/edit/DragMove.h"
#include "viewer/edit/EditStage.h"

#include <QObject>
#include <QTimer>

class QKeyEvent;
class QMouseEvent;

namespace viewer {

/// The modifiers once a key that is one of them is down or up; its event tells those before.
Qt::KeyboardModifiers modifiersAfter(const QKeyEvent &event);

/// The hand on the view: turns mouse and keys into picks, rubber bands, drags and nudges. Owned by
/// whoever receives the events of the view, which hands each one over and lets those that are not
/// taken go on to the view itself: a drag on an empty place turns the model there. GUI thread only;
/// knows no window.
///
/// - A click picks the topmost overlay under the mouse, another one at the same place the one below.
///   Shift adds, Ctrl adds or takes away. On an empty place it ends the selection.
/// - A drag moves all that is selected by the overlay under the mouse, which is selected first when
///   neither it nor one below it is. Shift keeps it straight, Ctrl keeps it from snapping.
/// - An overlay that spans the view is empty ground to a drag until it is selected.
/// - A drag with Shift on empty ground selects what its rubber band touches; with Ctrl too it adds.
/// - Escape puts back what is being dragged, or ends the selection.
/// - Arrow keys move the selection by one point, with Shift by ten.
class EditGesture : public QObject
{
    Q_OBJECT

public:
    EditGesture(OverlayService *service, EditStage *stage, QObject *parent = nullptr);
    ~EditGesture() override;

    /// Mouse and keys, places in device-independent pixels. True when the event was taken.
    bool press(const QMouseEvent &event);
    bool move(const QMouseEvent &event);
    bool release(const QMouseEvent &event);
    bool keyPress(const QKeyEvent &event);
    bool keyRelease(const QKeyEvent &event);

    /// Makes an overlay at a place a part of the selection, for a menu of what is selected. False
    /// while a gesture is under way, which is no time for menus.
    bool pickForMenu(const QPointF &place);

    /// Whether a key is meant for the gesture, whatever shortcuts it has elsewhere.
    bool claims(const QKeyEvent &event) const;

    /// Ends what is under way as if it had not begun.
    void cancel();

    /// Ends what is under way as it is, since the scene is no longer the same.
    void abandon();

    /// What the mouse would do at a place, as a shape; none where the view's own holds.
    std::optional<Qt::CursorShape> cursor(const QPointF &place,
                                          Qt::KeyboardModifiers modifiers) const;

    /// The rubber band in pixels of the view; empty when there is none.
    QRectF band() const;

    /// Whether what is in the band comes to what is selected already.
    bool bandAdds() const { return m_bandAdds; }

    /// The overlays that the rubber band would select.
    QRPC::NodeList bandNodes() const;

    /// The lines that dragged overlays are on.
    QVector<Guide> guides() const;

    /// The overlay whose place is being changed, 0 for none.
    QRPC::NodeId movedNode() const;

    bool isDragging() const { return m_state == State::Dragging; }

    /// Where the mouse is, in pixels of the view.
    QPointF place() const { return m_at; }

Q_SIGNALS:
    /// What is to be drawn over the overlays is not the same any more.
    void changed();

private:
    /// Watching: the view has been pressed, and a release would be a click. Spent: the gesture was
    /// cancelled, and the button is still down.
    enum class State { Idle, Watching, Pressed, Dragging, Banding, Spent };

    /// What lies under the mouse: the overlays, the topmost first, and the one to take hold of.
    struct Ground
    {
        QRPC::NodeList order;
        QRPC::NodeId grip;
    };

    bool isTaken() const { return m_state != State::Idle && m_state != State::Watching; }
    bool isUnderWay() const { return isTaken() && m_state != State::Spent; }
    bool isNear(const QPointF &a, const QPointF &b) const;
    QPointF toView(const QPointF &place) const { return place * m_stage->view().pixelRatio; }
    Ground groundAt(const QPointF &at) const;
    QRPC::NodeList moved() const;
    void select(const QRPC::NodeList &nodes);
    void enter(State state);

    void pressGround(const QMouseEvent &event, const Ground &ground);
    void click(Qt::KeyboardModifiers modifiers);
    QRPC::NodeId pickAgain(const QRPC::NodeList &order) const;
    void startDrag();
    void drag(Qt::KeyboardModifiers modifiers);
    void endBand();
    void nudge(const QPointF &points);
    std::optional<Qt::CursorShape> idleCursor(const Ground &ground,
                                              Qt::KeyboardModifiers modifiers) const;

    OverlayService *m_service;
    EditStage *m_stage;
    State m_state = State::Idle;
    QPointF m_pressedAt;
    QPointF m_at;
    QRPC::NodeId m_grip = 0; // the overlay that a drag would move the selection by
    bool m_pickedByPress = false;
    bool m_bandAdds = false;
    QRPC::NodeId m_lastPick = 0; // and where; another click there picks the one below
    QPointF m_lastPlace;
    std::optional<DragMove> m_drag;
    QRPC::NodeId m_nudged = 0;
    QTimer m_nudgeShown;
};

} // namespace viewer
