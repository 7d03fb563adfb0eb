// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/overlayeditor/model/ModelTest.h"

/// How many service calls an operation needs, and that none of them walks the tree: numbers of
/// calls and reads of rows, never times.
class tst_kxOverlayQtModel_costs : public ModelTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void shouldAskOncePerNodeForAReset_data();
    void shouldAskOncePerNodeForAReset();
    void shouldAskTheSameForEachNodeOfAList_data();
    void shouldAskTheSameForEachNodeOfAList();
    void shouldAskTheSameForEachEnabledNode();
    void shouldAskOnlyForTheRootToRemoveAll();
    void shouldAskThreeTimesForTheRootForEachMove();
    void shouldAskForEachNameOnce();
    void shouldRefreshASwitchOncePerList();
    void shouldAskLinearlyWhenAGroupChanges();
    void shouldRefreshEachRowOncePerList();
    void shouldAskNoPlaceForANodeThatHasARow();
    void shouldNotReadOtherRows();
    void shouldShowDeepChains();

private:
    void fillFlat(int nodes, const QString &wrapper = QStringLiteral("%1"));
    int count(const char *operation) { return log().count(QLatin1String(operation)); }
};

void tst_kxOverlayQtModel_costs::init()
{
    ModelTest::init();
    dropTester();
    log().setKeepsLines(false);
}

void tst_kxOverlayQtModel_costs::fillFlat(int nodes, const QString &wrapper)
{
    QStringList names;
    for (int i = 0; i < nodes; ++i)
        names.append(QStringLiteral("a%1").arg(10 + i));
    fill(wrapper.arg(names.join(QLatin1Char(' '))));
}

void tst_kxOverlayQtModel_costs::shouldAskOncePerNodeForAReset_data()
{
    QTest::addColumn<int>("tops");
    QTest::addColumn<QString>("top");
    QTest::addColumn<int>("groups");
    QTest::addColumn<int>("overlays");
    QTest::newRow("flat, 100") << 100 << "a" << 0 << 1;
    QTest::newRow("flat, 1000") << 1000 << "a" << 0 << 1;
    const QString twenty = QString("a ").repeated(20);
    QTest::newRow("in groups of 20") << 50 << "g(" + twenty + ")" << 1 << 20;
    const QString deep = QString("g(").repeated(100) + QString(")").repeated(100);
    QTest::newRow("100 levels deep") << 10 << deep << 100 << 0;
}

void tst_kxOverlayQtModel_costs::shouldAskOncePerNodeForAReset()
{
    QFETCH(int, tops);
    QFETCH(QString, top);
    QFETCH(int, groups);
    QFETCH(int, overlays);
    fill((top + ' ').repeated(tops));
    Q_EMIT service().modelReset();
    const int nodes = tops * (groups + overlays);
    QCOMPARE(count("getRootNode"), nodes + 1);
    // the root's children once more after each child, those of every other node once
    QCOMPARE(count("getChildCount"), tops + 1 + nodes);
    QCOMPARE(count("getChild"), nodes);
    QCOMPARE(count("getName"), nodes);
    QCOMPARE(count("isEnabled"), nodes);
    QCOMPARE(count("isActive"), nodes);
    QCOMPARE(count("isOverlay"), 2 * nodes);
    QCOMPARE(count("isSwitch"), tops * groups);
    QCOMPARE(log().total(), 8 * nodes + tops + 2 + tops * groups);
}

void tst_kxOverlayQtModel_costs::shouldAskTheSameForEachNodeOfAList_data()
{
    QTest::addColumn<int>("present");
    QTest::addColumn<int>("added");
    QTest::newRow("2 to 500") << 500 << 2;
    QTest::newRow("500 to 2") << 2 << 500;
    QTest::newRow("500 to none") << 0 << 500;
}

void tst_kxOverlayQtModel_costs::shouldAskTheSameForEachNodeOfAList()
{
    QFETCH(int, present);
    QFETCH(int, added);
    fillFlat(present);
    const QRPC::NodeList tops = service().insert(1, -1, QString("b ").repeated(added));
    log().clear();
    Q_EMIT service().nodesAdded(tops);
    QCOMPARE(model().rowCount(), present + added);
    QCOMPARE(log().total(), 10 * added);
    QCOMPARE(count("getChildIndex"), added);
}

void tst_kxOverlayQtModel_costs::shouldAskTheSameForEachEnabledNode()
{
    constexpr int nodes = 500;
    fillFlat(nodes);
    QRPC::NodeList all = service().allIds();
    log().clear();
    service().setEnabled(all, false);
    KX_COMPARE_TREE(model(), service());
    QCOMPARE(count("isEnabled"), nodes);
    // that of the parent, then its own
    QCOMPARE(count("isActive"), 2 * nodes);
    QCOMPARE(log().total(), 6 * nodes + 1);
}

void tst_kxOverlayQtModel_costs::shouldAskOnlyForTheRootToRemoveAll()
{
    constexpr int nodes = 1000;
    fillFlat(nodes);
    const QRPC::NodeList all = service().allIds();
    service().erase(all);
    log().clear();
    Q_EMIT service().nodesRemoved(all);
    QCOMPARE(model().rowCount(), 0);
    QCOMPARE(log().total(), nodes);
    QCOMPARE(count("getRootNode"), nodes);
}

void tst_kxOverlayQtModel_costs::shouldAskThreeTimesForTheRootForEachMove()
{
    constexpr int nodes = 300;
    fillFlat(nodes, "g2() %1");
    QRPC::NodeList moved = service().allIds();
    moved.removeOne(2);
    service().moveNodes(moved, 2, -1);
    KX_COMPARE_TREE(model(), service());
    fillFlat(nodes, "g2() %1");
    QRPC::NodeList parents;
    QRPC::NodeList afters{0};
    for (int i = 0; i < nodes; ++i)
        parents.append(2);
    afters += moved.mid(0, nodes - 1);
    log().clear();
    Q_EMIT service().nodesMoved(moved, parents, afters);
    QCOMPARE(log().total(), 3 * nodes);
    QCOMPARE(count("getRootNode"), 3 * nodes);
}

void tst_kxOverlayQtModel_costs::shouldAskForEachNameOnce()
{
    constexpr int nodes = 1000;
    fillFlat(nodes);
    const QRPC::NodeList all = service().allIds();
    log().clear();
    Q_EMIT service().nameChanged(all);
    QCOMPARE(count("getName"), nodes);
    QCOMPARE(count("getRootNode"), nodes);
    QCOMPARE(log().total(), 2 * nodes);
}

void tst_kxOverlayQtModel_costs::shouldRefreshASwitchOncePerList()
{
    constexpr int nodes = 400;
    fillFlat(nodes, "s2*(%1)");
    QRPC::NodeList children = service().allIds();
    children.removeOne(2);
    for (const QRPC::NodeId id : qAsConst(children))
        service().node(id).enabled = id == children.last();
    log().clear();
    Q_EMIT service().enabledStateChanged(children);
    KX_COMPARE_TREE(model(), service());
    QVERIFY2(log().total() <= 12 * nodes, qPrintable(QString::number(log().total())));
}

void tst_kxOverlayQtModel_costs::shouldAskLinearlyWhenAGroupChanges()
{
    constexpr int nodes = 400;
    fillFlat(nodes, "g2(%1)");
    service().node(2).enabled = false;
    log().clear();
    Q_EMIT service().enabledStateChanged({2});
    KX_COMPARE_TREE(model(), service());
    QCOMPARE(count("isEnabled"), 1);
    QCOMPARE(count("isActive"), nodes + 2);
}

/// What lies in a node of the list is refreshed with that node.
void tst_kxOverlayQtModel_costs::shouldRefreshEachRowOncePerList()
{
    constexpr int depth = 300;
    fill("a2");
    const QRPC::NodeId top = service().insertChain(1, depth);
    QRPC::NodeList chain;
    for (int i = 0; i < depth; ++i)
        chain.append(top + QRPC::NodeId(i));
    for (const QRPC::NodeId id : qAsConst(chain))
        service().node(id).enabled = false;
    Q_EMIT service().modelReset();
    log().clear();
    service().setEnabled(chain, true);
    KX_COMPARE_TREE(model(), service());
    // that of the parent, then its own
    QCOMPARE(count("isActive"), 2 * depth);
}

void tst_kxOverlayQtModel_costs::shouldAskNoPlaceForANodeThatHasARow()
{
    fillFlat(10);
    const QRPC::NodeList all = service().allIds();
    Q_EMIT service().nodesAdded(all);
    QCOMPARE(count("getChildIndex"), 0);
    KX_COMPARE_TREE(model(), service());
}

void tst_kxOverlayQtModel_costs::shouldNotReadOtherRows()
{
    fillFlat(200, "g2(%1) h3()");
    auto *top = new CountingItem;
    auto *deep = new CountingItem;
    model().insertRow(0, top);
    item(2)->insertRow(0, deep);
    const QRPC::NodeList all = service().allIds();
    service().insert(3, 0, "b4");
    top->reads = deep->reads = 0;
    Q_EMIT service().nameChanged(all);
    Q_EMIT service().nodesAdded({4});
    Q_EMIT service().nodesRemoved({4, 998, 999});
    QCOMPARE(top->reads, 0);
    QCOMPARE(deep->reads, 0);
}

void tst_kxOverlayQtModel_costs::shouldShowDeepChains()
{
    constexpr int depth = 10000;
    fill("a2");
    const QRPC::NodeId top = service().insertChain(1, depth);
    Q_EMIT service().nodesAdded({top + depth - 1});
    KX_COMPARE_TREE(model(), service());
    Q_EMIT service().modelReset();
    KX_COMPARE_TREE(model(), service());
    service().setEnabled({top}, false);
    KX_COMPARE_TREE(model(), service());
    service().moveNodes({top + 1}, 1, 0);
    KX_COMPARE_TREE(model(), service());
    service().deleteNodes({top + 1});
    KX_COMPARE_TREE(model(), service());
    Q_EMIT service().modelReset();
    QCOMPARE(model().rowCount(), 2);
}

KX_TEST_MAIN(tst_kxOverlayQtModel_costs)
#include "tst_kxOverlayQtModel_costs.moc"
