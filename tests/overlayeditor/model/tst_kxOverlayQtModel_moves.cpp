// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/overlayeditor/model/ModelTest.h"

/// Moved nodes: where the row ends up, that it stays the same item, and what cannot be placed.
class tst_kxOverlayQtModel_moves : public ModelTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldPutARowBehindItsNewNeighbour_data();
    void shouldPutARowBehindItsNewNeighbour();
    void shouldKeepTheItemAndItsChildren();
    void shouldAskNothingButTheRoot();
    void shouldPlaceAListInOrder();
    void shouldPutARowInFrontForAnUnknownNeighbour();
    void shouldLeaveOutARowWhoseNeighbourIsNoChildOfTheParent();
    void shouldLeaveOutARowWhoseParentIsUnknown();
    void shouldGoOnBehindARowThatCannotBePlaced();
    void shouldBuildAMovedNodeThatHadNoRow();
    void shouldBringBackALeftOutRowWithItsNextMove();
    void shouldIgnoreListsThatAreLonger();
    void shouldFollowMovesOfTheService_data();
    void shouldFollowMovesOfTheService();
    void shouldIgnoreMovesWhileItWritesItself();

private:
    void move(const QRPC::NodeList &nodes, const QRPC::NodeList &parents,
              const QRPC::NodeList &afters)
    {
        Q_EMIT service().nodesMoved(nodes, parents, afters);
    }
};

void tst_kxOverlayQtModel_moves::shouldPutARowBehindItsNewNeighbour_data()
{
    QTest::addColumn<QRPC::NodeId>("node");
    QTest::addColumn<QRPC::NodeId>("parent");
    QTest::addColumn<QRPC::NodeId>("after");
    QTest::addColumn<QString>("tree");
    QTest::newRow("to the front") << 6u << 1u << 0u << "d6 g2(a3 b4) c5";
    QTest::newRow("down by one") << 2u << 1u << 5u << "c5 g2(a3 b4) d6";
    QTest::newRow("to the end") << 2u << 1u << 6u << "c5 d6 g2(a3 b4)";
    QTest::newRow("where it was") << 5u << 1u << 2u << "g2(a3 b4) c5 d6";
    QTest::newRow("into a group, front") << 6u << 2u << 0u << "g2(d6 a3 b4) c5";
    QTest::newRow("into a group, between") << 6u << 2u << 3u << "g2(a3 d6 b4) c5";
    QTest::newRow("into a group, end") << 6u << 2u << 4u << "g2(a3 b4 d6) c5";
    QTest::newRow("out of a group") << 3u << 1u << 5u << "g2(b4) c5 a3 d6";
    QTest::newRow("inside a group") << 3u << 2u << 4u << "g2(b4 a3) c5 d6";
}

void tst_kxOverlayQtModel_moves::shouldPutARowBehindItsNewNeighbour()
{
    QFETCH(QRPC::NodeId, node);
    QFETCH(QRPC::NodeId, parent);
    QFETCH(QRPC::NodeId, after);
    QFETCH(QString, tree);
    fill("g2(a3 b4) c5 d6");
    move({node}, {parent}, {after});
    QCOMPARE(shown(), tree);
}

void tst_kxOverlayQtModel_moves::shouldKeepTheItemAndItsChildren()
{
    fill("g2(a3(b4)) h5()");
    QStandardItem *moved = item(3);
    QStandardItem *child = item(4);
    move({3}, {5}, {0});
    QCOMPARE(item(3), moved);
    QCOMPARE(item(4), child);
    QCOMPARE(moved->parent(), item(5));
    QCOMPARE(moved->model(), &model());
    QCOMPARE(shown(), QString("g2() h5(a3(b4))"));
}

void tst_kxOverlayQtModel_moves::shouldAskNothingButTheRoot()
{
    fill("g2() a3");
    QCOMPARE(callsOf([this] { move({3}, {2}, {0}); }),
             (QStringList{"getRootNode", "getRootNode", "getRootNode"}));
}

void tst_kxOverlayQtModel_moves::shouldPlaceAListInOrder()
{
    fill("g2() a3 b4 c5");
    move({5, 3, 4}, {2, 2, 1}, {0, 5, 2});
    QCOMPARE(shown(), QString("g2(c5 a3) b4"));
    move({3, 5}, {1, 1}, {0, 3});
    QCOMPARE(shown(), QString("a3 c5 g2() b4"));
}

void tst_kxOverlayQtModel_moves::shouldPutARowInFrontForAnUnknownNeighbour()
{
    fill("g2(a3) b4");
    move({4}, {2}, {99});
    QCOMPARE(shown(), QString("g2(b4 a3)"));
}

void tst_kxOverlayQtModel_moves::shouldLeaveOutARowWhoseNeighbourIsNoChildOfTheParent()
{
    // its row number would be one of the parent's
    fill("b4 g2(a3) c5");
    QStandardItem *moved = item(5);
    move({5}, {2}, {4});
    QCOMPARE(shown(), QString("b4 g2(a3)"));
    QCOMPARE(model().itemFromId(5), moved);
    QVERIFY(!model().indexFromId(5).isValid());
}

void tst_kxOverlayQtModel_moves::shouldLeaveOutARowWhoseParentIsUnknown()
{
    fill("g2(a3) b4");
    move({4}, {99}, {0});
    QCOMPARE(shown(), QString("g2(a3)"));
    QVERIFY(model().itemFromId(4));
    QVERIFY(!model().indexFromId(4).isValid());
}

void tst_kxOverlayQtModel_moves::shouldGoOnBehindARowThatCannotBePlaced()
{
    fill("g2(a3) b4 c5");
    move({4, 5}, {99, 2}, {0, 3});
    QCOMPARE(shown(), QString("g2(a3 c5)"));
}

void tst_kxOverlayQtModel_moves::shouldBuildAMovedNodeThatHadNoRow()
{
    fill("g2(a3)");
    service().insert(2, 1, "h4(b5)");
    move({4}, {2}, {3});
    KX_COMPARE_TREE(model(), service());
}

void tst_kxOverlayQtModel_moves::shouldBringBackALeftOutRowWithItsNextMove()
{
    fill("g2(a3) b4");
    QStandardItem *moved = item(4);
    move({4}, {99}, {0});
    move({4}, {2}, {3});
    QCOMPARE(shown(), QString("g2(a3 b4)"));
    QCOMPARE(item(4), moved);
}

void tst_kxOverlayQtModel_moves::shouldIgnoreListsThatAreLonger()
{
    fill("g2() a3");
    move({3}, {2, 1, 1}, {0, 2, 5});
    QCOMPARE(shown(), QString("g2(a3)"));
}

void tst_kxOverlayQtModel_moves::shouldFollowMovesOfTheService_data()
{
    QTest::addColumn<QRPC::NodeList>("nodes");
    QTest::addColumn<QRPC::NodeId>("parent");
    QTest::addColumn<int>("row");
    QTest::newRow("several to the front") << QRPC::NodeList{8, 5, 7} << 1u << 0;
    QTest::newRow("several to the end") << QRPC::NodeList{2, 5} << 1u << -1;
    QTest::newRow("into a disabled group") << QRPC::NodeList{2, 5} << 6u << 0;
    QTest::newRow("out of a disabled group") << QRPC::NodeList{7, 11} << 1u << 1;
    QTest::newRow("into a switch") << QRPC::NodeList{3, 5} << 8u << 1;
    QTest::newRow("out of a switch") << QRPC::NodeList{9} << 2u << 1;
    QTest::newRow("from several parents") << QRPC::NodeList{3, 7, 9, 4} << 1u << 2;
    QTest::newRow("a group with its child") << QRPC::NodeList{3, 2} << 6u << -1;
}

void tst_kxOverlayQtModel_moves::shouldFollowMovesOfTheService()
{
    QFETCH(QRPC::NodeList, nodes);
    QFETCH(QRPC::NodeId, parent);
    QFETCH(int, row);
    fill("g2(a3 b4) c5 h6-(d7 k11(e12-)) s8*(x9 y10-)");
    service().moveNodes(nodes, parent, row);
    KX_COMPARE_TREE(model(), service());
}

void tst_kxOverlayQtModel_moves::shouldIgnoreMovesWhileItWritesItself()
{
    fill("g2() a3");
    service().setHook([this](const QString &) { move({3}, {2}, {0}); });
    model().setData(index(2), "new", Qt::EditRole);
    service().setHook({});
    QCOMPARE(model().rowCount(), 2);
    move({3}, {2}, {0});
    QCOMPARE(model().rowCount(), 1);
}

KX_TEST_MAIN(tst_kxOverlayQtModel_moves)
#include "tst_kxOverlayQtModel_moves.moc"
