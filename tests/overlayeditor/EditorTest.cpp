// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/overlayeditor/EditorTest.h"

#include <QLineEdit>

#include <algorithm>

void EditorTest::openEditor(const QString &line)
{
    service().build(line);
    m_editor = std::make_unique<kxOverlayEditor>();
    Q_EMIT service().modelReset();
    if (!host().headless)
        tree().expandAll();
    log().clear();
}

void EditorTest::showWindow()
{
    QWidget &widget = window();
    widget.resize(700, 600);
    widget.show();
    widget.activateWindow();
    QVERIFY(becomesActive(&widget));
}

kxOverlayEditorGUIW &EditorTest::window()
{
    return *static_cast<kxOverlayEditorGUIW *>(host().registrations().last().window.data());
}

QTreeView &EditorTest::tree()
{
    return *window()._overlay_tree_frame->findChild<QTreeView *>();
}

QWidget &EditorTest::searchBox()
{
    return *window()._overlay_tree_frame->layout()->itemAt(0)->widget();
}

kxOverlayQtModel &EditorTest::model()
{
    return *static_cast<kxOverlayQtModel *>(tree().model());
}

void EditorTest::select(const QRPC::NodeList &nodes)
{
    tree().selectionModel()->clearSelection();
    for (const QRPC::NodeId id : nodes)
        tree().selectionModel()->select(index(id), QItemSelectionModel::Select);
    log().clear();
}

QRPC::NodeList EditorTest::selected()
{
    QRPC::NodeList nodes = editor().getSelectedNodes();
    std::sort(nodes.begin(), nodes.end());
    return nodes;
}

void EditorTest::call(const char *slot)
{
    QVERIFY(QMetaObject::invokeMethod(m_editor.get(), slot, Qt::DirectConnection));
}

void EditorTest::click(QRPC::NodeId node, Qt::KeyboardModifiers modifiers)
{
    const QPoint place = tree().visualRect(index(node)).center();
    QTest::mouseClick(tree().viewport(), Qt::LeftButton, modifiers, place);
}

QWidget *EditorTest::nameEditor()
{
    return tree().viewport()->findChild<QLineEdit *>();
}

void EditorTest::init()
{
    KxTest::init();
    m_host = std::make_unique<HostFixture>();
}

void EditorTest::cleanup()
{
    m_editor.reset();
    m_host.reset();
    KxTest::cleanup();
}
