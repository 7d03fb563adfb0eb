// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/kxKernelServiceFactory.h"
#include "overlayeditor/model/kxOverlayQtModel.h"
#include "tests/support/KxTest.h"
#include "tests/support/Seeds.h"
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
    void shouldBeFollowedThroughMixedSteps_data();
    void shouldBeFollowedThroughMixedSteps();
    void shouldBeFollowedWhenSlotsInterfere_data();
    void shouldBeFollowedWhenSlotsInterfere();
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

/// Steps as scripts make them, of many operations of all kinds.
void tst_History_random::shouldBeFollowedThroughMixedSteps_data()
{
    seeds::addRows(40, 1000);
}

void tst_History_random::shouldBeFollowedThroughMixedSteps()
{
    QFETCH(quint32, seed);
    OverlayService service;
    const Registered registered(&service);
    kxOverlayQtModel model;
    service.setScene(Scene());
    RandomEdits user(&service, seed);
    QRandomGenerator random(seed);
    QVector<QByteArray> files{fileOf(service)};
    while (files.size() < 8) {
        std::optional<StepGroup> group;
        group.emplace(&service, QStringLiteral("several"), History::Group::OwnHistory);
        for (auto edits = random.bounded(60); edits > 0; --edits) {
            const auto choice = random.bounded(10);
            if (choice == 0)
                service.undo();
            else if (choice == 1)
                service.redo();
            else
                user.edit();
        }
        if (random.bounded(4) == 0)
            group->rollBack();
        group.reset();
        QCOMPARE(rowsOf(model), rowsOf(service.scene()));
        if (service.history().stack()->count() == files.size() - 1)
            QCOMPARE(fileOf(service), files.constLast());
        else
            files.append(fileOf(service));
    }
    const auto comesTo = [&](int i) {
        return fileOf(service) == files.at(i) && rowsOf(model) == rowsOf(service.scene());
    };
    for (int i = files.size() - 2; i >= 0; --i) {
        service.undo();
        QVERIFY(comesTo(i));
    }
    for (int i = 1; i < files.size(); ++i) {
        service.redo();
        QVERIFY(comesTo(i));
    }
}

void tst_History_random::shouldBeFollowedWhenSlotsInterfere_data()
{
    seeds::addRows(20, 300);
}

/// Somebody answers what is announced, moves included, with operations and undo of their own.
void tst_History_random::shouldBeFollowedWhenSlotsInterfere()
{
    QFETCH(quint32, seed);
    OverlayService service;
    const Registered registered(&service);
    kxOverlayQtModel model;
    service.setScene(Scene());
    RandomEdits user(&service, seed);
    QRandomGenerator random(seed);
    int answers = 0;
    const auto answer = [&] {
        if (answers == 0)
            return;
        --answers;
        const auto choice = random.bounded(6);
        if (choice == 0)
            service.undo();
        else if (choice == 1)
            service.redo();
        else
            user.edit();
    };
    connect(&service, &kxOverlayService::nodesMoved, this, answer);
    connect(&service, &kxOverlayService::nodesAdded, this, answer);
    connect(&service, &kxOverlayService::nodesRemoved, this, answer);
    for (int i = 0; i < 60; ++i) {
        {
            const StepGroup group(&service, QStringLiteral("several"));
            for (auto edits = random.bounded(8); edits > 0; --edits)
                user.edit();
        }
        answers = 2;
        random.bounded(2) == 0 ? service.undo() : service.redo();
        answers = 0;
        service.setName({}, QString()); // has what was put off announced
        QCOMPARE(rowsOf(model), rowsOf(service.scene()));
    }
    disconnect(&service, nullptr, this, nullptr);
}

void tst_History_random::shouldComeBackByteForByte_data()
{
    seeds::addRows(20, 100);
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
