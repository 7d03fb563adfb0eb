// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/overlayeditor/PanelTest.h"

#include <QSignalSpy>

namespace {

using Form = kxOverlayEditorGUIW;

/// A way in which the name field ends its edit.
struct Way
{
    const char *name;
    void (*go)(Form &form);
};

const Way s_ways[] = {
    {"Return", [](Form &form) { QTest::keyClick(form._overlay_name, Qt::Key_Return); }},
    {"Enter", [](Form &form) { QTest::keyClick(form._overlay_name, Qt::Key_Enter); }},
    {"Tab", [](Form &form) { QTest::keyClick(form._overlay_name, Qt::Key_Tab); }},
    {"Backtab", [](Form &form) { QTest::keyClick(form._overlay_name, Qt::Key_Backtab); }},
    {"click elsewhere",
     [](Form &form) {
         QTest::mouseClick(form._text_edit->viewport(), Qt::LeftButton, Qt::NoModifier, {5, 5});
     }},
    {"another window",
     [](Form &form) {
         QWidget other;
         other.show();
         other.activateWindow();
         QVERIFY(QTest::qWaitForWindowActive(&other));
         QVERIFY(!form._overlay_name->hasFocus());
     }},
    {"hidden window", [](Form &form) { form.hide(); }},
    {"hidden field", [](Form &form) { form._overlay_name->hide(); }},
};

} // namespace

/// The name field: leaving it must not rename nodes whose names differ, unless the user typed.
class tst_kxOverlayEditor_naming : public PanelTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldNotRenameMixedNodesInPassing_data() { addWays(); }
    void shouldNotRenameMixedNodesInPassing();
    void shouldRenameMixedNodesToATypedName_data() { addWays(); }
    void shouldRenameMixedNodesToATypedName();
    void shouldRenameMixedNodesToATextThatWasSet();
    void shouldRenameMixedNodesToNothing();
    void shouldSendTheSameNameForNodesThatShareIt();
    void shouldSendNothingInAWalkThroughThePanel_data();
    void shouldSendNothingInAWalkThroughThePanel();
    void shouldProtectAfterFurtherRefreshes();
    void shouldProtectTheNextMixedSelection();
    void shouldSendWhatWasTypedAcrossARefresh();
    void shouldProtectAgainAfterARename();

private:
    static void addWays();
    void showMixed();

    QLineEdit &field() { return *window()._overlay_name; }
};

void tst_kxOverlayEditor_naming::addWays()
{
    QTest::addColumn<int>("way");
    for (int way = 0; way < int(std::size(s_ways)); ++way)
        QTest::newRow(s_ways[way].name) << way;
}

/// The refresh for one node changes the field's text, and only so leaving it ends an edit.
void tst_kxOverlayEditor_naming::showMixed()
{
    openEditor("a2 b3 c4");
    showWindow();
    select({2});
    select({2, 3});
    QVERIFY(isMarked(field()));
    focus(field());
    log().clear();
}

void tst_kxOverlayEditor_naming::shouldNotRenameMixedNodesInPassing()
{
    QFETCH(int, way);
    showMixed();
    QSignalSpy finished(&field(), &QLineEdit::editingFinished);
    QCOMPARE(commandsOf([&] { s_ways[way].go(window()); }), QStringList());
    QCOMPARE(finished.count(), 1);
    QCOMPARE(field().text(), QString("a2"));
    QVERIFY(isMarked(field()));
}

void tst_kxOverlayEditor_naming::shouldRenameMixedNodesToATypedName()
{
    QFETCH(int, way);
    showMixed();
    field().selectAll();
    QCOMPARE(commandsOf([&] {
                 type("new");
                 s_ways[way].go(window());
             }),
             QStringList("setName [2,3] \"new\""));
    QVERIFY(!isMarked(field()));
    QCOMPARE(node(3).name, QString("new"));
}

void tst_kxOverlayEditor_naming::shouldRenameMixedNodesToATextThatWasSet()
{
    showMixed();
    field().setText("set");
    QCOMPARE(commandsOf([] { press(Qt::Key_Tab); }), QStringList("setName [2,3] \"set\""));
}

void tst_kxOverlayEditor_naming::shouldRenameMixedNodesToNothing()
{
    showMixed();
    field().selectAll();
    press(Qt::Key_Backspace);
    QCOMPARE(commandsOf([] { press(Qt::Key_Tab); }), QStringList("setName [2,3] \"\""));
}

void tst_kxOverlayEditor_naming::shouldSendTheSameNameForNodesThatShareIt()
{
    openEditor("a2 b3");
    showWindow();
    node(3).name = "a2";
    select({2, 3});
    focus(field());
    QCOMPARE(commandsOf([] { press(Qt::Key_Return); }), QStringList("setName [2,3] \"a2\""));
}

void tst_kxOverlayEditor_naming::shouldSendNothingInAWalkThroughThePanel_data()
{
    QTest::addColumn<int>("firstType");
    QTest::addColumn<int>("secondType");
    QTest::addColumn<int>("key");
    for (const int key : {int(Qt::Key_Tab), int(Qt::Key_Backtab)}) {
        const char *way = key == Qt::Key_Tab ? "forwards" : "backwards";
        QTest::addRow("texts, %s", way) << 0 << 0 << key;
        QTest::addRow("images, %s", way) << 1 << 1 << key;
        QTest::addRow("mixed types, %s", way) << 0 << 1 << key;
    }
}

void tst_kxOverlayEditor_naming::shouldSendNothingInAWalkThroughThePanel()
{
    QFETCH(int, firstType);
    QFETCH(int, secondType);
    QFETCH(int, key);
    openEditor("a2 b3");
    showWindow();
    for (const PanelProperty &shown : properties()) {
        shown.put(&node(2), 0);
        shown.put(&node(3), 1);
    }
    node(2).type = firstType;
    node(3).type = secondType;
    node(3).sizeType = 0;
    select({2});
    select({2, 3});
    focus(field());
    log().clear();
    QSet<QWidget *> visited;
    for (int step = 0; step < 100 && (step == 0 || !field().hasFocus()); ++step) {
        QVERIFY(QApplication::focusWidget());
        visited.insert(QApplication::focusWidget());
        press(Qt::Key(key));
    }
    QVERIFY(field().hasFocus());
    QVERIFY(visited.size() > 8);
    QVERIFY(visited.contains(window()._position_combo_box));
    QCOMPARE(writes(), QStringList());
}

void tst_kxOverlayEditor_naming::shouldProtectAfterFurtherRefreshes()
{
    showMixed();
    service().setName({2}, "renamed");
    QVERIFY(isMarked(field()));
    QCOMPARE(commandsOf([] { press(Qt::Key_Tab); }), QStringList());
}

void tst_kxOverlayEditor_naming::shouldProtectTheNextMixedSelection()
{
    showMixed();
    select({4});
    select({3, 4});
    QVERIFY(isMarked(field()));
    QCOMPARE(commandsOf([] { press(Qt::Key_Tab); }), QStringList());
    tree().selectionModel()->select(index(2), QItemSelectionModel::Select);
    focus(field());
    QCOMPARE(commandsOf([] { press(Qt::Key_Return); }), QStringList());
}

void tst_kxOverlayEditor_naming::shouldSendWhatWasTypedAcrossARefresh()
{
    showMixed();
    field().selectAll();
    type("ne");
    service().setName({3}, "other");
    QCOMPARE(field().text(), QString("ne"));
    type("w");
    service().setName({3}, "another");
    QCOMPARE(commandsOf([] { press(Qt::Key_Tab); }), QStringList("setName [2,3] \"new\""));
}

void tst_kxOverlayEditor_naming::shouldProtectAgainAfterARename()
{
    showMixed();
    field().selectAll();
    type("new");
    press(Qt::Key_Return);
    QVERIFY(!isMarked(field()));
    service().setName({3}, "other");
    QVERIFY(isMarked(field()));
    select({4});
    select({2, 3});
    QCOMPARE(commandsOf([] { press(Qt::Key_Return); }), QStringList());
    QCOMPARE(node(2).name, QString("new"));
}

KX_TEST_MAIN(tst_kxOverlayEditor_naming)
#include "tst_kxOverlayEditor_naming.moc"
