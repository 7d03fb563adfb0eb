// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/overlayeditor/PanelTest.h"

#include <QAbstractItemView>
#include <QDialog>
#include <QLineEdit>

/// Typing into the panel while the service answers at once and changes other things meanwhile: what
/// was typed arrives, and nothing that the user is at is disturbed.
class tst_kxOverlayEditor_typing : public PanelTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldSendATypedNumberOnce_data();
    void shouldSendATypedNumberOnce();
    void shouldKeepATypedNumberAcrossEchoes_data() { shouldSendATypedNumberOnce_data(); }
    void shouldKeepATypedNumberAcrossEchoes();
    void shouldSendATypedNumberToDifferentOnes_data() { shouldSendATypedNumberOnce_data(); }
    void shouldSendATypedNumberToDifferentOnes();
    void shouldKeepTheCursorInTheText();
    void shouldKeepTheUndoHistoryOfTheText();
    void shouldSendTextTypedOverDifferentOnes();
    void shouldKeepACompletedFontName();
    void shouldKeepTheListOfFontsOpen();
    void shouldKeepTheListOfAnchorsOpen();
    void shouldChooseAnAnchorByKeys();
    void shouldChooseTheTypeByKeys();
    void shouldChooseTheSizeTypeByKeys();
    void shouldKeepTheColorDialogOpen();

private:
    /// A row of the tests of numbers.
    struct TypedNumber
    {
        QString field;
        QString call;
        QString number;
        Qt::Key key; ///< ends the typing

        QStringList calls() const { return {call + " [2,3] " + number}; }
    };

    static TypedNumber typedNumber();
    void open();
    void echo();
    void typeAcrossEchoes(const QString &text);
    QDoubleSpinBox &focusedField(const QString &name);
    void checkList(QComboBox *box, const QString &chosen, const QString &call);
};

/// Two texts that are the same in all that the panel shows, in a window that takes keys.
void tst_kxOverlayEditor_typing::open()
{
    openEditor("a2 a3 b4");
    showWindow();
    for (const PanelProperty &shown : properties()) {
        for (const QRPC::NodeId id : {2, 3})
            shown.put(&node(id), 0);
    }
    select({2, 3});
}

/// All that the service can announce of nodes that stay as they are, and changes of others.
void tst_kxOverlayEditor_typing::echo()
{
    for (const PanelProperty &shown : properties()) {
        announce(shown.changed, {2, 3});
        shown.put(&node(4), 1 - node(4).type);
        announce(shown.changed, {4});
    }
    announce(&kxOverlayService::nodesRemoved, {});
}

void tst_kxOverlayEditor_typing::typeAcrossEchoes(const QString &text)
{
    for (const QChar character : text) {
        type(character);
        echo();
    }
}

/// The field has the focus, and all of it is selected.
QDoubleSpinBox &tst_kxOverlayEditor_typing::focusedField(const QString &name)
{
    QDoubleSpinBox &box =
        name == "Size" ? sizeField() : *window().findChild<QDoubleSpinBox *>(name);
    focus(box);
    box.selectAll();
    return box;
}

tst_kxOverlayEditor_typing::TypedNumber tst_kxOverlayEditor_typing::typedNumber()
{
    QFETCH(QString, field);
    QFETCH(QString, call);
    QFETCH(QString, number);
    QFETCH(int, key);
    return {field, call, number, Qt::Key(key)};
}

void tst_kxOverlayEditor_typing::shouldSendATypedNumberOnce_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("call");
    QTest::addColumn<QString>("number");
    QTest::addColumn<int>("key");
    for (const char *number : {"1.5", "-12.75", "0.333"}) {
        for (const int key : {int(Qt::Key_Return), int(Qt::Key_Tab)}) {
            const char *way = key == Qt::Key_Tab ? "Tab" : "Return";
            QTest::addRow("x %s %s", number, way) << "_offset_x_spin_box"
                                                  << "setOffsetX" << number << key;
            QTest::addRow("y %s %s", number, way) << "_offset_y_spin_box"
                                                  << "setOffsetY" << number << key;
            if (*number != '-')
                QTest::addRow("size %s %s", number, way) << "Size"
                                                         << "setSize" << number << key;
        }
    }
}

void tst_kxOverlayEditor_typing::shouldSendATypedNumberOnce()
{
    const TypedNumber typed = typedNumber();
    open();
    QDoubleSpinBox &box = focusedField(typed.field);
    QCOMPARE(commandsOf([&] {
                 type(typed.number);
                 press(typed.key);
             }),
             typed.calls());
    QCOMPARE(box.text(), typed.number + box.suffix());
    select({4});
    select({3});
    QCOMPARE(box.text(), typed.number + box.suffix());
}

void tst_kxOverlayEditor_typing::shouldKeepATypedNumberAcrossEchoes()
{
    const TypedNumber typed = typedNumber();
    open();
    QDoubleSpinBox &box = focusedField(typed.field);
    typeAcrossEchoes(typed.number);
    QCOMPARE(box.text(), typed.number + box.suffix());
    QCOMPARE(commandsOf([&] { press(typed.key); }), typed.calls());
}

void tst_kxOverlayEditor_typing::shouldSendATypedNumberToDifferentOnes()
{
    const TypedNumber typed = typedNumber();
    open();
    node(3).offset = {77.0, 78.0};
    node(3).size = 79.0F;
    call("selectionChanged");
    QDoubleSpinBox &box = focusedField(typed.field);
    typeAcrossEchoes(typed.number);
    QCOMPARE(commandsOf([&] { press(typed.key); }), typed.calls());
    QCOMPARE(box.text(), typed.number + box.suffix());
    QVERIFY(!isMarked(box));
}

void tst_kxOverlayEditor_typing::shouldKeepTheCursorInTheText()
{
    open();
    QPlainTextEdit &edit = *window()._text_edit;
    focus(edit);
    edit.moveCursor(QTextCursor::End);
    edit.moveCursor(QTextCursor::Left);
    edit.moveCursor(QTextCursor::Left);
    typeAcrossEchoes("xyz");
    QCOMPARE(edit.toPlainText(), QString("lixyzne"));
    QCOMPARE(edit.textCursor().position(), 5);
    QCOMPARE(node(3).text, QString("lixyzne"));
    edit.moveCursor(QTextCursor::Left, QTextCursor::KeepAnchor);
    echo();
    QCOMPARE(edit.textCursor().selectedText(), QString("z"));
    typeAcrossEchoes("w");
    QCOMPARE(edit.toPlainText(), QString("lixywne"));
}

void tst_kxOverlayEditor_typing::shouldKeepTheUndoHistoryOfTheText()
{
    open();
    QPlainTextEdit &edit = *window()._text_edit;
    focus(edit);
    edit.moveCursor(QTextCursor::End);
    typeAcrossEchoes("ab");
    edit.moveCursor(QTextCursor::Start);
    typeAcrossEchoes("c");
    press(Qt::Key_Z, Qt::ControlModifier);
    echo();
    QCOMPARE(edit.toPlainText(), QString("lineab"));
    press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(edit.toPlainText(), QString("line"));
    QCOMPARE(node(2).text, QString("line"));
    press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(node(2).text, QString("lineab"));
}

void tst_kxOverlayEditor_typing::shouldSendTextTypedOverDifferentOnes()
{
    open();
    service().setText({3}, "other");
    QVERIFY(isMarked(*window()._text_edit));
    focus(*window()._text_edit);
    window()._text_edit->moveCursor(QTextCursor::End);
    typeAcrossEchoes("!?");
    QCOMPARE(node(2).text, QString("line!?"));
    QCOMPARE(node(3).text, QString("line!?"));
    QVERIFY(!isMarked(*window()._text_edit));
}

void tst_kxOverlayEditor_typing::shouldKeepACompletedFontName()
{
    open();
    QFontComboBox &box = *window()._font_combo_box;
    focus(box);
    box.lineEdit()->selectAll();
    QCOMPARE(commandsOf([&] { type("DejaVu Se"); }), QStringList());
    const QString typed = box.lineEdit()->text();
    const int cursor = box.lineEdit()->cursorPosition();
    const QString completed = box.lineEdit()->selectedText();
    QVERIFY(typed.startsWith("DejaVu Se") && !completed.isEmpty());
    QCOMPARE(commandsOf([&] { echo(); }), QStringList());
    QCOMPARE(box.lineEdit()->text(), typed);
    QCOMPARE(box.lineEdit()->cursorPosition(), cursor);
    QCOMPARE(box.lineEdit()->selectedText(), completed);
    typeAcrossEchoes("rif");
    QCOMPARE(commandsOf([&] { press(Qt::Key_Return); }),
             QStringList("setFont [2,3] \"DejaVu Serif\""));
    QCOMPARE(box.currentText(), QString("DejaVu Serif"));
}

/// Opens the list of a box, goes to a row by key and takes it.
void tst_kxOverlayEditor_typing::checkList(QComboBox *box, const QString &chosen,
                                           const QString &call)
{
    box->showPopup();
    QAbstractItemView &list = *box->view();
    QTRY_VERIFY(list.isVisible());
    list.setCurrentIndex(box->model()->index(box->findText(chosen), box->modelColumn()));
    QCOMPARE(commandsOf([&] { echo(); }), QStringList());
    QVERIFY(list.isVisible());
    QCOMPARE(list.currentIndex().data().toString(), chosen);
    QCOMPARE(commandsOf([&] { QTest::keyClick(&list, Qt::Key_Return); }), QStringList(call));
    QCOMPARE(box->currentText(), chosen);
}

void tst_kxOverlayEditor_typing::shouldKeepTheListOfFontsOpen()
{
    open();
    checkList(window()._font_combo_box, "DejaVu Serif", "setFont [2,3] \"DejaVu Serif\"");
}

void tst_kxOverlayEditor_typing::shouldKeepTheListOfAnchorsOpen()
{
    open();
    checkList(window()._position_combo_box, "Top", "setPosition [2,3] (0.5,1)");
}

void tst_kxOverlayEditor_typing::shouldChooseAnAnchorByKeys()
{
    open();
    focus(*window()._position_combo_box);
    QCOMPARE(commandsOf([this] {
                 press(Qt::Key_Down);
                 echo();
                 press(Qt::Key_Down);
                 echo();
                 press(Qt::Key_Up);
             }),
             (QStringList{"setPosition [2,3] (0.5,0.5)", "setPosition [2,3] (0,1)",
                          "setPosition [2,3] (0.5,0.5)"}));
    QCOMPARE(window()._position_combo_box->currentText(), QString("Center"));
}

void tst_kxOverlayEditor_typing::shouldChooseTheTypeByKeys()
{
    open();
    focus(*window()._text_radio_button);
    QCOMPARE(commandsOf([] { press(Qt::Key_Down); }), QStringList("setOverlayType [2,3] 1"));
    echo();
    QVERIFY(window()._image_radio_button->hasFocus());
    QVERIFY(window()._image_radio_button->isChecked());
    QVERIFY(window()._image_edit->isVisible());
    QCOMPARE(commandsOf([] { press(Qt::Key_Up); }), QStringList("setOverlayType [2,3] 0"));
    echo();
    QVERIFY(window()._text_radio_button->hasFocus());
    QVERIFY(window()._text_edit->isVisible());
}

void tst_kxOverlayEditor_typing::shouldChooseTheSizeTypeByKeys()
{
    open();
    focus(*window()._absolute_radio_button);
    QCOMPARE(commandsOf([] { press(Qt::Key_Down); }), QStringList("setSizeType [2,3] 1"));
    echo();
    QVERIFY(window()._relative_radio_button->hasFocus());
    QVERIFY(window()._relative_radio_button->isChecked());
    QCOMPARE(sizeField().suffix(), QString());
    QCOMPARE(commandsOf([] { press(Qt::Key_Up); }), QStringList("setSizeType [2,3] 0"));
    QVERIFY(window()._absolute_radio_button->hasFocus());
}

void tst_kxOverlayEditor_typing::shouldKeepTheColorDialogOpen()
{
    open();
    window()._color_slider->openDialog();
    auto *dialog = window()._color_slider->findChild<QDialog *>();
    QVERIFY(dialog && dialog->isVisible());
    QCOMPARE(commandsOf([&] { echo(); }), QStringList());
    QVERIFY(dialog->isVisible());
    dialog->accept();
}

KX_TEST_MAIN(tst_kxOverlayEditor_typing)
#include "tst_kxOverlayEditor_typing.moc"
