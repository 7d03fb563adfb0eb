// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/overlayeditor/PanelTest.h"

#include <QAbstractItemView>
#include <QLineEdit>

/// The two list boxes of the panel, for fonts and anchors: choices that change nothing in the box,
/// and families that it does not offer.
class tst_kxOverlayEditor_lists : public PanelTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldSendTheChoiceThatAMixedBoxHides_data() { addBoxes(); }
    void shouldSendTheChoiceThatAMixedBoxHides();
    void shouldSendAnotherChoiceOfAMixedBoxOnce_data() { addBoxes(); }
    void shouldSendAnotherChoiceOfAMixedBoxOnce();
    void shouldNotSendAChoiceThatAllHave_data() { addBoxes(); }
    void shouldNotSendAChoiceThatAllHave();
    void shouldSendAnUnknownFamilyByReturn();
    void shouldTakeBackAFamilyThatWasNotSent();
    void shouldShowAFamilyThatIsMissing_data();
    void shouldShowAFamilyThatIsMissing();
    void shouldSendTheFamilyThatStoodInForAMissingOne();
    void shouldNotSendFamiliesInPassing_data();
    void shouldNotSendFamiliesInPassing();

private:
    static void addBoxes();
    void openMixed();
    void choose(QComboBox *box, const QString &text);

    QFontComboBox &fonts() { return *window()._font_combo_box; }
};

void tst_kxOverlayEditor_lists::addBoxes()
{
    QTest::addColumn<QString>("box");
    QTest::addColumn<QString>("hidden");
    QTest::addColumn<QString>("hiddenCall");
    QTest::addColumn<QString>("other");
    QTest::addColumn<QString>("otherCall");
    QTest::newRow("fonts") << "_font_combo_box"
                           << "DejaVu Sans"
                           << "setFont [2,3] \"DejaVu Sans\""
                           << "DejaVu Sans Mono"
                           << "setFont [2,3] \"DejaVu Sans Mono\"";
    QTest::newRow("anchors") << "_position_combo_box"
                             << "Bottom"
                             << "setPosition [2,3] (0.5,0)"
                             << "Top Right"
                             << "setPosition [2,3] (1,1)";
}

/// The boxes hide the values of the first node.
void tst_kxOverlayEditor_lists::openMixed()
{
    openEditor("a2 b3");
    showWindow();
    for (const PanelProperty &shown : properties()) {
        if (&control(shown) == &fonts() || &control(shown) == window()._position_combo_box) {
            shown.put(&node(2), 0);
            shown.put(&node(3), 1);
        }
    }
    select({2});
    select({2, 3});
}

/// By the list, as the mouse does.
void tst_kxOverlayEditor_lists::choose(QComboBox *box, const QString &text)
{
    box->showPopup();
    QAbstractItemView &list = *box->view();
    QTRY_VERIFY(list.isVisible());
    list.setCurrentIndex(box->model()->index(box->findText(text), box->modelColumn()));
    QTest::keyClick(&list, Qt::Key_Return);
    QTRY_VERIFY(!list.isVisible());
}

void tst_kxOverlayEditor_lists::shouldSendTheChoiceThatAMixedBoxHides()
{
    QFETCH(QString, box);
    QFETCH(QString, hidden);
    QFETCH(QString, hiddenCall);
    openMixed();
    auto *chosen = window().findChild<QComboBox *>(box);
    QVERIFY(isMarked(*chosen));
    QCOMPARE(chosen->currentText(), hidden);
    QCOMPARE(commandsOf([&] { choose(chosen, hidden); }), QStringList(hiddenCall));
    QVERIFY(!isMarked(*chosen));
    QCOMPARE(chosen->currentText(), hidden);
}

void tst_kxOverlayEditor_lists::shouldSendAnotherChoiceOfAMixedBoxOnce()
{
    QFETCH(QString, box);
    QFETCH(QString, other);
    QFETCH(QString, otherCall);
    openMixed();
    auto *chosen = window().findChild<QComboBox *>(box);
    QCOMPARE(commandsOf([&] { choose(chosen, other); }), QStringList(otherCall));
    QCOMPARE(chosen->currentText(), other);
}

void tst_kxOverlayEditor_lists::shouldNotSendAChoiceThatAllHave()
{
    QFETCH(QString, box);
    QFETCH(QString, hidden);
    openMixed();
    select({2});
    auto *chosen = window().findChild<QComboBox *>(box);
    QCOMPARE(commandsOf([&] { choose(chosen, hidden); }), QStringList());
}

void tst_kxOverlayEditor_lists::shouldSendAnUnknownFamilyByReturn()
{
    openMixed();
    focus(fonts());
    fonts().lineEdit()->selectAll();
    QCOMPARE(commandsOf([] {
                 type("Zzz");
                 press(Qt::Key_Return);
             }),
             QStringList("setFont [2,3] \"Zzz\""));
    QCOMPARE(fonts().currentText(), QString("Zzz"));
}

void tst_kxOverlayEditor_lists::shouldTakeBackAFamilyThatWasNotSent()
{
    openMixed();
    select({2});
    focus(fonts());
    fonts().lineEdit()->selectAll();
    QCOMPARE(commandsOf([] {
                 type("Zzz");
                 press(Qt::Key_Tab);
             }),
             QStringList());
    announce(&kxOverlayService::fontChanged, {2});
    QCOMPARE(fonts().currentText(), QString("DejaVu Sans"));
}

void tst_kxOverlayEditor_lists::shouldShowAFamilyThatIsMissing_data()
{
    QTest::addColumn<QString>("family");
    QTest::newRow("missing") << "No Such Family";
    QTest::newRow("none") << "";
}

void tst_kxOverlayEditor_lists::shouldShowAFamilyThatIsMissing()
{
    QFETCH(QString, family);
    openMixed();
    select({3});
    node(3).font = family;
    announce(&kxOverlayService::fontChanged, {3});
    QCOMPARE(fonts().currentText(), family);
    QVERIFY(!isMarked(fonts()));
    focus(fonts());
    node(3).font = "DejaVu Serif";
    announce(&kxOverlayService::fontChanged, {3});
    QCOMPARE(fonts().currentText(), QString("DejaVu Serif"));
    QVERIFY(!fonts().currentFont().italic());
    node(3).font = family;
    announce(&kxOverlayService::fontChanged, {3});
    QCOMPARE(fonts().currentText(), family);
}

/// The box holds a row for every state, also where its text is another.
void tst_kxOverlayEditor_lists::shouldSendTheFamilyThatStoodInForAMissingOne()
{
    openMixed();
    node(2).font = "No Such Family";
    select({2});
    const QString substitute = fonts().itemText(fonts().currentIndex());
    QVERIFY(!substitute.isEmpty());
    QCOMPARE(commandsOf([&] { choose(&fonts(), substitute); }),
             QStringList("setFont [2] \"" + substitute + '"'));
    QCOMPARE(fonts().currentText(), substitute);
}

void tst_kxOverlayEditor_lists::shouldNotSendFamiliesInPassing_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("second");
    QTest::newRow("missing") << "No Such Family"
                             << "No Such Family";
    QTest::newRow("mixed, missing") << "No Such Family"
                                    << "DejaVu Sans";
    QTest::newRow("in small letters") << "dejavu serif"
                                      << "dejavu serif";
    QTest::newRow("mixed, in small letters") << "dejavu serif"
                                             << "DejaVu Sans";
    QTest::newRow("none") << ""
                          << "";
}

void tst_kxOverlayEditor_lists::shouldNotSendFamiliesInPassing()
{
    QFETCH(QString, first);
    QFETCH(QString, second);
    openMixed();
    select({3});
    node(2).font = first;
    node(3).font = second;
    select({2});
    select({2, 3});
    QCOMPARE(isMarked(fonts()), first != second);
    focus(fonts());
    QCOMPARE(commandsOf([] { press(Qt::Key_Tab); }), QStringList());
    QVERIFY(!fonts().hasFocus());
}

KX_TEST_MAIN(tst_kxOverlayEditor_lists)
#include "tst_kxOverlayEditor_lists.moc"
