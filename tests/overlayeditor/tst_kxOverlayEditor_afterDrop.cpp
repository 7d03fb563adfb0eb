// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/overlayeditor/DragTest.h"
#include "tests/support/RealInput.h"

#include <QLineEdit>

/// What a drop with the real mouse leaves behind beside the places of the rows: which rows are open,
/// selected and current, what else they hold, and what the panel shows.
class tst_kxOverlayEditor_afterDrop : public DragTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldContinueByKeyFromARowInADroppedGroup();
    void shouldKeepWhatElseADraggedRowHolds();
    void shouldLeaveRowsAsTheyWereWhereTheServiceRefusesTheMove();
    void shouldKeepOtherRowsOpenWhereTheServiceChoosesThePlace();
    void shouldKeepReorderedDroppedGroupsOpen();
    void shouldShowTheDroppedNodesInThePanel();
};

/// The child is the first of the dropped nodes, and its group has to be open before it is current.
void tst_kxOverlayEditor_afterDrop::shouldContinueByKeyFromARowInADroppedGroup()
{
    open("g2(a3 b4) h5(c6)");
    selectByMouse({3, 2});
    QVERIFY(drag(2, 5, On));
    KX_COMPARE_ROWS();
    QVERIFY(tree().isExpanded(index(2)));
    QCOMPARE(tree().currentIndex(), index(3));
    realInput::key("Down");
    QTRY_COMPARE(selected(), QRPC::NodeList{4});
}

void tst_kxOverlayEditor_afterDrop::shouldKeepWhatElseADraggedRowHolds()
{
    open("g2(a3) h4() b5");
    model().itemFromId(2)->setToolTip("of the group");
    model().itemFromId(3)->setToolTip("of its child");
    model().itemFromId(5)->setToolTip("of the overlay");
    selectByMouse({5, 2});
    QVERIFY(drag(2, 4, On));
    KX_COMPARE_ROWS();
    QCOMPARE(index(2).data(Qt::ToolTipRole).toString(), QString("of the group"));
    QCOMPARE(index(3).data(Qt::ToolTipRole).toString(), QString("of its child"));
    QCOMPARE(index(5).data(Qt::ToolTipRole).toString(), QString("of the overlay"));
}

void tst_kxOverlayEditor_afterDrop::shouldLeaveRowsAsTheyWereWhereTheServiceRefusesTheMove()
{
    open("g2(h3(a4) k5(b6)) m7(c8) n9(d10)");
    tree().collapse(index(5));
    tree().collapse(index(9));
    service().setApplies(false);
    selectByMouse({9, 2});
    QVERIFY(drag(2, 7, On));
    QCOMPARE(commands(), QStringList{"moveNodes [9,2] 7 -1"});
    KX_COMPARE_ROWS();
    QVERIFY(tree().isExpanded(index(2)));
    QVERIFY(tree().isExpanded(index(3)));
    QVERIFY(!tree().isExpanded(index(5)));
    QVERIFY(tree().isExpanded(index(7)));
    QVERIFY(!tree().isExpanded(index(9)));
    QCOMPARE(selectionOrder(), (QRPC::NodeList{9, 2}));
}

/// A service may keep its children in an order of its own; rows that were not dragged stay.
void tst_kxOverlayEditor_afterDrop::shouldKeepOtherRowsOpenWhereTheServiceChoosesThePlace()
{
    open("g2(a3) h4(b5) k6(c7) m8(d9)");
    service().setHook([this](const QString &) {
        service().setHook(nullptr);
        service().place(6, 1, -1);
        service().place(8, 1, -1);
    });
    const QPersistentModelIndex first(index(2));
    const QPersistentModelIndex second(index(4));
    selectByMouse({6, 8});
    QVERIFY(drag(8, 2, Above));
    KX_COMPARE_ROWS();
    QCOMPARE(shown(), QString("g2(a3) h4(b5) k6(c7) m8(d9)"));
    QVERIFY(first.isValid());
    QVERIFY(second.isValid());
    for (const QRPC::NodeId group : {2, 4, 6, 8})
        QVERIFY2(tree().isExpanded(index(group)), qPrintable(QString::number(group)));
}

/// Rows with the same number in their old parents are put into order after the drop.
void tst_kxOverlayEditor_afterDrop::shouldKeepReorderedDroppedGroupsOpen()
{
    open("g2(k3(a4)) g5(k6(a7)) g8(k9(a10)) g11(k12(a13)) h14(b15)");
    selectByMouse({9, 3, 12, 6});
    QVERIFY(drag(6, 14, On));
    KX_COMPARE_ROWS();
    for (const QRPC::NodeId group : {3, 6, 9, 12})
        QVERIFY2(tree().isExpanded(index(group)), qPrintable(QString::number(group)));
    QCOMPARE(selectionOrder(), (QRPC::NodeList{9, 3, 12, 6}));
}

void tst_kxOverlayEditor_afterDrop::shouldShowTheDroppedNodesInThePanel()
{
    open("a2 g3() b4");
    selectByMouse({2});
    QVERIFY(drag(2, 3, On));
    QCOMPARE(window()._overlay_name->text(), QString("a2"));
    QVERIFY(window()._overlay_name->isEnabled());
    QVERIFY(!window()._overlay_name->property("multiselect").toBool());
    tree().expandAll();
    selectByMouse({2, 4});
    QVERIFY(drag(4, 0, On));
    QVERIFY(window()._overlay_name->property("multiselect").toBool());
}

KX_TEST_MAIN(tst_kxOverlayEditor_afterDrop)
#include "tst_kxOverlayEditor_afterDrop.moc"
