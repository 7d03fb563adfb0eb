// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/viewer/scene/ServiceTest.h"

#include <QTimer>

using QRPC::NodeId;
using QRPC::NodeList;
using viewer::NodeKind;
using viewer::Scene;

using Command = void (*)(viewer::OverlayService &, const NodeList &);
Q_DECLARE_METATYPE(Command)

class tst_OverlayService_nodes : public ServiceTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldStartWithARootAlone();
    void shouldAnswerUnknownIdsNeutrally_data();
    void shouldAnswerUnknownIdsNeutrally();
    void shouldReadTheTree();
    void shouldTellActiveFromEnabled();
    void shouldFollowActivityThroughChanges();
    void shouldCreateAsLastChildAndSelectIt();
    void shouldCountNamesByKind();
    void shouldCountOnFromTheNamesOfAnOpenedScene();
    void shouldCountOnFromNamesThatAreGiven();
    void shouldNotAnnounceAsCreatedWhatASlotHasDeleted_data();
    void shouldNotAnnounceAsCreatedWhatASlotHasDeleted();
    void shouldCreateNothingWhereNothingCanLie();
    void shouldCreateDisabledInASwitchThatShowsOne();
    void shouldGiveANewTextUsefulValues();
    void shouldNeverGiveAnIdTwice();
    void shouldIgnoreListsWithoutEffect_data();
    void shouldIgnoreListsWithoutEffect();
    void shouldPostponeWhatASlotAddsInsideAMove();
    void shouldAnnounceThePostponedBeforeTheNextOperation_data();
    void shouldAnnounceThePostponedBeforeTheNextOperation();
    void shouldResetWithNewIds();
    void shouldHandleDeepTrees();
    void shouldKnowTheRowsOfManyChildren();

private:
    bool m_isInsideMove = false;
    QString m_nameGivenInReset;
};

void tst_OverlayService_nodes::shouldStartWithARootAlone()
{
    viewer::OverlayService fresh;
    QCOMPARE(fresh.getRootNode(), NodeId(Scene::RootId));
    QCOMPARE(fresh.getChildCount(fresh.getRootNode()), 0);
    QCOMPARE(fresh.getParent(fresh.getRootNode()), NodeId(0));
    QVERIFY(fresh.isActive(fresh.getRootNode()));
    QVERIFY(fresh.isEnabled(fresh.getRootNode()));
    QVERIFY(!fresh.isOverlay(fresh.getRootNode()));
    QVERIFY(!fresh.isSwitch(fresh.getRootNode()));
    QVERIFY(fresh.getName(fresh.getRootNode()).isEmpty());
}

void tst_OverlayService_nodes::shouldAnswerUnknownIdsNeutrally_data()
{
    QTest::addColumn<QString>("node");
    QTest::newRow("no node") << "0";
    QTest::newRow("unknown id") << "?";
    QTest::newRow("root") << "root";
    QTest::newRow("group") << "g";
    QTest::newRow("switch") << "s";
}

void tst_OverlayService_nodes::shouldAnswerUnknownIdsNeutrally()
{
    QFETCH(QString, node);
    open("a g(b) s{c}");
    const NodeId n = id(node);
    QVERIFY(!service().isOverlay(n));
    QCOMPARE(service().getOverlayType(n), 0);
    QVERIFY(service().getText(n).isEmpty());
    QVERIFY(service().getFont(n).isEmpty());
    QVERIFY(!service().getFontColor(n).isValid());
    QVERIFY(!service().getBackgroundColor(n).isValid());
    QVERIFY(!service().getBackgroundTransparency(n).isValid());
    QVERIFY(service().getImage(n).isEmpty());
    QCOMPARE(service().getSizeType(n), 0);
    QCOMPARE(service().getSize(n), 0.0F);
    QCOMPARE(service().getPosition(n), QPointF());
    QCOMPARE(service().getOffset(n), QPointF());
    if (scene().find(n))
        return;
    QCOMPARE(service().getParent(n), NodeId(0));
    QCOMPARE(service().getChildCount(n), 0);
    QCOMPARE(service().getChild(n, 0), NodeId(0));
    QCOMPARE(service().getChildIndex(n, id("a")), -1);
    QCOMPARE(service().getChildIndex(id("g"), n), -1);
    QCOMPARE(service().getChildIndex(n, n), -1);
    QVERIFY(!service().isSwitch(n));
    QVERIFY(service().getName(n).isEmpty());
    QVERIFY(!service().isEnabled(n));
    QVERIFY(!service().isActive(n));
}

void tst_OverlayService_nodes::shouldReadTheTree()
{
    open("a g(b c) s{d}");
    const NodeId root = service().getRootNode();
    QCOMPARE(service().getChildCount(root), 3);
    QCOMPARE(service().getChild(root, 1), id("g"));
    QCOMPARE(service().getChild(root, -1), NodeId(0));
    QCOMPARE(service().getChild(root, 3), NodeId(0));
    QCOMPARE(service().getParent(id("c")), id("g"));
    QCOMPARE(service().getChildIndex(id("g"), id("c")), 1);
    QCOMPARE(service().getChildIndex(root, id("c")), -1);
    QCOMPARE(service().getChildIndex(0, root), -1);
    QCOMPARE(service().getChildCount(id("a")), 0);
    QVERIFY(service().isOverlay(id("a")));
    QVERIFY(service().isSwitch(id("s")));
    QVERIFY(!service().isSwitch(id("g")));
    QCOMPARE(service().getName(id("d")), QString("d"));
}

void tst_OverlayService_nodes::shouldTellActiveFromEnabled()
{
    open("g-(h(a b-))");
    QVERIFY(service().isEnabled(id("a")));
    QVERIFY(!service().isActive(id("a")));
    QVERIFY(!service().isActive(id("h")));
    service().setEnabled({id("g")}, true);
    QVERIFY(service().isActive(id("a")));
    QVERIFY(!service().isActive(id("b")));
}

void tst_OverlayService_nodes::shouldFollowActivityThroughChanges()
{
    open("g-(a) h(b)");
    QVERIFY(!service().isActive(id("a")));
    QVERIFY(service().isActive(id("b")));
    service().moveNodes(ids("a"), id("h"), -1);
    service().moveNodes(ids("b"), id("g"), -1);
    QVERIFY(service().isActive(id("a")));
    QVERIFY(!service().isActive(id("b")));
    const NodeId created = service().createOverlay(id("g"));
    QVERIFY(!service().isActive(created));
}

void tst_OverlayService_nodes::shouldCreateAsLastChildAndSelectIt()
{
    open("a g(b)");
    service().createOverlay(id("g"));
    service().createGroup(id("root"));
    service().createSwitch(id("g"));
    QCOMPARE(dump(), QString("a g(b Text 1 Switch 1{}) Group 1()"));
    QCOMPARE(signalLines(),
             QStringList({"nodesAdded Text 1", "nodesCreated Text 1", "nodesAdded Group 1",
                          "nodesCreated Group 1", "nodesAdded Switch 1", "nodesCreated Switch 1"}));
}

void tst_OverlayService_nodes::shouldCountNamesByKind()
{
    open("");
    const NodeId first = service().createOverlay(id("root"));
    service().createOverlay(id("root"));
    service().deleteNodes({first});
    service().createGroup(id("root"));
    service().createOverlay(id("root"));
    QCOMPARE(dump(), QString("Text 2 Group 1() Text 3"));
}

void tst_OverlayService_nodes::shouldCountOnFromTheNamesOfAnOpenedScene()
{
    Scene opened;
    const QStringList names{"Text 12",   "Text 3",     "Text x",         "Text ",
                            "Text 99 b", "My Text 40", "Text 2147483646"};
    for (const QString &name : names) {
        viewer::Node node;
        node.kind = NodeKind::Overlay;
        node.name = name;
        opened.append(Scene::RootId, opened.add(node));
    }
    open("");
    connect(&service(), &kxOverlayService::modelReset, this, [this] {
        m_nameGivenInReset = service().getName(service().createOverlay(id("root")));
    });
    service().setScene(opened);
    QCOMPARE(m_nameGivenInReset, QString("Text 13"));
    QCOMPARE(service().getName(service().createGroup(id("root"))), QString("Group 1"));
}

/// A new node must not be called like one that stands beside it.
void tst_OverlayService_nodes::shouldCountOnFromNamesThatAreGiven()
{
    open("a b g()");
    service().setName(ids("a"), "Text 7");
    service().setName(ids("b g"), "Group 3");
    QCOMPARE(service().getName(service().createOverlay(id("root"))), QString("Text 8"));
    QCOMPARE(service().getName(service().createGroup(id("root"))), QString("Group 4"));
}

void tst_OverlayService_nodes::shouldNotAnnounceAsCreatedWhatASlotHasDeleted_data()
{
    QTest::addColumn<Command>("command");
    QTest::addColumn<QStringList>("signalled");
    QTest::newRow("create") << Command([](auto &service, const NodeList &) {
        service.createOverlay(service.getRootNode());
    }) << QStringList({"nodesAdded Text 1", "nodesRemoved Text 1"});
    QTest::newRow("duplicate") << Command([](auto &service, const NodeList &nodes) {
        service.duplicateNodes(nodes);
    }) << QStringList({"nodesAdded a Copy b Copy", "nodesRemoved a Copy", "nodesCreated b Copy"});
    QTest::newRow("group") << Command([](auto &service, const NodeList &nodes) {
        service.groupNodes(nodes);
    }) << QStringList({"nodesAdded Group 1", "nodesRemoved Group 1"});
}

void tst_OverlayService_nodes::shouldNotAnnounceAsCreatedWhatASlotHasDeleted()
{
    QFETCH(Command, command);
    QFETCH(QStringList, signalled);
    open("a b");
    connect(&service(), &kxOverlayService::nodesAdded, this,
            [this](const NodeList &nodes) { service().deleteNodes({nodes.first()}); });
    command(service(), ids("a b"));
    QCOMPARE(signalLines(), signalled);
}

void tst_OverlayService_nodes::shouldCreateNothingWhereNothingCanLie()
{
    open("a");
    const NodeList parents = ids("a 0 ?");
    for (const NodeId parent : parents) {
        QCOMPARE(service().createOverlay(parent), NodeId(0));
        QCOMPARE(service().createGroup(parent), NodeId(0));
        QCOMPARE(service().createSwitch(parent), NodeId(0));
    }
    QCOMPARE(dump(), QString("a"));
    QVERIFY(signalLines().isEmpty());
}

void tst_OverlayService_nodes::shouldCreateDisabledInASwitchThatShowsOne()
{
    open("s{}");
    service().createOverlay(id("s"));
    service().createOverlay(id("s"));
    QCOMPARE(dump(), QString("s{Text 1 Text 2-}"));
    QVERIFY(!signalLines().join(' ').contains("enabledStateChanged"));
}

void tst_OverlayService_nodes::shouldGiveANewTextUsefulValues()
{
    open("");
    const NodeId node = service().createOverlay(id("root"));
    QVERIFY(service().isOverlay(node));
    QVERIFY(service().isActive(node));
    QCOMPARE(service().getOverlayType(node), 0);
    QCOMPARE(service().getText(node), QString("Text"));
    QCOMPARE(service().getFont(node), QString("DejaVu Sans"));
    QCOMPARE(service().getFontColor(node), QColor(Qt::white));
    QCOMPARE(service().getBackgroundColor(node), QColor(Qt::black));
    QCOMPARE(service().getBackgroundTransparency(node), QColor(128, 128, 128));
    QCOMPARE(service().getSizeType(node), 0);
    QCOMPARE(service().getSize(node), 24.0F);
    QCOMPARE(service().getPosition(node), QPointF(0.5, 0.5));
    QCOMPARE(service().getOffset(node), QPointF(0, 0));
}

void tst_OverlayService_nodes::shouldNeverGiveAnIdTwice()
{
    open("a g(b)");
    const NodeId highest = scene().nextId();
    const NodeId created = service().createOverlay(id("root"));
    QCOMPARE(created, highest);
    service().deleteNodes({created});
    QVERIFY(service().createGroup(id("root")) > created);
}

void tst_OverlayService_nodes::shouldIgnoreListsWithoutEffect_data()
{
    QTest::addColumn<QString>("nodes");
    QTest::newRow("empty") << "";
    QTest::newRow("no node") << "0";
    QTest::newRow("unknown") << "? ?";
    QTest::newRow("root") << "root";
}

void tst_OverlayService_nodes::shouldIgnoreListsWithoutEffect()
{
    QFETCH(QString, nodes);
    open("a g(b) s{c d-}");
    const NodeId next = scene().nextId();
    service().duplicateNodes(ids(nodes));
    service().deleteNodes(ids(nodes));
    service().groupNodes(ids(nodes));
    service().moveNodes(ids(nodes), id("g"), 0);
    service().setName(ids(nodes), "x");
    service().setEnabled(ids(nodes), false);
    service().setEnabled(ids(nodes), true);
    QCOMPARE(dump(), QString("a g(b) s{c d-}"));
    QCOMPARE(scene().nextId(), next);
    QVERIFY(signalLines().isEmpty());
    QVERIFY(service().isEnabled(id("root")));
}

void tst_OverlayService_nodes::shouldPostponeWhatASlotAddsInsideAMove()
{
    open("a b g()");
    m_isInsideMove = true;
    connect(&service(), &kxOverlayService::nodesMoved, this, [this] {
        service().createOverlay(id("g"));
        service().setName(ids("b"), "renamed");
    });
    connect(&service(), &kxOverlayService::nodesAdded, this, [this] { QVERIFY(!m_isInsideMove); });
    service().moveNodes(ids("a"), id("g"), 0);
    m_isInsideMove = false;
    QCOMPARE(dump(), QString("renamed g(a Text 1)"));
    QCOMPARE(signalLines(), QStringList("nodesMoved a / g / 0"));
    QTRY_VERIFY(sawSignals());
    QCOMPARE(signalLines(), QStringList({"nodesAdded Text 1", "nodesCreated Text 1",
                                         "nameChanged renamed", "enabledStateChanged a"}));
}

void tst_OverlayService_nodes::shouldAnnounceThePostponedBeforeTheNextOperation_data()
{
    using viewer::OverlayService;
    QTest::addColumn<Command>("command");
    QTest::addColumn<QStringList>("signalled");
    const auto row = [](const char *name, Command command, const QStringList &signalled) {
        QTest::newRow(name) << command << signalled;
    };
    row("create",
        [](OverlayService &service, const NodeList &) {
            service.createGroup(service.getRootNode());
        },
        {"nodesAdded Group 1", "nodesCreated Group 1"});
    row("duplicate",
        [](OverlayService &service, const NodeList &nodes) { service.duplicateNodes(nodes); },
        {"nodesAdded b Copy", "nodesCreated b Copy"});
    row("delete",
        [](OverlayService &service, const NodeList &nodes) { service.deleteNodes(nodes); },
        {"nodesRemoved b"});
    row("group", [](OverlayService &service, const NodeList &nodes) { service.groupNodes(nodes); },
        {"nodesAdded Group 1", "nodesMoved b / Group 1 / 0", "enabledStateChanged b",
         "nodesCreated Group 1"});
    row("move",
        [](OverlayService &service, const NodeList &nodes) {
            service.moveNodes(nodes, service.getRootNode(), -1);
        },
        {"nodesMoved b / root / g", "enabledStateChanged b"});
    row("disable",
        [](OverlayService &service, const NodeList &nodes) { service.setEnabled(nodes, false); },
        {"enabledStateChanged b"});
    row("write",
        [](OverlayService &service, const NodeList &nodes) { service.setText(nodes, "x"); },
        {"textChanged b"});
    row("open", [](OverlayService &service, const NodeList &) { service.setScene(Scene()); },
        {"modelReset"});
}

void tst_OverlayService_nodes::shouldAnnounceThePostponedBeforeTheNextOperation()
{
    QFETCH(Command, command);
    QFETCH(QStringList, signalled);
    open("a b g()");
    auto once = connect(&service(), &kxOverlayService::nodesMoved, this,
                        [this] { service().createOverlay(id("g")); });
    service().moveNodes(ids("a"), id("g"), 0);
    disconnect(once);
    command(service(), ids("b"));
    const QStringList postponed{"nodesMoved a / g / 0", "nodesAdded Text 1", "nodesCreated Text 1",
                                "enabledStateChanged a"};
    QCOMPARE(signalLines(), postponed + signalled);
}

void tst_OverlayService_nodes::shouldResetWithNewIds()
{
    open("a g-(b)");
    const NodeId before = id("b");
    const NodeId next = scene().nextId();
    service().setScene(scenetext::build("c s{d e-}"));
    QCOMPARE(signalLines(), QStringList("modelReset"));
    QCOMPARE(dump(), QString("c s{d e-}"));
    QVERIFY(!scene().find(before));
    QVERIFY(id("c") >= next);
    QCOMPARE(service().getParent(id("d")), id("s"));
    QVERIFY(service().isActive(id("d")));
    service().setEnabled(ids("e"), true);
    QCOMPARE(dump(), QString("c s{d- e}"));
}

void tst_OverlayService_nodes::shouldHandleDeepTrees()
{
    open("");
    NodeId parent = id("root");
    NodeList chain;
    for (int level = 0; level < 10000; ++level)
        chain.append(parent = service().createGroup(parent));
    QVERIFY(service().isActive(parent));
    service().setName(chain, "x");
    service().duplicateNodes(chain);
    QCOMPARE(scene().nodeCount(), 20001);
    service().setEnabled(chain, false);
    QVERIFY(!service().isActive(parent));
    service().moveNodes({chain.at(1)}, id("root"), 0);
    service().deleteNodes(chain);
    QCOMPARE(scene().nodeCount(), 10001);
}

void tst_OverlayService_nodes::shouldKnowTheRowsOfManyChildren()
{
    open("");
    for (int i = 0; i < 50000; ++i)
        service().createOverlay(id("root"));
    const NodeId root = id("root");
    for (int row = 0; row < 50000; ++row)
        QCOMPARE(service().getChildIndex(root, service().getChild(root, row)), row);
    NodeList everySecond;
    for (int row = 0; row < 50000; row += 2)
        everySecond.append(service().getChild(root, row));
    service().moveNodes(everySecond, root, -1);
    service().duplicateNodes(everySecond);
    for (int row = 0; row < 75000; ++row)
        QCOMPARE(service().getChildIndex(root, service().getChild(root, row)), row);
    QCOMPARE(service().getName(service().getChild(root, 0)), QString("Text 2"));
    QCOMPARE(service().getName(service().getChild(root, 50001)), QString("Text 3 Copy"));
}

KX_TEST_MAIN(tst_OverlayService_nodes)
#include "tst_OverlayService_nodes.moc"
