// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/kxKernelServiceFactory.h"
#include "kit/editorSlots.h"
#include "kit/output.h"
#include "tests/overlayeditor/EditorTest.h"
#include "tests/support/Seeds.h"

#include <QAbstractItemModelTester>
#include <QMetaMethod>
#include <QMimeData>

#include <thread>

namespace {

const auto s_scene = QStringLiteral("g2(a3 h4(b5 c6-)) s7(d8 e9-) f10");

/// The service's signals that name nodes, without nodesMoved, which names places too.
QVector<QMetaMethod> signalsWithNodes()
{
    const QMetaObject &type = kxOverlayService::staticMetaObject;
    QVector<QMetaMethod> found;
    for (int i = type.methodOffset(); i < type.methodCount(); ++i) {
        const QMetaMethod method = type.method(i);
        if (method.methodType() == QMetaMethod::Signal && method.parameterCount() == 1)
            found.append(method);
    }
    return found;
}

void announce(RecordingService *service, const QMetaMethod &signal, const QRPC::NodeList &nodes)
{
    signal.invoke(service, Qt::DirectConnection, Q_ARG(QRPC::NodeList, nodes));
}

} // namespace

/// A host that announces what is not so, or is no longer there.
class tst_kxOverlayEditor_strangeHost : public EditorTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldIgnoreIdsThatAreNone_data();
    void shouldIgnoreIdsThatAreNone();
    void shouldBearRepeatedIds_data();
    void shouldBearRepeatedIds();
    void shouldLeaveOutMovesWithoutAPlace();
    void shouldIgnoreNodesOfAnotherThreadThatAreGone();
    void shouldBearAnyAnnouncement_data();
    void shouldBearAnyAnnouncement();
    void shouldGoOnWithoutTheService();
    void shouldShowAnEmptyTreeWithoutTheService();
    void shouldFollowTheServiceThatIsBack();

private:
    void useAll();
};

void tst_kxOverlayEditor_strangeHost::shouldIgnoreIdsThatAreNone_data()
{
    QTest::addColumn<int>("signal");
    QTest::addColumn<QRPC::NodeList>("nodes");
    const QVector<QMetaMethod> all = signalsWithNodes();
    for (int i = 0; i < all.size(); ++i) {
        const QByteArray name = all.at(i).name();
        QTest::addRow("%s, none", name.constData()) << i << QRPC::NodeList{};
        QTest::addRow("%s, 0", name.constData()) << i << QRPC::NodeList{0};
        QTest::addRow("%s, unknown", name.constData()) << i << QRPC::NodeList{99, 98, 99};
        QTest::addRow("%s, greatest", name.constData()) << i << QRPC::NodeList{~0U, 0x80000000U};
        QTest::addRow("%s, the root", name.constData()) << i << QRPC::NodeList{1};
    }
}

void tst_kxOverlayEditor_strangeHost::shouldIgnoreIdsThatAreNone()
{
    QFETCH(int, signal);
    QFETCH(QRPC::NodeList, nodes);
    openEditor(s_scene);
    announce(&service(), signalsWithNodes().at(signal), nodes);
    KX_COMPARE_TREE(model(), service());
    QCOMPARE(model().getNodeId(model().invisibleRootItem()), RecordingService::rootId);
}

void tst_kxOverlayEditor_strangeHost::shouldBearRepeatedIds_data()
{
    QTest::addColumn<int>("signal");
    const QVector<QMetaMethod> all = signalsWithNodes();
    for (int i = 0; i < all.size(); ++i)
        QTest::addRow("%s", all.at(i).name().constData()) << i;
}

/// Those that are gone before those that stay, children before their parents.
void tst_kxOverlayEditor_strangeHost::shouldBearRepeatedIds()
{
    QFETCH(int, signal);
    openEditor(s_scene);
    select({3, 10});
    const QRPC::NodeList nodes{5, 6, 4, 99, 4, 5, 0, 1};
    const QMetaMethod method = signalsWithNodes().at(signal);
    if (method.name() == "nodesRemoved")
        service().erase({5, 6, 4});
    announce(&service(), method, nodes);
    announce(&service(), method, nodes);
    KX_COMPARE_TREE(model(), service());
}

void tst_kxOverlayEditor_strangeHost::shouldLeaveOutMovesWithoutAPlace()
{
    openEditor(s_scene);
    Q_EMIT service().nodesMoved({3, 10}, {}, {});
    QVERIFY(!index(3).isValid() && !index(10).isValid());
    Q_EMIT service().nodesMoved({4, 4, 99, 0, 1}, {7, 1}, {8});
    QCOMPARE(shown(), QString("h4(b5 c6-) g2() s7(d8 e9-)"));
    Q_EMIT service().nodesMoved({7, 2}, {2, 7}, {0, 0});
    Q_EMIT service().modelReset();
    KX_COMPARE_TREE(model(), service());
}

/// By the time a signal is delivered the tree is another one.
void tst_kxOverlayEditor_strangeHost::shouldIgnoreNodesOfAnotherThreadThatAreGone()
{
    openEditor(s_scene);
    const QVector<QMetaMethod> all = signalsWithNodes();
    std::thread other([this, &all] {
        for (const QMetaMethod &signal : all) {
            if (signal.name() != "nodesRemoved")
                announce(&service(), signal, {4, 5, 10, 99});
        }
        Q_EMIT service().nodesMoved({10, 5}, {4, 1}, {6, 10});
        Q_EMIT service().nodesRemoved({4, 10});
    });
    other.join();
    service().deleteNodes({4, 10});
    QCoreApplication::sendPostedEvents();
    KX_COMPARE_TREE(model(), service());
}

void tst_kxOverlayEditor_strangeHost::shouldBearAnyAnnouncement_data()
{
    seeds::addRows(40, 2000);
}

void tst_kxOverlayEditor_strangeHost::shouldBearAnyAnnouncement()
{
    QFETCH(quint32, seed);
    openEditor(s_scene);
    const QAbstractItemModelTester tester(&model(),
                                          QAbstractItemModelTester::FailureReportingMode::Warning);
    std::mt19937 random(seed);
    const auto below = [&random](int limit) { return int(random() % quint32(limit)); };
    const auto anyNodes = [&below] {
        QRPC::NodeList nodes;
        for (int left = below(5); left > 0; --left)
            nodes.append(QRPC::NodeId(below(13)));
        return nodes;
    };
    const QVector<QMetaMethod> all = signalsWithNodes();
    for (int step = 0; step < 60; ++step) {
        if (below(3) == 0)
            Q_EMIT service().nodesMoved(anyNodes(), anyNodes(), anyNodes());
        else
            announce(&service(), all.at(below(all.size())), anyNodes());
        if (below(8) == 0)
            call("selectAll");
        if (below(10) == 0)
            service().place(QRPC::NodeId(3 + below(3)), below(2) ? 1 : 7, 0);
    }
    Q_EMIT service().modelReset();
    KX_COMPARE_TREE(model(), service());
}

/// Everything that asks the service or tells it something.
void tst_kxOverlayEditor_strangeHost::useAll()
{
    // The first waits for the user; the others write to the standard output.
    const QList<QByteArray> others{"loadImage", "writeImage", "showTextureInfo"};
    const QStringList signatures = editorSlots();
    for (const QString &signature : signatures) {
        const QByteArray name = signature.section(QLatin1Char('('), 0, 0).toLatin1();
        if (signature.endsWith(QLatin1String("()")) && !others.contains(name))
            call(name.constData());
    }
    const QModelIndex first = model().index(0, 0);
    model().setData(first, "typed", Qt::EditRole);
    model().setData(first, int(Qt::Unchecked), Qt::CheckStateRole);
    const std::unique_ptr<QMimeData> data(model().mimeData({first}));
    model().dropMimeData(data.get(), Qt::MoveAction, -1, -1, model().index(1, 0));
    const QVector<QMetaMethod> all = signalsWithNodes();
    for (const QMetaMethod &signal : all)
        announce(&service(), signal, {2, 3, 99});
    Q_EMIT service().nodesMoved({10}, {2}, {3});
}

void tst_kxOverlayEditor_strangeHost::shouldGoOnWithoutTheService()
{
    openEditor(s_scene);
    select({2, 10});
    kxKernelServiceFactory::the()->unregisterService<kxOverlayService>();
    const QByteArray errors = output::errorsOf([this] { useAll(); });
    QVERIFY2(errors.contains("couldn't find class"), errors.constData());
    QCOMPARE(log().total(), 0);
    kxKernelServiceFactory::the()->registerService<kxOverlayService>(nullptr);
    QVERIFY(output::errorsOf([this] { useAll(); }).contains("is NULL!"));
    QCOMPARE(log().total(), 0);
}

void tst_kxOverlayEditor_strangeHost::shouldShowAnEmptyTreeWithoutTheService()
{
    openEditor(s_scene);
    kxKernelServiceFactory::the()->unregisterService<kxOverlayService>();
    output::errorsOf([this] {
        Q_EMIT service().nodesAdded({11});
        QCOMPARE(model().rowCount(), 3);
        Q_EMIT service().modelReset();
        Q_EMIT service().nodesAdded({2, 3});
    });
    QCOMPARE(model().rowCount(), 0);
}

void tst_kxOverlayEditor_strangeHost::shouldFollowTheServiceThatIsBack()
{
    openEditor(s_scene);
    kxKernelServiceFactory::the()->unregisterService<kxOverlayService>();
    output::errorsOf([this] { useAll(); });
    kxKernelServiceFactory::the()->registerService<kxOverlayService>(&service());
    Q_EMIT service().modelReset();
    KX_COMPARE_TREE(model(), service());
    select({10});
    call("deleteOverlays");
    KX_COMPARE_TREE(model(), service());
    QVERIFY(!service().has(10));
}

KX_TEST_MAIN(tst_kxOverlayEditor_strangeHost)
#include "tst_kxOverlayEditor_strangeHost.moc"
