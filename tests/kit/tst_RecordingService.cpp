// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/kxKernelServiceFactory.h"
#include "kit/HostFixture.h"
#include "kit/RecordingService.h"
#include "tests/support/KxTest.h"

namespace {

/// The tree as the notation writes it, without states.
QString shape(const RecordingService &service, QRPC::NodeId top = RecordingService::rootId)
{
    QStringList rows;
    for (const RecordingService::Node *child : qAsConst(service.node(top).children)) {
        QString row = child->name + (child->enabled ? QString() : QStringLiteral("-"));
        if (child->kind != notation::Kind::Overlay)
            row += QLatin1Char('(') + shape(service, child->id) + QLatin1Char(')');
        rows.append(row);
    }
    return rows.join(QLatin1Char(' '));
}

} // namespace

class tst_RecordingService : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void cleanup() override;
    void shouldReadATreeFromOneLine();
    void shouldLogCallsWithTheirArguments();
    void shouldCountCallsWithoutKeepingLines();
    void shouldAnswerUnknownIdsNeutrally();
    void shouldMoveInSourceRowOrderBeforeTheAnchor_data();
    void shouldMoveInSourceRowOrderBeforeTheAnchor();
    void shouldAnnounceAMoveWithParentsAndAfters();
    void shouldShowAtMostOneChildOfASwitch();
    void shouldAnnounceEveryNodeWhoseFlagChanged();
    void shouldAnnounceAGroupBeforeItsMembersMove();
    void shouldChangeNothingForAnUnchangedValue();
    void shouldRecordOnlyWhenNotApplying();
    void shouldFillTheRegistryAndEmptyItAgain();

private:
    QStringList m_signals;
    std::unique_ptr<CallLog> m_log;
    std::unique_ptr<RecordingService> m_service;
};

void tst_RecordingService::init()
{
    KxTest::init();
    m_signals.clear();
    m_log = std::make_unique<CallLog>();
    m_service = std::make_unique<RecordingService>(m_log.get());
    const auto collect = [this](const char *name) {
        return [this, name](const QRPC::NodeList &nodes) {
            QStringList ids;
            for (const QRPC::NodeId id : nodes)
                ids.append(QString::number(id));
            m_signals.append(QLatin1String(name) + QLatin1Char(' ') + ids.join(QLatin1Char(',')));
        };
    };
    connect(m_service.get(), &kxOverlayService::nodesAdded, this, collect("added"));
    connect(m_service.get(), &kxOverlayService::nodesCreated, this, collect("created"));
    connect(m_service.get(), &kxOverlayService::nodesRemoved, this, collect("removed"));
    connect(m_service.get(), &kxOverlayService::nameChanged, this, collect("name"));
    connect(m_service.get(), &kxOverlayService::enabledStateChanged, this, collect("enabled"));
    connect(m_service.get(), &kxOverlayService::nodesMoved, this,
            [collect](const QRPC::NodeList &nodes, const QRPC::NodeList &parents,
                      const QRPC::NodeList &afters) {
                collect("moved")(nodes);
                collect("under")(parents);
                collect("after")(afters);
            });
}

void tst_RecordingService::cleanup()
{
    m_service.reset();
    m_log.reset();
    KxTest::cleanup();
}

void tst_RecordingService::shouldReadATreeFromOneLine()
{
    m_service->build(QStringLiteral("g2(a3 b4-) s5*(c6 d7-) e"));
    QCOMPARE(shape(*m_service), QStringLiteral("g2(a3 b4-) s5(c6 d7-) e"));
    QCOMPARE(m_service->node(5).kind, notation::Kind::Switch);
    QCOMPARE(m_service->node(8).name, QStringLiteral("e"));
    QCOMPARE(m_service->lineOf(5), QStringLiteral("s5*(c6 d7-)"));
    QCOMPARE(m_service->allIds(), (QRPC::NodeList{2, 3, 4, 5, 6, 7, 8}));
    QCOMPARE(m_log->lines(), QStringList());
}

void tst_RecordingService::shouldLogCallsWithTheirArguments()
{
    m_service->build(QStringLiteral("g2(a3)"));
    m_service->getParent(3);
    m_service->getChild(2, 0);
    m_service->setName({3}, QStringLiteral("x"));
    m_service->setSize({3}, 0.5F);
    m_service->setFontColor({3}, QColor(1, 2, 3));
    m_service->setPosition({3}, QPointF(0.5, 1.0));
    m_service->moveNodes({3}, 1, -1);
    m_service->deleteNodes({});
    QCOMPARE(m_log->take(),
             (QStringList{QStringLiteral("getParent 3"), QStringLiteral("getChild 2 0"),
                          QStringLiteral("setName [3] \"x\""), QStringLiteral("setSize [3] 0.5"),
                          QStringLiteral("setFontColor [3] #ff010203"),
                          QStringLiteral("setPosition [3] (0.5,1)"),
                          QStringLiteral("moveNodes [3] 1 -1"), QStringLiteral("deleteNodes []")}));
    QCOMPARE(m_log->lines(), QStringList());
}

void tst_RecordingService::shouldCountCallsWithoutKeepingLines()
{
    m_log->setKeepsLines(false);
    m_service->getParent(3);
    m_service->getParent(4);
    m_service->getName(4);
    QCOMPARE(m_log->count(QStringLiteral("getParent")), 2);
    QCOMPARE(m_log->total(), 3);
    QCOMPARE(m_log->lines(), QStringList());
}

void tst_RecordingService::shouldAnswerUnknownIdsNeutrally()
{
    QCOMPARE(m_service->getParent(99), 0u);
    QCOMPARE(m_service->getChildCount(99), 0);
    QCOMPARE(m_service->getChild(99, 0), 0u);
    QCOMPARE(m_service->getChildIndex(99, 1), -1);
    QVERIFY(!m_service->isOverlay(99));
    QVERIFY(!m_service->isActive(0));
    QCOMPARE(m_service->getName(99), QString());
    m_service->setEnabled({99, 0}, true);
    m_service->moveNodes({99}, 1, 0);
    QCOMPARE(m_signals, QStringList());
}

void tst_RecordingService::shouldMoveInSourceRowOrderBeforeTheAnchor_data()
{
    QTest::addColumn<QRPC::NodeList>("nodes");
    QTest::addColumn<QRPC::NodeId>("target");
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("after");
    const auto add = [](const char *title, const QRPC::NodeList &nodes, QRPC::NodeId target,
                        int row, const char *after) {
        QTest::newRow(title) << nodes << target << row << QString::fromLatin1(after);
    };
    add("up", {5}, 1, 0, "c5 g2(a3 b4) h6(d7) e8");
    add("down before its next sibling changes nothing", {2}, 1, 1, "g2(a3 b4) c5 h6(d7) e8");
    add("to the end", {2}, 1, -1, "c5 h6(d7) e8 g2(a3 b4)");
    add("beyond the end", {2}, 1, 77, "c5 h6(d7) e8 g2(a3 b4)");
    add("list order does not count", {8, 5}, 1, 0, "c5 e8 g2(a3 b4) h6(d7)");
    add("same source rows keep the list's order", {7, 3}, 1, 0, "d7 a3 g2(b4) c5 h6() e8");
    add("a child of a moved node travels inside", {2, 3}, 6, -1, "c5 h6(d7 g2(a3 b4)) e8");
    add("not into itself", {2}, 2, 0, "g2(a3 b4) c5 h6(d7) e8");
    add("not into an overlay", {2}, 5, 0, "g2(a3 b4) c5 h6(d7) e8");
}

void tst_RecordingService::shouldMoveInSourceRowOrderBeforeTheAnchor()
{
    QFETCH(QRPC::NodeList, nodes);
    QFETCH(QRPC::NodeId, target);
    QFETCH(int, row);
    QFETCH(QString, after);
    m_service->build(QStringLiteral("g2(a3 b4) c5 h6(d7) e8"));
    m_service->moveNodes(nodes, target, row);
    QCOMPARE(shape(*m_service), after);
}

void tst_RecordingService::shouldAnnounceAMoveWithParentsAndAfters()
{
    m_service->build(QStringLiteral("g2-(a3) b4 c5"));
    m_service->moveNodes({5, 4}, 2, 1);
    QCOMPARE(m_signals, (QStringList{QStringLiteral("moved 4,5"), QStringLiteral("under 2,2"),
                                     QStringLiteral("after 3,4"), QStringLiteral("enabled 2")}));
}

void tst_RecordingService::shouldShowAtMostOneChildOfASwitch()
{
    m_service->build(QStringLiteral("s2*(a3 b4-) c5"));
    m_service->setEnabled({4}, true);
    QCOMPARE(shape(*m_service), QStringLiteral("s2(a3- b4) c5"));
    m_service->moveNodes({5}, 2, 0);
    QCOMPARE(shape(*m_service), QStringLiteral("s2(c5- a3- b4)"));
    m_service->createOverlay(2);
    QCOMPARE(shape(*m_service), QStringLiteral("s2(c5- a3- b4 n6-)"));
    m_service->setEnabled({3, 5}, true);
    QCOMPARE(shape(*m_service), QStringLiteral("s2(c5 a3- b4- n6-)"));
}

void tst_RecordingService::shouldAnnounceEveryNodeWhoseFlagChanged()
{
    m_service->build(QStringLiteral("s2*(a3 b4-) c5"));
    m_service->setEnabled({4, 5}, true);
    QCOMPARE(m_signals, QStringList(QStringLiteral("enabled 3,4")));
}

void tst_RecordingService::shouldAnnounceAGroupBeforeItsMembersMove()
{
    m_service->build(QStringLiteral("a2 b3 c4"));
    m_service->groupNodes({4, 2});
    QCOMPARE(shape(*m_service), QStringLiteral("n5(a2 c4) b3"));
    QCOMPARE(m_signals.first(), QStringLiteral("added 5"));
    QCOMPARE(m_signals.at(1), QStringLiteral("moved 2,4"));
    QCOMPARE(m_signals.last(), QStringLiteral("created 5"));
}

void tst_RecordingService::shouldChangeNothingForAnUnchangedValue()
{
    m_service->build(QStringLiteral("a2"));
    m_service->setName({2}, QStringLiteral("a2"));
    m_service->setEnabled({2}, true);
    m_service->deleteNodes({});
    QCOMPARE(m_signals, QStringList());
}

void tst_RecordingService::shouldRecordOnlyWhenNotApplying()
{
    m_service->build(QStringLiteral("a2"));
    m_service->setApplies(false);
    m_service->deleteNodes({2});
    m_service->setName({2}, QStringLiteral("b"));
    QCOMPARE(shape(*m_service), QStringLiteral("a2"));
    QCOMPARE(m_signals, QStringList());
    QCOMPARE(m_log->total(), 2);
}

void tst_RecordingService::shouldFillTheRegistryAndEmptyItAgain()
{
    auto *registry = kxKernelServiceFactory::the();
    {
        HostFixture host;
        QCOMPARE(registry->getService<kxOverlayService>(), &host.service());
        QVERIFY(registry->getService<kxBaseService>());
        QVERIFY(!registry->getService<kxControllerService>()->isHeadless());
        host.scaleX = 1.5;
        QCOMPARE(registry->getService<kxPlatformService>()->getScaleFactorX(), 1.5);
        host.throwAt(QStringLiteral("platform.getIconWidth"));
        QVERIFY_EXCEPTION_THROWN(registry->getService<kxPlatformService>()->getIconWidth(),
                                 std::runtime_error);
    }
    QCOMPARE(registry->getService<kxOverlayService>(), nullptr);
}

KX_TEST_MAIN(tst_RecordingService)
#include "tst_RecordingService.moc"
