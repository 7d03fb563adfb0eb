// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "overlayeditor/model/kxDropTrace.h"
#include "tests/overlayeditor/model/ModelTest.h"

#include <QDataStream>
#include <QMimeData>

namespace {

const QString treeItems = QStringLiteral("application/pimo-overlaytree-items");
const QString overlayItems = QStringLiteral("application/pimo-overlay-items");

/// The records of a payload, each as node/parent.
QString recordsOf(const QByteArray &bytes)
{
    QDataStream stream(bytes);
    QStringList records;
    while (!stream.atEnd()) {
        qint32 node = 0;
        qint32 parent = 0;
        stream >> node >> parent;
        records.append(QStringLiteral("%1/%2").arg(node).arg(parent));
    }
    return records.join(QLatin1Char(' '));
}

} // namespace

/// What a drag carries, and what a drop asks of the service.
class tst_kxOverlayQtModel_drop : public ModelTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldOnlyMove();
    void shouldNameItsFormatsAfterThoseOfTheBase();
    void shouldCarryTheDraggedNodes_data();
    void shouldCarryTheDraggedNodes();
    void shouldWriteBigEndianPairs();
    void shouldCarryNothingForAnEmptyDrag();
    void shouldLeaveOutRowsWithoutANode();
    void shouldLeaveOutIndexesWithoutARow();
    void shouldCarryIdsBeyondTheSignedRange();
    void shouldCarryTheEncodingOfTheBase();
    void shouldAskForEachDraggedNode();
    void shouldMoveOnceToTheTarget_data();
    void shouldMoveOnceToTheTarget();
    void shouldMoveToTheRootFromARowWithoutANode();
    void shouldKeepTheOrderOfTheDrag();
    void shouldIgnoreTheParentsOfARecord();
    void shouldAnswerWhatTheBaseAnswers_data();
    void shouldAnswerWhatTheBaseAnswers();
    void shouldRefuseWhatIsNoMove();
    void shouldNotAskTheServiceForForeignFormats();
    void shouldPutForeignRowsWhereTheyAreDropped();
    void shouldPreferTheFormatOfGroups();
    void shouldReadATruncatedRecordAsFarAsItGoes_data();
    void shouldReadATruncatedRecordAsFarAsItGoes();
    void shouldIgnoreTheEchoOfItsMove();
    void shouldInsertCopiesThatAreFoundAgain();
    void shouldSurviveATargetThatDisappearsInsideItsMove_data();
    void shouldSurviveATargetThatDisappearsInsideItsMove();

private:
    std::unique_ptr<QMimeData> drag(const QRPC::NodeList &nodes)
    {
        QModelIndexList indexes;
        for (const QRPC::NodeId id : nodes)
            indexes.append(index(id));
        return std::unique_ptr<QMimeData>(model().mimeData(indexes));
    }
};

void tst_kxOverlayQtModel_drop::shouldOnlyMove()
{
    QCOMPARE(model().supportedDropActions(), Qt::DropActions(Qt::MoveAction));
}

void tst_kxOverlayQtModel_drop::shouldNameItsFormatsAfterThoseOfTheBase()
{
    QCOMPARE(model().mimeTypes(), QStandardItemModel().mimeTypes() << treeItems << overlayItems);
}

void tst_kxOverlayQtModel_drop::shouldCarryTheDraggedNodes_data()
{
    QTest::addColumn<QRPC::NodeList>("nodes");
    QTest::addColumn<bool>("hasGroup");
    QTest::addColumn<QString>("records");
    QTest::newRow("overlays") << QRPC::NodeList{5, 3} << false << "5/1 3/2";
    QTest::newRow("a group among them") << QRPC::NodeList{5, 2, 3} << true << "5/1 2/1 3/2";
    QTest::newRow("a switch") << QRPC::NodeList{6} << true << "6/1";
}

void tst_kxOverlayQtModel_drop::shouldCarryTheDraggedNodes()
{
    QFETCH(QRPC::NodeList, nodes);
    QFETCH(bool, hasGroup);
    QFETCH(QString, records);
    fill("g2(a3 b4) c5 s6*()");
    const auto data = drag(nodes);
    QCOMPARE(data->hasFormat(treeItems), hasGroup);
    QCOMPARE(data->hasFormat(overlayItems), !hasGroup);
    QCOMPARE(recordsOf(data->data(hasGroup ? treeItems : overlayItems)), records);
}

void tst_kxOverlayQtModel_drop::shouldWriteBigEndianPairs()
{
    fill("g258(a3)");
    QCOMPARE(drag({3})->data(overlayItems).toHex(), QByteArray("0000000300000102"));
}

void tst_kxOverlayQtModel_drop::shouldCarryNothingForAnEmptyDrag()
{
    fill("a2");
    QCOMPARE(model().mimeData({}), nullptr);
}

void tst_kxOverlayQtModel_drop::shouldLeaveOutRowsWithoutANode()
{
    fill("a2");
    model().appendRow(new QStandardItem("none"));
    const QModelIndex none = model().index(1, 0);
    const std::unique_ptr<QMimeData> mixed(model().mimeData({none, index(2)}));
    QCOMPARE(recordsOf(mixed->data(overlayItems)), QString("2/1"));
    const std::unique_ptr<QMimeData> empty(model().mimeData({none}));
    QVERIFY(empty->hasFormat(overlayItems));
    QVERIFY(!empty->hasFormat(treeItems));
    QCOMPARE(empty->data(overlayItems), QByteArray());
}

void tst_kxOverlayQtModel_drop::shouldLeaveOutIndexesWithoutARow()
{
    fill("a2 g3()");
    const std::unique_ptr<QMimeData> mixed(model().mimeData({QModelIndex(), index(2)}));
    QVERIFY(mixed);
    QCOMPARE(recordsOf(mixed->data(overlayItems)), QString("2/1"));
    QVERIFY(mixed->hasFormat(QStandardItemModel().mimeTypes().constFirst()));
    const std::unique_ptr<QMimeData> empty(model().mimeData({QModelIndex()}));
    QVERIFY(empty);
    QVERIFY(empty->hasFormat(overlayItems));
    QCOMPARE(empty->data(overlayItems), QByteArray());
}

void tst_kxOverlayQtModel_drop::shouldCarryIdsBeyondTheSignedRange()
{
    fill("g2() h4294967290(a4294967291)");
    const auto data = drag({4294967291U});
    QCOMPARE(data->data(overlayItems).toHex(), QByteArray("fffffffbfffffffa"));
    log().clear();
    QVERIFY(model().dropMimeData(data.get(), Qt::MoveAction, -1, -1, index(2)));
    QCOMPARE(log().linesOf({"moveNodes"}), QStringList("moveNodes [4294967291] 2 -1"));
}

void tst_kxOverlayQtModel_drop::shouldCarryTheEncodingOfTheBase()
{
    fill("a2");
    const QString base = QStandardItemModel().mimeTypes().constFirst();
    QVERIFY(drag({2})->hasFormat(base));
    QVERIFY(!drag({2})->data(base).isEmpty());
}

void tst_kxOverlayQtModel_drop::shouldAskForEachDraggedNode()
{
    fill("g2(a3)");
    const QModelIndexList indexes{index(3), index(2)};
    const QStringList calls =
        callsOf([&] { const std::unique_ptr<QMimeData> data(model().mimeData(indexes)); });
    QCOMPARE(calls, (QStringList{"isOverlay 3", "getParent 3", "isOverlay 2", "getParent 2"}));
}

void tst_kxOverlayQtModel_drop::shouldMoveOnceToTheTarget_data()
{
    QTest::addColumn<QRPC::NodeId>("target");
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("call");
    QTest::newRow("onto a group") << 2u << -1 << "moveNodes [5] 2 -1";
    QTest::newRow("between rows of a group") << 2u << 1 << "moveNodes [5] 2 1";
    QTest::newRow("onto empty space") << 0u << -1 << "moveNodes [5] 1 -1";
    QTest::newRow("between top rows") << 0u << 0 << "moveNodes [5] 1 0";
}

void tst_kxOverlayQtModel_drop::shouldMoveOnceToTheTarget()
{
    QFETCH(QRPC::NodeId, target);
    QFETCH(int, row);
    QFETCH(QString, call);
    fill("g2(a3 b4) c5");
    const auto data = drag({5});
    const QPersistentModelIndex source(index(5));
    const QModelIndex parent = target == 0 ? QModelIndex() : index(target);
    log().clear();
    QVERIFY(model().dropMimeData(data.get(), Qt::MoveAction, row, 0, parent));
    QCOMPARE(log().linesOf({"moveNodes"}), QStringList(call));
    model().removeRow(source.row(), source.parent()); // what the view does next
    KX_COMPARE_TREE(model(), service());
}

void tst_kxOverlayQtModel_drop::shouldMoveToTheRootFromARowWithoutANode()
{
    fill("a2");
    service().setApplies(false);
    model().appendRow(new QStandardItem("none"));
    const auto data = drag({2});
    log().clear();
    model().dropMimeData(data.get(), Qt::MoveAction, 0, 0, model().index(1, 0));
    QCOMPARE(log().linesOf({"moveNodes"}), QStringList("moveNodes [2] 1 0"));
    QCOMPARE(model().item(1)->rowCount(), 1);
}

void tst_kxOverlayQtModel_drop::shouldIgnoreTheParentsOfARecord()
{
    fill("g2(a3) b4 h5()");
    service().setApplies(false);
    QMimeData data;
    data.setData(overlayItems, QByteArray::fromHex("00000003000000050000000400001267"));
    log().clear();
    model().dropMimeData(&data, Qt::MoveAction, -1, -1, index(5));
    QCOMPARE(log().linesOf({"moveNodes"}), QStringList("moveNodes [3,4] 5 -1"));
}

void tst_kxOverlayQtModel_drop::shouldAnswerWhatTheBaseAnswers_data()
{
    QTest::addColumn<bool>("hasRows");
    QTest::addColumn<bool>("hasRecords");
    QTest::newRow("rows and records") << true << true;
    QTest::newRow("rows alone") << true << false;
    QTest::newRow("records alone") << false << true;
}

void tst_kxOverlayQtModel_drop::shouldAnswerWhatTheBaseAnswers()
{
    QFETCH(bool, hasRows);
    QFETCH(bool, hasRecords);
    fill("a2 g3(b4)");
    service().setApplies(false);
    const auto whole = drag({2});
    QMimeData data;
    const QStringList formats = whole->formats();
    for (const QString &format : formats) {
        if (format == overlayItems ? hasRecords : hasRows)
            data.setData(format, whole->data(format));
    }
    log().clear();
    QCOMPARE(model().dropMimeData(&data, Qt::MoveAction, 0, 0, index(3)), hasRows);
    QCOMPARE(log().count("moveNodes"), int(hasRecords));
    QCOMPARE(item(3)->rowCount(), hasRows ? 2 : 1);
    QCOMPARE(item(3)->child(0)->text(), QString(hasRows ? "a2" : "b4"));
}

void tst_kxOverlayQtModel_drop::shouldKeepTheOrderOfTheDrag()
{
    fill("a2 b3 c4 g5()");
    service().setApplies(false);
    const auto data = drag({4, 2, 3});
    log().clear();
    QVERIFY(model().dropMimeData(data.get(), Qt::MoveAction, -1, -1, index(5)));
    QCOMPARE(log().linesOf({"moveNodes"}), QStringList("moveNodes [4,2,3] 5 -1"));
}

void tst_kxOverlayQtModel_drop::shouldRefuseWhatIsNoMove()
{
    fill("a2 g3()");
    const auto data = drag({2});
    log().clear();
    QVERIFY(!model().dropMimeData(data.get(), Qt::CopyAction, -1, -1, index(3)));
    QVERIFY(!model().dropMimeData(data.get(), Qt::IgnoreAction, -1, -1, index(3)));
    QVERIFY(!model().dropMimeData(nullptr, Qt::MoveAction, -1, -1, index(3)));
    QCOMPARE(log().count("moveNodes"), 0);
    KX_COMPARE_TREE(model(), service());
}

void tst_kxOverlayQtModel_drop::shouldNotAskTheServiceForForeignFormats()
{
    fill("g2()");
    QMimeData text;
    text.setText("a2");
    QVERIFY(!model().dropMimeData(&text, Qt::MoveAction, -1, -1, index(2)));
    QStandardItemModel other;
    other.appendRow(new QStandardItem("row"));
    const std::unique_ptr<QMimeData> rows(other.mimeData({other.index(0, 0)}));
    QVERIFY(model().dropMimeData(rows.get(), Qt::MoveAction, -1, -1, index(2)));
    QCOMPARE(log().count("moveNodes"), 0);
    QCOMPARE(item(2)->child(0)->text(), QString("row"));
    QCOMPARE(model().getNodeId(item(2)->child(0)), 0u);
}

void tst_kxOverlayQtModel_drop::shouldPutForeignRowsWhereTheyAreDropped()
{
    fill("g2(a3 b4)");
    QStandardItemModel other;
    other.appendRow(new QStandardItem("row"));
    const std::unique_ptr<QMimeData> rows(other.mimeData({other.index(0, 0)}));
    QVERIFY(!model().dropMimeData(rows.get(), Qt::CopyAction, 1, 0, index(2)));
    QCOMPARE(item(2)->rowCount(), 2);
    QVERIFY(model().dropMimeData(rows.get(), Qt::MoveAction, 1, 0, index(2)));
    QCOMPARE(item(2)->rowCount(), 3);
    QCOMPARE(item(2)->child(1)->text(), QString("row"));
    QVERIFY(model().dropMimeData(rows.get(), Qt::MoveAction, 0, 0, QModelIndex()));
    QCOMPARE(model().item(0)->text(), QString("row"));
}

void tst_kxOverlayQtModel_drop::shouldPreferTheFormatOfGroups()
{
    fill("a2 b3 g4()");
    service().setApplies(false);
    const auto data = drag({4});
    data->setData(overlayItems, drag({2})->data(overlayItems));
    log().clear();
    model().dropMimeData(data.get(), Qt::MoveAction, 0, 0, QModelIndex());
    QCOMPARE(log().linesOf({"moveNodes"}), QStringList("moveNodes [4] 1 0"));
}

void tst_kxOverlayQtModel_drop::shouldReadATruncatedRecordAsFarAsItGoes_data()
{
    QTest::addColumn<QByteArray>("payload");
    QTest::addColumn<QString>("call");
    const QByteArray whole = QByteArray::fromHex("0000000200000001");
    QTest::newRow("whole") << whole << "moveNodes [2] 4 -1";
    QTest::newRow("parent cut off") << whole + whole.left(5) << "moveNodes [2,2] 4 -1";
    QTest::newRow("node cut off") << whole.left(3) << "moveNodes [0] 4 -1";
    QTest::newRow("nothing") << QByteArray() << "moveNodes [] 4 -1";
}

void tst_kxOverlayQtModel_drop::shouldReadATruncatedRecordAsFarAsItGoes()
{
    QFETCH(QByteArray, payload);
    QFETCH(QString, call);
    fill("a2 g4()");
    service().setApplies(false);
    QMimeData data;
    data.setData(overlayItems, payload);
    log().clear();
    model().dropMimeData(&data, Qt::MoveAction, -1, -1, index(4));
    QCOMPARE(log().linesOf({"moveNodes"}), QStringList(call));
    KX_COMPARE_TREE(model(), service());
}

void tst_kxOverlayQtModel_drop::shouldIgnoreTheEchoOfItsMove()
{
    fill("a2 g3()");
    const auto data = drag({2});
    QStandardItem *dragged = item(2);
    QVERIFY(model().dropMimeData(data.get(), Qt::MoveAction, -1, -1, index(3)));
    QCOMPARE(model().item(0), dragged);
    model().removeRow(0);
    KX_COMPARE_TREE(model(), service());
    service().moveNodes({2}, 1, 0);
    KX_COMPARE_TREE(model(), service());
}

void tst_kxOverlayQtModel_drop::shouldInsertCopiesThatAreFoundAgain()
{
    fill("h2(a3 b4) g5()");
    QVERIFY(item(2) && item(3));
    const auto data = drag({2});
    QVERIFY(model().dropMimeData(data.get(), Qt::MoveAction, -1, -1, index(5)));
    model().removeRow(0);
    KX_COMPARE_TREE(model(), service());
    QCOMPARE(item(2)->type(), 1000);
    QCOMPARE(item(2)->parent(), item(5));
    QCOMPARE(item(3)->parent(), item(2));
    service().setName({3}, "x3");
    service().deleteNodes({4});
    KX_COMPARE_TREE(model(), service());
}

void tst_kxOverlayQtModel_drop::shouldSurviveATargetThatDisappearsInsideItsMove_data()
{
    QTest::addColumn<bool>("reset");
    QTest::newRow("reset") << true;
    QTest::newRow("removed") << false;
}

void tst_kxOverlayQtModel_drop::shouldSurviveATargetThatDisappearsInsideItsMove()
{
    QFETCH(bool, reset);
    fill("a2 g3(b4) c5");
    const auto data = drag({2, 5});
    eraseInsideTheNextCall(3, reset);
    const kxDropTrace trace(&model());
    QVERIFY(!model().dropMimeData(data.get(), Qt::MoveAction, -1, -1, index(3)));
    model().settle(trace); // the dragged nodes are gone with the target
    QCOMPARE(trace.droppedNodes(), (QRPC::NodeList{2, 5}));
    KX_COMPARE_TREE(model(), service());
}

KX_TEST_MAIN(tst_kxOverlayQtModel_drop)
#include "tst_kxOverlayQtModel_drop.moc"
