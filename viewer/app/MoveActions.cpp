// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/MoveActions.h"

#include <QApplication>
#include <QMenu>
#include <QMenuBar>

namespace viewer {

MoveActions::MoveActions(OverlayService *service, QMenu *menu) : QObject(menu), m_service(service)
{
    add(menu, MoveStep::Up, tr("Move &Up"), "moveUp", Qt::ALT + Qt::Key_Up);
    add(menu, MoveStep::Down, tr("Move &Down"), "moveDown", Qt::ALT + Qt::Key_Down);
    add(menu, MoveStep::In, tr("Move &In"), "moveIn", Qt::ALT + Qt::Key_Right);
    add(menu, MoveStep::Out, tr("Move &Out"), "moveOut", Qt::ALT + Qt::Key_Left);
    connect(qApp, &QApplication::focusChanged, this, &MoveActions::followFocus);
    // A view without rows does not tell yet what it shows.
    connect(service, &kxOverlayService::modelReset, this, &MoveActions::refresh,
            Qt::QueuedConnection);
    connect(service, &kxOverlayService::nodesAdded, this, &MoveActions::refresh,
            Qt::QueuedConnection);
    refresh();
}

void MoveActions::add(QMenu *menu, MoveStep step, const QString &text, const char *name, int key)
{
    QAction *action = menu->addAction(text, this, [this, step] { move(step); });
    action->setObjectName(QLatin1String(name));
    action->setShortcut(key);
    m_actions.append(action);
}

void MoveActions::followFocus(const QWidget *old, QWidget *now)
{
    Q_UNUSED(old)
    // The menu bar takes the focus while it is used by key, the window manager at any time.
    if (!now || qobject_cast<QMenuBar *>(now) || qobject_cast<QMenu *>(now))
        return;
    m_focus = now;
    refresh();
}

void MoveActions::refresh()
{
    const bool hasView = !NodeView(m_focus).isNull();
    for (QAction *action : qAsConst(m_actions))
        action->setEnabled(hasView);
}

/// Rows that are moved are deselected and closed, as far as the view is concerned.
void MoveActions::move(MoveStep step)
{
    NodeView view(m_focus);
    const QRPC::NodeList nodes = view.selectedNodes();
    const QRPC::NodeList open = view.openNodes();
    const QVector<QRPC::NodeList> groups = siblingsOf(m_service, nodes);
    std::optional<StepGroup> oneStep;
    if (groups.size() > 1)
        oneStep.emplace(m_service, tr("Move %1 items").arg(nodes.size()));
    for (const QRPC::NodeList &siblings : groups) {
        if (const std::optional<NodeMove> to = planStep(m_service, siblings, step))
            m_service->moveNodes(siblings, to->parent, to->row);
    }
    oneStep.reset();
    if (groups.isEmpty())
        return;
    view.open(open);
    view.select(nodes);
}

} // namespace viewer
