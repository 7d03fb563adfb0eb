// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

// The keys and the context menu of the tree view.

#include "overlayeditor/kxOverlayEditor.h"

#include "host/QKXSearchBox.h"
#include "host/kxOverlayService.h"
#include "overlayeditor/kxServices.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QTreeView>

#include <functional>

bool kxOverlayEditor::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_treeView)
        return false;
    if (event->type() == QEvent::ContextMenu) {
        m_contextMenu->exec(QCursor::pos());
        return false; // the view sees the event too
    }
    if (event->type() != QEvent::KeyPress || isEditingName())
        return false;
    const bool handled = handleKey(static_cast<QKeyEvent *>(event));
    event->setAccepted(handled);
    return handled;
}

/// The name editor is a child of the view, which gets the keys that the editor has no use for.
/// They were typed into the name, not at the tree.
bool kxOverlayEditor::isEditingName() const
{
    const QWidget *focus = QApplication::focusWidget();
    return focus && focus != m_treeView && m_treeView->isAncestorOf(focus);
}

bool kxOverlayEditor::handleKey(const QKeyEvent *event)
{
    const int ctrl = Qt::ControlModifier;
    const int ctrlShift = Qt::ControlModifier | Qt::ShiftModifier;
    const struct
    {
        int modifiers;
        int key;
        std::function<void()> act;
    } keys[] = {
        {ctrlShift, Qt::Key_G, [this] { createGroupFromSelection(); }},
        {ctrlShift, Qt::Key_A, [this] { m_treeView->selectionModel()->clearSelection(); }},
        {ctrl, Qt::Key_A, [this] { m_treeView->selectAll(); }},
        {ctrl, Qt::Key_D, [this] { duplicateOverlays(); }},
        {ctrl, Qt::Key_F, [this] { m_searchBox->beginSearch(); }},
        {ctrl, Qt::Key_G, [this] { kxService<kxOverlayService>()->createGroup(getFirstGroup()); }},
        {ctrl, Qt::Key_I, [this] { invertSelection(); }},
        {ctrl, Qt::Key_R, [this] { renameOverlay(); }},
        {ctrl, Qt::Key_T, [this] { toggle(); }},
        {Qt::NoModifier, Qt::Key_Delete, [this] { deleteOverlays(); }},
    };
    for (const auto &key : keys) {
        if (int(event->modifiers()) == key.modifiers && event->key() == key.key) {
            key.act();
            return true;
        }
    }
    return false;
}
