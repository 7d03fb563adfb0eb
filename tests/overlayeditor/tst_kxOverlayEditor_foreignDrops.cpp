// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/overlayeditor/DragTest.h"
#include "tests/support/RealDrag.h"
#include "tests/support/RealInput.h"

#include <QDataStream>
#include <QMimeData>
#include <QProcess>

#include <memory>

namespace {

constexpr QPoint sourcePlace(1800, 1100);
constexpr int patience = 20000;
const auto overlayItems = QStringLiteral("application/pimo-overlay-items");
const auto treeItems = QStringLiteral("application/pimo-overlaytree-items");

/// What a drag carries: formats with their bytes.
struct Payload
{
    QStringList arguments;

    Payload &add(const QString &format, const QByteArray &bytes)
    {
        arguments << format << QString::fromLatin1(bytes.toHex());
        return *this;
    }
};

/// The records of nodes as a drag of an editor writes them, each with its parent.
QByteArray records(const QRPC::NodeList &nodes, int parent = 1)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    for (const QRPC::NodeId node : nodes)
        stream << qint32(node) << qint32(parent);
    return bytes;
}

/// The toolkit's own format of a row of items, with an id or without.
Payload rowsOf(const QRPC::NodeList &ids, int columns = 1)
{
    QStandardItemModel model;
    for (const QRPC::NodeId id : ids) {
        QList<QStandardItem *> row;
        for (int column = 0; column < columns; ++column)
            row.append(new QStandardItem(QStringLiteral("foreign")));
        if (id != 0)
            row.first()->setData(id, Qt::UserRole + 1);
        row.first()->appendRow(new QStandardItem(QStringLiteral("child")));
        model.appendRow(row);
    }
    QModelIndexList indexes;
    for (int row = 0; row < model.rowCount(); ++row) {
        for (int column = 0; column < columns; ++column)
            indexes.append(model.index(row, column));
    }
    const std::unique_ptr<QMimeData> data(model.mimeData(indexes));
    const QString format = data->formats().first();
    return Payload().add(format, data->data(format));
}

} // namespace

Q_DECLARE_METATYPE(Payload)

/// Drops that another application makes on the tree: whatever they carry, nothing is lost, and the
/// service is asked for no more than the payload says.
class tst_kxOverlayEditor_foreignDrops : public DragTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldLoseNothingByADropFromElsewhere_data();
    void shouldLoseNothingByADropFromElsewhere();
    void shouldRefuseWhatItCannotTake_data();
    void shouldRefuseWhatItCannotTake();
    void shouldLeaveGroupsOpenOrClosed();
    void shouldKeepOneColumn();

private:
    QString dropFromElsewhere(const Payload &payload, const char *action, QRPC::NodeId target,
                              Edge edge);
};

/// Drags from another application; what that was told in the end.
QString tst_kxOverlayEditor_foreignDrops::dropFromElsewhere(const Payload &payload,
                                                            const char *action, QRPC::NodeId target,
                                                            Edge edge)
{
    QProcess source;
    source.start(DRAG_SOURCE, QStringList{QString::number(sourcePlace.x()),
                                          QString::number(sourcePlace.y()), QString(action)}
                                  + payload.arguments);
    const auto tells = [&source](const char *state) {
        return QTest::qWaitFor([&source] { return source.canReadLine(); }, patience)
               && source.readLine() == QByteArray(state) + '\n';
    };
    if (!tells("ready"))
        return QStringLiteral("the source did not start");
    const QWidget &viewport = *tree().viewport();
    realInput::moveTo(viewport, viewport.mapFromGlobal(sourcePlace + QPoint(30, 30)));
    realInput::press();
    if (!tells("dragging"))
        return QStringLiteral("the drag did not begin");
    RealDrag drag(tree().viewport(), [=] { return placeOf(target, edge); });
    const bool arrived = drag.runFromElsewhere();
    QString told = QStringLiteral("the drag did not arrive");
    if (arrived && QTest::qWaitFor([&source] { return source.canReadLine(); }, patience))
        told = QString::fromLatin1(source.readLine()).trimmed();
    // It has to be there as long as its data may be asked for.
    QCoreApplication::processEvents();
    source.kill();
    source.waitForFinished();
    return told;
}

void tst_kxOverlayEditor_foreignDrops::shouldLoseNothingByADropFromElsewhere_data()
{
    QTest::addColumn<Payload>("payload");
    QTest::addColumn<QRPC::NodeId>("target");
    QTest::addColumn<int>("edge");
    QTest::addColumn<QStringList>("calls");
    QTest::addColumn<QString>("after");
    QTest::addColumn<QRPC::NodeList>("selection");
    const QString same = "g2(h3(a4) b5) c6 k7()";
    const auto row = [](const char *name, const Payload &payload, QRPC::NodeId target, Edge edge,
                        const char *call, const QString &after,
                        const QRPC::NodeList &selection = {5}) {
        QTest::newRow(name) << payload << target << int(edge)
                            << (call ? QStringList{QString("moveNodes ") + call} : QStringList())
                            << after << selection;
    };
    const auto withRows = [](const QString &format, const QRPC::NodeList &nodes) {
        return rowsOf(nodes).add(format, records(nodes));
    };

    row("rows of another view", rowsOf({0, 0}), 7, On, nullptr, same);
    row("rows of another view, between rows", rowsOf({0}), 6, Above, nullptr, same);
    row("rows of another view, onto empty space", rowsOf({0}), 0, On, nullptr, same);
    row("rows that only look like nodes", rowsOf({6, 4711}), 7, On, nullptr, same);
    row("no record", Payload().add(overlayItems, QByteArray()), 7, On, "[] 7 -1", same);
    row("records without rows", Payload().add(overlayItems, records({6})), 7, On, "[6] 7 -1",
        "g2(h3(a4) b5) k7(c6)", {6});
    row("half a record", Payload().add(overlayItems, records({6}).left(6)), 7, On, "[6] 7 -1",
        "g2(h3(a4) b5) k7(c6)", {6});
    row("a piece of an id", Payload().add(overlayItems, records({6}).left(3)), 7, On, "[0] 7 -1",
        same);
    row("a record and a piece", rowsOf({6}).add(overlayItems, records({6, 5}).left(11)), 7, On,
        "[6,0] 7 -1", "g2(h3(a4) b5) k7(c6)", {6});
    row("unknown ids", withRows(overlayItems, {4711, 4712}), 7, On, "[4711,4712] 7 -1", same);
    row("an unknown and a known id", withRows(overlayItems, {4711, 6}), 7, On, "[4711,6] 7 -1",
        "g2(h3(a4) b5) k7(c6)", {6});
    row("no id", withRows(overlayItems, {0}), 7, On, "[0] 7 -1", same);
    row("an id twice", withRows(overlayItems, {6, 6}), 7, On, "[6,6] 7 -1", "g2(h3(a4) b5) k7(c6)",
        {6});
    row("ids that are taken here", withRows(treeItems, {3, 6}), 7, On, "[3,6] 7 -1",
        "g2(b5) k7(h3(a4) c6)", {3, 6});
    row("ids that are taken here, between rows", withRows(overlayItems, {5}), 6, Below, "[5] 1 2",
        "g2(h3(a4)) c6 b5 k7()", {5});
    row("ids where they are already", withRows(overlayItems, {6}), 0, On, "[6] 1 -1",
        "g2(h3(a4) b5) k7() c6", {6});
    row("the root", withRows(treeItems, {1}), 7, On, "[1] 7 -1", same);
    row("the root, onto empty space", withRows(treeItems, {1}), 0, On, "[1] 1 -1", same);
    row("a group onto itself", withRows(treeItems, {2}), 2, On, "[2] 2 -1", same, {2});
    row("a group into its own child", withRows(treeItems, {2}), 3, On, "[2] 3 -1", same, {2});
    row("a negative id", withRows(overlayItems, {QRPC::NodeId(-5)}), 7, On, "[4294967291] 7 -1",
        same);
}

void tst_kxOverlayEditor_foreignDrops::shouldLoseNothingByADropFromElsewhere()
{
    QFETCH(Payload, payload);
    QFETCH(QRPC::NodeId, target);
    QFETCH(int, edge);
    QFETCH(QStringList, calls);
    QFETCH(QString, after);
    QFETCH(QRPC::NodeList, selection);
    open("g2(h3(a4) b5) c6 k7()");
    select({5});
    const QString told = dropFromElsewhere(payload, "moves", target, Edge(edge));
    QVERIFY2(told == "moved" || told == "refused", qPrintable(told));
    QCOMPARE(commands(), calls);
    KX_COMPARE_ROWS();
    QCOMPARE(shown(), after);
    // What is named and here is selected; nodes that are not here take no selection away.
    QCOMPARE(selected(), selection);
}

void tst_kxOverlayEditor_foreignDrops::shouldRefuseWhatItCannotTake_data()
{
    QTest::addColumn<Payload>("payload");
    QTest::addColumn<QString>("action");
    QTest::newRow("a text") << Payload().add("text/plain", "a text") << "moves";
    QTest::newRow("a file") << Payload().add("text/uri-list", "file:///a.png") << "copies";
    QTest::newRow("a copy of nodes") << rowsOf({6}).add(overlayItems, records({6})) << "copies";
    QTest::newRow("a copy of rows") << rowsOf({0}) << "copies";
}

void tst_kxOverlayEditor_foreignDrops::shouldRefuseWhatItCannotTake()
{
    QFETCH(Payload, payload);
    QFETCH(QString, action);
    open("a2 g3() c6");
    select({2});
    QCOMPARE(dropFromElsewhere(payload, qPrintable(action), 3, On), QString("refused"));
    QCOMPARE(commands(), QStringList());
    KX_COMPARE_ROWS();
    QCOMPARE(selected(), QRPC::NodeList{2});
}

void tst_kxOverlayEditor_foreignDrops::shouldLeaveGroupsOpenOrClosed()
{
    open("g2(h3(a4) k5(b6)) m7(c8)");
    tree().collapse(index(5));
    const QPersistentModelIndex other(index(7));
    const Payload payload = Payload().add(treeItems, records({2}));
    dropFromElsewhere(payload, "moves", 0, On);
    KX_COMPARE_ROWS();
    QCOMPARE(shown(), QString("m7(c8) g2(h3(a4) k5(b6))"));
    QCOMPARE(selected(), QRPC::NodeList{2});
    // The row of before, which nobody dragged.
    QVERIFY(other.isValid());
    QVERIFY(tree().isExpanded(index(7)));
    QVERIFY(tree().isExpanded(index(2)));
    QVERIFY(tree().isExpanded(index(3)));
    QVERIFY(!tree().isExpanded(index(5)));
}

void tst_kxOverlayEditor_foreignDrops::shouldKeepOneColumn()
{
    open("a2 g3() c6");
    dropFromElsewhere(rowsOf({0, 0}, 3), "moves", 0, On);
    dropFromElsewhere(rowsOf({0, 0}, 3), "moves", 3, On);
    KX_COMPARE_ROWS();
    QCOMPARE(model().columnCount(), 1);
    QCOMPARE(model().columnCount(index(3)), 1);
}

KX_TEST_MAIN(tst_kxOverlayEditor_foreignDrops)
#include "tst_kxOverlayEditor_foreignDrops.moc"
