// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

// Construction and life of the editor. Its other subjects are in the files beside this one:
// _tree, _keys, _commands, _menus, _search, _panel, _sync, _edits and _wiring.

#include "overlayeditor/kxOverlayEditor.h"

#include "host/QKXCollapsibleFrame.h"
#include "host/kxControllerService.h"
#include "host/kxIconManager.h"
#include "host/kxMainWindowService.h"
#include "host/kxPlatformService.h"
#include "host/kxShortcut.h"
#include "overlayeditor/kxConnect.h"
#include "overlayeditor/kxOverlayEditorGUIW.h"
#include "overlayeditor/kxServices.h"
#include "overlayeditor/model/kxOverlayQtModel.h"

#include <QIcon>

#include <memory>

kxOverlayEditor *kxOverlayEditor::_the = nullptr;

namespace {

/// Undoes an editor's construction unless it is completed: the members are plain pointers, and the
/// destructor of an editor that was never complete does not run.
class ConstructionGuard
{
public:
    ConstructionGuard(kxOverlayQtModel *const &model, kxOverlayEditorGUIW *const &window)
        : m_model(model)
        , m_window(window)
    {
    }

    ~ConstructionGuard()
    {
        if (m_complete)
            return;
        delete m_window;
        delete m_model;
        kxOverlayEditor::_the = nullptr;
    }
    Q_DISABLE_COPY(ConstructionGuard)

    void setComplete() { m_complete = true; }

private:
    kxOverlayQtModel *const &m_model;
    kxOverlayEditorGUIW *const &m_window;
    bool m_complete = false;
};

} // namespace

kxOverlayEditor::kxOverlayEditor()
{
    ConstructionGuard guard(m_model, m_window);
    m_model = new kxOverlayQtModel;
    _the = this;
    if (!kxService<kxControllerService>()->isHeadless())
        createUserInterface();
    guard.setComplete();
}

kxOverlayEditor::~kxOverlayEditor()
{
    delete m_model;
}

void kxOverlayEditor::createUserInterface()
{
    createWindow();
    createTreeView();
    createPropertiesView();
    createQuickActionBar();
    createImageEdit();
    createContextMenu();
    connectToService();
    QKXCollapsibleFrame::fixLayouts(m_window, 130);
    applySizeConstraints();
    registerShortcuts();
    kxConnect(kxService<kxBaseService>(), SIGNAL(init()), this, SLOT(init()));
    updateAll();
}

void kxOverlayEditor::createWindow()
{
    m_window = new kxOverlayEditorGUIW(kxService<kxMainWindowService>()->getMainWindow());
    kxService<kxMainWindowService>()->registerModule(
        QStringLiteral("Overlay Editor"), QStringLiteral("Scene"), m_window,
        QStringLiteral("Tipreel_Overlays"), kxIconManager::getIcon("ModuleOverlay", ""),
        tr("Overlays"), 0);
    kxConnect(m_window, SIGNAL(show()), this, SLOT(show()));
}

void kxOverlayEditor::applySizeConstraints()
{
    const double treeFactor = kxService<kxPlatformService>()->getScaleFactorX();
    m_window->_overlay_tree_frame->setMinimumSize(int(treeFactor * 130.0), 0);
    const double textFactor = kxService<kxPlatformService>()->getScaleFactorY();
    m_window->_text_edit->setFixedHeight(int(textFactor * 70.0));
    const int offsetWidth = int(kxService<kxPlatformService>()->getScaleFactorX() * 91.0);
    m_window->_offset_x_spin_box->setMinimumSize(offsetWidth, 0);
    m_window->_offset_y_spin_box->setMinimumSize(offsetWidth, 0);
}

void kxOverlayEditor::registerShortcuts()
{
    const struct
    {
        const char *description;
        int key;
        int modifiers;
    } shortcuts[] = {
        {QT_TR_NOOP("Delete Overlays"), Qt::Key_Delete, Qt::NoModifier},
        {QT_TR_NOOP("Duplicate Overlay"), Qt::Key_D, Qt::ControlModifier},
        {QT_TR_NOOP("Rename Overlay"), Qt::Key_R, Qt::ControlModifier},
        {QT_TR_NOOP("Find Overlay"), Qt::Key_F, Qt::ControlModifier},
        {QT_TR_NOOP("Select All Overlays"), Qt::Key_A, Qt::ControlModifier},
        {QT_TR_NOOP("Deselect All Overlays"), Qt::Key_A, Qt::ControlModifier | Qt::ShiftModifier},
        {QT_TR_NOOP("Invert Selection"), Qt::Key_I, Qt::ControlModifier},
        {QT_TR_NOOP("Toggle Overlay Enabled State"), Qt::Key_T, Qt::ControlModifier},
        {QT_TR_NOOP("Create Group"), Qt::Key_G, Qt::ControlModifier},
        {QT_TR_NOOP("Create Group from selection"), Qt::Key_G,
         Qt::ControlModifier | Qt::ShiftModifier},
    };
    for (const auto &shortcut : shortcuts) {
        kxShortcut::addKey(tr("Overlay Editor"), shortcut.key, shortcut.modifiers,
                           tr(shortcut.description));
    }
}

void kxOverlayEditor::init()
{
    // The host announces itself; the editor has all it needs since its construction.
}

void kxOverlayEditor::show()
{
    m_window->raise();
}
