// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "conformance/module/moduleChecks.h"
#include "host/QKXColorManipulator.h"
#include "host/QKXImageFileDialog.h"
#include "host/QKXSlider.h"
#include "host/QKXTextureControls.h"
#include "kit/PanelEdit.h"
#include "kit/output.h"

#include <QAbstractSlider>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFontComboBox>
#include <QImage>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTemporaryDir>
#include <QTimer>

namespace conformance {

namespace {

using Nodes = QRPC::NodeList;

void openThree(ModuleBench &bench)
{
    bench.open("a2 b3 c4 d5");
    bench.select({5, 2, 4});
}

ModuleChecks callChecks()
{
    ModuleChecks checks;
    for (const PanelEdit &edit : PanelEdit::all()) {
        const QString name = QString::fromLatin1(edit.name).replace(' ', '_');
        checks.push_back(
            {"edit.sends." + name, "An edit sends its value once, to the whole selection.",
             [&edit](ModuleBench &bench) {
                 openThree(bench);
                 expectEqual("calls", bench.commandsOf([&] { edit.make(bench.window()); }),
                             QStringList(QString(edit.call).arg("[5,2,4]")));
             }});
        checks.push_back({"edit.echo." + name, "The echo of an edit causes no further call.",
                          [&edit](ModuleBench &bench) {
                              openThree(bench);
                              edit.make(bench.window());
                              expectEqual("calls", bench.commandsOf([&] {
                                  for (const QRPC::NodeId id : {2U, 4U, 5U})
                                      bench.node(id).name = "echo";
                                  Q_EMIT bench.service().nameChanged({2, 4, 5});
                              }),
                                          QStringList());
                              bench.expectTree();
                          }});
    }
    return checks;
}

/// Runs `act` on the dialog that a click on the load button opens.
void withDialog(ModuleBench &bench, const std::function<void(QKXImageFileDialog &)> &act)
{
    bool found = false;
    QTimer::singleShot(0, &bench.window(), [&found, act] {
        auto *dialog = qobject_cast<QKXImageFileDialog *>(QApplication::activeModalWidget());
        found = dialog != nullptr;
        if (dialog) {
            act(*dialog);
            dialog->reject();
        }
    });
    Q_EMIT bench.form<QKXTextureControls>("_image_edit").clickedLoadTexture();
    expect("the image dialog opens", found);
}

void openImage(ModuleBench &bench)
{
    bench.service().build("a2 b3");
    for (const QRPC::NodeId id : {2U, 3U}) {
        bench.node(id).type = 1;
        bench.node(id).image = "/no/../no/a b.png";
    }
    Q_EMIT bench.service().modelReset();
    bench.select({2, 3});
}

// One table, long as it has an entry for each check.
ModuleChecks valueChecks() // NOLINT(readability-function-size)
{
    return {
        {"edit.renamesAll", "One name goes to all selected nodes, groups and switches too.",
         [](ModuleBench &bench) {
             bench.open("a2 g3(b4) s5*()");
             bench.select({2, 3, 5});
             auto &field = bench.form<QLineEdit>("_overlay_name");
             field.setText("same");
             expectEqual("calls", bench.commandsOf([&] { Q_EMIT field.editingFinished(); }),
                         QStringList("setName [2,3,5] \"same\""));
             bench.expectTree();
         }},
        {"edit.opaqueColours", "A chosen colour is opaque.",
         [](ModuleBench &bench) {
             bench.open("a2");
             bench.node(2).fontColor = QColor(10, 20, 30, 40);
             bench.select({2});
             Q_EMIT bench.form<QKXColorManipulator>("_color_slider").colorChanged(0.2F, 0.4F, 0.6F);
             expectEqual("alpha", bench.node(2).fontColor.alpha(), 255);
         }},
        {"edit.wholeText", "The whole text is sent after each change.",
         [](ModuleBench &bench) {
             openThree(bench);
             auto &field = bench.form<QPlainTextEdit>("_text_edit");
             expectEqual("calls", bench.commandsOf([&] {
                 field.insertPlainText("ab");
                 field.insertPlainText("\nc");
             }),
                         QStringList({"setText [5,2,4] \"ab\"", "setText [5,2,4] \"ab\nc\""}));
         }},
        {"edit.familyBeingTyped",
         "What is typed into the font box stays as long as the family does.",
         [](ModuleBench &bench) {
             bench.openShown("a2");
             bench.node(2).font = "Nowhere Sans";
             bench.select({2});
             QApplication::setActiveWindow(&bench.window());
             auto &box = bench.form<QFontComboBox>("_font_combo_box");
             box.setFocus();
             expect("the box has the focus", box.hasFocus());
             box.setEditText("Now");
             Q_EMIT bench.service().fontChanged({2});
             expectEqual("text", box.currentText(), QString("Now"));
             bench.node(2).font = "Somewhere Serif";
             Q_EMIT bench.service().fontChanged({2});
             expectEqual("text", box.currentText(), QString("Somewhere Serif"));
         }},
        {"edit.negativeSize", "A size below 0 is shown and sent as 0.",
         [](ModuleBench &bench) {
             openThree(bench);
             auto &slider = bench.form<QKXSlider>("_size_slider");
             expectEqual("calls", bench.commandsOf([&] { slider.setValue(-5); }),
                         QStringList("setSize [5,2,4] 0"));
             expectEqual("shown", slider.value(), 0.0);
         }},
        {"edit.greatSize", "A size beyond the slider's end is sent as it is.",
         [](ModuleBench &bench) {
             openThree(bench);
             expectEqual("calls", bench.commandsOf([&] {
                 bench.form<QKXSlider>("_size_slider").setValue(512);
             }),
                         QStringList("setSize [5,2,4] 512"));
         }},
        {"edit.dragOfSize", "A drag sends each step, and its end once more.",
         [](ModuleBench &bench) {
             openThree(bench);
             auto *handle = bench.form<QKXSlider>("_size_slider").findChild<QAbstractSlider *>();
             expectEqual(
                 "calls", bench.commandsOf([&] {
                     handle->setSliderDown(true);
                     handle->setSliderPosition(40);
                     handle->setSliderPosition(60);
                     handle->setSliderDown(false);
                 }),
                 QStringList({"setSize [5,2,4] 40", "setSize [5,2,4] 60", "setSize [5,2,4] 60"}));
         }},
        {"edit.anchors", "Each anchor sends its point.",
         [](ModuleBench &bench) {
             bench.open("a2");
             bench.select({2});
             auto &box = bench.form<QComboBox>("_position_combo_box");
             box.setCurrentIndex(8);
             const QStringList points{"(0,0.5)", "(1,0.5)", "(0.5,1)", "(0.5,0)", "(0.5,0.5)",
                                      "(0,1)",   "(1,1)",   "(0,0)",   "(1,0)"};
             for (int i = 0; i < points.size(); ++i)
                 expectEqual("calls", bench.commandsOf([&] { box.setCurrentIndex(i); }),
                             QStringList("setPosition [2] " + points.at(i)));
         }},
        {"edit.offsetsApart", "Each coordinate of the offset is sent by itself.",
         [](ModuleBench &bench) {
             openThree(bench);
             expectEqual(
                 "calls", bench.commandsOf([&] {
                     bench.form<QDoubleSpinBox>("_offset_x_spin_box").setValue(-2147483647.0);
                     bench.form<QDoubleSpinBox>("_offset_y_spin_box").setValue(0.25);
                 }),
                 QStringList({"setOffsetX [5,2,4] -2.14748e+09", "setOffsetY [5,2,4] 0.25"}));
         }},
        {"edit.refusedStaysShown", "What the service does not announce is not shown by the tree.",
         [](ModuleBench &bench) {
             openThree(bench);
             bench.service().setApplies(false);
             auto &field = bench.form<QLineEdit>("_overlay_name");
             field.setText("new");
             Q_EMIT field.editingFinished();
             bench.expectTree();
         }},
    };
}

// One table, long as it has an entry for each check.
ModuleChecks imageChecks() // NOLINT(readability-function-size)
{
    return {
        {"image.reload", "Reload sends the unchanged path again.",
         [](ModuleBench &bench) {
             openImage(bench);
             expectEqual("calls", bench.commandsOf([&] {
                 Q_EMIT bench.form<QKXTextureControls>("_image_edit").clickedReloadTexture();
             }),
                         QStringList("setImage [2,3] \"/no/../no/a b.png\""));
         }},
        {"image.clear", "Clear sends an empty path.",
         [](ModuleBench &bench) {
             openImage(bench);
             expectEqual("calls", bench.commandsOf([&] {
                 Q_EMIT bench.form<QKXTextureControls>("_image_edit").clickedClearTexture();
             }),
                         QStringList("setImage [2,3] \"\""));
             expectEqual("shown", bench.form<QKXTextureControls>("_image_edit").getTexture(),
                         QString());
         }},
        {"image.write", "The button that writes prints its line and calls nothing.",
         [](ModuleBench &bench) {
             openImage(bench);
             QByteArray printed;
             const QStringList calls = bench.callsOf([&] {
                 printed = output::of([&] {
                     Q_EMIT bench.form<QKXTextureControls>("_image_edit").clickedWriteTexture();
                 });
             });
             expectEqual("output", printed, QByteArray("kxOverlayEditor::writeImage()\n"));
             expectEqual("calls", calls, QStringList());
         }},
        {"image.info", "The button for information prints its line and calls nothing.",
         [](ModuleBench &bench) {
             openImage(bench);
             QByteArray printed;
             const QStringList calls = bench.callsOf([&] {
                 printed = output::of([&] {
                     Q_EMIT bench.form<QKXTextureControls>("_image_edit").clickedShowTextureInfo();
                 });
             });
             expectEqual("output", printed, QByteArray("kxOverlayEditor::showTextureInfo()\n"));
             expectEqual("calls", calls, QStringList());
         }},
        {"image.dialog", "Load asks for the filter and opens the dialog with these words.",
         [](ModuleBench &bench) {
             bench.host().imageFilter = "Pictures (*.png);;All (*)";
             openImage(bench);
             QStringList asked;
             QString title;
             QStringList filters;
             const QWidget *parent = nullptr;
             withDialog(bench, [&](QKXImageFileDialog &dialog) {
                 asked = bench.log().lines();
                 title = dialog.windowTitle();
                 filters = dialog.nameFilters();
                 parent = dialog.parentWidget();
             });
             bench.host().imageFilter = "Images (*.png)";
             expectEqual("calls", asked, QStringList("fileIO.getImageFileFilter"));
             expectEqual("title", title, QString("Load Texture"));
             expectEqual("filters", filters, QStringList({"Pictures (*.png)", "All (*)"}));
             expect("the window is the parent", parent == &bench.window());
         }},
        {"image.chosen", "A chosen file is sent once, to the whole selection.",
         [](ModuleBench &bench) {
             const QTemporaryDir folder;
             const QString path = folder.filePath("chosen.png");
             QImage picture(2, 2, QImage::Format_RGB32);
             picture.fill(Qt::red);
             expect("there is a file", picture.save(path));
             openImage(bench);
             QTimer::singleShot(0, &bench.window(), [path] {
                 auto *dialog =
                     qobject_cast<QKXImageFileDialog *>(QApplication::activeModalWidget());
                 if (dialog) {
                     if (auto *field = dialog->findChild<QLineEdit *>("fileNameEdit"))
                         field->setText(path);
                     static_cast<QDialog *>(dialog)->accept();
                 }
             });
             const QStringList calls = bench.commandsOf([&bench] {
                 Q_EMIT bench.form<QKXTextureControls>("_image_edit").clickedLoadTexture();
             });
             expect("the file is sent", calls.contains("setImage [2,3] \"" + path + '"'));
         }},
        {"image.cancel", "A cancelled dialog changes nothing.",
         [](ModuleBench &bench) {
             openImage(bench);
             expectEqual("calls", bench.commandsOf([&] {
                 withDialog(bench, [](QKXImageFileDialog &dialog) { dialog.reject(); });
             }),
                         QStringList());
         }},
    };
}

} // namespace

ModuleChecks editChecks()
{
    return joined<ModuleBench>({callChecks(), valueChecks(), imageChecks()});
}

} // namespace conformance
