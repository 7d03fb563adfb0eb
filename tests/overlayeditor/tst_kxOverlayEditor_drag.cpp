// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/overlayeditor/DragTest.h"
#include "tests/support/RealInput.h"

/// Rows dragged with the real mouse, to every kind of place and from every kind of selection.
class tst_kxOverlayEditor_drag : public DragTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldMoveWhatIsDragged_data();
    void shouldMoveWhatIsDragged();
    void shouldRefuseADropIntoWhatIsDragged_data();
    void shouldRefuseADropIntoWhatIsDragged();
    void shouldMoveTheSameRowsAgain();
    void shouldLeaveOtherGroupsOpenOrClosed();
    void shouldKeepAClosedTargetClosed();
    void shouldLeaveDraggedGroupsOpenOrClosed();
    void shouldLookUpOpenRowsOnceEach();
    void shouldContinueByKeyFromTheDroppedRow();
    void shouldMoveWithTheCopyKeyHeld();
    void shouldChangeNothingWhenADragIsCancelled();
};

void tst_kxOverlayEditor_drag::shouldMoveWhatIsDragged_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QRPC::NodeList>("clicked");
    QTest::addColumn<QRPC::NodeId>("target");
    QTest::addColumn<int>("edge");
    QTest::addColumn<QString>("call");
    QTest::addColumn<QString>("after");
    const auto row = [](const char *name, const char *before, const QRPC::NodeList &clicked,
                        QRPC::NodeId target, Edge edge, const char *call, const char *after) {
        QTest::newRow(name) << QString(before) << clicked << target << int(edge) << QString(call)
                            << QString(after);
    };
    const char *const several = "g2(a3 b4) h5(c6 d7) k8(e9) m10()";

    row("onto a group", "a2 g3(b4) c5", {2}, 3, On, "[2] 3 -1", "g3(b4 a2) c5");
    row("onto an empty group", "a2 g3() c5", {2}, 3, On, "[2] 3 -1", "g3(a2) c5");
    row("two onto an empty group", "a2 g3() c5", {5, 2}, 3, On, "[5,2] 3 -1", "g3(a2 c5)");
    row("onto empty space", "g2(a3 b4) c5", {3}, 0, On, "[3] 1 -1", "g2(b4) c5 a3");
    row("two onto empty space", "g2(a3 b4) c5", {4, 3}, 0, On, "[4,3] 1 -1", "g2() c5 a3 b4");
    row("up", "a2 b3 c4 d5", {5}, 3, Above, "[5] 1 1", "a2 d5 b3 c4");
    row("up to the top", "a2 b3 c4 d5", {4}, 2, Above, "[4] 1 0", "c4 a2 b3 d5");
    row("down", "a2 b3 c4 d5", {2}, 4, Below, "[2] 1 3", "b3 c4 a2 d5");
    row("down to the end", "a2 b3 c4 d5", {3}, 5, Below, "[3] 1 4", "a2 c4 d5 b3");
    row("to where it stands, from above", "a2 b3 c4", {3}, 2, Below, "[3] 1 1", "a2 b3 c4");
    row("to where it stands, from below", "a2 b3 c4", {3}, 4, Above, "[3] 1 2", "a2 b3 c4");
    row("between the children of a group", "g2(a3 b4) c5", {5}, 4, Above, "[5] 2 1",
        "g2(a3 c5 b4)");
    row("behind the last child of a group", "g2(a3 b4) c5", {5}, 4, Below, "[5] 2 2",
        "g2(a3 b4 c5)");
    row("below an open group", "g2(a3 b4) c5 d6", {6}, 2, Below, "[6] 1 1", "g2(a3 b4) d6 c5");
    row("onto an overlay", "a2 g3(b4 c5)", {2}, 4, On, "[2] 3 1", "g3(b4 a2 c5)");
    row("the only row", "a2", {2}, 0, On, "[2] 1 -1", "a2");
    row("all rows", "a2 g3(b4) c5", {5, 2, 3}, 0, On, "[5,2,3] 1 -1", "a2 g3(b4) c5");
    row("out of its group", "a2 g3(b4 c5)", {5}, 2, Below, "[5] 1 1", "a2 c5 g3(b4)");
    row("clicked in another order", "a2 b3 c4 d5 g6()", {5, 2, 4}, 6, On, "[5,2,4] 6 -1",
        "b3 g6(a2 c4 d5)");
    row("clicked in another order, between", "a2 b3 c4 d5 e6 f7", {6, 2, 4}, 5, Above,
        "[6,2,4] 1 3", "b3 a2 c4 e6 d5 f7");
    row("of several parents", several, {7, 3}, 10, On, "[7,3] 10 -1",
        "g2(b4) h5(c6) k8(e9) m10(a3 d7)");
    row("of several parents, with equal row numbers", several, {9, 6, 3, 7, 4}, 10, On,
        "[9,6,3,7,4] 10 -1", "g2() h5() k8() m10(e9 d7 c6 a3 b4)");
    row("of several parents, between rows", several, {4, 9, 3}, 7, Above, "[4,9,3] 5 1",
        "g2() h5(c6 e9 b4 a3 d7) k8() m10()");
    row("a group and its child", "g2(a3 b4) h5()", {2, 3}, 5, On, "[2,3] 5 -1", "h5(g2(a3 b4))");
    row("a child and its group", "g2(a3 b4) h5()", {3, 2}, 5, On, "[3,2] 5 -1", "h5(g2(a3 b4))");
    row("into a disabled group", "g2(h3(a4)) k5-()", {3}, 5, On, "[3] 5 -1", "g2() k5-(h3~(a4~))");
    row("out of a disabled group", "g2-(h3(a4)) k5()", {3}, 5, On, "[3] 5 -1", "g2-() k5(h3(a4))");
    row("into a switch that shows a child", "s2*(a3) g4(b5)", {4}, 2, On, "[4] 2 -1",
        "s2(a3 g4-(b5~))");
    row("two into an empty switch", "s2*() a3 b4", {4, 3}, 2, On, "[4,3] 2 -1", "s2(a3 b4-)");
    row("within a switch", "s2*(a3- b4 c5-)", {4}, 3, Above, "[4] 2 0", "s2(b4 a3- c5-)");
    row("out of a switch that shows it", "s2*(a3 b4-) g5()", {3}, 5, On, "[3] 5 -1",
        "s2(b4-) g5(a3)");
    row("out of a switch that hides it", "s2*(a3 g4-(b5)) g6()", {4}, 6, On, "[4] 6 -1",
        "s2(a3) g6(g4-(b5~))");
    row("into a switch that shows none", "s2*(a3-) g4(b5)", {4}, 2, On, "[4] 2 -1",
        "s2(a3- g4(b5))");
}

void tst_kxOverlayEditor_drag::shouldMoveWhatIsDragged()
{
    QFETCH(QString, before);
    QFETCH(QRPC::NodeList, clicked);
    QFETCH(QRPC::NodeId, target);
    QFETCH(int, edge);
    QFETCH(QString, call);
    QFETCH(QString, after);
    open(before);
    selectByMouse(clicked);
    QVERIFY(drag(clicked.last(), target, Edge(edge)));
    QCOMPARE(commands(), QStringList{"moveNodes " + call});
    KX_COMPARE_ROWS();
    QCOMPARE(shown(), after);
    std::sort(clicked.begin(), clicked.end());
    QCOMPARE(selected(), clicked);
}

void tst_kxOverlayEditor_drag::shouldRefuseADropIntoWhatIsDragged_data()
{
    QTest::addColumn<QRPC::NodeId>("target");
    QTest::addColumn<int>("edge");
    QTest::newRow("itself") << QRPC::NodeId(2) << int(On);
    QTest::newRow("its child") << QRPC::NodeId(3) << int(On);
    QTest::newRow("beside its child") << QRPC::NodeId(3) << int(Below);
    QTest::newRow("a selected sibling") << QRPC::NodeId(6) << int(On);
}

void tst_kxOverlayEditor_drag::shouldRefuseADropIntoWhatIsDragged()
{
    QFETCH(QRPC::NodeId, target);
    QFETCH(int, edge);
    open("g2(h3(a4)) b5 k6()");
    selectByMouse({6, 2});
    QVERIFY(drag(2, target, Edge(edge)));
    QCOMPARE(commands(), QStringList());
    KX_COMPARE_ROWS();
    QCOMPARE(selected(), (QRPC::NodeList{2, 6}));
}

void tst_kxOverlayEditor_drag::shouldMoveTheSameRowsAgain()
{
    open("a2 b3 g4() h5()");
    selectByMouse({3, 2});
    QVERIFY(drag(2, 4, On));
    tree().expandAll();
    QVERIFY(drag(3, 5, On));
    tree().expandAll();
    QVERIFY(drag(2, 4, Above));
    // What is selected after a drop is dragged in the order of the drag before.
    QCOMPARE(commands(),
             (QStringList{"moveNodes [3,2] 4 -1", "moveNodes [3,2] 5 -1", "moveNodes [3,2] 1 0"}));
    KX_COMPARE_ROWS();
    QCOMPARE(shown(), QString("a2 b3 g4() h5()"));
}

void tst_kxOverlayEditor_drag::shouldLeaveOtherGroupsOpenOrClosed()
{
    open("g2(a3) h4(b5 k6(c7)) m8(d9) n10()");
    tree().collapse(index(8));
    selectByMouse({3});
    QVERIFY(drag(3, 4, On));
    KX_COMPARE_ROWS();
    QVERIFY(tree().isExpanded(index(4)));
    QVERIFY(tree().isExpanded(index(6)));
    QVERIFY(!tree().isExpanded(index(8)));
}

void tst_kxOverlayEditor_drag::shouldKeepAClosedTargetClosed()
{
    open("a2 g3(b4) c5");
    tree().collapse(index(3));
    selectByMouse({2});
    QVERIFY(drag(2, 3, On));
    KX_COMPARE_ROWS();
    QVERIFY(!tree().isExpanded(index(3)));
    QCOMPARE(selected(), QRPC::NodeList{2});
    QCOMPARE(tree().currentIndex(), index(3));
}

void tst_kxOverlayEditor_drag::shouldLeaveDraggedGroupsOpenOrClosed()
{
    open("g2(h3(a4) k5(b6)) m7()");
    tree().collapse(index(5));
    selectByMouse({2});
    QVERIFY(drag(2, 7, On));
    KX_COMPARE_ROWS();
    QVERIFY(tree().isExpanded(index(2)));
    QVERIFY(tree().isExpanded(index(3)));
    QVERIFY(!tree().isExpanded(index(5)));
}

/// Selected groups inside selected groups: each is open once.
void tst_kxOverlayEditor_drag::shouldLookUpOpenRowsOnceEach()
{
    constexpr int depth = 60;
    open("g2()");
    const QRPC::NodeId top = service().insertChain(1, depth);
    Q_EMIT service().nodesAdded({top});
    tree().expandAll();
    QRPC::NodeList chain = service().allIds();
    chain.removeOne(2);
    select(chain);
    QVERIFY(drag(top, 2, On));
    KX_COMPARE_ROWS();
    QVERIFY(tree().isExpanded(index(top + depth - 2)));
    const int lookUps = log().count("getRootNode");
    QVERIFY2(lookUps < 10 * depth, qPrintable(QString::number(lookUps)));
}

void tst_kxOverlayEditor_drag::shouldContinueByKeyFromTheDroppedRow()
{
    open("a2 b3 c4 d5 e6");
    selectByMouse({6});
    QVERIFY(drag(6, 3, Above));
    QCOMPARE(tree().currentIndex(), index(6));
    realInput::key("Down");
    QTRY_COMPARE(selected(), QRPC::NodeList{3});
}

void tst_kxOverlayEditor_drag::shouldMoveWithTheCopyKeyHeld()
{
    open("a2 g3()");
    selectByMouse({2});
    QVERIFY(drag(2, 3, On, [] { realInput::keyDown("ctrl"); }));
    realInput::keyUp("ctrl");
    QCOMPARE(commands(), QStringList{"moveNodes [2] 3 -1"});
    KX_COMPARE_ROWS();
}

void tst_kxOverlayEditor_drag::shouldChangeNothingWhenADragIsCancelled()
{
    open("a2 g3() b4");
    selectByMouse({4, 2});
    QVERIFY(drag(2, 3, On, [this] {
        service().createOverlay(1);
        select({4, 2});
        realInput::key("Escape");
    }));
    QCOMPARE(commands(), QStringList());
    KX_COMPARE_ROWS();
    QCOMPARE(selected(), (QRPC::NodeList{2, 4}));
}

KX_TEST_MAIN(tst_kxOverlayEditor_drag)
#include "tst_kxOverlayEditor_drag.moc"
