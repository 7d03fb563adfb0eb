// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/overlayeditor/model/ModelTest.h"

#include <QSignalSpy>

/// Reset, added and removed nodes: what the tree shows and what the service is asked for it.
class tst_kxOverlayQtModel_structure : public ModelTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldDeclareItsSlotsInOrder();
    void shouldBeConnectedToTheServiceOnce();
    void shouldFillFromTheServiceWithAReset();
    void shouldAskForTheRootsChildrenAgainAfterEachChild();
    void shouldShowAnEmptyTreeForAnEmptyService();
    void shouldReplaceTheTreeWithEachReset();
    void shouldUseOneColumn();
    void shouldInsertANodeAtItsRow_data();
    void shouldInsertANodeAtItsRow();
    void shouldAskWhatAnInsertionNeeds();
    void shouldBuildAMissingChainInOneInsertion();
    void shouldAskForTheChainUpwards();
    void shouldIgnoreANodeOutsideTheTree();
    void shouldAddTheNodesOfAListInOrder();
    void shouldAddASingleNode();
    void shouldRemoveANodeWithItsSubtree_data();
    void shouldRemoveANodeWithItsSubtree();
    void shouldAskNothingButTheRootForARemoval();
    void shouldSkipUnknownIdsOfARemoval();
    void shouldNameAllRowsOfARemovalBeforeTheFirstGoes();
    void shouldTakeARowOutWithoutDeletingIt();
    void shouldFollowCommandsOfTheService();

private:
    void addAndAnnounce(QRPC::NodeId parent, int row, const QString &line);
};

void tst_kxOverlayQtModel_structure::addAndAnnounce(QRPC::NodeId parent, int row,
                                                    const QString &line)
{
    const QRPC::NodeList tops = service().insert(parent, row, line);
    log().clear();
    Q_EMIT service().nodesAdded(tops);
}

void tst_kxOverlayQtModel_structure::shouldDeclareItsSlotsInOrder()
{
    const QMetaObject *meta = model().metaObject();
    QStringList declared;
    for (int i = meta->methodOffset(); i < meta->methodCount(); ++i) {
        if (meta->method(i).methodType() == QMetaMethod::Slot)
            declared.append(QString::fromLatin1(meta->method(i).methodSignature()));
    }
    QCOMPARE(declared,
             (QStringList{"nodeAddedUpdate(QRPC::NodeId)", "nodeRemovedUpdate(QRPC::NodeId)",
                          "nodesAddedUpdate(QRPC::NodeList)", "nodesRemovedUpdate(QRPC::NodeList)",
                          "nodesMoved(QRPC::NodeList,QRPC::NodeList,QRPC::NodeList)",
                          "updateName(QRPC::NodeList)", "updateEnabledState(QRPC::NodeList)",
                          "modelReset()"}));
}

void tst_kxOverlayQtModel_structure::shouldBeConnectedToTheServiceOnce()
{
    const RecordingService &counted = service();
    QCOMPARE(counted.receivers(SIGNAL(nodesAdded(QRPC::NodeList))), 1);
    QCOMPARE(counted.receivers(SIGNAL(nodesRemoved(QRPC::NodeList))), 1);
    QCOMPARE(counted.receivers(SIGNAL(nameChanged(QRPC::NodeList))), 1);
    QCOMPARE(counted.receivers(SIGNAL(nodesMoved(QRPC::NodeList, QRPC::NodeList, QRPC::NodeList))),
             1);
    QCOMPARE(counted.receivers(SIGNAL(enabledStateChanged(QRPC::NodeList))), 1);
    QCOMPARE(counted.receivers(SIGNAL(modelReset())), 1);
    QCOMPARE(counted.receivers(SIGNAL(nodesCreated(QRPC::NodeList))), 0);
    QCOMPARE(counted.receivers(SIGNAL(textChanged(QRPC::NodeList))), 0);
}

void tst_kxOverlayQtModel_structure::shouldFillFromTheServiceWithAReset()
{
    fill("g2(a3 b4-) s5*(c6 h7-(d8) e9) f10");
    QCOMPARE(shown(), QString("g2(a3 b4-) s5(c6 h7-(d8~) e9) f10"));
    KX_COMPARE_TREE(model(), service());
}

void tst_kxOverlayQtModel_structure::shouldAskForTheRootsChildrenAgainAfterEachChild()
{
    service().build("g2(a3) b4");
    QCOMPARE(callsOf([this] { Q_EMIT service().modelReset(); }),
             (QStringList{"getRootNode", "getChildCount 1",
                          // the group
                          "getChild 1 0", "getRootNode", "getName 2", "isEnabled 2", "isOverlay 2",
                          "isActive 2", "isOverlay 2", "isSwitch 2", "getChildCount 2",
                          // what lies in it
                          "getChild 2 0", "getRootNode", "getName 3", "isEnabled 3", "isOverlay 3",
                          "isActive 3", "isOverlay 3", "getChildCount 3",
                          // the next child of the root
                          "getChildCount 1", "getChild 1 1", "getRootNode", "getName 4",
                          "isEnabled 4", "isOverlay 4", "isActive 4", "isOverlay 4",
                          "getChildCount 4", "getChildCount 1"}));
}

void tst_kxOverlayQtModel_structure::shouldShowAnEmptyTreeForAnEmptyService()
{
    service().build("");
    QCOMPARE(callsOf([this] { Q_EMIT service().modelReset(); }),
             (QStringList{"getRootNode", "getChildCount 1"}));
    QCOMPARE(model().rowCount(), 0);
    QCOMPARE(model().getNodeId(model().invisibleRootItem()), 1u);
}

void tst_kxOverlayQtModel_structure::shouldReplaceTheTreeWithEachReset()
{
    fill("g2(a3) b4");
    fill("c5 g2(d6)");
    QCOMPARE(shown(), QString("c5 g2(d6)"));
    fill("g2(d6)");
    QCOMPARE(shown(), QString("g2(d6)"));
}

void tst_kxOverlayQtModel_structure::shouldUseOneColumn()
{
    fill("g2(a3) b4");
    QCOMPARE(model().columnCount(), 1);
    QCOMPARE(model().columnCount(model().index(0, 0)), 1);
    QVERIFY(!model().headerData(0, Qt::Horizontal, Qt::UserRole).isValid());
}

void tst_kxOverlayQtModel_structure::shouldInsertANodeAtItsRow_data()
{
    QTest::addColumn<QRPC::NodeId>("parent");
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("after");
    QTest::newRow("top, first") << 1u << 0 << "x9 g2(a3 b4) c5";
    QTest::newRow("top, between") << 1u << 1 << "g2(a3 b4) x9 c5";
    QTest::newRow("top, last") << 1u << 2 << "g2(a3 b4) c5 x9";
    QTest::newRow("deep, first") << 2u << 0 << "g2(x9 a3 b4) c5";
    QTest::newRow("deep, last") << 2u << 2 << "g2(a3 b4 x9) c5";
}

void tst_kxOverlayQtModel_structure::shouldInsertANodeAtItsRow()
{
    QFETCH(QRPC::NodeId, parent);
    QFETCH(int, row);
    QFETCH(QString, after);
    fill("g2(a3 b4) c5");
    addAndAnnounce(parent, row, "x9");
    QCOMPARE(shown(), after);
    KX_COMPARE_TREE(model(), service());
}

void tst_kxOverlayQtModel_structure::shouldAskWhatAnInsertionNeeds()
{
    fill("g2(a3)");
    service().insert(2, 1, "b4");
    QCOMPARE(callsOf([this] { Q_EMIT service().nodesAdded({4}); }),
             (QStringList{"getParent 4", "getRootNode", "getRootNode", "getName 4", "isEnabled 4",
                          "isOverlay 4", "isActive 4", "isOverlay 4", "getChildCount 4",
                          "getChildIndex 2 4"}));
}

void tst_kxOverlayQtModel_structure::shouldBuildAMissingChainInOneInsertion()
{
    fill("a2 b3");
    service().insert(1, 1, "g4(h5(c6 d7) e8)");
    QSignalSpy inserted(&model(), &QAbstractItemModel::rowsInserted);
    Q_EMIT service().nodesAdded({6});
    QCOMPARE(inserted.count(), 1);
    QCOMPARE(inserted.first().at(0).toModelIndex(), QModelIndex());
    QCOMPARE(inserted.first().at(1).toInt(), 1);
    QCOMPARE(inserted.first().at(2).toInt(), 1);
    QCOMPARE(shown(), QString("a2 g4(h5(c6 d7) e8) b3"));
}

void tst_kxOverlayQtModel_structure::shouldAskForTheChainUpwards()
{
    fill("a2");
    service().insert(1, 1, "g4(h5())");
    const QStringList calls = callsOf([this] { Q_EMIT service().nodesAdded({5}); });
    QCOMPARE(calls.mid(0, 5), (QStringList{"getParent 5", "getRootNode", "getParent 4",
                                           "getRootNode", "getRootNode"}));
    QCOMPARE(calls.at(5), QString("getName 4"));
    QCOMPARE(calls.last(), QString("getChildIndex 1 4"));
}

void tst_kxOverlayQtModel_structure::shouldIgnoreANodeOutsideTheTree()
{
    fill("a2");
    QCOMPARE(callsOf([this] { Q_EMIT service().nodesAdded({99}); }),
             (QStringList{"getParent 99", "getRootNode"}));
    QCOMPARE(callsOf([this] { Q_EMIT service().nodesAdded({0}); }), QStringList());
    QCOMPARE(shown(), QString("a2"));
}

void tst_kxOverlayQtModel_structure::shouldAddTheNodesOfAListInOrder()
{
    fill("a2");
    service().insert(1, 0, "b3 g4(c5)");
    QSignalSpy inserted(&model(), &QAbstractItemModel::rowsInserted);
    Q_EMIT service().nodesAdded({3, 4});
    QCOMPARE(inserted.count(), 2);
    QCOMPARE(inserted.at(0).at(1).toInt(), 0);
    QCOMPARE(inserted.at(1).at(1).toInt(), 1);
    KX_COMPARE_TREE(model(), service());
}

void tst_kxOverlayQtModel_structure::shouldAddASingleNode()
{
    fill("a2");
    service().insert(1, 0, "b3");
    QVERIFY(QMetaObject::invokeMethod(&model(), "nodeAddedUpdate", Q_ARG(QRPC::NodeId, 3)));
    KX_COMPARE_TREE(model(), service());
    service().erase({2});
    QVERIFY(QMetaObject::invokeMethod(&model(), "nodeRemovedUpdate", Q_ARG(QRPC::NodeId, 2)));
    QVERIFY(QMetaObject::invokeMethod(&model(), "nodeRemovedUpdate", Q_ARG(QRPC::NodeId, 99)));
    KX_COMPARE_TREE(model(), service());
}

void tst_kxOverlayQtModel_structure::shouldRemoveANodeWithItsSubtree_data()
{
    QTest::addColumn<QRPC::NodeList>("nodes");
    QTest::addColumn<QString>("after");
    QTest::newRow("first") << QRPC::NodeList{2} << "c5 d6";
    QTest::newRow("middle") << QRPC::NodeList{5} << "g2(a3 b4) d6";
    QTest::newRow("last") << QRPC::NodeList{6} << "g2(a3 b4) c5";
    QTest::newRow("deep") << QRPC::NodeList{3} << "g2(b4) c5 d6";
    QTest::newRow("all of a group") << QRPC::NodeList{4, 3} << "g2() c5 d6";
    QTest::newRow("scattered, out of order") << QRPC::NodeList{6, 3, 2} << "c5";
    QTest::newRow("child and its group") << QRPC::NodeList{3, 2} << "c5 d6";
    QTest::newRow("group and its child") << QRPC::NodeList{2, 3} << "c5 d6";
    QTest::newRow("all") << QRPC::NodeList{2, 5, 6} << "";
}

void tst_kxOverlayQtModel_structure::shouldRemoveANodeWithItsSubtree()
{
    QFETCH(QRPC::NodeList, nodes);
    QFETCH(QString, after);
    fill("g2(a3 b4) c5 d6");
    service().erase(nodes);
    Q_EMIT service().nodesRemoved(nodes);
    QCOMPARE(shown(), after);
    KX_COMPARE_TREE(model(), service());
}

void tst_kxOverlayQtModel_structure::shouldAskNothingButTheRootForARemoval()
{
    fill("g2(a3) b4 c5");
    service().erase({2, 4});
    QCOMPARE(callsOf([this] {
                 Q_EMIT service().nodesRemoved({2, 4});
             }),
             (QStringList{"getRootNode", "getRootNode"}));
}

void tst_kxOverlayQtModel_structure::shouldSkipUnknownIdsOfARemoval()
{
    fill("a2 b3");
    service().erase({2});
    Q_EMIT service().nodesRemoved({99, 0, 2, 2});
    QCOMPARE(shown(), QString("b3"));
}

void tst_kxOverlayQtModel_structure::shouldNameAllRowsOfARemovalBeforeTheFirstGoes()
{
    fill("a2 g3(b4) c5");
    const QModelIndexList doomed{index(2), index(5)};
    QString shownThen;
    QModelIndexList named;
    const QObject listener;
    connect(&model(), &kxOverlayQtModel::nodesAboutToGo, &listener,
            [this, tree = &shownThen, all = &named](const QModelIndexList &rows) {
                *all += rows;
                *tree = shown();
            });
    service().deleteNodes({5, 2});
    QCOMPARE(named, doomed);
    QCOMPARE(shownThen, QString("a2 g3(b4) c5"));
    QCOMPARE(shown(), QString("g3(b4)"));
}

void tst_kxOverlayQtModel_structure::shouldTakeARowOutWithoutDeletingIt()
{
    fill("g2(a3 b4) c5");
    QStandardItem *nested = item(3);
    model().removeFromParent(nested);
    QCOMPARE(shown(), QString("g2(b4) c5"));
    QCOMPARE(nested->model(), nullptr);
    QCOMPARE(nested->text(), QString("a3"));
    QStandardItem *top = item(2);
    model().removeFromParent(top);
    QCOMPARE(shown(), QString("c5"));
    QCOMPARE(model().itemFromId(2), top);
    model().invisibleRootItem()->appendRow(top);
    item(2)->insertRow(0, nested);
    QCOMPARE(shown(), QString("c5 g2(a3 b4)"));
}

void tst_kxOverlayQtModel_structure::shouldFollowCommandsOfTheService()
{
    fill("g2(a3 b4) s5*()");
    service().createOverlay(2);
    KX_COMPARE_TREE(model(), service());
    service().createGroup(5);
    service().createSwitch(5);
    KX_COMPARE_TREE(model(), service());
    service().duplicateNodes({3, 2, 5});
    KX_COMPARE_TREE(model(), service());
    service().groupNodes({4, 3});
    KX_COMPARE_TREE(model(), service());
    service().deleteNodes({2});
    KX_COMPARE_TREE(model(), service());
}

KX_TEST_MAIN(tst_kxOverlayQtModel_structure)
#include "tst_kxOverlayQtModel_structure.moc"
