// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "kit/HostFixture.h"
#include "kit/TreeDump.h"
#include "overlayeditor/kxOverlayEditor.h"
#include "overlayeditor/kxOverlayEditorGUIW.h"
#include "overlayeditor/model/kxOverlayQtModel.h"
#include "tests/support/KxTest.h"

#include <QTreeView>

#include <functional>

/// Base of the tests of the editor: a host with a recording service, and the editor in it.
class EditorTest : public KxTest
{
    Q_OBJECT

protected:
    /// Builds the editor, with the tree of `line` in the service and in the view, all levels open.
    /// The log is empty afterwards.
    void openEditor(const QString &line = QString());

    /// Shows the editor's window and makes it the active one.
    void showWindow();

    HostFixture &host() { return *m_host; }
    RecordingService &service() { return m_host->service(); }
    CallLog &log() { return m_host->log(); }
    kxOverlayEditor &editor() { return *m_editor; }
    kxOverlayEditorGUIW &window();
    QTreeView &tree();
    QWidget &searchBox();
    kxOverlayQtModel &model();

    QModelIndex index(QRPC::NodeId id) { return model().indexFromId(id); }

    /// The model's tree on one line.
    QString shown() { return dumpTree(model()); }

    /// Makes the nodes the selection, each with a call of its own, so that they are selected in the
    /// order of the list.
    void select(const QRPC::NodeList &nodes);

    /// The selected nodes in ascending order.
    QRPC::NodeList selected();

    /// Calls a slot of the editor that has no arguments.
    void call(const char *slot);

    /// The commands and writes that `action` sent to the service.
    QStringList commandsOf(const std::function<void()> &action) { return log().commandsOf(action); }

    /// Clicks into the row of a node.
    void click(QRPC::NodeId node, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

    /// The open inline name editor of the tree; null for none.
    QWidget *nameEditor();

    void dropEditor() { m_editor.reset(); }

protected Q_SLOTS:
    void init() override;
    void cleanup() override;

private:
    std::unique_ptr<HostFixture> m_host;
    std::unique_ptr<kxOverlayEditor> m_editor;
};
