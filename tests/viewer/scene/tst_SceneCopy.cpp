// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/scene/SceneCopy.h"

#include "tests/viewer/scene/ServiceTest.h"

using QRPC::NodeId;
using QRPC::NodeList;

class tst_SceneCopy : public ServiceTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldExtractInTreeOrder_data();
    void shouldExtractInTreeOrder();
    void shouldInsert_data();
    void shouldInsert();
    void shouldGiveNewIdsAndKeepAllElse();
    void shouldMakeOneStep();
    void shouldCountOnFromInsertedNames();
    void shouldNotCallCreatedWhatAListenerHasDeleted();
};

void tst_SceneCopy::shouldExtractInTreeOrder_data()
{
    QTest::addColumn<QString>("nodes");
    QTest::addColumn<QString>("extract");
    QTest::newRow("nothing") << ""
                             << "";
    QTest::newRow("one") << "a"
                         << "a";
    QTest::newRow("backwards") << "s a"
                               << "a s{d- e}";
    QTest::newRow("inside a group") << "c"
                                    << "c";
    QTest::newRow("a child travels with its group") << "c g h"
                                                    << "g-(c h(i-))";
    QTest::newRow("from several parents") << "e h a"
                                          << "a h(i-) e";
    QTest::newRow("unknown, root and twice") << "? root a a 0"
                                             << "a";
}

void tst_SceneCopy::shouldExtractInTreeOrder()
{
    QFETCH(QString, nodes);
    QFETCH(QString, extract);
    open("a b g-(c h(i-)) s{d- e}");
    QCOMPARE(scenetext::dump(viewer::extract(scene(), ids(nodes))), extract);
    QCOMPARE(dump(), QString("a b g-(c h(i-)) s{d- e}"));
}

void tst_SceneCopy::shouldInsert_data()
{
    QTest::addColumn<QString>("inserted");
    QTest::addColumn<QString>("parent");
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("after");
    QTest::addColumn<QString>("tops");
    QTest::newRow("at the beginning") << "x y"
                                      << "root" << 0 << "x y a g(b) s{c d-} t{e-}"
                                      << "x y";
    QTest::newRow("between") << "x"
                             << "root" << 1 << "a x g(b) s{c d-} t{e-}"
                             << "x";
    QTest::newRow("at the end") << "x(y z-)"
                                << "root" << -1 << "a g(b) s{c d-} t{e-} x(y z-)"
                                << "x";
    QTest::newRow("beyond the end") << "x"
                                    << "g" << 9 << "a g(b x) s{c d-} t{e-}"
                                    << "x";
    QTest::newRow("where a switch shows another") << "x y-"
                                                  << "s" << 0 << "a g(b) s{x- y- c d-} t{e-}"
                                                  << "x y";
    QTest::newRow("where a switch shows none") << "x y"
                                               << "t" << -1 << "a g(b) s{c d-} t{e- x y-}"
                                               << "x y";
    QTest::newRow("into an overlay") << "x"
                                     << "a" << 0 << "a g(b) s{c d-} t{e-}"
                                     << "";
    QTest::newRow("into nothing") << "x"
                                  << "?" << 0 << "a g(b) s{c d-} t{e-}"
                                  << "";
    QTest::newRow("nothing") << ""
                             << "root" << 0 << "a g(b) s{c d-} t{e-}"
                             << "";
}

void tst_SceneCopy::shouldInsert()
{
    QFETCH(QString, inserted);
    QFETCH(QString, parent);
    QFETCH(int, row);
    QFETCH(QString, after);
    QFETCH(QString, tops);
    open("a g(b) s{c d-} t{e-}");
    const NodeList added =
        service().insertScene(scenetext::build(inserted), ids(parent).value(0), row);
    QCOMPARE(dump(), after);
    QCOMPARE(added, ids(tops));
    QCOMPARE(signalLines(), tops.isEmpty()
                                ? QStringList()
                                : QStringList({"nodesAdded " + tops, "nodesCreated " + tops}));
    QCOMPARE(service().history().stack()->count(), tops.isEmpty() ? 0 : 1);
}

void tst_SceneCopy::shouldGiveNewIdsAndKeepAllElse()
{
    open("g(a)");
    service().setText(ids("a"), "one");
    service().setName(ids("a"), "the same name");
    const viewer::Scene copy = viewer::extract(scene(), ids("g"));
    const NodeList added = service().insertScene(copy, id("root"), -1);
    QCOMPARE(added.size(), 1);
    const NodeId twin = service().getChild(added.first(), 0);
    QCOMPARE(service().getName(twin), QString("the same name"));
    QCOMPARE(service().getText(twin), QString("one"));
    service().setText({twin}, "two");
    QCOMPARE(service().getText(service().getChild(id("g"), 0)), QString("one"));
}

void tst_SceneCopy::shouldMakeOneStep()
{
    open("a");
    service().insertScene(scenetext::build("x(y) z"), id("root"), 0);
    QCOMPARE(service().history().stack()->undoText(), QString("Paste 2 items"));
    signalLines();
    const NodeList pasted = ids("x y z");
    service().undo();
    QCOMPARE(dump(), QString("a"));
    QCOMPARE(signalLines(), QStringList("nodesRemoved x z"));
    service().redo();
    QCOMPARE(dump(), QString("x(y) z a"));
    QCOMPARE(ids("x y z"), pasted);
    QCOMPARE(signalLines(), QStringList("nodesAdded x z"));
    service().undo();
    service().insertScene(scenetext::build("x"), id("root"), 0);
    QCOMPARE(service().history().stack()->undoText(), QString("Paste \"x\""));
}

void tst_SceneCopy::shouldCountOnFromInsertedNames()
{
    open("a");
    viewer::OverlayService other;
    for (int i = 0; i < 3; ++i)
        other.createGroup(other.createGroup(other.getRootNode()));
    service().insertScene(other.scene(), id("root"), -1);
    QCOMPARE(service().getName(service().createGroup(id("root"))), QString("Group 7"));
}

void tst_SceneCopy::shouldNotCallCreatedWhatAListenerHasDeleted()
{
    open("a");
    const auto deleting =
        connect(&service(), &kxOverlayService::nodesAdded, this,
                [this](const NodeList &nodes) { service().deleteNodes({nodes[0]}); });
    service().insertScene(scenetext::build("x y"), id("root"), -1);
    disconnect(deleting);
    QCOMPARE(dump(), QString("a y"));
    QCOMPARE(signalLines().constLast(), QString("nodesCreated y"));
}

KX_TEST_MAIN(tst_SceneCopy)
#include "tst_SceneCopy.moc"
