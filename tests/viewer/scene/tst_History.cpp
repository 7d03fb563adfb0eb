// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/viewer/scene/ServiceTest.h"

#include <QTimer>

using QRPC::NodeId;
using QRPC::NodeList;
using namespace viewer;

class tst_History : public ServiceTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldAnnounceWhatUndoAndRedoBringAbout_data();
    void shouldAnnounceWhatUndoAndRedoBringAbout();
    void shouldRecordAStepBeforeItIsAnnounced_data();
    void shouldRecordAStepBeforeItIsAnnounced();
    void shouldBringTheSameNodesBack();
    void shouldNotGiveTheIdOfAnUndoneNodeToAnother();
    void shouldLeaveNoStepWhereNothingChanges();
    void shouldLeaveNoStepWhenAnImageIsReadAnew();
    void shouldMergeOneGesture();
    void shouldMergeAGestureThatMeetsTheValueOfSome();
    void shouldEndAGesture_data();
    void shouldEndAGesture();
    void shouldEndAGestureByAPause();
    void shouldNotMergeOtherNodesOrProperties();
    void shouldDropAGestureThatEndsWhereItBegan();
    void shouldTakeTheTwoCallsOfAToggleForOneStep();
    void shouldKeepSwitchingApartThatIsNoToggle();
    void shouldGroupInOneStep();
    void shouldNotGoOnWithTheStepBeforeOneThatVanished();
    void shouldMarkTheSavedState();
    void shouldForgetTheStepsOfAnotherScene();
    void shouldBearSlotsThatChangeTheSceneDuringUndo();
};

void tst_History::shouldAnnounceWhatUndoAndRedoBringAbout_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<Operate>("operate");
    QTest::addColumn<QString>("after");
    QTest::addColumn<QStringList>("undone");
    QTest::addColumn<QStringList>("redone");
    const auto row = [](const char *name, const QString &before, const Operate &operate,
                        const QString &after, const QStringList &undone,
                        const QStringList &redone) {
        QTest::newRow(name) << before << operate << after << undone << redone;
    };
    row("create", "g(a)", [](auto &s, auto of) { s.createOverlay(of("g").first()); }, "g(a Text 1)",
        {"nodesRemoved Text 1"}, {"nodesAdded Text 1"});
    row("delete", "a g(b h(c)) d", [](auto &s, auto of) { s.deleteNodes(of("g a")); }, "d",
        {"nodesAdded a g"}, {"nodesRemoved a g"});
    row("delete the shown child", "s{a- b c-}", [](auto &s, auto of) { s.deleteNodes(of("b")); },
        "s{a- c-}", {"nodesAdded b"}, {"nodesRemoved b"});
    row("duplicate", "g(a) b", [](auto &s, auto of) { s.duplicateNodes(of("b g")); },
        "g(a) b g Copy(a) b Copy", {"nodesRemoved g Copy b Copy"}, {"nodesAdded g Copy b Copy"});
    row("move", "a b c", [](auto &s, auto of) { s.moveNodes(of("a"), Scene::RootId, 3); }, "b c a",
        {"nodesMoved a / root / 0", "enabledStateChanged a"},
        {"nodesMoved a / root / c", "enabledStateChanged a"});
    row("move from several parents", "g(a b) h-(c d) e",
        [](auto &s, auto of) { s.moveNodes(of("d b"), Scene::RootId, -1); }, "g(a) h-(c) e d b",
        {"nodesMoved b d / g h / a c", "enabledStateChanged b h"},
        {"nodesMoved d b / root root / e d", "enabledStateChanged d b"});
    row("move into a switch", "a s{b} t{c}",
        [](auto &s, auto of) { s.moveNodes(of("a c"), of("s").first(), -1); }, "s{b a- c-} t{}",
        {"nodesMoved a c / root t / 0 0", "enabledStateChanged a c"},
        {"nodesMoved a c / s s / b a", "enabledStateChanged a c"});
    row("group", "a b c", [](auto &s, auto of) { s.groupNodes(of("a c")); }, "Group 1(a c) b",
        {"nodesMoved a c / root root / Group 1 b", "enabledStateChanged a c",
         "nodesRemoved Group 1"},
        {"nodesAdded Group 1", "nodesMoved a c / Group 1 Group 1 / 0 a",
         "enabledStateChanged a c"});
    row("group what a switch shows", "s{a b-}", [](auto &s, auto of) { s.groupNodes(of("a b")); },
        "s{Group 1(a b-)}",
        {"nodesMoved a b / s s / Group 1 a", "enabledStateChanged Group 1 a b",
         "nodesRemoved Group 1"},
        {"nodesAdded Group 1", "nodesMoved a b / Group 1 Group 1 / 0 a",
         "enabledStateChanged Group 1 a b"});
    row("enable in a switch", "s{a b-}", [](auto &s, auto of) { s.setEnabled(of("b"), true); },
        "s{a- b}", {"enabledStateChanged a b"}, {"enabledStateChanged a b"});
    row("rename", "a", [](auto &s, auto of) { s.setName(of("a"), "z"); }, "z", {"nameChanged a"},
        {"nameChanged z"});
    row("type", "a", [](auto &s, auto of) { s.setOverlayType(of("a"), 1); }, "a",
        {"overlayTypeChanged a", "textChanged a", "fontChanged a", "fontColorChanged a",
         "backgroundColorChanged a", "backgroundTransparencyChanged a", "imageChanged a"},
        {"overlayTypeChanged a", "textChanged a", "fontChanged a", "fontColorChanged a",
         "backgroundColorChanged a", "backgroundTransparencyChanged a", "imageChanged a"});
    row("offset", "b a", [](auto &s, auto of) { s.setOffsetX(of("a b"), 3); }, "b a",
        {"offsetChanged b a"}, {"offsetChanged b a"});
}

void tst_History::shouldAnnounceWhatUndoAndRedoBringAbout()
{
    QFETCH(QString, before);
    QFETCH(Operate, operate);
    QFETCH(QString, after);
    QFETCH(QStringList, undone);
    QFETCH(QStringList, redone);
    open(before);
    operate(service(), [this](const char *nodes) { return ids(nodes); });
    QCOMPARE(dump(), after);
    QCOMPARE(stack().count(), 1);
    signalLines();

    service().undo();
    QCOMPARE(dump(), before);
    QCOMPARE(signalLines(), undone);
    service().redo();
    QCOMPARE(dump(), after);
    QCOMPARE(signalLines(), redone);
    service().undo();
    QCOMPARE(dump(), before);
}

void tst_History::shouldRecordAStepBeforeItIsAnnounced_data()
{
    QTest::addColumn<Operate>("operate");
    const auto row = [](const char *name, const Operate &operate) {
        QTest::newRow(name) << operate;
    };
    row("create", [](auto &s, auto of) { s.createOverlay(of("g").first()); });
    row("duplicate", [](auto &s, auto of) { s.duplicateNodes(of("g")); });
    row("delete", [](auto &s, auto of) { s.deleteNodes(of("g")); });
    row("move", [](auto &s, auto of) { s.moveNodes(of("b"), of("g").first(), 0); });
    row("rename", [](auto &s, auto of) { s.setName(of("b"), "z"); });
    row("disable", [](auto &s, auto of) { s.setEnabled(of("b"), false); });
}

/// A slot that changes the scene in turn leaves a later step.
void tst_History::shouldRecordAStepBeforeItIsAnnounced()
{
    QFETCH(Operate, operate);
    open("g(a) b");
    QVector<int> counts;
    const auto note = [this, &counts] { counts.append(stack().count()); };
    connect(&service(), &kxOverlayService::nodesAdded, this, note);
    connect(&service(), &kxOverlayService::nodesCreated, this, note);
    connect(&service(), &kxOverlayService::nodesRemoved, this, note);
    connect(&service(), &kxOverlayService::nodesMoved, this, note);
    connect(&service(), &kxOverlayService::nameChanged, this, note);
    connect(&service(), &kxOverlayService::enabledStateChanged, this, note);
    operate(service(), [this](const char *names) { return ids(names); });
    QVERIFY(!counts.isEmpty());
    QCOMPARE(counts, QVector<int>(counts.size(), 1));
}

void tst_History::shouldBringTheSameNodesBack()
{
    open("g(a b(c)) d");
    const NodeList before = ids("g a b c");
    service().setText(ids("c"), "kept");
    service().deleteNodes(ids("g"));
    service().undo();
    QCOMPARE(ids("g a b c"), before);
    QCOMPARE(service().getText(id("c")), QString("kept"));
}

void tst_History::shouldNotGiveTheIdOfAnUndoneNodeToAnother()
{
    open("a");
    const NodeId first = service().createOverlay(Scene::RootId);
    service().undo();
    QVERIFY(service().createOverlay(Scene::RootId) > first);
}

void tst_History::shouldLeaveNoStepWhereNothingChanges()
{
    open("a s{b c-}");
    service().setName(ids("a"), "a");
    service().setEnabled(ids("b"), true);
    service().setOffset(ids("a"), QPointF());
    service().moveNodes(ids("?"), Scene::RootId, 0);
    service().deleteNodes({});
    service().duplicateNodes({});
    service().groupNodes({});
    service().undo();
    service().redo();
    QCOMPARE(stack().count(), 0);
    QVERIFY(!sawSignals());
}

void tst_History::shouldLeaveNoStepWhenAnImageIsReadAnew()
{
    open("a b");
    service().setImage(ids("a"), "/picture.png");
    service().setImage(ids("a"), "/picture.png");
    QCOMPARE(stack().count(), 1);
    QCOMPARE(signalLines().count("imageChanged a"), 2);
}

void tst_History::shouldMergeOneGesture()
{
    open("a b");
    for (const char *text : {"T", "Ti", "Title"})
        service().setText(ids("a b"), text);
    QCOMPARE(stepNames(), QStringList("Set text of 2 overlays"));
    service().undo();
    QCOMPARE(service().getText(id("a")), QString());
    service().redo();
    QCOMPARE(service().getText(id("b")), QString("Title"));
}

/// Where nothing changes for some of the nodes, they are part of the gesture all the same.
void tst_History::shouldMergeAGestureThatMeetsTheValueOfSome()
{
    open("a b");
    service().setText(ids("b"), "T");
    for (const char *text : {"T", "Ti", "T"})
        service().setText(ids("a b"), text);
    QCOMPARE(stepNames(), QStringList({"Set text of \"b\"", "Set text of 2 overlays"}));
    service().undo();
    QCOMPARE(service().getText(id("a")), QString());
    QCOMPARE(service().getText(id("b")), QString("T"));
    service().redo();
    QCOMPARE(service().getText(id("a")), QString("T"));
}

void tst_History::shouldEndAGesture_data()
{
    QTest::addColumn<Operate>("end");
    QTest::newRow("the host says so") << Operate([](auto &s, auto) { s.history().endGesture(); });
    QTest::newRow("saving") << Operate([](auto &s, auto) { s.history().setSaved(); });
    QTest::newRow("undo and redo") << Operate([](auto &s, auto) {
        s.undo();
        s.redo();
    });
}

void tst_History::shouldEndAGesture()
{
    QFETCH(Operate, end);
    open("a");
    service().setSize(ids("a"), 10);
    end(service(), [this](const char *nodes) { return ids(nodes); });
    service().setSize(ids("a"), 11);
    QCOMPARE(stack().count(), 2);
    service().undo();
    QCOMPARE(service().getSize(id("a")), 10.0F);
}

void tst_History::shouldEndAGestureByAPause()
{
    OverlayService services[3]; // one pause does for all
    OverlayService &free = services[0];
    OverlayService &held = services[1];
    OverlayService &typed = services[2];
    const QRPC::NodeList node{free.createOverlay(Scene::RootId)};
    QCOMPARE(held.createOverlay(Scene::RootId), node.first());
    QCOMPARE(typed.createOverlay(Scene::RootId), node.first());
    held.history().setHeld(true);
    QElapsedTimer pause;
    pause.start();
    for (const float size : {10.0F, 11.0F}) {
        QVERIFY(QTest::qWaitFor([&] { return size < 11.0F || pause.hasExpired(2000); }));
        free.setSize(node, size);
        held.setSize(node, size);
        typed.setText(node, QString::number(size));
        pause.start();
    }
    QCOMPARE(free.history().stack()->count(), 1 + 2);
    QCOMPARE(held.history().stack()->count(), 1 + 1);
    QCOMPARE(typed.history().stack()->count(), 1 + 1);
}

void tst_History::shouldNotMergeOtherNodesOrProperties()
{
    open("a b");
    service().setSize(ids("a"), 10);
    service().setSize(ids("b"), 10);
    service().setOffsetX(ids("b"), 10);
    service().setOffsetY(ids("b"), 10);
    service().setName(ids("b"), "x");
    service().setName(ids("x"), "y");
    QCOMPARE(stack().count(), 6);
}

void tst_History::shouldDropAGestureThatEndsWhereItBegan()
{
    open("a b");
    service().setSize(ids("b"), 10);
    const float before = service().getSize(id("a"));
    service().setSize(ids("a"), 10);
    service().setSize(ids("a"), before);
    QCOMPARE(stepNames(), QStringList("Set size of \"b\""));
    service().undo();
    QCOMPARE(service().getSize(id("b")), before);
}

void tst_History::shouldTakeTheTwoCallsOfAToggleForOneStep()
{
    open("a b- c");
    service().setEnabled(ids("a"), false);
    service().setEnabled(ids("b"), true);
    QCOMPARE(stack().count(), 1);
    service().undo();
    QCOMPARE(dump(), QString("a b- c"));
}

void tst_History::shouldKeepSwitchingApartThatIsNoToggle()
{
    open("a b- c");
    service().setEnabled(ids("a"), false);
    service().setEnabled(ids("a"), true);
    QCOMPARE(stack().count(), 2);
    service().setName(ids("c"), "c2");
    service().setEnabled(ids("c2"), false);
    bool turned = false;
    QTimer::singleShot(0, &service(), [&turned] { turned = true; });
    QTRY_VERIFY(turned);
    service().setEnabled(ids("b"), true);
    QCOMPARE(stepNames().mid(3), QStringList({"Switch off \"c2\"", "Switch on \"b\""}));
}

void tst_History::shouldGroupInOneStep()
{
    open("a b c");
    service().groupNodes(ids("a c"));
    QCOMPARE(stack().count(), 1);
}

void tst_History::shouldNotGoOnWithTheStepBeforeOneThatVanished()
{
    open("a");
    service().setSize(ids("a"), 10);
    service().history().endGesture();
    service().setSize(ids("a"), 11);
    service().setSize(ids("a"), 10);
    QCOMPARE(stack().count(), 1);
    service().setSize(ids("a"), 12);
    QCOMPARE(stack().count(), 2);
}

void tst_History::shouldMarkTheSavedState()
{
    open("a");
    QVERIFY(stack().isClean());
    service().setSize(ids("a"), 1);
    QVERIFY(!stack().isClean());
    service().history().setSaved();
    QVERIFY(stack().isClean());
    service().undo();
    QVERIFY(!stack().isClean());
    service().redo();
    QVERIFY(stack().isClean());
    service().history().setUnsaved();
    service().undo();
    service().redo();
    QVERIFY(!stack().isClean());
}

void tst_History::shouldForgetTheStepsOfAnotherScene()
{
    open("a");
    service().setSize(ids("a"), 1);
    service().history().setUnsaved();
    service().setScene(scenetext::build("b"));
    QCOMPARE(stack().count(), 0);
    QVERIFY(stack().isClean());
}

void tst_History::shouldBearSlotsThatChangeTheSceneDuringUndo()
{
    open("g(a) b c");
    service().deleteNodes(ids("b"));
    service().groupNodes(ids("c"));
    service().undo();
    const auto connection =
        connect(&service(), &kxOverlayService::nodesAdded, this, [this](const NodeList &nodes) {
            if (nodes.size() == 1 && service().getName(nodes.first()) == "Group 1")
                service().deleteNodes(ids("c g"));
        });
    service().redo();
    disconnect(connection);
    const QString changed = dump();
    while (stack().canUndo())
        service().undo();
    QCOMPARE(dump(), QString("g(a) b c"));
    while (stack().canRedo())
        service().redo();
    QCOMPARE(dump(), changed);
}

KX_TEST_MAIN(tst_History)
#include "tst_History.moc"
