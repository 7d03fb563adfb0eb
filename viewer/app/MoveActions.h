// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "viewer/app/EditFocus.h"
#include "viewer/app/MoveSteps.h"
#include "viewer/scene/OverlayService.h"

#include <QObject>

class QAction;
class QMenu;

namespace viewer {

/// The commands that move the selected nodes without a mouse: Move Up, Down, In and Out. They act on
/// the view of nodes that has the focus, and are enabled only with such a view, so that their keys
/// stay free for other widgets. Owned by its menu; overlay service and focus must outlive that.
class MoveActions : public QObject
{
    Q_OBJECT

public:
    /// Puts the commands into `menu`.
    MoveActions(OverlayService *service, const EditFocus *focus, QMenu *menu);

private:
    void add(QMenu *menu, MoveStep step, const QString &text, const char *name, int key);
    void refresh();
    void move(MoveStep step);

    OverlayService *m_service;
    const EditFocus *m_focus;
    QList<QAction *> m_actions;
};

} // namespace viewer
