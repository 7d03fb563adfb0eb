// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

// The context menu of the tree and the bar of quick actions.

#include "overlayeditor/kxOverlayEditor.h"

#include "host/QKXToolBar.h"
#include "host/kxIconManager.h"
#include "host/kxShortcut.h"
#include "overlayeditor/kxConnect.h"
#include "overlayeditor/kxOverlayEditorGUIW.h"

#include <QAction>
#include <QIcon>
#include <QMenu>
#include <QTreeView>

void kxOverlayEditor::createContextMenu()
{
    const int ctrl = Qt::ControlModifier;
    const int ctrlShift = Qt::ControlModifier | Qt::ShiftModifier;
    const struct
    {
        const char *text; // null for a separator
        int key;          // 0 for none; shown behind the tab that ends the text
        int modifiers;
        const char *slot;
    } entries[] = {
        {QT_TR_NOOP("Create Overlay"), 0, 0, SLOT(createOverlay())},
        {QT_TR_NOOP("Create Group\t"), Qt::Key_G, ctrl, SLOT(createOverlayGroup())},
        {QT_TR_NOOP("Create Switch"), 0, 0, SLOT(createSwitch())},
        {QT_TR_NOOP("Duplicate Overlays\t"), Qt::Key_D, ctrl, SLOT(duplicateOverlays())},
        {QT_TR_NOOP("Delete Overlays\t"), Qt::Key_Delete, 0, SLOT(deleteOverlays())},
        {nullptr, 0, 0, nullptr},
        {QT_TR_NOOP("Rename Overlay\t"), Qt::Key_R, ctrl, SLOT(renameOverlay())},
        {QT_TR_NOOP("Group Selection\t"), Qt::Key_G, ctrlShift, SLOT(createGroupFromSelection())},
        {nullptr, 0, 0, nullptr},
        {QT_TR_NOOP("Switch On"), 0, 0, SLOT(switchOn())},
        {QT_TR_NOOP("Switch Off"), 0, 0, SLOT(switchOff())},
        {QT_TR_NOOP("Toggle\t"), Qt::Key_T, ctrl, SLOT(toggle())},
        {nullptr, 0, 0, nullptr},
        {QT_TR_NOOP("Select All\t"), Qt::Key_A, ctrl, SLOT(selectAll())},
        {QT_TR_NOOP("Deselect All\t"), Qt::Key_A, ctrlShift, SLOT(deselectAll())},
        {QT_TR_NOOP("Invert Selection\t"), Qt::Key_I, ctrl, SLOT(invertSelection())},
    };

    m_contextMenu = new QMenu(m_treeView);
    m_contextMenu->setTearOffEnabled(true);
    for (const auto &entry : entries) {
        if (!entry.text) {
            m_contextMenu->addSeparator();
            continue;
        }
        QString text = tr(entry.text);
        if (entry.key != 0)
            text += kxShortcut::convertKey(entry.key, entry.modifiers, false);
        // Without a shortcut of its own: the keys are handled by the event filter.
        m_contextMenu->addAction(text, this, entry.slot, QKeySequence());
    }
}

void kxOverlayEditor::createQuickActionBar()
{
    const struct
    {
        const char *icon;
        const char *text;
        const char *statusTip;
        const char *slot;
    } entries[] = {
        {"CreateNew", QT_TR_NOOP("Create"), QT_TR_NOOP("Create a new overlay"),
         SLOT(createOverlay())},
        {"Duplicate", QT_TR_NOOP("Duplicate"),
         QT_TR_NOOP("Duplicates the currently selected overlays"), SLOT(duplicateOverlays())},
        {"Delete", QT_TR_NOOP("Delete"), QT_TR_NOOP("Deletes the currently selected overlays"),
         SLOT(deleteOverlays())},
    };

    auto *bar = new QKXToolBar(tr("QuickActions"), nullptr);
    bar->setObjectName(QStringLiteral("QuickActionBar"));
    bar->setAllowedAreas(Qt::BottomToolBarArea);
    bar->setMovable(false);
    bar->setFloatable(false);
    bar->setContextMenuPolicy(Qt::ActionsContextMenu);
    m_window->addToolBar(Qt::BottomToolBarArea, bar);
    for (const auto &entry : entries) {
        auto *action = new QAction(kxIconManager::getIcon(entry.icon, ""), tr(entry.text), this);
        action->setStatusTip(tr(entry.statusTip));
        kxConnect(action, SIGNAL(triggered()), this, entry.slot);
        bar->addAction(action);
    }
}
