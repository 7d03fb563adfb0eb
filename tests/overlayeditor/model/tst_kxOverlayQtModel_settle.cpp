// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "overlayeditor/model/kxDropTrace.h"
#include "tests/overlayeditor/model/ModelTest.h"

#include <QMimeData>

/// What is mended once a drag is over. The view's share, the removal of all selected rows, is done
/// by the tests; the copies are those of the toolkit.
class tst_kxOverlayQtModel_settle : public ModelTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void shouldShowTheServiceAfterADrop_data();
    void shouldShowTheServiceAfterADrop();
    void shouldShowWhatChangedDuringTheDrag_data();
    void shouldShowWhatChangedDuringTheDrag();
    void shouldBringBackARowThatWasNotDragged();
    void shouldDropASecondRowOfANodeThatStayed();
    void shouldEndWhenARowShowsTheRoot();
    void shouldEndWhenTheTargetMovesIntoWhatIsDropped();
    void shouldRemoveCopiesThatCameFromElsewhere();
    void shouldMendNothingWhereNothingDiffers();
    void shouldLeaveRowsThatWereNotTouchedAlone();
    void shouldMoveOnlyTheDroppedRows_data();
    void shouldMoveOnlyTheDroppedRows();
    void shouldMoveEachDroppedRowOnce();
    void shouldRemoveARowThatTheDropHasDoubled();
    void shouldMendACopyWhoseRowHasShifted();
    void shouldSkipACopyThatTheOneBeforeTakesIn();
    void shouldSkipAParentThatTheOneBeforeLoses();
    void shouldNotFreeWhatACallerTakesAfterwards();
    void shouldKeepATreeThatWasNeverReset();
    void shouldNameEachTouchedParentOnce();
    void shouldTellWhichNodesWereDropped();
    void shouldForgetRowsThatAreGone();

private:
    /// Drags nodes onto `target` and removes `removed` afterwards, as the view does.
    void dragAndDrop(const QRPC::NodeList &nodes, QRPC::NodeId target, int row,
                     const QRPC::NodeList &removed);
    void dragAndDrop(const QRPC::NodeList &nodes, QRPC::NodeId target, int row)
    {
        dragAndDrop(nodes, target, row, nodes);
    }

    std::function<void()> m_duringDrag;
};

void tst_kxOverlayQtModel_settle::init()
{
    ModelTest::init();
    m_duringDrag = nullptr;
}

void tst_kxOverlayQtModel_settle::dragAndDrop(const QRPC::NodeList &nodes, QRPC::NodeId target,
                                              int row, const QRPC::NodeList &removed)
{
    QModelIndexList indexes;
    for (const QRPC::NodeId id : nodes)
        indexes.append(index(id));
    QVector<QPersistentModelIndex> selected;
    for (const QRPC::NodeId id : removed)
        selected.append(index(id));
    const std::unique_ptr<QMimeData> data(model().mimeData(indexes));

    const kxDropTrace trace(&model());
    if (m_duringDrag)
        m_duringDrag();
    QVERIFY(model().dropMimeData(data.get(), Qt::MoveAction, row, 0, index(target)));
    for (const QPersistentModelIndex &gone : selected)
        model().removeRow(gone.row(), gone.parent());
    model().settle(trace);
}

void tst_kxOverlayQtModel_settle::shouldShowTheServiceAfterADrop_data()
{
    QTest::addColumn<QString>("tree");
    QTest::addColumn<QRPC::NodeList>("nodes");
    QTest::addColumn<QRPC::NodeId>("target");
    QTest::addColumn<int>("row");
    const auto row = [](const char *name, const char *tree, const QRPC::NodeList &nodes,
                        QRPC::NodeId target,
                        int at) { QTest::newRow(name) << QString(tree) << nodes << target << at; };
    row("onto a group", "a2 g3(b4) c5", {2}, 3, -1);
    row("onto an empty group", "a2 g3() c5", {2, 5}, 3, -1);
    row("onto empty space", "g2(a3 b4) c5", {3}, 1, -1);
    row("down within a parent", "a2 b3 c4 d5", {2}, 1, 3);
    row("up within a parent", "a2 b3 c4 d5", {5}, 1, 1);
    row("in another order than they stand", "a2 b3 c4 d5 g6()", {5, 2, 4}, 6, -1);
    row("rows of several parents with equal numbers", "g2(a3 b4) h5(c6 d7) k8(e9) m10()",
        {9, 6, 3, 7, 4}, 10, -1);
    row("a group and its child", "g2(a3 b4) h5()", {2, 3}, 5, -1);
    row("into a disabled group", "g2(h3(a4)) k5-()", {3}, 5, -1);
    row("out of a disabled group", "g2-(h3(a4)) k5()", {3}, 5, -1);
    row("into a switch that shows a child", "s2*(a3) b4", {4}, 2, -1);
    row("onto itself", "g2(a3) b4", {2}, 2, -1);
    row("onto its own descendant", "g2(h3()) b4", {2}, 3, -1);
}

void tst_kxOverlayQtModel_settle::shouldShowTheServiceAfterADrop()
{
    QFETCH(QString, tree);
    QFETCH(QRPC::NodeList, nodes);
    QFETCH(QRPC::NodeId, target);
    QFETCH(int, row);
    fill(tree);
    dragAndDrop(nodes, target, row);
    KX_COMPARE_TREE(model(), service());
}

void tst_kxOverlayQtModel_settle::shouldShowWhatChangedDuringTheDrag_data()
{
    QTest::addColumn<int>("change");
    QTest::newRow("renamed") << 0;
    QTest::newRow("switched off") << 1;
    QTest::newRow("removed") << 2;
    QTest::newRow("children added") << 3;
    QTest::newRow("children removed") << 4;
    QTest::newRow("all read anew") << 5;
    QTest::newRow("another node added") << 6;
}

void tst_kxOverlayQtModel_settle::shouldShowWhatChangedDuringTheDrag()
{
    QFETCH(int, change);
    fill("g2(a3 b4) h5() c6");
    m_duringDrag = [&] {
        switch (change) {
        case 0:
            service().setName({2, 3}, "new");
            break;
        case 1:
            service().setEnabled({2}, false);
            break;
        case 2:
            service().deleteNodes({2});
            break;
        case 3:
            service().createOverlay(2);
            break;
        case 4:
            service().deleteNodes({3});
            break;
        case 5:
            Q_EMIT service().modelReset();
            break;
        case 6:
            service().createOverlay(1);
            break;
        }
    };
    dragAndDrop({2}, 5, -1);
    KX_COMPARE_TREE(model(), service());
}

void tst_kxOverlayQtModel_settle::shouldBringBackARowThatWasNotDragged()
{
    fill("a2 b3 g4() h5(c6)");
    dragAndDrop({2}, 4, -1, {2, 3, 6});
    KX_COMPARE_TREE(model(), service());
}

void tst_kxOverlayQtModel_settle::shouldDropASecondRowOfANodeThatStayed()
{
    fill("a2 b3 g4()");
    dragAndDrop({2, 3}, 4, -1, {3});
    QCOMPARE(shown(), QString("g4(a2 b3)"));
    fill("a2 b3 c4");
    dragAndDrop({2}, 1, 3, {});
    QCOMPARE(shown(), QString("b3 c4 a2"));
    // Nothing else happens to the rows of the group that it came from.
    fill("g2(a3) h4() k5(b6)");
    dragAndDrop({3}, 4, -1, {6});
    QCOMPARE(shown(), QString("g2() h4(a3) k5(b6)"));
}

void tst_kxOverlayQtModel_settle::shouldEndWhenARowShowsTheRoot()
{
    fill("a2 g3(b4)");
    const QPersistentModelIndex other = index(2);
    QStandardItemModel elsewhere;
    elsewhere.appendRow(new QStandardItem("root"));
    elsewhere.item(0)->setData(1, idRole);
    const std::unique_ptr<QMimeData> data(elsewhere.mimeData({elsewhere.index(0, 0)}));
    const kxDropTrace trace(&model());
    QVERIFY(model().dropMimeData(data.get(), Qt::MoveAction, -1, -1, index(3)));
    model().settle(trace);
    KX_COMPARE_TREE(model(), service());
    QVERIFY(other.isValid());
}

void tst_kxOverlayQtModel_settle::shouldEndWhenTheTargetMovesIntoWhatIsDropped()
{
    fill("g2(h3(a4)) k5()");
    service().setHook([this](const QString &) {
        service().place(3, 1, -1);
        service().place(5, 3, -1);
        service().place(2, 5, -1);
    });
    dragAndDrop({5}, 3, -1);
    service().setHook(nullptr);
    // There is no telling what such a service wants next; the tree can be read anew.
    Q_EMIT service().modelReset();
    KX_COMPARE_TREE(model(), service());
}

void tst_kxOverlayQtModel_settle::shouldRemoveCopiesThatCameFromElsewhere()
{
    fill("a2 g3(b4)");
    item(2)->setToolTip("the row itself");
    QStandardItemModel elsewhere;
    elsewhere.appendRow(new QStandardItem("not this name"));
    elsewhere.item(0)->setData(2, idRole);
    elsewhere.item(0)->setToolTip("nor this");
    const std::unique_ptr<QMimeData> data(elsewhere.mimeData({elsewhere.index(0, 0)}));
    data->setData("application/pimo-overlay-items", QByteArray::fromHex("0000000200000001"));
    const kxDropTrace trace(&model());
    QVERIFY(model().dropMimeData(data.get(), Qt::MoveAction, -1, -1, index(3)));
    model().settle(trace, kxOverlayQtModel::Copies::Discard);
    KX_COMPARE_TREE(model(), service());
    QCOMPARE(shown(), QString("g3(b4 a2)"));
    QCOMPARE(item(2)->toolTip(), QString("the row itself"));
}

void tst_kxOverlayQtModel_settle::shouldMendNothingWhereNothingDiffers()
{
    fill("a2 b3 c4 g5(d6)");
    const kxDropTrace trace(&model());
    service().createOverlay(5);
    QSignalSpy changed(&model(), &QAbstractItemModel::dataChanged);
    QSignalSpy inserted(&model(), &QAbstractItemModel::rowsInserted);
    QSignalSpy removed(&model(), &QAbstractItemModel::rowsRemoved);
    model().settle(trace);
    QCOMPARE(changed.size() + inserted.size() + removed.size(), 0);
}

void tst_kxOverlayQtModel_settle::shouldLeaveRowsThatWereNotTouchedAlone()
{
    fill("g2(a3) h4(b5 c6) k7()");
    const QPersistentModelIndex other = index(5);
    const QPersistentModelIndex sibling = index(4);
    QStandardItem *const group = item(4);
    dragAndDrop({3}, 7, -1);
    QVERIFY(other.isValid());
    QVERIFY(sibling.isValid());
    QCOMPARE(item(4), group);
}

void tst_kxOverlayQtModel_settle::shouldMoveOnlyTheDroppedRows_data()
{
    QTest::addColumn<QRPC::NodeList>("dragged");
    QTest::addColumn<int>("row");
    QTest::addColumn<QRPC::NodeList>("order");
    QTest::addColumn<QRPC::NodeList>("kept");
    using Nodes = QRPC::NodeList;
    QTest::newRow("one, to the end") << Nodes{4} << 0 << Nodes{2, 3, 5, 6, 4} << Nodes{2, 3, 5, 6};
    QTest::newRow("one, to the front")
        << Nodes{4} << 5 << Nodes{4, 2, 3, 5, 6} << Nodes{2, 3, 5, 6};
    QTest::newRow("two, to the end") << Nodes{3, 4} << 0 << Nodes{2, 5, 6, 3, 4} << Nodes{2, 5, 6};
    QTest::newRow("two, turned round")
        << Nodes{3, 4} << 0 << Nodes{2, 5, 6, 4, 3} << Nodes{2, 5, 6};
    QTest::newRow("two, to the front")
        << Nodes{5, 6} << 2 << Nodes{6, 5, 2, 3, 4} << Nodes{2, 3, 4};
    QTest::newRow("two, apart") << Nodes{2, 3} << 5 << Nodes{3, 4, 5, 2, 6} << Nodes{4, 5, 6};
    QTest::newRow("all but one") << Nodes{2, 3, 4, 5} << 0 << Nodes{5, 3, 6, 2, 4} << Nodes{6};
    QTest::newRow("another as well") << Nodes{4} << 0 << Nodes{6, 2, 3, 5, 4} << Nodes{2, 3, 5};
}

/// A service that keeps its children in an order of its own.
void tst_kxOverlayQtModel_settle::shouldMoveOnlyTheDroppedRows()
{
    QFETCH(QRPC::NodeList, dragged);
    QFETCH(int, row);
    QFETCH(QRPC::NodeList, order);
    QFETCH(QRPC::NodeList, kept);
    fill("g2(a7) g3(b8) g4(c9) g5(d10) g6(e11)");
    QVector<QPersistentModelIndex> others;
    for (const QRPC::NodeId id : qAsConst(kept))
        others.append(index(id));
    service().setHook([&](const QString &) {
        for (const QRPC::NodeId id : qAsConst(order))
            service().place(id, 1, -1);
    });
    dragAndDrop(dragged, 1, row);
    service().setHook(nullptr);
    KX_COMPARE_TREE(model(), service());
    for (const QPersistentModelIndex &other : qAsConst(others))
        QVERIFY(other.isValid());
}

/// Rows that had the same number in their old parents are dropped in no order.
void tst_kxOverlayQtModel_settle::shouldMoveEachDroppedRowOnce()
{
    constexpr int count = 40;
    QStringList line;
    QRPC::NodeList children;
    for (int i = 0; i < count; ++i) {
        line.append(QStringLiteral("g%1(a%2)").arg(100 + i).arg(200 + i));
        children.append(QRPC::NodeId(200 + i));
    }
    fill(line.join(' ') + " h2()");
    QSignalSpy inserted(&model(), &QAbstractItemModel::rowsInserted);
    dragAndDrop(children, 2, -1);
    KX_COMPARE_TREE(model(), service());
    // The copies themselves are inserted in a few steps.
    QVERIFY2(inserted.count() < 2 * count, qPrintable(QString::number(inserted.count())));
}

/// Once its node has a row further up, a row is in the way; nothing is put anywhere else first.
void tst_kxOverlayQtModel_settle::shouldRemoveARowThatTheDropHasDoubled()
{
    fill("a2 b3 c4");
    QSignalSpy inserted(&model(), &QAbstractItemModel::rowsInserted);
    dragAndDrop({3}, 1, 1, {});
    KX_COMPARE_TREE(model(), service());
    QCOMPARE(inserted.count(), 1);
}

void tst_kxOverlayQtModel_settle::shouldMendACopyWhoseRowHasShifted()
{
    fill("a2");
    const kxDropTrace trace(&model());
    service().insert(1, 1, "g3() b4");
    Q_EMIT service().nodesAdded({3, 4});
    service().place(2, 3, 0); // mending the group takes the row in front of the next copy
    service().node(4).name = "x4";
    model().settle(trace);
    KX_COMPARE_TREE(model(), service());
}

void tst_kxOverlayQtModel_settle::shouldSkipACopyThatTheOneBeforeTakesIn()
{
    fill("a2");
    const kxDropTrace trace(&model());
    service().insert(1, 1, "g3() b4 c5");
    Q_EMIT service().nodesAdded({3, 4, 5});
    service().place(4, 3, 0);
    service().node(5).name = "x5";
    model().settle(trace);
    KX_COMPARE_TREE(model(), service());
    QCOMPARE(shown(), QString("a2 g3(b4) x5"));
}

void tst_kxOverlayQtModel_settle::shouldSkipAParentThatTheOneBeforeLoses()
{
    fill("g2() a3");
    const kxDropTrace trace(&model());
    service().createOverlay(1);
    service().createOverlay(2);
    service().erase({2});
    model().settle(trace);
    KX_COMPARE_TREE(model(), service());
    QCOMPARE(shown(), QString("a3 n4"));
}

/// A row that the service moved during the drag is fetched from where it stood; it is the tree's from
/// then on, and nothing that was taken out and forgotten.
void tst_kxOverlayQtModel_settle::shouldNotFreeWhatACallerTakesAfterwards()
{
    fill("g2() h3(a4) b5");
    m_duringDrag = [this] { service().build("g2(a4) h3() b5"); };
    dragAndDrop({5}, 2, -1);
    KX_COMPARE_TREE(model(), service());
    item(4)->appendRow(new CountingItem);
    const std::unique_ptr<QStandardItem> taken(item(2)->takeRow(0).constFirst());
    Q_EMIT service().modelReset();
    QCOMPARE(CountingItem::s_alive, 1);
}

void tst_kxOverlayQtModel_settle::shouldKeepATreeThatWasNeverReset()
{
    const kxDropTrace trace(&model());
    service().insert(1, 0, "a2 g3(b4)");
    Q_EMIT service().nodesAdded({2, 3});
    model().settle(trace);
    QCOMPARE(shown(), QString("a2 g3(b4)"));
}

void tst_kxOverlayQtModel_settle::shouldNameEachTouchedParentOnce()
{
    fill("g2(a3 b4) c5");
    const kxDropTrace trace(&model());
    Q_EMIT service().nodesRemoved({3});
    Q_EMIT service().nodesRemoved({4});
    Q_EMIT service().nodesRemoved({5});
    QCOMPARE(trace.touchedParents(), (QModelIndexList{index(2), QModelIndex()}));
}

void tst_kxOverlayQtModel_settle::shouldTellWhichNodesWereDropped()
{
    fill("a2 b3 g4()");
    const std::unique_ptr<QMimeData> data(model().mimeData({index(3), index(2)}));
    const kxDropTrace trace(&model());
    QCOMPARE(trace.droppedNodes(), QRPC::NodeList());
    const QModelIndexList rows{index(3), index(2)};
    QVERIFY(!model().dropMimeData(data.get(), Qt::CopyAction, -1, 0, index(4)));
    QCOMPARE(trace.droppedNodes(), QRPC::NodeList());
    for (int drops = 0; drops < 2; ++drops) {
        QVERIFY(model().dropMimeData(data.get(), Qt::MoveAction, -1, 0, index(4)));
        QCOMPARE(trace.droppedNodes(), (QRPC::NodeList{3, 2}));
        QCOMPARE(trace.droppedRows(), rows);
    }
    model().removeRow(0);
    QCOMPARE(trace.droppedRows(), QModelIndexList{model().index(0, 0)});
}

void tst_kxOverlayQtModel_settle::shouldForgetRowsThatAreGone()
{
    fill("g2() h3()");
    const kxDropTrace trace(&model());
    service().createOverlay(2);
    service().createOverlay(3);
    service().deleteNodes({2});
    QCOMPARE(trace.insertedRows(), QModelIndexList{model().index(0, 0, index(3))});
    QCOMPARE(trace.touchedParents(), (QModelIndexList{index(3), QModelIndex()}));
}

KX_TEST_MAIN(tst_kxOverlayQtModel_settle)
#include "tst_kxOverlayQtModel_settle.moc"
