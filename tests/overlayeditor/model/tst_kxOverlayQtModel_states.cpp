// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/overlayeditor/model/ModelTest.h"

#include <QSignalSpy>

/// Names, enabled and active states that the service announces.
class tst_kxOverlayQtModel_states : public ModelTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldShowNewNames();
    void shouldAskForEachNameOnce();
    void shouldSkipNamesOfNodesWithoutARow();
    void shouldAnnounceOnlyTheRowsThatChange();
    void shouldShowTheEnabledState();
    void shouldRefreshTheActiveStateOfTheSubtree();
    void shouldAskInTheStatedOrder();
    void shouldAskForSubtreesFromTheLastChildOn();
    void shouldStopAtAnInactiveParent();
    void shouldRefreshEverySiblingUnderASwitch();
    void shouldAskForEachSiblingUnderASwitch();
    void shouldLeaveSiblingsAloneInAGroup();
    void shouldSkipStatesOfNodesWithoutARow();
    void shouldTakeAChangeInsideItsOwnWriteToTheTree();
    void shouldFollowEnabledCommands_data();
    void shouldFollowEnabledCommands();
};

void tst_kxOverlayQtModel_states::shouldShowNewNames()
{
    fill("g2(a3) b4");
    service().node(3).name = "x3";
    service().node(2).name = "y2";
    Q_EMIT service().nameChanged({3, 2});
    QCOMPARE(shown(), QString("y2(x3) b4"));
}

void tst_kxOverlayQtModel_states::shouldAskForEachNameOnce()
{
    fill("g2(a3) b4");
    QCOMPARE(callsOf([this] {
                 Q_EMIT service().nameChanged({4, 2});
             }),
             (QStringList{"getRootNode", "getName 4", "getRootNode", "getName 2"}));
}

void tst_kxOverlayQtModel_states::shouldSkipNamesOfNodesWithoutARow()
{
    fill("a2");
    service().node(2).name = "x2";
    Q_EMIT service().nameChanged({99, 0, 2});
    QCOMPARE(shown(), QString("x2"));
}

void tst_kxOverlayQtModel_states::shouldAnnounceOnlyTheRowsThatChange()
{
    fill("a2 b3");
    QSignalSpy changed(&model(), &QAbstractItemModel::dataChanged);
    service().node(3).name = "x3";
    Q_EMIT service().nameChanged({2, 3});
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.first().first().toModelIndex(), index(3));
}

void tst_kxOverlayQtModel_states::shouldShowTheEnabledState()
{
    fill("a2 b3");
    service().node(2).enabled = false;
    Q_EMIT service().enabledStateChanged({2});
    QCOMPARE(shown(), QString("a2- b3"));
    service().node(2).enabled = true;
    Q_EMIT service().enabledStateChanged({2});
    QCOMPARE(shown(), QString("a2 b3"));
}

void tst_kxOverlayQtModel_states::shouldRefreshTheActiveStateOfTheSubtree()
{
    fill("g2(a3 h4(b5 c6-))");
    service().node(2).enabled = false;
    Q_EMIT service().enabledStateChanged({2});
    QCOMPARE(shown(), QString("g2-(a3~ h4~(b5~ c6-))"));
    service().node(2).enabled = true;
    Q_EMIT service().enabledStateChanged({2});
    QCOMPARE(shown(), QString("g2(a3 h4(b5 c6-))"));
}

void tst_kxOverlayQtModel_states::shouldAskInTheStatedOrder()
{
    fill("g2(a3)");
    QCOMPARE(callsOf([this] { Q_EMIT service().enabledStateChanged({3}); }),
             (QStringList{"getRootNode", "isEnabled 3", "isActive 2", "isSwitch 2", "isActive 3",
                          "isOverlay 3"}));
}

void tst_kxOverlayQtModel_states::shouldAskForSubtreesFromTheLastChildOn()
{
    fill("g2(a3 h4(b5 c6))");
    QStringList calls = callsOf([this] { Q_EMIT service().enabledStateChanged({2}); });
    calls = calls.filter("isActive");
    QCOMPARE(calls, (QStringList{"isActive 1", "isActive 2", "isActive 4", "isActive 6",
                                 "isActive 5", "isActive 3"}));
}

void tst_kxOverlayQtModel_states::shouldStopAtAnInactiveParent()
{
    fill("g2-(a3 b4)");
    service().node(3).enabled = false;
    QCOMPARE(callsOf([this] { Q_EMIT service().enabledStateChanged({3}); }),
             (QStringList{"getRootNode", "isEnabled 3", "isActive 2"}));
    QCOMPARE(shown(), QString("g2-(a3- b4~)"));
}

void tst_kxOverlayQtModel_states::shouldRefreshEverySiblingUnderASwitch()
{
    fill("s2*(a3 b4- g5-(c6))");
    service().node(3).enabled = false;
    service().node(5).enabled = true;
    Q_EMIT service().enabledStateChanged({5});
    QCOMPARE(shown(), QString("s2(a3- b4- g5(c6))"));
}

void tst_kxOverlayQtModel_states::shouldAskForEachSiblingUnderASwitch()
{
    fill("s2*(a3 b4-)");
    QCOMPARE(
        callsOf([this] { Q_EMIT service().enabledStateChanged({3}); }),
        (QStringList{"getRootNode", "isEnabled 3", "isActive 2", "isSwitch 2", "isEnabled 3",
                     "isEnabled 4", "isActive 4", "isOverlay 4", "isActive 3", "isOverlay 3"}));
}

void tst_kxOverlayQtModel_states::shouldLeaveSiblingsAloneInAGroup()
{
    fill("g2(a3 b4)");
    service().node(3).enabled = false;
    service().node(4).enabled = false;
    Q_EMIT service().enabledStateChanged({3});
    QCOMPARE(shown(), QString("g2(a3- b4)"));
}

void tst_kxOverlayQtModel_states::shouldSkipStatesOfNodesWithoutARow()
{
    fill("a2");
    service().node(2).enabled = false;
    Q_EMIT service().enabledStateChanged({99, 0, 2});
    QCOMPARE(shown(), QString("a2-"));
}

void tst_kxOverlayQtModel_states::shouldTakeAChangeInsideItsOwnWriteToTheTree()
{
    fill("s2*(a3 b4-)");
    model().setData(index(4), int(Qt::Checked), Qt::CheckStateRole);
    QCOMPARE(shown(), QString("s2(a3- b4)"));
    KX_COMPARE_TREE(model(), service());
}

void tst_kxOverlayQtModel_states::shouldFollowEnabledCommands_data()
{
    QTest::addColumn<QRPC::NodeList>("nodes");
    QTest::addColumn<bool>("enabled");
    QTest::newRow("one") << QRPC::NodeList{3} << false;
    QTest::newRow("group and child off") << QRPC::NodeList{3, 2} << false;
    QTest::newRow("disabled group on") << QRPC::NodeList{6} << true;
    QTest::newRow("child of a disabled group") << QRPC::NodeList{7} << false;
    QTest::newRow("group and its child on") << QRPC::NodeList{13, 6} << true;
    QTest::newRow("one of a switch") << QRPC::NodeList{10} << true;
    QTest::newRow("all of a switch") << QRPC::NodeList{10, 9, 11} << true;
    QTest::newRow("switch off") << QRPC::NodeList{8} << false;
    QTest::newRow("switch off with its child") << QRPC::NodeList{8, 9} << false;
}

void tst_kxOverlayQtModel_states::shouldFollowEnabledCommands()
{
    QFETCH(QRPC::NodeList, nodes);
    QFETCH(bool, enabled);
    fill("g2(a3 b4) c5 h6-(d7 e13-) s8*(x9 y10- g11-(z12))");
    service().setEnabled(nodes, enabled);
    KX_COMPARE_TREE(model(), service());
    service().setEnabled(nodes, !enabled);
    KX_COMPARE_TREE(model(), service());
}

KX_TEST_MAIN(tst_kxOverlayQtModel_states)
#include "tst_kxOverlayQtModel_states.moc"
