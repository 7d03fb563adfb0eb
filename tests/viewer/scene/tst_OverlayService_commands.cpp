// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/viewer/scene/ServiceTest.h"

using QRPC::NodeId;
using QRPC::NodeList;

class tst_OverlayService_commands : public ServiceTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldDuplicateBehindTheOriginals_data();
    void shouldDuplicateBehindTheOriginals();
    void shouldCopyValuesAndKeepTheOriginalApart();
    void shouldNameTheCopyOfANamelessNode();
    void shouldDelete_data();
    void shouldDelete();
    void shouldGroup_data();
    void shouldGroup();
    void shouldStopGroupingWhenTheGroupIsDeletedMeanwhile();
};

void tst_OverlayService_commands::shouldDuplicateBehindTheOriginals_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("nodes");
    QTest::addColumn<QString>("after");
    QTest::addColumn<QString>("copies");
    QTest::newRow("one") << "a b"
                         << "a"
                         << "a a Copy b"
                         << "a Copy";
    QTest::newRow("several, listed backwards") << "a b c"
                                               << "c a"
                                               << "a a Copy b c c Copy"
                                               << "a Copy|c Copy";
    QTest::newRow("neighbours, listed backwards") << "a b c d e"
                                                  << "b e a d"
                                                  << "a b a Copy b Copy c d e d Copy e Copy"
                                                  << "a Copy|b Copy|d Copy|e Copy";
    QTest::newRow("with content") << "g(a h-(b)) c"
                                  << "g"
                                  << "g(a h-(b)) g Copy(a h-(b)) c"
                                  << "g Copy";
    QTest::newRow("a child travels with its group") << "g(a b)"
                                                    << "a g b"
                                                    << "g(a b) g Copy(a b)"
                                                    << "g Copy";
    QTest::newRow("several parents, in the order of the tree") << "g(a h(b)) c"
                                                               << "c b a"
                                                               << "g(a a Copy h(b b Copy)) c c Copy"
                                                               << "a Copy|b Copy|c Copy";
    QTest::newRow("the shown child of a switch") << "s{a b-}"
                                                 << "b a"
                                                 << "s{a b- a Copy- b Copy-}"
                                                 << "a Copy|b Copy";
    QTest::newRow("a switch") << "s{a- b}"
                              << "s"
                              << "s{a- b} s Copy{a- b}"
                              << "s Copy";
    QTest::newRow("disabled") << "a-"
                              << "a"
                              << "a- a Copy-"
                              << "a Copy";
    QTest::newRow("repeated, unknown, root") << "a"
                                             << "a root ? 0 a"
                                             << "a a Copy"
                                             << "a Copy";
}

void tst_OverlayService_commands::shouldDuplicateBehindTheOriginals()
{
    QFETCH(QString, before);
    QFETCH(QString, nodes);
    QFETCH(QString, after);
    QFETCH(QString, copies);
    open(before);
    service().duplicateNodes(ids(nodes));
    QCOMPARE(dump(), after);
    copies.replace('|', ' ');
    QCOMPARE(signalLines(), QStringList({"nodesAdded " + copies, "nodesCreated " + copies}));
}

void tst_OverlayService_commands::shouldCopyValuesAndKeepTheOriginalApart()
{
    open("g(a)");
    service().setText(ids("a"), "one");
    service().setSize(ids("a"), 7.5F);
    service().duplicateNodes(ids("g"));
    const NodeId copy = service().getChild(service().getChild(id("root"), 1), 0);
    QCOMPARE(service().getText(copy), QString("one"));
    QCOMPARE(service().getSize(copy), 7.5F);
    service().setText({copy}, "two");
    QCOMPARE(service().getText(service().getChild(id("g"), 0)), QString("one"));
}

void tst_OverlayService_commands::shouldNameTheCopyOfANamelessNode()
{
    open("a");
    service().setName(ids("a"), QString());
    service().duplicateNodes({service().getChild(id("root"), 0)});
    QCOMPARE(service().getName(service().getChild(id("root"), 1)), QString("Copy"));
}

void tst_OverlayService_commands::shouldDelete_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("nodes");
    QTest::addColumn<QString>("after");
    QTest::addColumn<QString>("removed");
    QTest::newRow("one") << "a b c"
                         << "b"
                         << "a c"
                         << "b";
    QTest::newRow("all, backwards") << "a b"
                                    << "b a"
                                    << ""
                                    << "a b";
    QTest::newRow("group with its child") << "g(a) b"
                                          << "a g"
                                          << "b"
                                          << "g";
    QTest::newRow("several parents") << "g(a b) h(c)"
                                     << "c a"
                                     << "g(b) h()"
                                     << "a c";
    QTest::newRow("shown child of a switch") << "s{a b-}"
                                             << "a"
                                             << "s{b-}"
                                             << "a";
    QTest::newRow("never the root") << "a b"
                                    << "root 0 ? a a"
                                    << "b"
                                    << "a";
}

void tst_OverlayService_commands::shouldDelete()
{
    QFETCH(QString, before);
    QFETCH(QString, nodes);
    QFETCH(QString, after);
    QFETCH(QString, removed);
    open(before);
    const int count = scene().nodeCount();
    service().deleteNodes(ids(nodes));
    QCOMPARE(dump(), after);
    QVERIFY(scene().nodeCount() < count);
    QCOMPARE(signalLines(), QStringList("nodesRemoved " + removed));
    service().createOverlay(id("root"));
    QVERIFY(service().isActive(service().getChild(id("root"), 0)));
}

void tst_OverlayService_commands::shouldGroup_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("nodes");
    QTest::addColumn<QString>("after");
    QTest::addColumn<QStringList>("moved");
    QTest::newRow("one") << "a b c"
                         << "b"
                         << "a Group 1(b) c"
                         << QStringList{"nodesMoved b / Group 1 / 0", "enabledStateChanged b"};
    QTest::newRow("in rows' order at the topmost")
        << "a b c d"
        << "d b"
        << "a Group 1(b d) c"
        << QStringList{"nodesMoved b d / Group 1 Group 1 / 0 b", "enabledStateChanged b d"};
    QTest::newRow("from several parents")
        << "a g(b c)"
        << "c a"
        << "Group 1(a c) g(b)"
        << QStringList{"nodesMoved a c / Group 1 Group 1 / 0 a", "enabledStateChanged a c"};
    QTest::newRow("group with its child")
        << "g(a) b"
        << "a g"
        << "Group 1(g(a)) b" << QStringList{"nodesMoved g / Group 1 / 0", "enabledStateChanged g"};
    QTest::newRow("inside a disabled group")
        << "g-(a b)"
        << "a b"
        << "g-(Group 1(a b))"
        << QStringList{"nodesMoved a b / Group 1 Group 1 / 0 a", "enabledStateChanged g"};
    QTest::newRow("hidden children of a switch")
        << "s{a b- c-}"
        << "b c"
        << "s{a Group 1-(b- c-)}"
        << QStringList{"nodesMoved b c / Group 1 Group 1 / 0 b", "enabledStateChanged Group 1"};
    QTest::newRow("the shown child of a switch")
        << "s{a- b c-}"
        << "b c"
        << "s{a- Group 1(b c-)}"
        << QStringList{"nodesMoved b c / Group 1 Group 1 / 0 b", "enabledStateChanged Group 1 b c"};
    QTest::newRow("unknown and repeated")
        << "a b"
        << "? 0 root b b"
        << "a Group 1(b)" << QStringList{"nodesMoved b / Group 1 / 0", "enabledStateChanged b"};
}

void tst_OverlayService_commands::shouldGroup()
{
    QFETCH(QString, before);
    QFETCH(QString, nodes);
    QFETCH(QString, after);
    QFETCH(QStringList, moved);
    open(before);
    service().groupNodes(ids(nodes));
    QCOMPARE(dump(), after);
    QCOMPARE(signalLines(),
             QStringList("nodesAdded Group 1") + moved + QStringList("nodesCreated Group 1"));
}

void tst_OverlayService_commands::shouldStopGroupingWhenTheGroupIsDeletedMeanwhile()
{
    open("a b");
    connect(&service(), &kxOverlayService::nodesAdded, this,
            [this](const NodeList &nodes) { service().deleteNodes(nodes); });
    service().groupNodes(ids("a b"));
    QCOMPARE(dump(), QString("a b"));
}

KX_TEST_MAIN(tst_OverlayService_commands)
#include "tst_OverlayService_commands.moc"
