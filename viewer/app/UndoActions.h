// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "viewer/scene/OverlayService.h"

#include <QKeySequence>

class QAction;
class QMenu;

namespace viewer {

/// Undo and redo in the edit menu, each named by its step, and what makes them feel right in a
/// window: the mouse, the focus and modal dialogs tell where a gesture begins and ends, and a text field that has
/// something of its own to undo comes before the scene. Owned by the menu.
class UndoActions : public QObject
{
    Q_OBJECT

public:
    UndoActions(OverlayService *service, QMenu *menu);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    using Command = void (OverlayService::*)();

    QAction *add(QMenu *menu, const char *icon, const char *name, QKeySequence::StandardKey key,
                 Command command);
    void refresh();
    void endGesture();
    void watchDialogs(const QEvent &event);
    void leaveDialog();
    void watchMouse(const QEvent &event);

    OverlayService *m_service;
    QAction *m_undo;
    QAction *m_redo;
    bool m_isInDialog = false; // a modal one
};

} // namespace viewer
