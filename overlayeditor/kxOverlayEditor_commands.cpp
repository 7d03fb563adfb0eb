// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

// The commands. They only call the overlay service, which announces what came of it.

#include "overlayeditor/kxOverlayEditor.h"

#include "host/kxOverlayService.h"
#include "overlayeditor/kxServices.h"

#include <QTreeView>

void kxOverlayEditor::createOverlay()
{
    kxService<kxOverlayService>()->createOverlay(getFirstGroup());
}

void kxOverlayEditor::createOverlayGroup()
{
    kxService<kxOverlayService>()->createGroup(getFirstGroup());
}

void kxOverlayEditor::createSwitch()
{
    kxService<kxOverlayService>()->createSwitch(getFirstGroup());
}

void kxOverlayEditor::duplicateOverlays()
{
    kxService<kxOverlayService>()->duplicateNodes(getSelectedNodes());
}

void kxOverlayEditor::deleteOverlays()
{
    kxService<kxOverlayService>()->deleteNodes(getSelectedNodes());
}

void kxOverlayEditor::createGroupFromSelection()
{
    kxService<kxOverlayService>()->groupNodes(getSelectedNodes());
}

void kxOverlayEditor::renameOverlay()
{
    const QModelIndex index = getFirstSelected();
    if (!index.isValid())
        return;
    // In a closed group, or out of sight, the name would be edited unseen.
    m_treeView->scrollTo(index);
    m_treeView->edit(index);
}

void kxOverlayEditor::toggle()
{
    QRPC::NodeList toSwitchOff;
    QRPC::NodeList toSwitchOn;
    const QRPC::NodeList nodes = getSelectedNodes();
    for (const QRPC::NodeId node : nodes) {
        const bool enabled = kxService<kxOverlayService>()->isEnabled(node);
        (enabled ? toSwitchOff : toSwitchOn).append(node);
    }
    kxService<kxOverlayService>()->setEnabled(toSwitchOff, false);
    kxService<kxOverlayService>()->setEnabled(toSwitchOn, true);
}

void kxOverlayEditor::switchOn()
{
    kxService<kxOverlayService>()->setEnabled(getSelectedNodes(), true);
}

void kxOverlayEditor::switchOff()
{
    kxService<kxOverlayService>()->setEnabled(getSelectedNodes(), false);
}
