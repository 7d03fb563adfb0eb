// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "viewer/app/MoveSteps.h"
#include "viewer/app/NodeView.h"
#include "viewer/scene/OverlayService.h"

#include <QObject>

class QAction;
class QMenu;

namespace viewer {

/// The commands that move the selected nodes without a mouse: Move Up, Down, In and Out. They act on
/// the view of nodes that has the focus, or had it before the menu was opened, and are enabled only
/// with such a view, so that their keys stay free for other widgets. Owned by its menu; the overlay
/// service must outlive that.
class MoveActions : public QObject
{
    Q_OBJECT

public:
    /// Puts the commands into `menu`.
    MoveActions(OverlayService *service, QMenu *menu);

private:
    void add(QMenu *menu, MoveStep step, const QString &text, const char *name, int key);
    void followFocus(const QWidget *old, QWidget *now);
    void refresh();
    void move(MoveStep step);

    OverlayService *m_service;
    QPointer<QWidget> m_focus; // the widget that the menu would act on, of whatever kind
    QList<QAction *> m_actions;
};

} // namespace viewer
