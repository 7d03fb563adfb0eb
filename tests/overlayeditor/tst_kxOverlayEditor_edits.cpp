// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/QKXImageFileDialog.h"
#include "tests/overlayeditor/PanelTest.h"

#include <QDir>
#include <QImage>
#include <QLineEdit>
#include <QSlider>
#include <QTemporaryDir>
#include <QTemporaryFile>
#include <QTimer>

#include <cstdio>
#include <unistd.h>

namespace {

using Form = kxOverlayEditorGUIW;

/// An edit as the user's hand makes it, and the line of the one call that it causes.
struct Edit
{
    const char *name;
    void (*make)(Form &form);
    const char *call;
};

const Edit s_edits[] = {
    {"name",
     [](Form &form) {
         form._overlay_name->setText("new");
         QTest::keyClick(form._overlay_name, Qt::Key_Return);
     },
     R"(setName %1 "new")"},
    {"type", [](Form &form) { form._image_radio_button->click(); }, "setOverlayType %1 1"},
    {"same type", [](Form &form) { form._text_radio_button->click(); }, "setOverlayType %1 0"},
    {"text", [](Form &form) { form._text_edit->setPlainText("x\ny"); }, "setText %1 \"x\ny\""},
    {"font",
     [](Form &form) { form._font_combo_box->setCurrentFont(QFont("DejaVu Serif", 33, 75)); },
     R"(setFont %1 "DejaVu Serif")"},
    {"font color", [](Form &form) { Q_EMIT form._color_slider->colorChanged(1.0F, 0.5F, 0.0F); },
     "setFontColor %1 #ffff8000"},
    {"background color",
     [](Form &form) { Q_EMIT form._background_slider->colorChanged(0.0F, 1.0F, 0.2F); },
     "setBackgroundColor %1 #ff00ff33"},
    {"transparency",
     [](Form &form) { Q_EMIT form._transparency_slider->colorChanged(0.4F, 0.4F, 0.4F); },
     "setBackgroundTransparency %1 #ff666666"},
    {"image file", [](Form &form) { Q_EMIT form._image_edit->changedTextureFile("/no/b.png"); },
     R"(setImage %1 "/no/b.png")"},
    {"use of the image",
     [](Form &form) {
         form._image_edit->setTexture("/no/c.png");
         Q_EMIT form._image_edit->changedTexture();
     },
     R"(setImage %1 "/no/c.png")"},
    {"reload",
     [](Form &form) {
         form._image_edit->setTexture("/no/d.png");
         Q_EMIT form._image_edit->clickedReloadTexture();
     },
     R"(setImage %1 "/no/d.png")"},
    {"clear",
     [](Form &form) {
         form._image_edit->setTexture("/no/d.png");
         Q_EMIT form._image_edit->clickedClearTexture();
     },
     R"(setImage %1 "")"},
    {"size type", [](Form &form) { form._relative_radio_button->click(); }, "setSizeType %1 1"},
    {"same size type", [](Form &form) { form._absolute_radio_button->click(); },
     "setSizeType %1 0"},
    {"size", [](Form &form) { form._size_slider->setValue(33.25); }, "setSize %1 33.25"},
    {"position", [](Form &form) { form._position_combo_box->setCurrentIndex(2); },
     "setPosition %1 (0.5,1)"},
    {"offset x", [](Form &form) { form._offset_x_spin_box->setValue(-7.5); }, "setOffsetX %1 -7.5"},
    {"offset y", [](Form &form) { form._offset_y_spin_box->setValue(8.25); }, "setOffsetY %1 8.25"},
};

/// What `action` writes to the standard output.
template<class Action>
QByteArray outputOf(Action action)
{
    QTemporaryFile file;
    if (!file.open())
        return "no file";
    std::fflush(stdout);
    const int terminal = dup(STDOUT_FILENO);
    dup2(file.handle(), STDOUT_FILENO);
    action();
    std::fflush(stdout);
    dup2(terminal, STDOUT_FILENO);
    close(terminal);
    file.seek(0);
    return file.readAll();
}

/// Does something with the file dialog as soon as its own loop runs.
template<class Action>
void whenDialogOpens(QObject *context, Action action)
{
    QTimer::singleShot(0, context, [action] {
        auto *dialog = qobject_cast<QKXImageFileDialog *>(QApplication::activeModalWidget());
        QVERIFY(dialog);
        action(dialog);
    });
}

} // namespace

/// Edits in the property panel: what each sends to the service.
class tst_kxOverlayEditor_edits : public PanelTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldSendOneValueToTheWholeSelection_data() { addEdits(); }
    void shouldSendOneValueToTheWholeSelection();
    void shouldSendAnEmptyListWithoutSelection_data() { addEdits(); }
    void shouldSendAnEmptyListWithoutSelection();
    void shouldSendOpaqueColors();
    void shouldSendTheWholeTextAfterEachChange();
    void shouldSendAndShowZeroForANegativeSize_data();
    void shouldSendAndShowZeroForANegativeSize();
    void shouldSendATypedSizeAboveTheRange();
    void shouldSendEachStepOfADragAndItsEndAgain();
    void shouldSendEachAnchor();
    void shouldOnlyPrintALineForUnfinishedButtons_data();
    void shouldOnlyPrintALineForUnfinishedButtons();
    void shouldReloadTheUnchangedPath();
    void shouldAskForAnImageInOrder();
    void shouldSendTheImageThatWasChosen();
    void shouldSendNothingWhenTheDialogIsCancelled();
    void shouldSendOneRenameToThreeNodes();

private:
    static void addEdits();
};

void tst_kxOverlayEditor_edits::addEdits()
{
    QTest::addColumn<int>("row");
    for (int row = 0; row < int(std::size(s_edits)); ++row)
        QTest::newRow(s_edits[row].name) << row;
}

void tst_kxOverlayEditor_edits::shouldSendOneValueToTheWholeSelection()
{
    QFETCH(int, row);
    openEditor("a2 b3 c4 d5");
    select({5, 2, 4});
    QCOMPARE(commandsOf([&] { s_edits[row].make(window()); }),
             QStringList(QString(s_edits[row].call).arg("[5,2,4]")));
}

void tst_kxOverlayEditor_edits::shouldSendAnEmptyListWithoutSelection()
{
    QFETCH(int, row);
    openEditor("a2 b3");
    select({});
    editor().setInputEnabled(true); // a radio button that is disabled takes no click
    window()._overlay_name->setEnabled(true);
    QCOMPARE(commandsOf([&] { s_edits[row].make(window()); }),
             QStringList(QString(s_edits[row].call).arg("[]")));
}

void tst_kxOverlayEditor_edits::shouldSendOpaqueColors()
{
    openEditor("a2");
    node(2).fontColor = QColor(10, 20, 30, 40);
    select({2});
    Q_EMIT window()._color_slider->colorChanged(0.2F, 0.4F, 0.6F);
    QCOMPARE(node(2).fontColor, QColor::fromRgbF(double(0.2F), double(0.4F), double(0.6F), 1.0));
    QCOMPARE(node(2).fontColor.alphaF(), 1.0);
}

void tst_kxOverlayEditor_edits::shouldSendTheWholeTextAfterEachChange()
{
    openEditor("a2 b3");
    showWindow();
    select({2, 3});
    focus(*window()._text_edit);
    QCOMPARE(commandsOf([] { type("ab"); }),
             (QStringList{"setText [2,3] \"a\"", "setText [2,3] \"ab\""}));
    QCOMPARE(commandsOf([] {
                 press(Qt::Key_Return);
                 press(Qt::Key_Backspace);
             }),
             (QStringList{"setText [2,3] \"ab\n\"", "setText [2,3] \"ab\""}));
}

void tst_kxOverlayEditor_edits::shouldSendAndShowZeroForANegativeSize_data()
{
    QTest::addColumn<float>("before");
    QTest::newRow("from another size") << 12.0F;
    QTest::newRow("from zero, without an echo") << 0.0F;
}

void tst_kxOverlayEditor_edits::shouldSendAndShowZeroForANegativeSize()
{
    QFETCH(float, before);
    openEditor("a2");
    showWindow();
    node(2).size = before;
    select({2});
    focus(sizeField());
    sizeField().selectAll();
    QCOMPARE(commandsOf([] {
                 type("-5");
                 press(Qt::Key_Return);
             }),
             QStringList("setSize [2] 0"));
    QCOMPARE(window()._size_slider->value(), 0.0);
    QCOMPARE(sizeField().text(), QString("0pt"));
    QCOMPARE(node(2).size, 0.0F);
    QVERIFY(!window()._size_slider->signalsBlocked());
}

void tst_kxOverlayEditor_edits::shouldSendATypedSizeAboveTheRange()
{
    openEditor("a2");
    showWindow();
    select({2});
    focus(sizeField());
    sizeField().selectAll();
    QCOMPARE(commandsOf([] {
                 type("512");
                 press(Qt::Key_Return);
             }),
             QStringList("setSize [2] 512"));
    QCOMPARE(sizeField().text(), QString("512pt"));
}

void tst_kxOverlayEditor_edits::shouldSendEachStepOfADragAndItsEndAgain()
{
    openEditor("a2");
    select({2});
    QCOMPARE(commandsOf([this] {
                 sizeHandle().setSliderDown(true);
                 sizeHandle().setSliderPosition(40);
                 sizeHandle().setSliderPosition(60);
                 sizeHandle().setSliderDown(false);
             }),
             (QStringList{"setSize [2] 40", "setSize [2] 60", "setSize [2] 60"}));
}

void tst_kxOverlayEditor_edits::shouldSendEachAnchor()
{
    openEditor("a2");
    select({2});
    window()._position_combo_box->setCurrentIndex(8);
    const QStringList positions{"(0,0.5)", "(1,0.5)", "(0.5,1)", "(0.5,0)", "(0.5,0.5)",
                                "(0,1)",   "(1,1)",   "(0,0)",   "(1,0)"};
    for (int index = 0; index < positions.size(); ++index) {
        QCOMPARE(commandsOf([&] { window()._position_combo_box->setCurrentIndex(index); }),
                 QStringList("setPosition [2] " + positions.at(index)));
    }
}

void tst_kxOverlayEditor_edits::shouldOnlyPrintALineForUnfinishedButtons_data()
{
    QTest::addColumn<QByteArray>("signal");
    QTest::addColumn<QByteArray>("line");
    QTest::newRow("write") << QByteArray("clickedWriteTexture")
                           << QByteArray("kxOverlayEditor::writeImage()\n");
    QTest::newRow("info") << QByteArray("clickedShowTextureInfo")
                          << QByteArray("kxOverlayEditor::showTextureInfo()\n");
}

void tst_kxOverlayEditor_edits::shouldOnlyPrintALineForUnfinishedButtons()
{
    QFETCH(QByteArray, signal);
    QFETCH(QByteArray, line);
    openEditor("a2");
    select({2});
    const QByteArray output =
        outputOf([&] { QMetaObject::invokeMethod(window()._image_edit, signal.constData()); });
    QCOMPARE(output, line);
    QCOMPARE(log().lines(), QStringList());
}

void tst_kxOverlayEditor_edits::shouldReloadTheUnchangedPath()
{
    openEditor("a2 b3");
    for (const QRPC::NodeId id : {2, 3}) {
        node(id).type = 1;
        node(id).image = "/no/../no/a b.png";
    }
    select({2, 3});
    QCOMPARE(commandsOf([this] { Q_EMIT window()._image_edit->clickedReloadTexture(); }),
             QStringList("setImage [2,3] \"/no/../no/a b.png\""));
}

void tst_kxOverlayEditor_edits::shouldAskForAnImageInOrder()
{
    const QTemporaryDir folder;
    host().imageFilter = "Pictures (*.png);;All (*)";
    openEditor("a2");
    node(2).type = 1;
    node(2).image = folder.filePath("gone.png");
    select({2});
    whenDialogOpens(this, [&](QKXImageFileDialog *dialog) {
        QCOMPARE(log().lines(), QStringList("fileIO.getImageFileFilter"));
        QCOMPARE(dialog->parentWidget(), &window());
        QCOMPARE(dialog->windowTitle(), QString("Load Texture"));
        QCOMPARE(dialog->nameFilters(), (QStringList{"Pictures (*.png)", "All (*)"}));
        QCOMPARE(dialog->directory().canonicalPath(), QDir(folder.path()).canonicalPath());
        dialog->reject();
    });
    Q_EMIT window()._image_edit->clickedLoadTexture();
    QCOMPARE(log().lines(), QStringList("fileIO.getImageFileFilter"));
}

void tst_kxOverlayEditor_edits::shouldSendTheImageThatWasChosen()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("red.png");
    QVERIFY(QImage(4, 4, QImage::Format_RGB32).save(path));
    openEditor("a2 b3");
    suit(property(7));
    node(2).image = path;
    node(3).image = path;
    select({2, 3});
    whenDialogOpens(this, [](QKXImageFileDialog *dialog) {
        QTest::keyClick(dialog->findChild<QLineEdit *>("fileNameEdit"), Qt::Key_Return);
    });
    QCOMPARE(commandsOf([this] { Q_EMIT window()._image_edit->clickedLoadTexture(); }),
             QStringList("setImage [2,3] \"" + path + '"'));
}

void tst_kxOverlayEditor_edits::shouldSendNothingWhenTheDialogIsCancelled()
{
    openEditor("a2");
    select({2});
    whenDialogOpens(this,
                    [](QKXImageFileDialog *dialog) { QTest::keyClick(dialog, Qt::Key_Escape); });
    QCOMPARE(commandsOf([this] { Q_EMIT window()._image_edit->clickedLoadTexture(); }),
             QStringList());
}

void tst_kxOverlayEditor_edits::shouldSendOneRenameToThreeNodes()
{
    openEditor("a2 g3(b4) s5*()");
    select({2, 3, 5});
    window()._overlay_name->setText("same");
    QCOMPARE(commandsOf([this] { QTest::keyClick(window()._overlay_name, Qt::Key_Return); }),
             QStringList("setName [2,3,5] \"same\""));
    for (const QRPC::NodeId id : {2, 3, 5})
        QCOMPARE(node(id).name, QString("same"));
    QCOMPARE(node(4).name, QString("b4"));
    QVERIFY(!isMarked(*window()._overlay_name));
}

KX_TEST_MAIN(tst_kxOverlayEditor_edits)
#include "tst_kxOverlayEditor_edits.moc"
