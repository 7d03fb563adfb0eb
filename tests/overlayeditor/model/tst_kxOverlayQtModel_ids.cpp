// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/kxKernelServiceFactory.h"
#include "overlayeditor/model/kxOverlayItem.h"
#include "tests/overlayeditor/model/ModelTest.h"

#include <QDataStream>

namespace {

/// A service whose root is another node.
class OddRoot : public RecordingService
{
public:
    OddRoot(CallLog *log, QRPC::NodeId root) : RecordingService(log), m_oddRoot(root) {}
    QRPC::NodeId getRootNode() override { return m_oddRoot; }

private:
    QRPC::NodeId m_oddRoot;
};

} // namespace

/// How the model finds items by node id, and what the id map holds.
class tst_kxOverlayQtModel_ids : public ModelTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldBeEmptyUntilTheFirstReset();
    void shouldUseABareItemAsPrototype();
    void shouldGiveTheInvisibleRootForTheRootNode();
    void shouldGiveNullForNoNodeWithoutReadingARow();
    void shouldFindNoNodeWhenItIsTheRoot();
    void shouldFindTheInvisibleRootByTheIdThatItCarries();
    void shouldAskForTheRootOnceForEachLookUp();
    void shouldReadTheIdOfAnIndexAndOfAnItem();
    void shouldGiveTheParentItemOrTheInvisibleRoot();
    void shouldGiveAnIndexForShownNodesOnly();
    void shouldStoreWhatASearchFound();
    void shouldStoreNothingForAFailedSearch();
    void shouldSearchPastAnEntryThatHoldsNull();
    void shouldReturnAStoredPointerUnchecked();
    void shouldFindTheOtherItemWhenOneOfTwoIsGone();
    void shouldAnswerAMissWithoutReadingRows();
    void shouldFindALateIdWithoutReadingOtherRows();
    void shouldFindAnItemAgainWhoseEntryIsGone();
    void shouldForgetAnItemThatIsDestroyed();
    void shouldForgetADestroyedItemUnderItsFirstIdToo_data();
    void shouldForgetADestroyedItemUnderItsFirstIdToo();
    void shouldClearTheMapWithAReset();
    void shouldKeepTheEntryOfARemovedNode();
    void shouldBuildOnlyWhatIsMissing();
};

void tst_kxOverlayQtModel_ids::shouldBeEmptyUntilTheFirstReset()
{
    service().build("a2 g3()");
    kxOverlayQtModel other;
    QCOMPARE(other.rowCount(), 0);
    QCOMPARE(other.parent(), nullptr);
    Q_EMIT service().modelReset();
    QCOMPARE(dumpTree(other), QString("a2 g3()"));
}

void tst_kxOverlayQtModel_ids::shouldUseABareItemAsPrototype()
{
    const QStandardItem *prototype = model().itemPrototype();
    QVERIFY(prototype);
    QCOMPARE(prototype->type(), 1000);
    QVERIFY(!prototype->data(idRole).isValid());
    QCOMPARE(prototype->text(), QString());
    const QScopedPointer<QStandardItem> copy(prototype->clone());
    QCOMPARE(copy->type(), 1000);
}

void tst_kxOverlayQtModel_ids::shouldGiveTheInvisibleRootForTheRootNode()
{
    s_itemMap.clear();
    QCOMPARE(model().itemFromId(1), model().invisibleRootItem());
    fill("a2");
    QCOMPARE(model().itemFromId(1), model().invisibleRootItem());
    QCOMPARE(model().getNodeId(model().invisibleRootItem()), 1u);
    QVERIFY(!model().indexFromId(1).isValid());
}

void tst_kxOverlayQtModel_ids::shouldGiveNullForNoNodeWithoutReadingARow()
{
    fill("a2");
    auto *probe = new CountingItem;
    model().insertRow(0, probe);
    probe->reads = 0;
    QCOMPARE(model().itemFromId(0), nullptr);
    QCOMPARE(probe->reads, 0);
    QVERIFY(!model().indexFromId(0).isValid());
}

void tst_kxOverlayQtModel_ids::shouldFindNoNodeWhenItIsTheRoot()
{
    OddRoot odd(&log(), 0);
    kxKernelServiceFactory::the()->registerService<kxOverlayService>(&odd);
    QCOMPARE(model().itemFromId(0), model().invisibleRootItem());
    kxKernelServiceFactory::the()->registerService<kxOverlayService>(&service());
}

void tst_kxOverlayQtModel_ids::shouldFindTheInvisibleRootByTheIdThatItCarries()
{
    fill("a2");
    OddRoot odd(&log(), 70);
    kxKernelServiceFactory::the()->registerService<kxOverlayService>(&odd);
    QCOMPARE(model().itemFromId(1), model().invisibleRootItem());
    QCOMPARE(s_itemMap[1], model().invisibleRootItem());
    s_itemMap.erase(1);
    kxKernelServiceFactory::the()->registerService<kxOverlayService>(&service());
}

void tst_kxOverlayQtModel_ids::shouldAskForTheRootOnceForEachLookUp()
{
    fill("g2(a3)");
    const QStringList one{"getRootNode"};
    QCOMPARE(callsOf([this] { model().itemFromId(1); }), one);
    QCOMPARE(callsOf([this] { model().itemFromId(3); }), one);
    QCOMPARE(callsOf([this] { model().itemFromId(3); }), one);
    QCOMPARE(callsOf([this] { model().itemFromId(99); }), one);
    QCOMPARE(callsOf([this] { model().itemFromId(0); }), one);
}

void tst_kxOverlayQtModel_ids::shouldReadTheIdOfAnIndexAndOfAnItem()
{
    fill("g2(a3)");
    QCOMPARE(model().getNodeId(model().index(0, 0)), 2u);
    QCOMPARE(model().getNodeId(model().index(0, 0, model().index(0, 0))), 3u);
    QCOMPARE(model().getNodeId(QModelIndex()), 0u);
    QCOMPARE(model().getNodeId(static_cast<const QStandardItem *>(nullptr)), 0u);
    QCOMPARE(model().getNodeId(model().item(0)), 2u);
    QCOMPARE(model().getNodeId(model().invisibleRootItem()), 1u);
}

void tst_kxOverlayQtModel_ids::shouldGiveTheParentItemOrTheInvisibleRoot()
{
    fill("g2(a3)");
    QCOMPARE(model().getParent(item(3)), item(2));
    QCOMPARE(model().getParent(item(2)), model().invisibleRootItem());
}

void tst_kxOverlayQtModel_ids::shouldGiveAnIndexForShownNodesOnly()
{
    fill("g2(a3 b4)");
    QCOMPARE(model().indexFromId(4), model().index(1, 0, model().index(0, 0)));
    QVERIFY(!model().indexFromId(99).isValid());
}

void tst_kxOverlayQtModel_ids::shouldStoreWhatASearchFound()
{
    fill("g2(a3)");
    QCOMPARE(s_itemMap.count(3), size_t(1));
    QCOMPARE(s_itemMap[3], nullptr);
    QStandardItem *found = model().itemFromId(3);
    QCOMPARE(found, model().item(0)->child(0));
    QCOMPARE(s_itemMap[3], found);
}

void tst_kxOverlayQtModel_ids::shouldStoreNothingForAFailedSearch()
{
    fill("a2");
    QCOMPARE(model().itemFromId(99), nullptr);
    QCOMPARE(s_itemMap.count(99), size_t(0));
}

void tst_kxOverlayQtModel_ids::shouldSearchPastAnEntryThatHoldsNull()
{
    fill("a2");
    s_itemMap[2] = nullptr;
    s_itemMap[99] = nullptr;
    QCOMPARE(model().itemFromId(2), model().item(0));
    QCOMPARE(model().itemFromId(99), nullptr);
}

void tst_kxOverlayQtModel_ids::shouldReturnAStoredPointerUnchecked()
{
    fill("a2");
    QStandardItem alien;
    s_itemMap[50] = &alien;
    QCOMPARE(model().itemFromId(50), &alien);
    s_itemMap.erase(50);
}

void tst_kxOverlayQtModel_ids::shouldFindTheOtherItemWhenOneOfTwoIsGone()
{
    fill("g2() b3");
    QStandardItem *shownItem = item(3);
    item(2)->appendRow(shownItem->clone());
    QCOMPARE(model().itemFromId(3), shownItem);
    model().removeRow(1);
    QCOMPARE(model().itemFromId(3), item(2)->child(0));
    model().removeRow(0, index(2));
    QCOMPARE(model().itemFromId(3), nullptr);
}

void tst_kxOverlayQtModel_ids::shouldAnswerAMissWithoutReadingRows()
{
    fill("g2(a3 b4) c5");
    auto *probe = new CountingItem;
    model().insertRow(0, probe);
    probe->reads = 0;
    for (QRPC::NodeId id = 100; id < 200; ++id)
        QCOMPARE(model().itemFromId(id), nullptr);
    QCOMPARE(probe->reads, 0);
}

void tst_kxOverlayQtModel_ids::shouldFindALateIdWithoutReadingOtherRows()
{
    fill("g2(a3 b4) c5");
    auto *probe = new CountingItem;
    model().insertRow(0, probe);
    probe->reads = 0;
    for (const QRPC::NodeId id : {2u, 3u, 4u, 5u})
        QVERIFY(model().itemFromId(id));
    QCOMPARE(probe->reads, 0);
}

void tst_kxOverlayQtModel_ids::shouldFindAnItemAgainWhoseEntryIsGone()
{
    fill("g2(a3)");
    QStandardItem *found = item(3);
    s_itemMap.clear();
    QCOMPARE(model().itemFromId(3), found);
    QCOMPARE(s_itemMap[3], found);
}

void tst_kxOverlayQtModel_ids::shouldForgetAnItemThatIsDestroyed()
{
    fill("g2(a3) b4");
    QVERIFY(item(3));
    QVERIFY(item(2));
    model().removeRow(0);
    QCOMPARE(model().itemFromId(3), nullptr);
    QCOMPARE(model().itemFromId(2), nullptr);
    QVERIFY(model().itemFromId(4));
}

void tst_kxOverlayQtModel_ids::shouldForgetADestroyedItemUnderItsFirstIdToo_data()
{
    QTest::addColumn<bool>("isRead");
    QTest::newRow("set anew") << false;
    QTest::newRow("read from a stream, which replaces it without a word") << true;
}

/// What is looked up under the first id must not reach the destroyed item.
void tst_kxOverlayQtModel_ids::shouldForgetADestroyedItemUnderItsFirstIdToo()
{
    QFETCH(bool, isRead);
    fill("a2");
    auto *item = new kxOverlayItem(5);
    if (isRead) {
        QByteArray bytes;
        QDataStream writer(&bytes, QIODevice::WriteOnly);
        kxOverlayItem(7).write(writer);
        QDataStream reader(bytes);
        item->read(reader);
    } else {
        item->setData(7U, kxOverlayItem::NodeIdRole);
    }
    QCOMPARE(model().getNodeId(item), 7U);
    model().appendRow(item);
    model().removeRow(item->row());
    s_itemMap.clear();
    QCOMPARE(model().itemFromId(5), nullptr);
    QCOMPARE(model().itemFromId(7), nullptr);
}

void tst_kxOverlayQtModel_ids::shouldClearTheMapWithAReset()
{
    fill("a2");
    QStandardItem alien;
    s_itemMap[50] = &alien;
    fill("b3");
    QCOMPARE(s_itemMap.count(50), size_t(0));
    QCOMPARE(model().itemFromId(2), nullptr);
    QCOMPARE(model().itemFromId(50), nullptr);
}

void tst_kxOverlayQtModel_ids::shouldKeepTheEntryOfARemovedNode()
{
    fill("g2(a3) b4");
    QStandardItem *removed = item(2);
    service().erase({2});
    Q_EMIT service().nodesRemoved({2});
    QCOMPARE(shown(), QString("b4"));
    QCOMPARE(s_itemMap[2], removed);
    QCOMPARE(model().itemFromId(2), removed);
    QCOMPARE(model().createItem(2), removed);
    QVERIFY(!model().indexFromId(2).isValid());
    QCOMPARE(removed->rowCount(), 1);
    QCOMPARE(removed->text(), QString("g2"));
}

void tst_kxOverlayQtModel_ids::shouldBuildOnlyWhatIsMissing()
{
    fill("g2(a3)");
    QStandardItem *present = item(2);
    QCOMPARE(callsOf([this] { model().createItem(2); }), QStringList("getRootNode"));
    QCOMPARE(model().createItem(2), present);
    service().insert(2, -1, "h5(b6 c7)");
    QStandardItem *built = model().createItem(5);
    QVERIFY(built);
    QCOMPARE(built->model(), nullptr);
    QCOMPARE(built->rowCount(), 2);
    QCOMPARE(built->child(1)->text(), QString("c7"));
    QCOMPARE(shown(), QString("g2(a3)"));
    item(2)->appendRow(built);
    KX_COMPARE_TREE(model(), service());
}

KX_TEST_MAIN(tst_kxOverlayQtModel_ids)
#include "tst_kxOverlayQtModel_ids.moc"
