// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/overlayeditor/model/ModelTest.h"

#include <QSignalSpy>

/// What edits in the view write to the service, and that its echo changes nothing twice.
class tst_kxOverlayQtModel_edits : public ModelTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldSendARenameOnce();
    void shouldAskNothingForTheEchoOfARename();
    void shouldIgnoreTheNameThatTheServiceStored();
    void shouldSendAnEnabledStateOnce_data();
    void shouldSendAnEnabledStateOnce();
    void shouldRefreshFromTheEchoOfAnEnabledState();
    void shouldSendNothingForOtherRoles();
    void shouldSendNoNodeForAnInvalidIndex();
    void shouldNotSendWhileItRefreshesNames();
    void shouldNotSendWhileItWrites();
    void shouldSendAnEditThatItsOwnRowCauses();
    void shouldAddAndRemoveRowsWhileItWrites();
    void shouldAcceptEditsAgainAfterwards();
    void shouldAnswerWhatTheBaseAnswers();
};

void tst_kxOverlayQtModel_edits::shouldSendARenameOnce()
{
    fill("g2(a3)");
    log().clear();
    QVERIFY(model().setData(index(3), "x3", Qt::EditRole));
    QCOMPARE(log().linesOf({"setName", "setEnabled"}), QStringList("setName [3] \"x3\""));
    QCOMPARE(shown(), QString("g2(x3)"));
    KX_COMPARE_TREE(model(), service());
}

void tst_kxOverlayQtModel_edits::shouldAskNothingForTheEchoOfARename()
{
    fill("a2");
    const QModelIndex edited = index(2);
    QCOMPARE(callsOf([&] { model().setData(edited, "x2", Qt::EditRole); }),
             QStringList("setName [2] \"x2\""));
}

void tst_kxOverlayQtModel_edits::shouldIgnoreTheNameThatTheServiceStored()
{
    fill("a2");
    service().setHook([this](const QString &) {
        service().node(2).name = "other";
        Q_EMIT service().nameChanged({2});
    });
    model().setData(index(2), "x2", Qt::EditRole);
    QCOMPARE(shown(), QString("x2"));
}

void tst_kxOverlayQtModel_edits::shouldSendAnEnabledStateOnce_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("call");
    QTest::newRow("checked") << QVariant(int(Qt::Checked)) << "setEnabled [2] true";
    QTest::newRow("unchecked") << QVariant(int(Qt::Unchecked)) << "setEnabled [2] false";
    QTest::newRow("true") << QVariant(true) << "setEnabled [2] true";
}

void tst_kxOverlayQtModel_edits::shouldSendAnEnabledStateOnce()
{
    QFETCH(QVariant, value);
    QFETCH(QString, call);
    fill("a2 b3");
    service().setApplies(false);
    log().clear();
    QVERIFY(model().setData(index(2), value, Qt::CheckStateRole));
    QCOMPARE(log().linesOf({"setName", "setEnabled"}), QStringList(call));
}

void tst_kxOverlayQtModel_edits::shouldRefreshFromTheEchoOfAnEnabledState()
{
    fill("g2(a3)");
    const QModelIndex edited = index(2);
    const QStringList calls =
        callsOf([&] { model().setData(edited, int(Qt::Unchecked), Qt::CheckStateRole); });
    QCOMPARE(calls.first(), QString("setEnabled [2] false"));
    QVERIFY(calls.contains("isActive 3"));
    QCOMPARE(shown(), QString("g2-(a3~)"));
}

void tst_kxOverlayQtModel_edits::shouldSendNothingForOtherRoles()
{
    fill("a2");
    const QModelIndex edited = index(2);
    QCOMPARE(callsOf([&] { QVERIFY(model().setData(edited, "tip", Qt::ToolTipRole)); }),
             QStringList());
    QCOMPARE(edited.data(Qt::ToolTipRole).toString(), QString("tip"));
}

void tst_kxOverlayQtModel_edits::shouldSendNoNodeForAnInvalidIndex()
{
    fill("a2");
    QCOMPARE(callsOf([this] { QVERIFY(!model().setData(QModelIndex(), "x", Qt::EditRole)); }),
             QStringList("setName [0] \"x\""));
    QCOMPARE(shown(), QString("a2"));
}

void tst_kxOverlayQtModel_edits::shouldNotSendWhileItRefreshesNames()
{
    fill("a2 b3");
    service().node(2).name = "x2";
    const auto rename = [this] { model().setData(index(3), "y3", Qt::EditRole); };
    const auto connection = connect(&model(), &QAbstractItemModel::dataChanged, this, rename);
    log().clear();
    Q_EMIT service().nameChanged({2});
    disconnect(connection);
    QCOMPARE(log().linesOf({"setName"}), QStringList());
    QCOMPARE(shown(), QString("x2 y3"));
}

void tst_kxOverlayQtModel_edits::shouldNotSendWhileItWrites()
{
    fill("a2 b3");
    service().setHook([this](const QString &) {
        service().setHook({});
        model().setData(index(3), "y3", Qt::EditRole);
    });
    log().clear();
    model().setData(index(2), "x2", Qt::EditRole);
    QCOMPARE(log().linesOf({"setName"}), QStringList("setName [2] \"x2\""));
    QCOMPARE(shown(), QString("x2 y3"));
}

/// The write is over by the time that the row itself changes.
void tst_kxOverlayQtModel_edits::shouldSendAnEditThatItsOwnRowCauses()
{
    fill("a2 b3");
    QMetaObject::Connection connection;
    const QObject listener;
    connection =
        connect(&model(), &QAbstractItemModel::dataChanged, &listener, [this, own = &connection] {
            disconnect(*own);
            model().setData(index(3), "y3", Qt::EditRole);
        });
    model().setData(index(2), "x2", Qt::EditRole);
    QCOMPARE(log().linesOf({"setName"}), (QStringList{"setName [2] \"x2\"", "setName [3] \"y3\""}));
    KX_COMPARE_TREE(model(), service());
}

void tst_kxOverlayQtModel_edits::shouldAddAndRemoveRowsWhileItWrites()
{
    fill("a2 b3");
    service().setHook([this](const QString &) {
        service().insert(1, 0, "g4(c5)");
        service().erase({3});
        Q_EMIT service().nodesAdded({4});
        Q_EMIT service().nodesRemoved({3});
    });
    model().setData(index(2), "x2", Qt::EditRole);
    service().setHook({});
    QCOMPARE(shown(), QString("g4(c5) x2"));
}

void tst_kxOverlayQtModel_edits::shouldAcceptEditsAgainAfterwards()
{
    fill("a2");
    model().setData(index(2), "x2", Qt::EditRole);
    service().node(2).name = "y2";
    Q_EMIT service().nameChanged({2});
    QCOMPARE(shown(), QString("y2"));
    model().setData(index(2), "z2", Qt::EditRole);
    QCOMPARE(log().count("setName"), 2);
}

void tst_kxOverlayQtModel_edits::shouldAnswerWhatTheBaseAnswers()
{
    fill("a2");
    QVERIFY(model().setData(index(2), "x2", Qt::EditRole));
    QVERIFY(!model().setData(model().index(7, 0), "x2", Qt::EditRole));
}

KX_TEST_MAIN(tst_kxOverlayQtModel_edits)
#include "tst_kxOverlayQtModel_edits.moc"
