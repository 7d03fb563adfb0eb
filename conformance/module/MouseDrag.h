// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QPoint>
#include <QTimer>

#include <functional>

class QWidget;

namespace conformance {

/// One drag and drop by a mouse that this process alone sees: the platform's drag is driven by the
/// events of the window, from inside the event loop that a drag runs. Made by a check, for one drag
/// within one widget of a shown window. GUI thread only.
class MouseDrag : public QObject
{
public:
    /// Where to drop, in coordinates of the widget; asked anew once something has changed.
    using Aim = std::function<QPoint()>;

    MouseDrag(QWidget *widget, Aim aim);
    ~MouseDrag() override;

    /// What happens while the mouse stands over the place of the drop, button still down.
    void setBeforeDrop(const std::function<void()> &action) { m_beforeDrop = action; }

    /// Presses, drags and drops. False when no drag began.
    bool runFrom(const QPoint &place);

private:
    void finish();
    void sendToWidget(int type, const QPoint &place);
    void sendToWindow(int type, const QPoint &place);

    QWidget *m_widget;
    Aim m_aim;
    std::function<void()> m_beforeDrop;
    QTimer m_timer; // ends in the loop of the drag, or not at all
    bool m_dragged = false;
};

} // namespace conformance
