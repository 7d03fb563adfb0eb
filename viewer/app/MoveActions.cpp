// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/MoveActions.h"

#include <QMenu>

namespace viewer {

MoveActions::MoveActions(OverlayService *service, const EditFocus *focus, QMenu *menu)
    : QObject(menu)
    , m_service(service)
    , m_focus(focus)
{
    add(menu, MoveStep::Up, tr("Move &Up"), "moveUp", Qt::ALT + Qt::Key_Up);
    add(menu, MoveStep::Down, tr("Move &Down"), "moveDown", Qt::ALT + Qt::Key_Down);
    add(menu, MoveStep::In, tr("Move &In"), "moveIn", Qt::ALT + Qt::Key_Right);
    add(menu, MoveStep::Out, tr("Move &Out"), "moveOut", Qt::ALT + Qt::Key_Left);
    connect(focus, &EditFocus::changed, this, &MoveActions::refresh);
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

void MoveActions::refresh()
{
    const bool hasView = !m_focus->nodeView().isNull();
    for (QAction *action : qAsConst(m_actions))
        action->setEnabled(hasView);
}

/// Rows that are moved are deselected and closed, as far as the view is concerned.
void MoveActions::move(MoveStep step)
{
    NodeView view = m_focus->nodeView();
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
