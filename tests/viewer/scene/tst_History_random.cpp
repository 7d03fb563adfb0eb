// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/kxKernelServiceFactory.h"
#include "overlayeditor/model/kxOverlayQtModel.h"
#include "tests/support/KxTest.h"
#include "tests/viewer/scene/RandomEdits.h"
#include "viewer/scene/SceneWriter.h"

#include <QAbstractItemModelTester>

using namespace viewer;
using QRPC::NodeId;

/// Random sessions: everything that was done is undone and done again, and a tree of the module
/// follows all of it.
class tst_History_random : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldComeBackByteForByte_data();
    void shouldComeBackByteForByte();
    void shouldBeFollowedByTheTree_data();
    void shouldBeFollowedByTheTree();
};

namespace {

QByteArray fileOf(const OverlayService &service)
{
    return SceneWriter::content(service.scene(), QStringLiteral("/tmp/scene.json"), nullptr);
}

/// The service where modules find it.
class Registered
{
public:
    explicit Registered(OverlayService *service)
    {
        kxKernelServiceFactory::the()->registerService<kxOverlayService>(service);
    }
    ~Registered() { kxKernelServiceFactory::the()->unregisterService<kxOverlayService>(); }
    Q_DISABLE_COPY(Registered)
};

constexpr int ActiveRole = Qt::UserRole + 2;

QString rowText(const QString &name, NodeId id, bool enabled, bool active)
{
    return QStringLiteral("%1#%2%3%4").arg(name).arg(id).arg(enabled ? "" : "-", active ? "" : "~");
}

QStringList rowsOf(const kxOverlayQtModel &model, const QModelIndex &parent = {})
{
    QStringList rows;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        const bool enabled = index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
        rows += rowText(index.data().toString(), model.getNodeId(index), enabled,
                        index.data(ActiveRole).toBool());
        rows += rowsOf(model, index) + QStringList(QStringLiteral(")"));
    }
    return rows;
}

QStringList rowsOf(const Scene &scene, NodeId parent = Scene::RootId)
{
    QStringList rows;
    for (const NodeId id : scene.find(parent)->children) {
        const Node &node = *scene.find(id);
        rows += rowText(node.name, id, node.enabled, scene.isActive(id));
        rows += rowsOf(scene, id) + QStringList(QStringLiteral(")"));
    }
    return rows;
}

} // namespace

void tst_History_random::shouldBeFollowedByTheTree_data()
{
    shouldComeBackByteForByte_data();
}

void tst_History_random::shouldBeFollowedByTheTree()
{
    QFETCH(quint32, seed);
    OverlayService service;
    const Registered registered(&service);
    kxOverlayQtModel model;
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::Warning);
    service.setScene(Scene());
    RandomEdits user(&service, seed);
    QRandomGenerator random(seed);
    for (int i = 0; i < 300; ++i) {
        const auto choice = random.bounded(3);
        if (choice == 0)
            user.edit();
        else if (choice == 1)
            service.undo();
        else
            service.redo();
        // Grouped and single edits go on for a while before they are taken back.
        const StepGroup group(&service, QStringLiteral("several"));
        for (auto edits = random.bounded(8) == 0 ? random.bounded(6) : 0; edits > 0; --edits)
            user.edit();
        QCOMPARE(rowsOf(model), rowsOf(service.scene()));
    }
}

void tst_History_random::shouldComeBackByteForByte_data()
{
    QTest::addColumn<quint32>("seed");
    const bool isLong = qEnvironmentVariableIsSet("KX_LONG_TESTS");
    for (quint32 seed = 1; seed <= (isLong ? 100U : 20U); ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

void tst_History_random::shouldComeBackByteForByte()
{
    QFETCH(quint32, seed);
    OverlayService service;
    const QUndoStack &stack = *service.history().stack();
    RandomEdits user(&service, seed);
    QVector<QByteArray> files{fileOf(service)};
    while (files.size() < 200) {
        const int steps = stack.count();
        user.edit();
        service.history().endGesture();
        if (stack.count() == steps)
            QCOMPARE(fileOf(service), files.constLast());
        else
            files.append(fileOf(service));
        QCOMPARE(stack.count(), files.size() - 1);
    }
    for (int i = files.size() - 2; i >= 0; --i) {
        service.undo();
        QCOMPARE(fileOf(service), files.at(i));
    }
    QVERIFY(!stack.canUndo());
    for (int i = 1; i < files.size(); ++i) {
        service.redo();
        QCOMPARE(fileOf(service), files.at(i));
    }
    QVERIFY(!stack.canRedo());
}

KX_TEST_MAIN(tst_History_random)
#include "tst_History_random.moc"
