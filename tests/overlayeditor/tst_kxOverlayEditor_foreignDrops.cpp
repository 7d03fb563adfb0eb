// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "kit/ForeignDrop.h"
#include "tests/overlayeditor/DragTest.h"
#include "tests/support/RealDrag.h"
#include "tests/support/RealInput.h"

#include <QProcess>

namespace {

constexpr QPoint sourcePlace(1800, 1100);
constexpr int patience = 20000;

} // namespace

Q_DECLARE_METATYPE(DropData)

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
    QString dropFromElsewhere(const DropData &data, const char *action, QRPC::NodeId target,
                              Edge edge);
};

/// Drags from another application; what that was told in the end.
QString tst_kxOverlayEditor_foreignDrops::dropFromElsewhere(const DropData &data,
                                                            const char *action, QRPC::NodeId target,
                                                            Edge edge)
{
    QProcess source;
    QStringList arguments{QString::number(sourcePlace.x()), QString::number(sourcePlace.y()),
                          QString(action)};
    for (const auto &[format, bytes] : data.formats)
        arguments << format << QString::fromLatin1(bytes.toHex());
    source.start(DRAG_SOURCE, arguments);
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
    QTest::addColumn<int>("number");
    const QVector<ForeignDrop> &drops = ForeignDrop::all();
    for (int i = 0; i < drops.size(); ++i)
        QTest::newRow(drops.at(i).name) << i;
}

void tst_kxOverlayEditor_foreignDrops::shouldLoseNothingByADropFromElsewhere()
{
    QFETCH(int, number);
    const ForeignDrop &drop = ForeignDrop::all().at(number);
    open(ForeignDrop::before());
    select({5});
    const QString told = dropFromElsewhere(drop.data, "moves", drop.target, drop.edge);
    QVERIFY2(told == "moved" || told == "refused", qPrintable(told));
    QCOMPARE(commands(),
             drop.call ? QStringList{QString("moveNodes ") + drop.call} : QStringList());
    KX_COMPARE_ROWS();
    QCOMPARE(shown(), QString(drop.after));
    // What is named and here is selected; nodes that are not here take no selection away.
    QCOMPARE(selected(), drop.selection);
}

void tst_kxOverlayEditor_foreignDrops::shouldRefuseWhatItCannotTake_data()
{
    QTest::addColumn<DropData>("data");
    QTest::addColumn<QString>("action");
    QTest::newRow("a text") << DropData().add("text/plain", "a text") << "moves";
    QTest::newRow("a file") << DropData().add("text/uri-list", "file:///a.png") << "copies";
    QTest::newRow("a copy of nodes")
        << DropData::rowsOf({6}).add(DropData::overlayFormat(), DropData::records({6})) << "copies";
    QTest::newRow("a copy of rows") << DropData::rowsOf({0}) << "copies";
}

void tst_kxOverlayEditor_foreignDrops::shouldRefuseWhatItCannotTake()
{
    QFETCH(DropData, data);
    QFETCH(QString, action);
    open("a2 g3() c6");
    select({2});
    QCOMPARE(dropFromElsewhere(data, qPrintable(action), 3, On), QString("refused"));
    QCOMPARE(commands(), QStringList());
    KX_COMPARE_ROWS();
    QCOMPARE(selected(), QRPC::NodeList{2});
}

void tst_kxOverlayEditor_foreignDrops::shouldLeaveGroupsOpenOrClosed()
{
    open("g2(h3(a4) k5(b6)) m7(c8)");
    tree().collapse(index(5));
    const QPersistentModelIndex other(index(7));
    const DropData data = DropData().add(DropData::treeFormat(), DropData::records({2}));
    dropFromElsewhere(data, "moves", 0, On);
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
    dropFromElsewhere(DropData::rowsOf({0, 0}, 3), "moves", 0, On);
    dropFromElsewhere(DropData::rowsOf({0, 0}, 3), "moves", 3, On);
    KX_COMPARE_ROWS();
    QCOMPARE(model().columnCount(), 1);
    QCOMPARE(model().columnCount(index(3)), 1);
}

KX_TEST_MAIN(tst_kxOverlayEditor_foreignDrops)
#include "tst_kxOverlayEditor_foreignDrops.moc"
