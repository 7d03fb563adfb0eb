// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/QKXSearchBox.h"
#include "tests/overlayeditor/EditorTest.h"

#include <QScopeGuard>
#include <QVBoxLayout>

/// The tree view and the selection.
class tst_kxOverlayEditor_tree : public EditorTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldConfigureTheView();
    void shouldTakeTheIconSizeOfTheHost();
    void shouldPutTheSearchBoxAboveTheTree();
    void shouldGiveSelectedNodesInTheOrderOfTheSelection();
    void shouldGiveNothingForAnEmptySelection();
    void shouldFindTheGroupForNewNodes_data();
    void shouldFindTheGroupForNewNodes();
    void shouldAskForTheGroupUpwards();
    void shouldTellGroupsFromOverlays_data();
    void shouldTellGroupsFromOverlays();
    void shouldStopAskingAtTheFirstGroup();
    void shouldRefreshThePanelWithTheSelection();
    void shouldSelectCreatedNodes();
    void shouldShowTheLastCreatedNode();
    void shouldClearTheSelectionForCreatedNodesWithoutRows_data();
    void shouldClearTheSelectionForCreatedNodesWithoutRows();
    void shouldMakeRowsForCreatedNodes();
    void shouldSelectAllAndNothing();
    void shouldInvertTheSelection_data();
    void shouldInvertTheSelection();
    void shouldInvertLargeSelectionsInFewRanges();
    void shouldIgnoreTheNodesOfARemoval();
    void shouldRefreshThePanelInProportionToARemoval();
    void shouldRefreshThePanelInProportionToAMove();
    void shouldShowTenThousandOpenLevels();
    void shouldEditASelectedRowOnClick();
    void shouldNotEditOnDoubleClickOrKeys();
    void shouldRenameThroughTheInlineEditor();
    void shouldSendACheckBoxClickOnce();

private:
    void openAndSelect(int nodes);
};

void tst_kxOverlayEditor_tree::shouldConfigureTheView()
{
    openEditor();
    QTreeView &view = tree();
    QCOMPARE(view.parentWidget(), window()._overlay_tree_frame);
    QVERIFY(view.isHeaderHidden());
    QVERIFY(qobject_cast<kxOverlayQtModel *>(view.model()));
    QCOMPARE(view.selectionMode(), QAbstractItemView::ExtendedSelection);
    QCOMPARE(view.selectionBehavior(), QAbstractItemView::SelectItems);
    QVERIFY(view.dragEnabled());
    QVERIFY(view.acceptDrops());
    QVERIFY(view.showDropIndicator());
    QVERIFY(view.uniformRowHeights());
    QVERIFY(view.alternatingRowColors());
    QCOMPARE(view.editTriggers(), QAbstractItemView::SelectedClicked);
}

void tst_kxOverlayEditor_tree::shouldTakeTheIconSizeOfTheHost()
{
    host().iconSize = QSize(31, 27);
    openEditor();
    QCOMPARE(tree().iconSize(), QSize(31, 27));
}

void tst_kxOverlayEditor_tree::shouldPutTheSearchBoxAboveTheTree()
{
    openEditor();
    const auto *layout = qobject_cast<QVBoxLayout *>(window()._overlay_tree_frame->layout());
    QVERIFY(layout);
    QCOMPARE(layout->contentsMargins(), QMargins());
    QCOMPARE(layout->count(), 2);
    const auto *box = qobject_cast<QKXSearchBox *>(layout->itemAt(0)->widget());
    QVERIFY(box);
    QCOMPARE(box->parentWidget(), window()._overlay_tree_frame);
    QCOMPARE(layout->itemAt(1)->widget(), &tree());
    for (int i = 0; i < 2; ++i) {
        QCOMPARE(layout->stretch(i), 0);
        QCOMPARE(layout->itemAt(i)->alignment(), Qt::Alignment());
    }
}

void tst_kxOverlayEditor_tree::shouldGiveSelectedNodesInTheOrderOfTheSelection()
{
    openEditor("g2(a3 b4) c5");
    select({4, 2, 5});
    QModelIndexList indexes = tree().selectionModel()->selectedIndexes();
    QRPC::NodeList wanted;
    for (const QModelIndex &one : qAsConst(indexes))
        wanted.append(model().getNodeId(one));
    QCOMPARE(editor().getSelectedNodes(), wanted);
    QCOMPARE(editor().getFirstSelected(), indexes.first());
    QCOMPARE(selected(), (QRPC::NodeList{2, 4, 5}));
}

void tst_kxOverlayEditor_tree::shouldGiveNothingForAnEmptySelection()
{
    openEditor("a2");
    QCOMPARE(editor().getSelectedNodes(), QRPC::NodeList());
    QVERIFY(!editor().getFirstSelected().isValid());
    QCOMPARE(editor().getFirstGroup(), 1u);
}

void tst_kxOverlayEditor_tree::shouldFindTheGroupForNewNodes_data()
{
    QTest::addColumn<QRPC::NodeList>("nodes");
    QTest::addColumn<QRPC::NodeId>("group");
    QTest::newRow("top-level overlay") << QRPC::NodeList{9} << 1u;
    QTest::newRow("group") << QRPC::NodeList{2} << 2u;
    QTest::newRow("overlay in a group") << QRPC::NodeList{3} << 2u;
    QTest::newRow("switch") << QRPC::NodeList{5} << 5u;
    QTest::newRow("overlay in a switch in a group") << QRPC::NodeList{6} << 5u;
    QTest::newRow("overlay first, then group") << QRPC::NodeList{9, 2} << 1u;
    QTest::newRow("group first, then overlay") << QRPC::NodeList{2, 9} << 2u;
}

void tst_kxOverlayEditor_tree::shouldFindTheGroupForNewNodes()
{
    QFETCH(QRPC::NodeList, nodes);
    QFETCH(QRPC::NodeId, group);
    openEditor("g2(a3 b4 s5*(c6) h7()) g8() d9");
    select(nodes);
    QCOMPARE(model().getNodeId(editor().getFirstSelected()), nodes.first());
    QCOMPARE(editor().getFirstGroup(), group);
}

void tst_kxOverlayEditor_tree::shouldAskForTheGroupUpwards()
{
    openEditor("g2(a3) b4");
    select({3});
    editor().getFirstGroup();
    QCOMPARE(log().take(), (QStringList{"isOverlay 3", "isOverlay 2"}));
    select({4});
    editor().getFirstGroup();
    QCOMPARE(log().take(), (QStringList{"isOverlay 4", "getRootNode"}));
}

void tst_kxOverlayEditor_tree::shouldTellGroupsFromOverlays_data()
{
    QTest::addColumn<QRPC::NodeList>("nodes");
    QTest::addColumn<bool>("contains");
    QTest::newRow("nothing") << QRPC::NodeList{} << false;
    QTest::newRow("overlays") << QRPC::NodeList{3, 4} << false;
    QTest::newRow("a switch among overlays") << QRPC::NodeList{3, 5, 4} << true;
    QTest::newRow("a group") << QRPC::NodeList{2} << true;
}

void tst_kxOverlayEditor_tree::shouldTellGroupsFromOverlays()
{
    QFETCH(QRPC::NodeList, nodes);
    QFETCH(bool, contains);
    openEditor("g2(a3) b4 s5*()");
    QCOMPARE(editor().containsGroup(nodes), contains);
}

void tst_kxOverlayEditor_tree::shouldStopAskingAtTheFirstGroup()
{
    openEditor("a2 g3() b4");
    editor().containsGroup({2, 3, 4});
    QCOMPARE(log().lines(), (QStringList{"isOverlay 2", "isOverlay 3"}));
}

void tst_kxOverlayEditor_tree::shouldRefreshThePanelWithTheSelection()
{
    openEditor("a2 b3");
    tree().selectionModel()->select(index(3), QItemSelectionModel::ClearAndSelect);
    QCOMPARE(window()._overlay_name->text(), QString("b3"));
    tree().selectionModel()->select(index(2), QItemSelectionModel::ClearAndSelect);
    QCOMPARE(window()._overlay_name->text(), QString("a2"));
}

void tst_kxOverlayEditor_tree::shouldSelectCreatedNodes()
{
    openEditor("g2(a3) b4");
    select({3, 4});
    service().insert(2, 0, "x5 y6");
    service().insert(1, -1, "z7");
    Q_EMIT service().nodesAdded({5, 6, 7});
    Q_EMIT service().nodesCreated({5, 6, 7});
    QCOMPARE(selected(), (QRPC::NodeList{5, 6, 7}));
    KX_COMPARE_TREE(model(), service());
}

void tst_kxOverlayEditor_tree::shouldShowTheLastCreatedNode()
{
    QStringList names;
    for (int i = 10; i < 200; ++i)
        names.append("a" + QString::number(i));
    openEditor(names.join(' '));
    showWindow();
    tree().scrollToTop();
    service().insert(1, 50, "x300");
    service().insert(1, -1, "g301(y302)");
    Q_EMIT service().nodesAdded({300, 301});
    Q_EMIT service().nodesCreated({300, 302});
    const QRect row = tree().visualRect(index(302));
    QVERIFY(tree().viewport()->rect().contains(row));
    QVERIFY(tree().isExpanded(index(301)));
    QCOMPARE(selected(), (QRPC::NodeList{300, 302}));
    QVERIFY(!nameEditor());
}

void tst_kxOverlayEditor_tree::shouldClearTheSelectionForCreatedNodesWithoutRows_data()
{
    QTest::addColumn<QRPC::NodeList>("nodes");
    QTest::newRow("empty list") << QRPC::NodeList{};
    QTest::newRow("unknown ids") << QRPC::NodeList{98, 99};
}

void tst_kxOverlayEditor_tree::shouldClearTheSelectionForCreatedNodesWithoutRows()
{
    QFETCH(QRPC::NodeList, nodes);
    openEditor("a2 b3");
    select({2});
    Q_EMIT service().nodesCreated(nodes);
    QCOMPARE(selected(), QRPC::NodeList());
}

void tst_kxOverlayEditor_tree::shouldMakeRowsForCreatedNodes()
{
    openEditor("g2()");
    service().insert(2, 0, "x5 y6");
    Q_EMIT service().nodesCreated({5, 99, 6});
    QCOMPARE(selected(), (QRPC::NodeList{5, 6}));
    KX_COMPARE_TREE(model(), service());
}

void tst_kxOverlayEditor_tree::shouldSelectAllAndNothing()
{
    openEditor("g2(a3 b4) c5");
    call("selectAll");
    QCOMPARE(selected(), (QRPC::NodeList{2, 3, 4, 5}));
    call("deselectAll");
    QCOMPARE(selected(), QRPC::NodeList());
    tree().collapseAll();
    call("selectAll");
    QCOMPARE(selected(), (QRPC::NodeList{2, 5}));
}

void tst_kxOverlayEditor_tree::shouldInvertTheSelection_data()
{
    QTest::addColumn<QRPC::NodeList>("before");
    QTest::addColumn<QRPC::NodeList>("after");
    QTest::newRow("nothing") << QRPC::NodeList{} << QRPC::NodeList{2, 3, 4, 5, 6};
    QTest::newRow("all") << QRPC::NodeList{2, 3, 4, 5, 6} << QRPC::NodeList{};
    QTest::newRow("one") << QRPC::NodeList{3} << QRPC::NodeList{2, 4, 5, 6};
    QTest::newRow("scattered") << QRPC::NodeList{2, 4, 6} << QRPC::NodeList{3, 5};
}

void tst_kxOverlayEditor_tree::shouldInvertTheSelection()
{
    QFETCH(QRPC::NodeList, before);
    QFETCH(QRPC::NodeList, after);
    openEditor("g2(a3 b4) c5 d6");
    select(before);
    call("invertSelection");
    QCOMPARE(selected(), after);
}

void tst_kxOverlayEditor_tree::shouldInvertLargeSelectionsInFewRanges()
{
    QStringList names;
    for (int i = 10; i < 1010; ++i)
        names.append("a" + QString::number(i));
    openEditor(names.join(' '));
    QItemSelection middle(model().index(100, 0), model().index(899, 0));
    tree().selectionModel()->select(middle, QItemSelectionModel::ClearAndSelect);
    call("invertSelection");
    const QItemSelection inverted = tree().selectionModel()->selection();
    QCOMPARE(inverted.size(), 2);
    QCOMPARE(inverted.indexes().size(), 200);
    call("invertSelection");
    QCOMPARE(tree().selectionModel()->selection().indexes().size(), 800);
}

void tst_kxOverlayEditor_tree::shouldIgnoreTheNodesOfARemoval()
{
    openEditor("a2 b3");
    select({2});
    window()._overlay_name->clear();
    QVERIFY(QMetaObject::invokeMethod(&editor(), "nodeRemovedUpdate", Q_ARG(QRPC::NodeId, 99)));
    QCOMPARE(window()._overlay_name->text(), QString("a2"));
    window()._overlay_name->clear();
    QVERIFY(QMetaObject::invokeMethod(&editor(), "nodesRemovedUpdate",
                                      Q_ARG(QRPC::NodeList, QRPC::NodeList{98})));
    QCOMPARE(window()._overlay_name->text(), QString("a2"));
    QCOMPARE(shown(), QString("a2 b3"));
}

void tst_kxOverlayEditor_tree::openAndSelect(int nodes)
{
    QStringList names;
    for (int i = 0; i < nodes; ++i)
        names.append("a" + QString::number(10 + i));
    openEditor(names.join(' '));
    call("selectAll");
    log().clear();
}

void tst_kxOverlayEditor_tree::shouldRefreshThePanelInProportionToARemoval()
{
    constexpr int nodes = 200;
    openAndSelect(nodes);
    call("deleteOverlays");
    QCOMPARE(model().rowCount(), 0);
    const int asked = log().count("getName");
    QVERIFY2(asked <= 4 * nodes, qPrintable(QString::number(asked)));
}

void tst_kxOverlayEditor_tree::shouldRefreshThePanelInProportionToAMove()
{
    constexpr int nodes = 200;
    openAndSelect(nodes);
    call("createGroupFromSelection");
    QCOMPARE(model().rowCount(), 1);
    QCOMPARE(model().rowCount(model().index(0, 0)), nodes);
    const int asked = log().count("getName");
    QVERIFY2(asked <= 4 * nodes, qPrintable(QString::number(asked)));
}

void tst_kxOverlayEditor_tree::shouldShowTenThousandOpenLevels()
{
    constexpr QRPC::NodeId depth = 10000;
    openEditor("a2");
    log().setKeepsLines(false);
    showWindow();
    const QRPC::NodeId top = service().insertChain(1, depth);
    Q_EMIT service().nodesAdded({top});
    tree().expandAll();
    Q_EMIT service().nodesCreated({top + depth - 1});
    QCOMPARE(selected(), QRPC::NodeList{top + depth - 1});
    QVERIFY(tree().viewport()->rect().intersects(tree().visualRect(index(top + depth - 1))));
    KX_COMPARE_TREE(model(), service());
}

void tst_kxOverlayEditor_tree::shouldEditASelectedRowOnClick()
{
    openEditor("a2 b3");
    showWindow();
    click(3);
    QCOMPARE(selected(), QRPC::NodeList{3});
    QVERIFY(!nameEditor());
    click(3);
    QTRY_VERIFY(nameEditor());
}

void tst_kxOverlayEditor_tree::shouldNotEditOnDoubleClickOrKeys()
{
    // The view edits only when no double click follows in time: that time is short here.
    const int interval = QApplication::doubleClickInterval();
    const auto restore =
        qScopeGuard([interval] { QApplication::setDoubleClickInterval(interval); });
    QApplication::setDoubleClickInterval(50);
    openEditor("a2 b3");
    showWindow();
    click(3);
    const QPoint place = tree().visualRect(index(3)).center();
    QTest::mouseDClick(tree().viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QTest::keyClick(&tree(), Qt::Key_F2);
    QTest::keyClick(&tree(), Qt::Key_X);
    QVERIFY(!QTest::qWaitFor([this] { return nameEditor() != nullptr; },
                             4 * QApplication::doubleClickInterval()));
}

void tst_kxOverlayEditor_tree::shouldRenameThroughTheInlineEditor()
{
    openEditor("g2(a3)");
    showWindow();
    select({3});
    call("renameOverlay");
    QWidget *line = nameEditor();
    QVERIFY(line);
    log().clear();
    QTest::keyClicks(line, "new3");
    QTest::keyClick(line, Qt::Key_Return); // the view takes the text once the key was handled
    QTRY_COMPARE(shown(), QString("g2(new3)"));
    QCOMPARE(log().linesOf({"setName"}), QStringList("setName [3] \"new3\""));
    KX_COMPARE_TREE(model(), service());
}

void tst_kxOverlayEditor_tree::shouldSendACheckBoxClickOnce()
{
    openEditor("a2 s3*(b4 c5-)");
    showWindow();
    QStyleOptionViewItem option;
    option.initFrom(&tree());
    option.rect = tree().visualRect(index(5));
    option.features = QStyleOptionViewItem::HasCheckIndicator;
    const QRect box =
        tree().style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, &tree());
    const QStringList commands = commandsOf([&] {
        QTest::mouseClick(tree().viewport(), Qt::LeftButton, Qt::NoModifier, box.center());
    });
    QCOMPARE(commands, QStringList("setEnabled [5] true"));
    QCOMPARE(shown(), QString("a2 s3(b4- c5)"));
}

KX_TEST_MAIN(tst_kxOverlayEditor_tree)
#include "tst_kxOverlayEditor_tree.moc"
