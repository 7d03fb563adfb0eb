// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/QKXImageFileDialog.h"
#include "host/kxFileIOService.h"
#include "host/kxKernelServiceFactory.h"
#include "kit/PanelEdit.h"
#include "kit/output.h"
#include "tests/overlayeditor/PanelTest.h"

#include <QDir>
#include <QImage>
#include <QLineEdit>
#include <QSlider>
#include <QTemporaryDir>
#include <QTimer>

namespace {

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
    void shouldOfferAllFilesWithoutTheFileService();
    void shouldSendOneRenameToThreeNodes();

private:
    static void addEdits();
};

void tst_kxOverlayEditor_edits::addEdits()
{
    QTest::addColumn<int>("row");
    for (int row = 0; row < PanelEdit::all().size(); ++row)
        QTest::newRow(PanelEdit::all().at(row).name) << row;
}

void tst_kxOverlayEditor_edits::shouldSendOneValueToTheWholeSelection()
{
    QFETCH(int, row);
    openEditor("a2 b3 c4 d5");
    select({5, 2, 4});
    QCOMPARE(commandsOf([&] { PanelEdit::all().at(row).make(window()); }),
             QStringList(QString(PanelEdit::all().at(row).call).arg("[5,2,4]")));
}

void tst_kxOverlayEditor_edits::shouldSendAnEmptyListWithoutSelection()
{
    QFETCH(int, row);
    openEditor("a2 b3");
    select({});
    editor().setInputEnabled(true); // a radio button that is disabled takes no click
    window()._overlay_name->setEnabled(true);
    QCOMPARE(commandsOf([&] { PanelEdit::all().at(row).make(window()); }),
             QStringList(QString(PanelEdit::all().at(row).call).arg("[]")));
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
        output::of([&] { QMetaObject::invokeMethod(window()._image_edit, signal.constData()); });
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
    QImage red(4, 4, QImage::Format_RGB32);
    red.fill(Qt::red);
    QVERIFY(red.save(path));
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

void tst_kxOverlayEditor_edits::shouldOfferAllFilesWithoutTheFileService()
{
    openEditor("a2");
    select({2});
    kxKernelServiceFactory::the()->unregisterService<kxFileIOService>();
    bool opened = false;
    whenDialogOpens(this, [isOpen = &opened](QKXImageFileDialog *dialog) {
        *isOpen = true;
        QCOMPARE(dialog->nameFilters(), QStringList("All Files (*)"));
        dialog->reject();
    });
    const QByteArray errors =
        output::errorsOf([this] { Q_EMIT window()._image_edit->clickedLoadTexture(); });
    QVERIFY2(errors.contains("couldn't find class"), errors.constData());
    QVERIFY(opened);
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
