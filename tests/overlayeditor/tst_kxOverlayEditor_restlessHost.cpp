// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "overlayeditor/model/kxDropTrace.h"
#include "tests/overlayeditor/EditorTest.h"

#include <QAbstractItemModelTester>
#include <QMimeData>

#include <algorithm>

namespace {

const auto tree0 = QStringLiteral("g2(a3 h4(b5 c6-)) s7(d8 e9-) f10 i11-(j12 k13(l14))");

} // namespace

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
    void shouldGoOnWhenEachAnswerResetsTheTree();
    void shouldFollowAllThatIsAnnouncedInOneMoment();

protected Q_SLOTS:
    void cleanup() override;

private:
    using Step = void (tst_kxOverlayEditor_restlessHost::*)();
    struct Named
    {
        const char *name;
        Step step;
    };
    static const QVector<Named> &actions();
    static const QVector<Named> &deeds();

    void startOver();
    void listen();
    void pass();

    // What the module is at
    void reset() { Q_EMIT service().modelReset(); }
    void add();
    void remove() { service().deleteNodes({4, 10, 7}); }
    void move() { service().moveNodes({4, 10, 12}, 1, 1); }
    void group();
    void switchOn() { service().setEnabled({11, 9}, true); }
    void rename() { service().setName({3, 4, 10}, "x"); }
    void create();
    void selectAll() { call("selectAll"); }
    void invert() { call("invertSelection"); }
    void refresh() { editor().updateAll(); }
    void toggle() { call("toggle"); }
    void duplicate() { call("duplicateOverlays"); }
    void removeSelected() { call("deleteOverlays"); }
    void createOverlay() { call("createOverlay"); }
    void color();
    void check() { model().setData(index(3), int(Qt::Unchecked), Qt::CheckStateRole); }
    void type() { model().setData(index(3), "typed", Qt::EditRole); }
    void drop();

    // What happens meanwhile
    void resetTree() { Q_EMIT service().modelReset(); }
    void removeOne() { service().deleteNodes({4}); }
    void removeAll() { service().deleteNodes(service().allIds()); }
    void addInFront();
    void moveInsideOut() { service().moveNodes({3, 7, 10}, 11, 0); }
    void moveToTop() { service().moveNodes({12, 5}, 1, 0); }
    void switchOff() { service().setEnabled({2, 8}, false); }
    void exchange();
    void selectNothing() { tree().selectionModel()->clear(); }

    int m_moment = 0; ///< how many have passed in this run
    int m_chosen = 0; ///< the one at which something happens
    Step m_deed = nullptr;
    std::unique_ptr<QObject> m_listener;
};

const QVector<tst_kxOverlayEditor_restlessHost::Named> &tst_kxOverlayEditor_restlessHost::actions()
{
    using T = tst_kxOverlayEditor_restlessHost;
    static const QVector<Named> all{
        {"reset", &T::reset},
        {"add", &T::add},
        {"remove", &T::remove},
        {"move", &T::move},
        {"group", &T::group},
        {"switch on", &T::switchOn},
        {"rename", &T::rename},
        {"create", &T::create},
        {"select all", &T::selectAll},
        {"invert", &T::invert},
        {"refresh", &T::refresh},
        {"toggle", &T::toggle},
        {"duplicate", &T::duplicate},
        {"delete", &T::removeSelected},
        {"new overlay", &T::createOverlay},
        {"check", &T::check},
        {"type a name", &T::type},
        {"drop", &T::drop},
        {"colour", &T::color},
    };
    return all;
}

const QVector<tst_kxOverlayEditor_restlessHost::Named> &tst_kxOverlayEditor_restlessHost::deeds()
{
    using T = tst_kxOverlayEditor_restlessHost;
    static const QVector<Named> all{
        {"a reset", &T::resetTree},
        {"one removed", &T::removeOne},
        {"all removed", &T::removeAll},
        {"some added in front", &T::addInFront},
        {"moved into a group", &T::moveInsideOut},
        {"moved to the top", &T::moveToTop},
        {"switched off", &T::switchOff},
        {"another tree", &T::exchange},
        {"nothing selected", &T::selectNothing},
    };
    return all;
}

void tst_kxOverlayEditor_restlessHost::cleanup()
{
    m_listener.reset();
    EditorTest::cleanup();
}

void tst_kxOverlayEditor_restlessHost::add()
{
    const QRPC::NodeList added = service().insert(2, 1, "n20(o21(p22) q23) r24");
    Q_EMIT service().nodesAdded(added);
}

/// Step by step, as a host groups.
void tst_kxOverlayEditor_restlessHost::group()
{
    service().insert(1, 0, "n20()");
    Q_EMIT service().nodesAdded({20});
    if (service().has(20))
        service().moveNodes({3, 10}, 20, -1);
    Q_EMIT service().nodesCreated({20});
}

void tst_kxOverlayEditor_restlessHost::create()
{
    add();
    Q_EMIT service().nodesCreated({20, 24});
}

void tst_kxOverlayEditor_restlessHost::color()
{
    select({3, 10});
    QVERIFY(QMetaObject::invokeMethod(&editor(), "fontColorChanged", Q_ARG(float, 0.25F),
                                      Q_ARG(float, 0.5F), Q_ARG(float, 0.75F)));
}

void tst_kxOverlayEditor_restlessHost::addInFront()
{
    const QRPC::NodeList added = service().insert(1, 0, "t30(u31) v32");
    Q_EMIT service().nodesAdded(added);
    if (!service().has(2))
        return;
    service().insert(2, 0, "w33");
    Q_EMIT service().nodesAdded({33});
}

void tst_kxOverlayEditor_restlessHost::exchange()
{
    service().build("k13(c6 g2(d8-)) s7(a3)");
    Q_EMIT service().modelReset();
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
    m_deed = nullptr;
    QCoreApplication::sendPostedEvents();
    service().build(tree0);
    Q_EMIT service().modelReset();
    tree().expandAll();
    select({2, 4, 5, 10, 13});
}

/// Each signal of the model and the selection is a moment, and so is each call of the service.
void tst_kxOverlayEditor_restlessHost::listen()
{
    m_listener = std::make_unique<QObject>();
    const QObject *listener = m_listener.get();
    const auto moment = [this] { pass(); };
    connect(&model(), &QAbstractItemModel::rowsAboutToBeInserted, listener, moment);
    connect(&model(), &QAbstractItemModel::rowsInserted, listener, moment);
    connect(&model(), &QAbstractItemModel::rowsAboutToBeRemoved, listener, moment);
    connect(&model(), &QAbstractItemModel::rowsRemoved, listener, moment);
    connect(&model(), &QAbstractItemModel::dataChanged, listener, moment);
    connect(&model(), &QAbstractItemModel::modelAboutToBeReset, listener, moment);
    connect(&model(), &QAbstractItemModel::modelReset, listener, moment);
    connect(tree().selectionModel(), &QItemSelectionModel::selectionChanged, listener, moment);
    connect(tree().selectionModel(), &QItemSelectionModel::currentChanged, listener, moment);
    service().setCallHook([this](const QString &) { pass(); });
}

void tst_kxOverlayEditor_restlessHost::pass()
{
    if (!m_deed || ++m_moment != m_chosen)
        return;
    const Step deed = m_deed;
    m_deed = nullptr;
    (this->*deed)();
}

/// An edit in the tree takes a move for the echo of its own, until the service has returned.
void tst_kxOverlayEditor_restlessHost::shouldFollowChangesInsideItsWork_data()
{
    using T = tst_kxOverlayEditor_restlessHost;
    QTest::addColumn<int>("action");
    QTest::addColumn<int>("deed");
    const QVector<Step> edits{&T::check, &T::type, &T::drop};
    const QVector<Step> moves{&T::moveInsideOut, &T::moveToTop};
    for (int action = 0; action < actions().size(); ++action) {
        for (int deed = 0; deed < deeds().size(); ++deed) {
            if (!edits.contains(actions().at(action).step)
                || !moves.contains(deeds().at(deed).step))
                QTest::addRow("%s, %s", actions().at(action).name, deeds().at(deed).name)
                    << action << deed;
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
    listen();
    for (m_chosen = 1;; ++m_chosen) {
        startOver();
        m_moment = 0;
        m_deed = deeds().at(deed).step;
        (this->*actions().at(action).step)();
        if (m_deed)
            break; // it was over before its moment came
        QCoreApplication::sendPostedEvents();
        const QString difference = treeDifference(model(), service());
        QVERIFY2(difference.isEmpty(),
                 qPrintable(QStringLiteral("moment %1: %2").arg(m_chosen).arg(difference)));
        const QRPC::NodeList nodes = selected();
        QVERIFY(std::all_of(nodes.begin(), nodes.end(),
                            [this](QRPC::NodeId node) { return service().has(node); }));
    }
    QVERIFY(m_chosen > 1);
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
