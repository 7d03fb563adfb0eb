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
    QTest::addColumn<int>("number");
    const QVector<DropCase> &cases = DropCase::all();
    for (int i = 0; i < cases.size(); ++i)
        QTest::newRow(cases.at(i).name) << i;
}

void tst_kxOverlayEditor_drag::shouldMoveWhatIsDragged()
{
    QFETCH(int, number);
    const DropCase &wanted = DropCase::all().at(number);
    open(wanted.before);
    selectByMouse(wanted.picked);
    QVERIFY(drag(wanted.picked.last(), wanted.target, wanted.edge));
    QCOMPARE(commands(), QStringList{QString("moveNodes ") + wanted.call});
    KX_COMPARE_ROWS();
    QCOMPARE(shown(), QString(wanted.after));
    QRPC::NodeList moved = wanted.picked;
    std::sort(moved.begin(), moved.end());
    QCOMPARE(selected(), moved);
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
