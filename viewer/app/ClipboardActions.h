// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "viewer/app/EditFocus.h"
#include "viewer/app/SceneClipboard.h"
#include "viewer/app/ViewSelection.h"

#include <QKeySequence>

class QAction;
class QMenu;

namespace viewer {

/// Cut, Copy and Paste in the edit menu. In a text field they act on its text, in a view of
/// nodes on what is selected there, and anywhere else on the selection of the view. Owned by the menu;
/// all that it is made with outlives it.
class ClipboardActions : public QObject
{
    Q_OBJECT

public:
    ClipboardActions(SceneClipboard *clipboard, const EditFocus *focus,
                     const ViewSelection *selection, QMenu *menu);

private:
    QAction *add(QMenu *menu, const char *icon, const QString &text, const char *name,
                 QKeySequence::StandardKey key, void (ClipboardActions::*command)());
    void cut();
    void copy();
    void paste();
    QRPC::NodeList nodes() const;
    void refresh();
    void enableAll();

    SceneClipboard *m_clipboard;
    const EditFocus *m_focus;
    const ViewSelection *m_selection;
    QAction *m_cut;
    QAction *m_copy;
    QAction *m_paste;
};

} // namespace viewer
