// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/kxKernelServiceFactory.h"
#include "kit/RestlessHost.h"
#include "kit/output.h"
#include "overlayeditor/model/kxDropTrace.h"
#include "tests/overlayeditor/EditorTest.h"

#include <QAbstractItemModelTester>
#include <QMimeData>

#include <algorithm>

/// A host that changes its tree while the module is at work: inside a question of the service, or
/// from a slot that is connected to a signal of the model or of the selection.
///
/// Each action is run again and again, and each time one moment later the tree changes under it,
/// until the action is over before that: no moment is left out. Afterwards the tree shows what the
/// service has.
class tst_kxOverlayEditor_restlessHost : public EditorTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldFollowChangesInsideItsWork_data();
    void shouldFollowChangesInsideItsWork();
    void shouldGoOnWhenTheServiceGoesInsideItsWork_data();
    void shouldGoOnWhenTheServiceGoesInsideItsWork();
    void shouldGoOnWhenEachAnswerResetsTheTree();
    void shouldFollowAllThatIsAnnouncedInOneMoment();

private:
    struct Named
    {
        const char *name;
        std::function<void()> run;
    };
    QVector<Named> fromHost(const QVector<HostDeed> &deeds);
    QVector<Named> actions();
    QVector<Named> deeds();

    void startOver();

    // What the user is at
    void color();
    void drop();
};

QVector<tst_kxOverlayEditor_restlessHost::Named>
tst_kxOverlayEditor_restlessHost::fromHost(const QVector<HostDeed> &deeds)
{
    QVector<Named> all;
    for (const HostDeed &deed : deeds)
        all.append({deed.name, [this, run = deed.run] { run(service()); }});
    return all;
}

QVector<tst_kxOverlayEditor_restlessHost::Named> tst_kxOverlayEditor_restlessHost::actions()
{
    const auto edit = [this](QRPC::NodeId node, const QVariant &value, int role) {
        return [=] { model().setData(index(node), value, role); };
    };
    return fromHost(HostDeed::announced())
           + QVector<Named>{
               {"select all", [this] { call("selectAll"); }},
               {"invert", [this] { call("invertSelection"); }},
               {"refresh", [this] { editor().updateAll(); }},
               {"toggle", [this] { call("toggle"); }},
               {"duplicate", [this] { call("duplicateOverlays"); }},
               {"delete", [this] { call("deleteOverlays"); }},
               {"new overlay", [this] { call("createOverlay"); }},
               {"check", edit(3, int(Qt::Unchecked), Qt::CheckStateRole)},
               {"type a name", edit(3, "typed", Qt::EditRole)},
               {"drop", [this] { drop(); }},
               {"colour", [this] { color(); }},
           };
}

QVector<tst_kxOverlayEditor_restlessHost::Named> tst_kxOverlayEditor_restlessHost::deeds()
{
    return fromHost(HostDeed::meanwhile())
           + QVector<Named>{{"nothing selected", [this] { tree().selectionModel()->clear(); }}};
}

void tst_kxOverlayEditor_restlessHost::color()
{
    select({3, 10});
    QVERIFY(QMetaObject::invokeMethod(&editor(), "fontColorChanged", Q_ARG(float, 0.25F),
                                      Q_ARG(float, 0.5F), Q_ARG(float, 0.75F)));
}

/// What the view does when rows are dragged by the mouse.
void tst_kxOverlayEditor_restlessHost::drop()
{
    const QVector<QPersistentModelIndex> dragged{index(3), index(4)};
    const QPersistentModelIndex target = index(11);
    const kxDropTrace trace(&model());
    QModelIndexList rows;
    for (const QPersistentModelIndex &row : dragged)
        rows.append(row);
    const std::unique_ptr<QMimeData> data(model().mimeData(rows));
    model().dropMimeData(data.get(), Qt::MoveAction, 1, 0, target);
    for (const QPersistentModelIndex &row : dragged) {
        if (row.isValid())
            model().removeRows(row.row(), 1, row.parent());
    }
    model().settle(trace);
}

void tst_kxOverlayEditor_restlessHost::startOver()
{
    QCoreApplication::sendPostedEvents();
    service().build(HostDeed::scene());
    Q_EMIT service().modelReset();
    tree().expandAll();
    select({2, 4, 5, 10, 13});
}

/// An edit in the tree takes a move for the echo of its own, until the service has returned.
void tst_kxOverlayEditor_restlessHost::shouldFollowChangesInsideItsWork_data()
{
    QTest::addColumn<int>("action");
    QTest::addColumn<int>("deed");
    const QStringList edits{"check", "type a name", "drop"};
    const QVector<Named> works = actions();
    const QVector<Named> all = deeds();
    for (int action = 0; action < works.size(); ++action) {
        for (int deed = 0; deed < all.size(); ++deed) {
            const QString name = all.at(deed).name;
            if (!edits.contains(works.at(action).name) || !name.startsWith("moved"))
                QTest::addRow("%s, %s", works.at(action).name, all.at(deed).name) << action << deed;
        }
    }
}

void tst_kxOverlayEditor_restlessHost::shouldFollowChangesInsideItsWork()
{
    QFETCH(int, action);
    QFETCH(int, deed);
    openEditor();
    const QAbstractItemModelTester tester(&model(),
                                          QAbstractItemModelTester::FailureReportingMode::Warning);
    RestlessHost host(&service(), &tree());
    const std::function<void()> work = actions().at(action).run;
    const std::function<void()> change = deeds().at(deed).run;
    int moment = 1;
    for (startOver(); host.run(work, change, moment); startOver()) {
        QCoreApplication::sendPostedEvents();
        const QString difference = treeDifference(model(), service());
        QVERIFY2(difference.isEmpty(),
                 qPrintable(QStringLiteral("moment %1: %2").arg(moment).arg(difference)));
        const QRPC::NodeList nodes = selected();
        QVERIFY(std::all_of(nodes.begin(), nodes.end(),
                            [this](QRPC::NodeId node) { return service().has(node); }));
        ++moment;
    }
    QVERIFY(moment > 1);
}

void tst_kxOverlayEditor_restlessHost::shouldGoOnWhenTheServiceGoesInsideItsWork_data()
{
    QTest::addColumn<int>("action");
    const QVector<Named> works = actions();
    for (int action = 0; action < works.size(); ++action)
        QTest::newRow(works.at(action).name) << action;
}

/// When it is back, the tree follows it as before.
void tst_kxOverlayEditor_restlessHost::shouldGoOnWhenTheServiceGoesInsideItsWork()
{
    QFETCH(int, action);
    openEditor();
    const QAbstractItemModelTester tester(&model(),
                                          QAbstractItemModelTester::FailureReportingMode::Warning);
    auto *registry = kxKernelServiceFactory::the();
    RestlessHost host(&service(), &tree());
    const std::function<void()> work = actions().at(action).run;
    const auto leave = [registry] { registry->unregisterService<kxOverlayService>(); };
    bool isGone = true;
    for (int moment = 1; isGone; ++moment) {
        startOver();
        output::errorsOf([&] {
            isGone = host.run(work, leave, moment);
            QCoreApplication::sendPostedEvents();
        });
        QVERIFY(isGone || moment > 1);
        registry->registerService<kxOverlayService>(&service());
        Q_EMIT service().modelReset();
        KX_COMPARE_TREE(model(), service());
    }
}

void tst_kxOverlayEditor_restlessHost::shouldGoOnWhenEachAnswerResetsTheTree()
{
    openEditor("g2(a3 b4) c5");
    int resets = 0;
    service().setCallHook([this, count = &resets](const QString &line) {
        if (line.startsWith("getName") && ++*count < 500)
            Q_EMIT service().modelReset();
    });
    Q_EMIT service().modelReset();
    QVERIFY(resets < 100);
    QTRY_VERIFY(resets >= 500);
    service().setCallHook({});
    QCoreApplication::sendPostedEvents();
    KX_COMPARE_TREE(model(), service());
}

void tst_kxOverlayEditor_restlessHost::shouldFollowAllThatIsAnnouncedInOneMoment()
{
    openEditor("g2(a3 b4) c5");
    bool done = false;
    service().setCallHook([this, isDone = &done](const QString &) {
        if (*isDone)
            return;
        *isDone = true;
        service().moveNodes({3}, 1, 0);
        service().deleteNodes({3});
    });
    service().setEnabled({4}, false);
    service().setCallHook({});
    KX_COMPARE_TREE(model(), service());
}

KX_TEST_MAIN(tst_kxOverlayEditor_restlessHost)
#include "tst_kxOverlayEditor_restlessHost.moc"
