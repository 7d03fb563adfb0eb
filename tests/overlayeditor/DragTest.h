// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "kit/DropCase.h"
#include "tests/overlayeditor/EditorTest.h"

/// Base of the tests that drag rows of the editor's tree with the real mouse.
class DragTest : public EditorTest
{
    Q_OBJECT

protected:
    using Edge = DropCase::Edge;
    static constexpr Edge Above = DropCase::Above;
    static constexpr Edge On = DropCase::On;
    static constexpr Edge Below = DropCase::Below;

    /// Builds the editor and shows its window.
    void open(const QString &line);

    /// A place in the tree's viewport. For a node without a row it is the empty space below
    /// all rows.
    QPoint placeOf(QRPC::NodeId node, Edge edge);

    /// Clicks the rows one after the other, as a user does who wants them all.
    void selectByMouse(const QRPC::NodeList &nodes);

    /// Drags the selection by the row of `from` and drops it. False when the mouse did not get there.
    bool drag(QRPC::NodeId from, QRPC::NodeId to, Edge edge,
              const std::function<void()> &beforeDrop = nullptr);

    /// What the drags since the log was emptied have sent to the service.
    QStringList commands();

    /// What the rows show and the service does not say, icons included; empty for nothing.
    QString difference();

    /// The selected nodes in the order in which a drag takes them.
    QRPC::NodeList selectionOrder() { return editor().getSelectedNodes(); }
};

/// Fails the test function when the tree is not what the service says, once all is quiet.
#define KX_COMPARE_ROWS()                                                                          \
    do {                                                                                           \
        QCoreApplication::processEvents();                                                         \
        const QString found = difference();                                                        \
        QVERIFY2(found.isEmpty(), qPrintable(found));                                              \
    } while (false)
