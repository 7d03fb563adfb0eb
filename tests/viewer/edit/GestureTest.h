// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/viewer/scene/ServiceTest.h"
#include "viewer/edit/EditGesture.h"

/// Base of the tests of gestures: a view of 400 by 300 device-independent pixels, of which each is
/// one point, with overlays of 60 by 30. Their anchors are at the top left, so that an offset of
/// (x, -y) puts one at (x, y): a at (20, 20), b at (50, 30) over a, c in the group g at (200, 150),
/// d in the switch s at (300, 240), e hidden in it at (20, 200).
///
/// Mouse and keys are synthetic events; the answers tell whether the gesture took them.
class GestureTest : public ServiceTest, public viewer::EditStage
{
    Q_OBJECT

protected:
    viewer::EditView view() const override;
    std::vector<viewer::DrawnOverlay> drawnOverlays() const override;
    QRPC::NodeList selection() const override { return m_selection; }
    void select(const QRPC::NodeList &nodes) override;

    bool press(const QPointF &at, Qt::KeyboardModifiers modifiers = {},
               Qt::MouseButton button = Qt::LeftButton);
    bool pressAgain(const QPointF &at);
    bool move(const QPointF &at, Qt::KeyboardModifiers modifiers = {},
              Qt::MouseButtons buttons = Qt::LeftButton);
    bool release(const QPointF &at, Qt::KeyboardModifiers modifiers = {},
                 Qt::MouseButton button = Qt::LeftButton);
    void click(const QPointF &at, Qt::KeyboardModifiers modifiers = {});
    void drag(const QPointF &from, const QPointF &to, Qt::KeyboardModifiers modifiers = {});
    bool key(int key, Qt::KeyboardModifiers modifiers = {});
    bool keyUp(int key, Qt::KeyboardModifiers modifiers = {});

    /// The names of the selected nodes, in the order in which they were selected.
    QString selected() const;

    /// The offset of an overlay, as the place where its box begins.
    QPointF placeOf(const char *name) const;

    /// The names of the steps that can be undone.
    QStringList steps();

    viewer::EditGesture &gesture() { return *m_gesture; }
    int selections() const { return m_selections; }
    void setPixelRatio(double ratio) { m_ratio = ratio; }
    void place(const char *name, const QPointF &at);

protected Q_SLOTS:
    void init() override;
    void cleanup() override;

private:
    bool send(QEvent::Type type, const QPointF &at, Qt::MouseButton button,
              Qt::MouseButtons buttons, Qt::KeyboardModifiers modifiers);

    double m_ratio = 1.0;
    QRPC::NodeList m_selection;
    int m_selections = 0; // how often it was changed
    std::unique_ptr<viewer::EditGesture> m_gesture;
};
