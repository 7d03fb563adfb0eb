// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/overlayeditor/EditorTest.h"

#include <QSignalSpy>

/// The search filter of the tree.
class tst_kxOverlayEditor_search : public EditorTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldShowMatchesWithTheirAncestors_data();
    void shouldShowMatchesWithTheirAncestors();
    void shouldShowEveryRowForAnEmptyText();
    void shouldKeepWhatLiesInAHiddenRow();
    void shouldKeepSelectionAndExpansion();
    void shouldFilterAsTheBoxSays();
    void shouldNotChangeTheModel();
    void shouldShowWhatChangesUntilTheTextDoes();
    void shouldSearchTenThousandLevels();

private:
    void openNamed();
    void search(const QString &text);
    QString visible(const QModelIndex &parent = QModelIndex());
};

/// "Titles" (2) holds "my text" (3) and "text" (4); "Logos" (5) holds the group "inner" (6) with
/// "Text [1]" (7); "lamp" (8) stands alone.
void tst_kxOverlayEditor_search::openNamed()
{
    openEditor("a2(b3 c4) d5(e6(f7)) g8");
    const char *const names[] = {"Titles", "my text", "text", "Logos", "inner", "Text [1]", "lamp"};
    for (QRPC::NodeId id = 2; id <= 8; ++id)
        service().setName({id}, names[id - 2]);
    log().clear();
}

void tst_kxOverlayEditor_search::search(const QString &text)
{
    QVERIFY(QMetaObject::invokeMethod(&editor(), "searchChanged", Q_ARG(QString, text)));
}

/// The ids of the rows that are not hidden, those of a group in brackets.
QString tst_kxOverlayEditor_search::visible(const QModelIndex &parent)
{
    QStringList rows;
    for (int row = 0; row < model().rowCount(parent); ++row) {
        if (tree().isRowHidden(row, parent))
            continue;
        const QModelIndex child = model().index(row, 0, parent);
        const QString inside = visible(child);
        rows.append(QString::number(model().getNodeId(child))
                    + (inside.isEmpty() ? QString() : '(' + inside + ')'));
    }
    return rows.join(' ');
}

void tst_kxOverlayEditor_search::shouldShowMatchesWithTheirAncestors_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("rows");
    QTest::newRow("a word anywhere in the name") << "text"
                                                 << "2(3 4)";
    QTest::newRow("case counts") << "Text"
                                 << "5(6(7))";
    QTest::newRow("a group without its children") << "Titles"
                                                  << "2";
    QTest::newRow("a group in a group") << "inner"
                                        << "5(6)";
    QTest::newRow("an asterisk") << "te*t"
                                 << "2(3 4)";
    QTest::newRow("a question mark") << "l?mp"
                                     << "8";
    QTest::newRow("a set of characters") << "[Tt]ext"
                                         << "2(3 4) 5(6(7))";
    QTest::newRow("only an asterisk") << "*"
                                      << "2(3 4) 5(6(7)) 8";
    QTest::newRow("an unfinished set of characters") << "[T"
                                                     << "";
    QTest::newRow("no match") << "nothing"
                              << "";
    QTest::newRow("in several places") << "m"
                                       << "2(3) 8";
}

void tst_kxOverlayEditor_search::shouldShowMatchesWithTheirAncestors()
{
    QFETCH(QString, text);
    QFETCH(QString, rows);
    openNamed();
    search(text);
    QCOMPARE(visible(), rows);
}

void tst_kxOverlayEditor_search::shouldShowEveryRowForAnEmptyText()
{
    openNamed();
    search("inner");
    search(QString());
    QCOMPARE(visible(), QString("2(3 4) 5(6(7)) 8"));
}

void tst_kxOverlayEditor_search::shouldKeepWhatLiesInAHiddenRow()
{
    openNamed();
    search("Titles");
    const QModelIndex titles = index(2);
    QVERIFY(tree().isRowHidden(0, titles));
    search("lamp");
    QVERIFY(tree().isRowHidden(0, QModelIndex()));
    QVERIFY(tree().isRowHidden(0, titles));
    QVERIFY(!tree().isRowHidden(0, index(5)));
    search("text");
    QVERIFY(!tree().isRowHidden(0, titles));
}

void tst_kxOverlayEditor_search::shouldKeepSelectionAndExpansion()
{
    openNamed();
    tree().collapse(index(5));
    select({3, 8});
    search("Text");
    QCOMPARE(selected(), (QRPC::NodeList{3, 8}));
    QVERIFY(tree().isExpanded(index(2)));
    QVERIFY(!tree().isExpanded(index(5)));
    search(QString());
    QCOMPARE(selected(), (QRPC::NodeList{3, 8}));
    QVERIFY(!tree().isExpanded(index(5)));
}

void tst_kxOverlayEditor_search::shouldFilterAsTheBoxSays()
{
    openNamed();
    QVERIFY(QMetaObject::invokeMethod(&searchBox(), "searchChanged", Q_ARG(QString, "lamp")));
    QCOMPARE(visible(), QString("8"));
    showWindow();
    call("find");
    QTRY_VERIFY(searchBox().isAncestorOf(QApplication::focusWidget())
                || QApplication::focusWidget() == &searchBox());
    QTest::keyClicks(QApplication::focusWidget(), "inner");
    QTRY_COMPARE(visible(), QString("5(6)"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    QTRY_COMPARE(visible(), QString("2(3 4) 5(6(7)) 8"));
}

void tst_kxOverlayEditor_search::shouldNotChangeTheModel()
{
    openNamed();
    const QString before = shown();
    QSignalSpy changed(&model(), &QAbstractItemModel::dataChanged);
    search("text");
    QCOMPARE(changed.count(), 0);
    QCOMPARE(shown(), before);
    QCOMPARE(log().lines(), QStringList());
}

/// The filter is applied when the text changes, and at no other time.
void tst_kxOverlayEditor_search::shouldShowWhatChangesUntilTheTextDoes()
{
    openNamed();
    search("text");
    service().insert(2, 0, "x9");
    Q_EMIT service().nodesAdded({9});
    service().setName({4}, "other");
    QCOMPARE(visible(), QString("2(9 3 4)"));
    search("tex");
    QCOMPARE(visible(), QString("2(3)"));
}

void tst_kxOverlayEditor_search::shouldSearchTenThousandLevels()
{
    constexpr QRPC::NodeId depth = 10000;
    openEditor("a2");
    log().setKeepsLines(false);
    const QRPC::NodeId top = service().insertChain(1, depth);
    service().setName({top + depth - 1}, "deepest");
    Q_EMIT service().nodesAdded({top});
    search("deepest");
    QVERIFY(tree().isRowHidden(0, QModelIndex()));
    for (QModelIndex row = index(top + depth - 1); row.isValid(); row = row.parent())
        QVERIFY(!tree().isRowHidden(row.row(), row.parent()));
    search("nothing");
    QVERIFY(tree().isRowHidden(1, QModelIndex()));
}

KX_TEST_MAIN(tst_kxOverlayEditor_search)
#include "tst_kxOverlayEditor_search.moc"
