// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/kxKernelServiceFactory.h"
#include "overlayeditor/model/kxOverlayQtModel.h"
#include "tests/support/KxTest.h"
#include "tests/support/Seeds.h"
#include "tests/viewer/scene/RandomEdits.h"
#include "tests/viewer/scene/SceneText.h"

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

/// A service, the tree that follows it, and a user who does something else with each seed.
class Sitting
{
public:
    explicit Sitting(quint32 seed) : m_user(&m_service, seed) { m_service.setScene(Scene()); }

    OverlayService &service() { return m_service; }
    kxOverlayQtModel &model() { return m_model; }
    void edit() { m_user.edit(); }

    /// Goes back for 0, forth for 1, and edits for any other number.
    void act(int choice)
    {
        if (choice == 0)
            m_service.undo();
        else if (choice == 1)
            m_service.redo();
        else
            edit();
    }

    QByteArray file() const { return scenetext::fileOf(m_service); }
    QStringList shownRows() const { return rowsOf(m_model); }
    QStringList wantedRows() const { return rowsOf(m_service.scene()); }

private:
    OverlayService m_service;
    Registered m_registered{&m_service};
    kxOverlayQtModel m_model;
    RandomEdits m_user;
};

} // namespace

void tst_History_random::shouldBeFollowedByTheTree_data()
{
    shouldComeBackByteForByte_data();
}

void tst_History_random::shouldBeFollowedByTheTree()
{
    QFETCH(quint32, seed);
    Sitting sitting(seed);
    const QAbstractItemModelTester tester(&sitting.model(),
                                          QAbstractItemModelTester::FailureReportingMode::Warning);
    QRandomGenerator random(seed);
    for (int i = 0; i < 300; ++i) {
        sitting.act(random.bounded(3));
        // Grouped and single edits go on for a while before they are taken back.
        const StepGroup group(&sitting.service(), QStringLiteral("several"));
        for (auto edits = random.bounded(8) == 0 ? random.bounded(6) : 0; edits > 0; --edits)
            sitting.edit();
        QCOMPARE(sitting.shownRows(), sitting.wantedRows());
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
    Sitting sitting(seed);
    QRandomGenerator random(seed);
    QVector<QByteArray> files{sitting.file()};
    while (files.size() < 8) {
        std::optional<StepGroup> group;
        group.emplace(&sitting.service(), QStringLiteral("several"), History::Group::OwnHistory);
        for (auto edits = random.bounded(60); edits > 0; --edits)
            sitting.act(random.bounded(10));
        if (random.bounded(4) == 0)
            group->rollBack();
        group.reset();
        QCOMPARE(sitting.shownRows(), sitting.wantedRows());
        if (sitting.service().history().stack()->count() == files.size() - 1)
            QCOMPARE(sitting.file(), files.constLast());
        else
            files.append(sitting.file());
    }
    const auto comesTo = [&](int i) {
        return sitting.file() == files.at(i) && sitting.shownRows() == sitting.wantedRows();
    };
    for (int i = files.size() - 2; i >= 0; --i) {
        sitting.service().undo();
        QVERIFY(comesTo(i));
    }
    for (int i = 1; i < files.size(); ++i) {
        sitting.service().redo();
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
    Sitting sitting(seed);
    OverlayService &service = sitting.service();
    QRandomGenerator random(seed);
    int answers = 0;
    const auto answer = [&] {
        if (answers == 0)
            return;
        --answers;
        sitting.act(random.bounded(6));
    };
    connect(&service, &kxOverlayService::nodesMoved, this, answer);
    connect(&service, &kxOverlayService::nodesAdded, this, answer);
    connect(&service, &kxOverlayService::nodesRemoved, this, answer);
    for (int i = 0; i < 60; ++i) {
        {
            const StepGroup group(&service, QStringLiteral("several"));
            for (auto edits = random.bounded(8); edits > 0; --edits)
                sitting.edit();
        }
        answers = 2;
        random.bounded(2) == 0 ? service.undo() : service.redo();
        answers = 0;
        service.setName({}, QString()); // has what was put off announced
        QCOMPARE(sitting.shownRows(), sitting.wantedRows());
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
    QVector<QByteArray> files{scenetext::fileOf(service)};
    while (files.size() < 200) {
        const int steps = stack.count();
        user.edit();
        service.history().endGesture();
        if (stack.count() == steps)
            QCOMPARE(scenetext::fileOf(service), files.constLast());
        else
            files.append(scenetext::fileOf(service));
        QCOMPARE(stack.count(), files.size() - 1);
    }
    for (int i = files.size() - 2; i >= 0; --i) {
        service.undo();
        QCOMPARE(scenetext::fileOf(service), files.at(i));
    }
    QVERIFY(!stack.canUndo());
    for (int i = 1; i < files.size(); ++i) {
        service.redo();
        QCOMPARE(scenetext::fileOf(service), files.at(i));
    }
    QVERIFY(!stack.canRedo());
}

KX_TEST_MAIN(tst_History_random)
#include "tst_History_random.moc"
