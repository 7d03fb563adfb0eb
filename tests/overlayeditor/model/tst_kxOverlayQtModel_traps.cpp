// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "overlayeditor/model/kxOverlayItem.h"
#include "tests/overlayeditor/model/ModelTest.h"

#include <QItemSelectionModel>
#include <QSignalSpy>

#include <thread>

/// Sequences of signals in which the toolkit would crash, lose rows or show rows that are none.
class tst_kxOverlayQtModel_traps : public ModelTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldShowOneRowForANodeAnnouncedTwice_data();
    void shouldShowOneRowForANodeAnnouncedTwice();
    void shouldShowSiblingsAnnouncedOutOfOrder_data();
    void shouldShowSiblingsAnnouncedOutOfOrder();
    void shouldShowSiblingsAnnouncedAfterBothExist();
    void shouldBuildANodeAnewThatComesBack_data();
    void shouldBuildANodeAnewThatComesBack();
    void shouldBuildALeftOutNodeAnewWhenItIsAdded();
    void shouldShowAGroupWhoseChildrenAlreadyLieInIt();
    void shouldSurviveARowThatDisappearsInsideItsEdit_data();
    void shouldSurviveARowThatDisappearsInsideItsEdit();
    void shouldLeaveOutANodeMovedIntoItself();
    void shouldShowAParentOnceThatLiesInAnEarlierNode();
    void shouldFollowChildrenOutOfADissolvedGroup_data();
    void shouldFollowChildrenOutOfADissolvedGroup();
    void shouldKeepPersistentIndexesUntilARemovalIsAnnounced_data();
    void shouldKeepPersistentIndexesUntilARemovalIsAnnounced();
    void shouldTellSelectionsOfRemovedRows();
    void shouldIgnoreAnEnabledStateOfTheRoot();
    void shouldReceiveSignalsOfOtherThreads();
    void shouldFreeDetachedItemsWithTheNextReset();
    void shouldFreeDetachedItemsWithTheModel();
    void shouldFreeWhatAMoveMadeAndCouldNotPlace_data();
    void shouldFreeWhatAMoveMadeAndCouldNotPlace();
    void shouldNotFreeADetachedItemThatCameBack();
    void shouldNotFreeWhatACallerTookAfterItCameBack_data();
    void shouldNotFreeWhatACallerTookAfterItCameBack();
    void shouldTakeLeaveOfNoRowWithoutANode();
};

void tst_kxOverlayQtModel_traps::shouldShowOneRowForANodeAnnouncedTwice_data()
{
    QTest::addColumn<QList<QRPC::NodeList>>("lists");
    using Lists = QList<QRPC::NodeList>;
    QTest::newRow("added, then created") << Lists{{4}, {4}};
    QTest::newRow("twice in one list") << Lists{{4, 4}};
    QTest::newRow("group, then child") << Lists{{4, 5, 6}};
    QTest::newRow("child, then group") << Lists{{6, 5, 4}};
    QTest::newRow("child alone, then group alone") << Lists{{6}, {4}};
    QTest::newRow("known nodes") << Lists{{2, 3, 4}};
}

void tst_kxOverlayQtModel_traps::shouldShowOneRowForANodeAnnouncedTwice()
{
    QFETCH(QList<QRPC::NodeList>, lists);
    for (const QRPC::NodeId parent : {1u, 2u}) {
        fill("g2(a3)");
        service().insert(parent, 0, "h4(k5(b6) c7)");
        for (const QRPC::NodeList &list : qAsConst(lists))
            Q_EMIT service().nodesAdded(list);
        KX_COMPARE_TREE(model(), service());
    }
}

void tst_kxOverlayQtModel_traps::shouldShowSiblingsAnnouncedOutOfOrder_data()
{
    QTest::addColumn<QRPC::NodeId>("parent");
    QTest::addColumn<int>("row");
    QTest::addColumn<QRPC::NodeList>("nodes");
    QTest::newRow("top, descending, in front") << 1u << 0 << QRPC::NodeList{6, 5, 4};
    QTest::newRow("top, descending, behind") << 1u << 1 << QRPC::NodeList{6, 5, 4};
    QTest::newRow("top, mixed, behind") << 1u << 1 << QRPC::NodeList{5, 6, 4};
    QTest::newRow("deep, descending, in front") << 2u << 0 << QRPC::NodeList{6, 5, 4};
    QTest::newRow("deep, descending, behind") << 2u << 1 << QRPC::NodeList{6, 5, 4};
    QTest::newRow("deep, mixed, behind") << 2u << 1 << QRPC::NodeList{6, 4, 5};
}

void tst_kxOverlayQtModel_traps::shouldShowSiblingsAnnouncedOutOfOrder()
{
    QFETCH(QRPC::NodeId, parent);
    QFETCH(int, row);
    QFETCH(QRPC::NodeList, nodes);
    fill("g2(a3)");
    service().insert(parent, row, "x4 y5 z6");
    Q_EMIT service().nodesAdded(nodes);
    KX_COMPARE_TREE(model(), service());
}

void tst_kxOverlayQtModel_traps::shouldShowSiblingsAnnouncedAfterBothExist()
{
    fill("g2()");
    service().insert(2, 0, "x3 y4");
    Q_EMIT service().nodesAdded({4});
    QCOMPARE(shown(), QString("g2(y4)"));
    Q_EMIT service().nodesAdded({3});
    KX_COMPARE_TREE(model(), service());
}

void tst_kxOverlayQtModel_traps::shouldBuildANodeAnewThatComesBack_data()
{
    QTest::addColumn<QRPC::NodeList>("removed");
    QTest::addColumn<QString>("back");
    QTest::addColumn<QRPC::NodeList>("announced");
    const QRPC::NodeList group{2};
    QTest::newRow("other names and states") << group << "x2-(y3- h4())" << group;
    QTest::newRow("another kind") << group << "x2" << group;
    QTest::newRow("without its children") << group << "g2()" << group;
    QTest::newRow("child removed first") << QRPC::NodeList{3, 2} << "g2(x3 h4(z5))" << group;
    QTest::newRow("child removed last") << QRPC::NodeList{2, 3} << "g2(x3)" << group;
    QTest::newRow("all listed") << QRPC::NodeList{2, 3} << "g2(x3)" << QRPC::NodeList{2, 3};
    QTest::newRow("children in another order") << group << "g2(h4(c5) a3)" << group;
    QTest::newRow("children turned inside out") << group << "c5(g2(a3() h4))" << QRPC::NodeList{5};
}

void tst_kxOverlayQtModel_traps::shouldBuildANodeAnewThatComesBack()
{
    QFETCH(QRPC::NodeList, removed);
    QFETCH(QString, back);
    QFETCH(QRPC::NodeList, announced);
    fill("g2(a3 h4(c5)) b6");
    service().erase(removed);
    Q_EMIT service().nodesRemoved(removed);
    QVERIFY(item(2));
    service().insert(1, 0, back);
    Q_EMIT service().nodesAdded(announced);
    KX_COMPARE_TREE(model(), service());
    QCOMPARE(model().itemFromId(announced.first()), model().item(0));
}

void tst_kxOverlayQtModel_traps::shouldBuildALeftOutNodeAnewWhenItIsAdded()
{
    fill("g2(a3) b4");
    Q_EMIT service().nodesMoved({4}, {99}, {0});
    service().node(4).name = "x4";
    Q_EMIT service().nodesAdded({4});
    KX_COMPARE_TREE(model(), service());
}

void tst_kxOverlayQtModel_traps::shouldShowAGroupWhoseChildrenAlreadyLieInIt()
{
    fill("a2 b3 c4");
    service().insert(1, 0, "g5()");
    service().place(3, 5, -1);
    service().place(2, 5, -1);
    Q_EMIT service().nodesAdded({5});
    Q_EMIT service().nodesMoved({3, 2}, {5, 5}, {0, 3});
    KX_COMPARE_TREE(model(), service());
}

void tst_kxOverlayQtModel_traps::shouldSurviveARowThatDisappearsInsideItsEdit_data()
{
    QTest::addColumn<int>("role");
    QTest::addColumn<bool>("reset");
    QTest::newRow("reset inside a rename") << int(Qt::EditRole) << true;
    QTest::newRow("reset inside a check") << int(Qt::CheckStateRole) << true;
    QTest::newRow("removal inside a rename") << int(Qt::EditRole) << false;
    QTest::newRow("removal inside a check") << int(Qt::CheckStateRole) << false;
}

void tst_kxOverlayQtModel_traps::shouldSurviveARowThatDisappearsInsideItsEdit()
{
    QFETCH(int, role);
    QFETCH(bool, reset);
    fill("g2(a3 b4)");
    eraseInsideTheNextCall(3, reset);
    QVERIFY(!model().setData(index(3), role == Qt::EditRole ? QVariant("x3") : QVariant(0), role));
    KX_COMPARE_TREE(model(), service());
    QVERIFY(model().setData(index(4), "x4", Qt::EditRole));
    KX_COMPARE_TREE(model(), service());
}

void tst_kxOverlayQtModel_traps::shouldLeaveOutANodeMovedIntoItself()
{
    fill("g2(h3(a4)) b5");
    Q_EMIT service().nodesMoved({2}, {2}, {0});
    QVERIFY(!shown().contains('?'));
    fill("g2(h3(a4)) b5");
    QVERIFY(item(2) && item(3));
    service().place(3, 1, 0);
    service().place(2, 3, 0);
    Q_EMIT service().nodesMoved({2, 3}, {3, 1}, {0, 0});
    QCOMPARE(shown(), QString("h3(a4) b5"));
    Q_EMIT service().nodesMoved({3, 2}, {1, 3}, {0, 0});
    KX_COMPARE_TREE(model(), service());
}

/// The parent's row is taken out with the node, before the parent was ever asked for.
void tst_kxOverlayQtModel_traps::shouldShowAParentOnceThatLiesInAnEarlierNode()
{
    fill("g2(h3(a4)) b5");
    service().place(3, 1, 0);
    service().place(2, 3, 0);
    Q_EMIT service().nodesMoved({2, 3}, {3, 1}, {0, 0});
    QCOMPARE(shown(), QString("h3(a4) b5"));
}

void tst_kxOverlayQtModel_traps::shouldFollowChildrenOutOfADissolvedGroup_data()
{
    QTest::addColumn<bool>("known");
    QTest::newRow("looked up before") << true;
    QTest::newRow("never looked up") << false;
}

void tst_kxOverlayQtModel_traps::shouldFollowChildrenOutOfADissolvedGroup()
{
    QFETCH(bool, known);
    fill("g2(a3 b4) c5");
    if (known)
        QVERIFY(item(3) && item(4));
    service().place(3, 1, 0);
    service().place(4, 1, 1);
    service().erase({2});
    Q_EMIT service().nodesRemoved({2});
    Q_EMIT service().nodesMoved({3, 4}, {1, 1}, {0, 3});
    KX_COMPARE_TREE(model(), service());
}

void tst_kxOverlayQtModel_traps::shouldKeepPersistentIndexesUntilARemovalIsAnnounced_data()
{
    QTest::addColumn<QRPC::NodeId>("node");
    QTest::addColumn<bool>("moved");
    QTest::newRow("removed at the top") << 2u << false;
    QTest::newRow("removed at depth") << 3u << false;
    QTest::newRow("moved from the top") << 4u << true;
    QTest::newRow("moved from depth") << 3u << true;
}

void tst_kxOverlayQtModel_traps::shouldKeepPersistentIndexesUntilARemovalIsAnnounced()
{
    QFETCH(QRPC::NodeId, node);
    QFETCH(bool, moved);
    fill("g2(a3) b4 h5()");
    const QPersistentModelIndex kept(index(node));
    QVERIFY(kept.isValid());
    bool wasValid = false;
    const QObject listener;
    connect(&model(), &QAbstractItemModel::rowsAboutToBeRemoved, &listener,
            [row = &kept, valid = &wasValid] { *valid = row->isValid(); });
    if (moved) {
        Q_EMIT service().nodesMoved({node}, {5}, {0});
    } else {
        service().erase({node});
        Q_EMIT service().nodesRemoved({node});
    }
    QVERIFY(wasValid);
    QVERIFY(!kept.isValid());
}

void tst_kxOverlayQtModel_traps::shouldTellSelectionsOfRemovedRows()
{
    fill("a2 b3 c4 d5 e6 f7");
    QItemSelectionModel selection(&model());
    selection.select(QItemSelection(index(2), index(5)), QItemSelectionModel::Select);
    selection.select(index(7), QItemSelectionModel::Select);
    selection.setCurrentIndex(index(7), QItemSelectionModel::NoUpdate);
    QSignalSpy changed(&selection, &QItemSelectionModel::selectionChanged);
    service().erase({3, 4, 7});
    Q_EMIT service().nodesRemoved({3, 4, 7});
    QVERIFY(changed.count() > 0);
    QCOMPARE(selection.selectedIndexes(), (QModelIndexList{index(2), index(5)}));
    KX_COMPARE_TREE(model(), service());
}

void tst_kxOverlayQtModel_traps::shouldIgnoreAnEnabledStateOfTheRoot()
{
    fill("g2(a3)");
    Q_EMIT service().enabledStateChanged({1});
    KX_COMPARE_TREE(model(), service());
    QCOMPARE(model().getNodeId(model().invisibleRootItem()), 1u);
}

void tst_kxOverlayQtModel_traps::shouldReceiveSignalsOfOtherThreads()
{
    QVERIFY(QMetaType::type("QRPC::NodeId") != QMetaType::UnknownType);
    QVERIFY(QMetaType::type("QRPC::NodeList") != QMetaType::UnknownType);
    fill("g2() a3");
    service().node(3).name = "x3";
    service().place(3, 2, 0);
    std::thread other([this] {
        Q_EMIT service().nameChanged({3});
        Q_EMIT service().nodesMoved({3}, {2}, {0});
    });
    other.join();
    QCOMPARE(shown(), QString("g2() a3"));
    QTRY_COMPARE(shown(), QString("g2(x3)"));
}

void tst_kxOverlayQtModel_traps::shouldFreeDetachedItemsWithTheNextReset()
{
    fill("g2(a3 b4) c5");
    item(3)->appendRow(new CountingItem);
    item(4)->appendRow(new CountingItem);
    QVERIFY(item(2));
    Q_EMIT service().nodesRemoved({3, 2});
    QCOMPARE(CountingItem::s_alive, 2);
    QCOMPARE(model().itemFromId(3)->rowCount(), 1);
    Q_EMIT service().modelReset();
    QCOMPARE(CountingItem::s_alive, 0);
    KX_COMPARE_TREE(model(), service());
}

void tst_kxOverlayQtModel_traps::shouldFreeDetachedItemsWithTheModel()
{
    fill("g2(a3 b4) c5");
    item(3)->appendRow(new CountingItem);
    item(5)->appendRow(new CountingItem);
    Q_EMIT service().nodesRemoved({2});
    Q_EMIT service().nodesMoved({5}, {99}, {0});
    QCOMPARE(CountingItem::s_alive, 2);
    dropModel();
    QCOMPARE(CountingItem::s_alive, 0);
}

void tst_kxOverlayQtModel_traps::shouldFreeWhatAMoveMadeAndCouldNotPlace_data()
{
    QTest::addColumn<QRPC::NodeId>("parent");
    QTest::addColumn<QRPC::NodeId>("after");
    QTest::newRow("an unknown parent") << 99U << 0U;
    QTest::newRow("behind a row of another parent") << 1U << 5U;
}

void tst_kxOverlayQtModel_traps::shouldFreeWhatAMoveMadeAndCouldNotPlace()
{
    QFETCH(QRPC::NodeId, parent);
    QFETCH(QRPC::NodeId, after);
    fill("g2(b5) a3");
    item(3)->appendRow(new CountingItem);
    service().build("g2(b5) h4(a3)");
    Q_EMIT service().nodesMoved({4}, {parent}, {after});
    QCOMPARE(shown(), QString("g2(b5)"));
    QCOMPARE(CountingItem::s_alive, 1);
    Q_EMIT service().modelReset();
    QCOMPARE(CountingItem::s_alive, 0);
}

void tst_kxOverlayQtModel_traps::shouldNotFreeADetachedItemThatCameBack()
{
    fill("g2() a3");
    item(3)->appendRow(new CountingItem);
    Q_EMIT service().nodesRemoved({3});
    Q_EMIT service().nodesMoved({3}, {2}, {0});
    QCOMPARE(shown().left(6), QString("g2(a3("));
    QCOMPARE(CountingItem::s_alive, 1);
    Q_EMIT service().nodesRemoved({3});
    Q_EMIT service().nodesRemoved({2});
    QCOMPARE(CountingItem::s_alive, 1);
    Q_EMIT service().modelReset();
    QCOMPARE(CountingItem::s_alive, 0);
}

void tst_kxOverlayQtModel_traps::shouldNotFreeWhatACallerTookAfterItCameBack_data()
{
    QTest::addColumn<QString>("tree");
    QTest::addColumn<QRPC::NodeList>("nodes");
    QTest::addColumn<QRPC::NodeList>("parents");
    QTest::newRow("by a move") << "g2() a3" << QRPC::NodeList{2, 3} << QRPC::NodeList{1, 2};
    QTest::newRow("in a new group") << "g2(a3)" << QRPC::NodeList{2} << QRPC::NodeList{1};
}

void tst_kxOverlayQtModel_traps::shouldNotFreeWhatACallerTookAfterItCameBack()
{
    QFETCH(QString, tree);
    QFETCH(QRPC::NodeList, nodes);
    QFETCH(QRPC::NodeList, parents);
    fill("a3");
    item(3)->appendRow(new CountingItem);
    Q_EMIT service().nodesRemoved({3});
    service().build(tree);
    Q_EMIT service().nodesMoved(nodes, parents, {0, 0});
    QVERIFY(item(3)->parent());
    const std::unique_ptr<QStandardItem> taken(item(3)->parent()->takeRow(0).constFirst());
    Q_EMIT service().modelReset();
    QCOMPARE(CountingItem::s_alive, 1);
}

void tst_kxOverlayQtModel_traps::shouldTakeLeaveOfNoRowWithoutANode()
{
    fill("a2 b3");
    item(2)->setData(QVariant(), kxOverlayItem::NodeIdRole);
    QSignalSpy leaving(&model(), &kxOverlayQtModel::nodesAboutToGo);
    Q_EMIT service().nodesRemoved({0});
    QCOMPARE(leaving.takeFirst().at(0).value<QModelIndexList>().size(), 0);
    Q_EMIT service().nodesRemoved({3});
    QCOMPARE(leaving.takeFirst().at(0).value<QModelIndexList>().size(), 1);
}

KX_TEST_MAIN(tst_kxOverlayQtModel_traps)
#include "tst_kxOverlayQtModel_traps.moc"
