// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/UndoActions.h"

#include "host/kxIconManager.h"
#include "viewer/app/TextField.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QTimer>

namespace viewer {

namespace {

/// Whether a widget takes text and claims the key without having any use for it.
bool claimsInVain(QObject *widget, const QKeyEvent &key)
{
    const bool undoes = key.matches(QKeySequence::Undo);
    if (!undoes && !key.matches(QKeySequence::Redo))
        return false;
    const TextField field(widget);
    return !field.isNull() && !(undoes ? field.canUndo() : field.canRedo());
}

} // namespace

UndoActions::UndoActions(OverlayService *service, QMenu *menu)
    : QObject(menu)
    , m_service(service)
    , m_undo(add(menu, "Undo", "undo", QKeySequence::Undo, &OverlayService::undo))
    , m_redo(add(menu, "Redo", "redo", QKeySequence::Redo, &OverlayService::redo))
{
    // What the commands are called where it does not matter what would be undone.
    m_undo->setIconText(tr("Undo"));
    m_redo->setIconText(tr("Redo"));
    menu->addSeparator();
    const QUndoStack *stack = service->history().stack();
    connect(stack, &QUndoStack::indexChanged, this, &UndoActions::refresh);
    connect(qApp, &QApplication::focusChanged, this, &UndoActions::endGesture);
    qApp->installEventFilter(this);
    refresh();
}

QAction *UndoActions::add(QMenu *menu, const char *icon, const char *name,
                          QKeySequence::StandardKey key, Command command)
{
    QAction *action = menu->addAction(kxIconManager::getIcon(icon, ""), QString());
    connect(action, &QAction::triggered, m_service, command);
    action->setObjectName(QLatin1String(name));
    action->setShortcuts(key);
    return action;
}

void UndoActions::refresh()
{
    const QUndoStack *stack = m_service->history().stack();
    m_undo->setText(stack->canUndo() ? tr("&Undo %1").arg(stack->undoText()) : tr("&Undo"));
    m_redo->setText(stack->canRedo() ? tr("&Redo %1").arg(stack->redoText()) : tr("&Redo"));
    m_undo->setEnabled(stack->canUndo());
    m_redo->setEnabled(stack->canRedo());
}

bool UndoActions::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride
        && claimsInVain(watched, *static_cast<QKeyEvent *>(event))) {
        event->ignore();
        return true;
    }
    watchDialogs(*event);
    watchMouse(*event);
    return QObject::eventFilter(watched, event);
}

void UndoActions::endGesture()
{
    if (!m_isInDialog)
        m_service->history().endGesture();
}

/// All that is tried in a dialog is one gesture, which may end where it began.
void UndoActions::watchDialogs(const QEvent &event)
{
    if (event.type() == QEvent::WindowBlocked) {
        endGesture();
        m_isInDialog = true;
        m_service->history().setHeld(true);
    } else if (event.type() == QEvent::WindowUnblocked) {
        // One that is cancelled takes its changes back when it has been closed.
        QTimer::singleShot(0, this, &UndoActions::leaveDialog);
    }
}

void UndoActions::leaveDialog()
{
    if (QApplication::activeModalWidget())
        return;
    m_isInDialog = false;
    m_service->history().setHeld(false);
    endGesture();
}

void UndoActions::watchMouse(const QEvent &event)
{
    if (m_isInDialog)
        return;
    History &history = m_service->history();
    if (event.type() == QEvent::MouseButtonPress) {
        history.endGesture();
        history.setHeld(true);
    } else if (event.type() == QEvent::MouseButtonRelease) {
        // Not its end: a control may send its last value once it learns of the release.
        history.setHeld(static_cast<const QMouseEvent &>(event).buttons() != Qt::NoButton);
    }
}

} // namespace viewer
