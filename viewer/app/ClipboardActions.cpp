// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/ClipboardActions.h"

#include "host/kxIconManager.h"

#include <QMenu>

namespace viewer {

ClipboardActions::ClipboardActions(SceneClipboard *clipboard, const EditFocus *focus,
                                   const ViewSelection *selection, QMenu *menu)
    : QObject(menu)
    , m_clipboard(clipboard)
    , m_focus(focus)
    , m_selection(selection)
    , m_cut(add(menu, "Cut", tr("Cu&t"), "cut", QKeySequence::Cut, &ClipboardActions::cut))
    , m_copy(add(menu, "Copy", tr("&Copy"), "copy", QKeySequence::Copy, &ClipboardActions::copy))
    , m_paste(
          add(menu, "Paste", tr("&Paste"), "paste", QKeySequence::Paste, &ClipboardActions::paste))
{
    menu->addSeparator();
    connect(menu, &QMenu::aboutToShow, this, &ClipboardActions::refresh);
    connect(menu, &QMenu::aboutToHide, this, &ClipboardActions::enableAll);
}

QAction *ClipboardActions::add(QMenu *menu, const char *icon, const QString &text, const char *name,
                               QKeySequence::StandardKey key, void (ClipboardActions::*command)())
{
    QAction *action = menu->addAction(kxIconManager::getIcon(icon, ""), text, this, command);
    action->setObjectName(QLatin1String(name));
    action->setShortcuts(key);
    return action;
}

void ClipboardActions::cut()
{
    TextField field = m_focus->textField();
    if (field.isNull())
        m_clipboard->cut(nodes());
    else
        field.cut();
}

void ClipboardActions::copy()
{
    TextField field = m_focus->textField();
    if (field.isNull())
        m_clipboard->copy(nodes());
    else
        field.copy();
}

void ClipboardActions::paste()
{
    TextField field = m_focus->textField();
    if (field.isNull())
        m_clipboard->paste(nodes());
    else
        field.paste();
}

QRPC::NodeList ClipboardActions::nodes() const
{
    const NodeView view = m_focus->nodeView();
    return view.isNull() ? m_selection->nodes() : view.selectedNodes();
}

/// The selection is a module's and tells nothing; it is looked at when the menu shows.
void ClipboardActions::refresh()
{
    const TextField field = m_focus->textField();
    const bool inText = !field.isNull();
    const bool hasNodes = !nodes().isEmpty();
    m_cut->setEnabled(inText ? field.canCut() : hasNodes);
    m_copy->setEnabled(inText ? field.canCopy() : hasNodes);
    m_paste->setEnabled(SceneClipboard::canPaste() && (!inText || field.canPaste()));
}

/// While the menu is closed its keys must work whatever is selected by then.
void ClipboardActions::enableAll()
{
    for (QAction *action : {m_cut, m_copy, m_paste})
        action->setEnabled(true);
}

} // namespace viewer
