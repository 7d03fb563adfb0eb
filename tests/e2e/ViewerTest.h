// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/support/KxTest.h"
#include "viewer/app/ViewerSession.h"

#include <QTreeView>

#include <memory>

/// Base of the tests that lead the running viewer, with the plug-in from its file, by real mouse and
/// keys. A process has the editor once, so that such a class has one test function, which goes through
/// its steps in order.
class ViewerTest : public KxTest
{
    Q_OBJECT

protected:
    /// Starts the viewer with these arguments. True when the window is there and has the keyboard.
    bool start(const QStringList &arguments);

    viewer::ViewerSession *session() const { return m_session.get(); }
    viewer::OverlayService &service() const { return *m_session->overlays(); }

    /// The tree of the editor.
    QTreeView *tree() const { return m_tree; }

    /// The row of a node; invalid when none has the name.
    QModelIndex rowOf(const QString &name) const;

    /// The node of a row; 0 when none has the name.
    QRPC::NodeId nodeOf(const QString &name) const;

    QStringList topRows() const;

    /// In the order in which they were selected.
    QStringList selectedNames() const;

    void clickRow(const QModelIndex &row, const QStringList &heldKeys = {});

    /// Leaves a picture of the screen in the build folder, to be looked at.
    void photograph(const QString &step);

protected Q_SLOTS:
    void initTestCase();
    void cleanup() override;

private:
    std::unique_ptr<viewer::ViewerSession> m_session;
    QTreeView *m_tree = nullptr;
    int m_pictures = 0;
};
