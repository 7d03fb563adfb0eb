// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/overlayeditor/EditorTest.h"
#include "tests/support/RealInput.h"

#include <algorithm>

namespace {

const auto flatTree = QStringLiteral("a2 b3 c4 d5 e6 f7 h8 i9 j10 k11 m12(n13 o14 p15 q16) g17()");

} // namespace

/// Rows that disappear while they are selected by mouse. A selection with a range and single rows,
/// made by click, Shift-click and Ctrl-click, must outlive what the service does to its rows.
///
/// Run twice: with events from the test library on the offscreen platform, and with real events
/// where there is an X server.
class tst_kxOverlayEditor_removal : public EditorTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldSurviveTheRemovalOfSelectedRows_data();
    void shouldSurviveTheRemovalOfSelectedRows();
    void shouldDeleteSelectedRowsByKey();
    void shouldDeleteTheCurrentRowAgainAndAgain();
    void shouldCloseRowsBeforeTheyLeave_data();
    void shouldCloseRowsBeforeTheyLeave();

private:
    static bool isReal() { return QGuiApplication::platformName() == "xcb"; }
    void clickRow(QRPC::NodeId node, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void selectByMouse(QRPC::NodeId first, QRPC::NodeId last, QRPC::NodeId single);
    void pressDelete();
};

void tst_kxOverlayEditor_removal::clickRow(QRPC::NodeId node, Qt::KeyboardModifiers modifiers)
{
    if (!isReal()) {
        click(node, modifiers);
        return;
    }
    QStringList held;
    if (modifiers & Qt::ShiftModifier)
        held.append("shift");
    if (modifiers & Qt::ControlModifier)
        held.append("ctrl");
    realInput::click(*tree().viewport(), tree().visualRect(index(node)).center(), held);
}

void tst_kxOverlayEditor_removal::pressDelete()
{
    if (isReal())
        realInput::key("Delete");
    else
        QTest::keyClick(&tree(), Qt::Key_Delete);
}

void tst_kxOverlayEditor_removal::selectByMouse(QRPC::NodeId first, QRPC::NodeId last,
                                                QRPC::NodeId single)
{
    clickRow(first);
    QTRY_COMPARE(selected(), QRPC::NodeList{first});
    clickRow(last, Qt::ShiftModifier);
    QTRY_VERIFY(selected().contains(last));
    clickRow(single, Qt::ControlModifier);
    QTRY_VERIFY(selected().contains(single));
    QVERIFY(selected().contains(first));
}

void tst_kxOverlayEditor_removal::shouldSurviveTheRemovalOfSelectedRows_data()
{
    QTest::addColumn<QRPC::NodeList>("clicked");
    QTest::addColumn<QRPC::NodeList>("gone");
    QTest::addColumn<QRPC::NodeList>("left");
    const QRPC::NodeList top{3, 6, 9};
    const QRPC::NodeList deep{13, 15, 2};
    QTest::newRow("all of them") << top << QRPC::NodeList{3, 4, 5, 6, 9} << QRPC::NodeList{};
    QTest::newRow("the first of the range")
        << top << QRPC::NodeList{3} << QRPC::NodeList{4, 5, 6, 9};
    QTest::newRow("the last of the range")
        << top << QRPC::NodeList{6} << QRPC::NodeList{3, 4, 5, 9};
    QTest::newRow("inside the range") << top << QRPC::NodeList{4, 5} << QRPC::NodeList{3, 6, 9};
    QTest::newRow("the single one") << top << QRPC::NodeList{9} << QRPC::NodeList{3, 4, 5, 6};
    QTest::newRow("one above") << top << QRPC::NodeList{2} << QRPC::NodeList{3, 4, 5, 6, 9};
    QTest::newRow("out of order") << top << QRPC::NodeList{9, 4, 3} << QRPC::NodeList{5, 6};
    QTest::newRow("at depth") << deep << QRPC::NodeList{13, 14} << QRPC::NodeList{2, 15};
    QTest::newRow("their group") << deep << QRPC::NodeList{12} << QRPC::NodeList{2};
}

void tst_kxOverlayEditor_removal::shouldSurviveTheRemovalOfSelectedRows()
{
    QFETCH(QRPC::NodeList, clicked);
    QFETCH(QRPC::NodeList, gone);
    QFETCH(QRPC::NodeList, left);
    openEditor(flatTree);
    showWindow();
    selectByMouse(clicked.at(0), clicked.at(1), clicked.at(2));
    service().deleteNodes(gone);
    KX_COMPARE_TREE(model(), service());
    // The view may make a neighbour current; it must not select it, nor lose what is still there.
    QCOMPARE(selected(), left);
    clickRow(11);
    QTRY_COMPARE(selected(), QRPC::NodeList{11});
    QCOMPARE(window()._overlay_name->text(), QString("k11"));
}

void tst_kxOverlayEditor_removal::shouldDeleteSelectedRowsByKey()
{
    openEditor(flatTree);
    showWindow();
    selectByMouse(3, 6, 9);
    pressDelete();
    QTRY_COMPARE(shown(), QString("a2 f7 h8 j10 k11 m12(n13 o14 p15 q16) g17()"));
    KX_COMPARE_TREE(model(), service());
    selectByMouse(13, 16, 7);
    service().moveNodes({14, 7, 13}, 17, 0);
    KX_COMPARE_TREE(model(), service());
    selectByMouse(2, 10, 17);
    Q_EMIT service().modelReset();
    QCOMPARE(selected(), QRPC::NodeList());
    QVERIFY(!window()._overlay_name->isEnabled());
}

void tst_kxOverlayEditor_removal::shouldDeleteTheCurrentRowAgainAndAgain()
{
    openEditor("a2 b3 c4 d5");
    showWindow();
    for (const QRPC::NodeId id : {3u, 2u, 5u, 4u}) {
        clickRow(id);
        QTRY_COMPARE(selected(), QRPC::NodeList{id});
        pressDelete();
        QTRY_VERIFY(!service().has(id));
        KX_COMPARE_TREE(model(), service());
    }
    QCOMPARE(model().rowCount(), 0);
}

void tst_kxOverlayEditor_removal::shouldCloseRowsBeforeTheyLeave_data()
{
    QTest::addColumn<bool>("moved");
    QTest::newRow("removed") << false;
    QTest::newRow("moved") << true;
}

/// The toolkit looks at each row that a view keeps open, for each row that leaves.
void tst_kxOverlayEditor_removal::shouldCloseRowsBeforeTheyLeave()
{
    QFETCH(bool, moved);
    openEditor("g2(h3(a4) k5(b6)) m7(c8) n9(d10)");
    const QVector<QPersistentModelIndex> leaving{index(2), index(3), index(5), index(7)};
    const QPersistentModelIndex staying = index(9);
    int stillOpen = -1;
    const QObject listener;
    connect(&model(), &QAbstractItemModel::rowsAboutToBeRemoved, &listener,
            [this, rows = &leaving, open = &stillOpen] {
                if (*open < 0)
                    *open = int(std::count_if(rows->begin(), rows->end(), [this](const auto &row) {
                        return tree().isExpanded(row);
                    }));
            });
    if (moved)
        service().moveNodes({2, 7}, 9, -1);
    else
        service().deleteNodes({2, 7});
    QCOMPARE(stillOpen, 0);
    QVERIFY(tree().isExpanded(staying));
    KX_COMPARE_TREE(model(), service());
}

KX_TEST_MAIN(tst_kxOverlayEditor_removal)
#include "tst_kxOverlayEditor_removal.moc"
