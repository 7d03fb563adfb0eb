// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "overlayeditor/kxSelectionRanges.h"
#include "tests/support/KxTest.h"

#include <QStandardItemModel>

namespace {

/// Counts how often a row's parent is asked for.
class ClimbCountingModel : public QStandardItemModel
{
public:
    QModelIndex parent(const QModelIndex &child) const override
    {
        ++climbs;
        return QStandardItemModel::parent(child);
    }
    using QObject::parent;

    mutable int climbs = 0;
};

} // namespace

class tst_kxSelectionRanges : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void shouldExtendTheLastRangeByTheNextRow();
    void shouldBeginARangeForAnyOtherRow_data();
    void shouldBeginARangeForAnyOtherRow();
    void shouldKeepTheOrderInWhichRowsWereAdded();
    void shouldSubtractRows_data();
    void shouldSubtractRows();
    void shouldSubtractWithinEachParent();
    void shouldEqualWhatTheSelectionModelDeselects();
    void shouldKeepTheRowsOutsideOfOthers();
    void shouldClimbFromEachRowOnce();

private:
    QModelIndex row(int row, int parent = -1) const;
    QItemSelection rows(const QString &list, int parent = -1) const;
    static QString dump(const QItemSelection &selection);

    QStandardItemModel m_model;
};

/// Ten rows, each with ten children.
void tst_kxSelectionRanges::init()
{
    KxTest::init();
    m_model.clear();
    for (int i = 0; i < 10; ++i) {
        auto *item = new QStandardItem;
        for (int j = 0; j < 10; ++j)
            item->appendRow(new QStandardItem);
        m_model.appendRow(item);
    }
}

QModelIndex tst_kxSelectionRanges::row(int row, int parent) const
{
    return m_model.index(row, 0, parent < 0 ? QModelIndex() : m_model.index(parent, 0));
}

/// "1-3 5" as ranges.
QItemSelection tst_kxSelectionRanges::rows(const QString &list, int parent) const
{
    QItemSelection selection;
    const QStringList ranges = list.split(' ', Qt::SkipEmptyParts);
    for (const QString &range : ranges) {
        const int top = range.section('-', 0, 0).toInt();
        const int bottom = range.section('-', -1).toInt();
        selection.append(QItemSelectionRange(row(top, parent), row(bottom, parent)));
    }
    return selection;
}

/// The inverse of rows(), with the parent's row in front where there is one.
QString tst_kxSelectionRanges::dump(const QItemSelection &selection)
{
    QStringList ranges;
    for (const QItemSelectionRange &range : selection) {
        QString text = QString::number(range.top());
        if (range.bottom() != range.top())
            text += QStringLiteral("-%1").arg(range.bottom());
        if (range.parent().isValid())
            text.prepend(QStringLiteral("%1/").arg(range.parent().row()));
        ranges.append(text);
    }
    return ranges.join(' ');
}

void tst_kxSelectionRanges::shouldExtendTheLastRangeByTheNextRow()
{
    QItemSelection selection;
    for (int i = 2; i < 6; ++i)
        kxSelectionRanges::append(&selection, row(i));
    QCOMPARE(dump(selection), QStringLiteral("2-5"));
}

void tst_kxSelectionRanges::shouldBeginARangeForAnyOtherRow_data()
{
    QTest::addColumn<int>("next");
    QTest::addColumn<int>("parent");
    QTest::addColumn<QString>("expected");
    QTest::newRow("gap") << 5 << -1 << QStringLiteral("3 5");
    QTest::newRow("before") << 2 << -1 << QStringLiteral("3 2");
    QTest::newRow("same row") << 3 << -1 << QStringLiteral("3 3");
    QTest::newRow("next row of another parent") << 4 << 0 << QStringLiteral("3 0/4");
}

void tst_kxSelectionRanges::shouldBeginARangeForAnyOtherRow()
{
    QFETCH(int, next);
    QFETCH(int, parent);
    QFETCH(QString, expected);
    QItemSelection selection;
    kxSelectionRanges::append(&selection, row(3));
    kxSelectionRanges::append(&selection, row(next, parent));
    QCOMPARE(dump(selection), expected);
}

void tst_kxSelectionRanges::shouldKeepTheOrderInWhichRowsWereAdded()
{
    const QModelIndexList order{row(7), row(8), row(2), row(3, 1), row(4, 1), row(3)};
    QItemSelection selection;
    for (const QModelIndex &index : order)
        kxSelectionRanges::append(&selection, index);
    QCOMPARE(selection.indexes(), order);
}

void tst_kxSelectionRanges::shouldSubtractRows_data()
{
    QTest::addColumn<QString>("all");
    QTest::addColumn<QString>("removed");
    QTest::addColumn<QString>("rest");
    const auto row = [](const char *name, const char *all, const char *removed, const char *rest) {
        QTest::newRow(name) << QString(all) << QString(removed) << QString(rest);
    };
    row("nothing", "0-9", "", "0-9");
    row("everything", "0-9", "0-9", "");
    row("first row", "0-9", "0", "1-9");
    row("last row", "0-9", "9", "0-8");
    row("every second row", "0-9", "1 3 5 7 9", "0 2 4 6 8");
    row("unsorted", "0-9", "7 2-3", "0-1 4-6 8-9");
    row("over the edges of ranges", "0-3 6-9", "2-7", "0-1 8-9");
    row("rows that are not there", "0-3", "5-9", "0-3");
    row("rows named twice", "0-9", "4-6 5", "0-3 7-9");
    row("ranges within one another", "5-9", "0-8 2-3", "9");
    row("hole in a later range", "0-1 4-9", "5 8", "0-1 4 6-7 9");
}

void tst_kxSelectionRanges::shouldSubtractRows()
{
    QFETCH(QString, all);
    QFETCH(QString, removed);
    QFETCH(QString, rest);
    QCOMPARE(dump(kxSelectionRanges::subtract(rows(all), rows(removed))), rest);
}

void tst_kxSelectionRanges::shouldSubtractWithinEachParent()
{
    QItemSelection all = rows(QStringLiteral("0-9"));
    all.append(rows(QStringLiteral("0-9"), 2));
    QItemSelection removed = rows(QStringLiteral("4"), 2);
    removed.append(rows(QStringLiteral("7")));
    removed.append(rows(QStringLiteral("1"), 5));
    QCOMPARE(dump(kxSelectionRanges::subtract(all, removed)),
             QStringLiteral("0-6 8-9 2/0-3 2/5-9"));
}

void tst_kxSelectionRanges::shouldEqualWhatTheSelectionModelDeselects()
{
    QItemSelection all = rows(QStringLiteral("0-9"));
    all.append(rows(QStringLiteral("3-8"), 4));
    QItemSelection removed = rows(QStringLiteral("9 0-2"));
    removed.append(rows(QStringLiteral("1-5"), 4));

    QItemSelectionModel reference(&m_model);
    reference.select(all, QItemSelectionModel::ClearAndSelect);
    reference.select(removed, QItemSelectionModel::Deselect);
    const QModelIndexList expected = reference.selectedIndexes();
    const QModelIndexList rest = kxSelectionRanges::subtract(all, removed).indexes();
    QCOMPARE(QSet<QModelIndex>(rest.begin(), rest.end()),
             QSet<QModelIndex>(expected.begin(), expected.end()));
    QCOMPARE(rest.size(), expected.size());
}

void tst_kxSelectionRanges::shouldKeepTheRowsOutsideOfOthers()
{
    const QModelIndexList indexes{row(4), row(2), row(3, 2), row(3, 5), row(5), row(6)};
    QCOMPARE(dump(kxSelectionRanges::outside(indexes, {row(2), row(5)})), QStringLiteral("4 6"));
    QCOMPARE(dump(kxSelectionRanges::outside(indexes, {row(3, 2)})), QStringLiteral("4 2 5/3 5-6"));
    QCOMPARE(dump(kxSelectionRanges::outside(indexes, {})), QStringLiteral("4 2 2/3 5/3 5-6"));
}

void tst_kxSelectionRanges::shouldClimbFromEachRowOnce()
{
    ClimbCountingModel model;
    QModelIndexList chain;
    QStandardItem *item = model.invisibleRootItem();
    for (int level = 0; level < 500; ++level) {
        auto *child = new QStandardItem;
        item->appendRow(child);
        item = child;
        chain.prepend(item->index());
    }
    model.climbs = 0;
    QVERIFY(kxSelectionRanges::outside(chain, {chain.last()}).isEmpty());
    QVERIFY2(model.climbs < 4 * chain.size(), qPrintable(QString::number(model.climbs)));
}

KX_TEST_MAIN(tst_kxSelectionRanges)
#include "tst_kxSelectionRanges.moc"
