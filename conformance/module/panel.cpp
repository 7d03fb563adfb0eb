// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "conformance/module/moduleChecks.h"
#include "host/QKXSlider.h"
#include "host/QKXTextureControls.h"
#include "host/kxIconManager.h"

#include <QAbstractSlider>
#include <QButtonGroup>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QToolButton>

namespace conformance {

namespace {

QStringList anchors(ModuleBench &bench)
{
    const auto &box = bench.form<QComboBox>("_position_combo_box");
    QStringList lines;
    for (int i = 0; i < box.count(); ++i) {
        const QVariant data = box.itemData(i, Qt::UserRole);
        const QPointF point = data.toPointF();
        lines.append(QStringLiteral("%1 %2 %3").arg(box.itemText(i)).arg(point.x()).arg(point.y()));
        expectEqual("type of the data", int(data.type()), int(QVariant::PointF));
        expect("no icon", box.itemIcon(i).isNull());
    }
    return lines;
}

void expectGroup(ModuleBench &bench, const char *first, const char *second)
{
    auto &one = bench.form<QRadioButton>(first);
    auto &other = bench.form<QRadioButton>(second);
    expect("one group holds both", one.group() && one.group() == other.group());
    expectEqual("id of the first", one.group()->id(&one), 0);
    expectEqual("id of the second", one.group()->id(&other), 1);
    expectEqual("number of buttons", one.group()->buttons().size(), 2);
    expect("the editor owns the group", one.group()->parent() == &bench.editor());
}

/// What the handle of the size slider gives at its first place, its second one and its last one.
QString handleOf(ModuleBench &bench)
{
    auto &slider = bench.form<QKXSlider>("_size_slider");
    auto *handle = slider.findChild<QAbstractSlider *>();
    expect("the slider has a handle", handle != nullptr);
    const QSignalBlocker blocker(slider); // nothing is to be written
    QStringList values;
    handle->setSliderDown(true);
    for (const int place : {handle->maximum(), 1, 0}) {
        handle->setSliderPosition(place);
        values.prepend(QString::number(slider.value()));
    }
    handle->setSliderDown(false);
    return values.join(' ');
}

} // namespace

// One table, long as it has an entry for each check.
ModuleChecks panelChecks() // NOLINT(readability-function-size)
{
    return {
        {"panel.typeGroup", "The buttons Text and Image are one group with the ids 0 and 1.",
         [](ModuleBench &bench) {
             expectGroup(bench, "_text_radio_button", "_image_radio_button");
         }},
        {"panel.sizeTypeGroup",
         "The buttons Absolute and Relative are one group with the ids 0 and 1.",
         [](ModuleBench &bench) {
             expectGroup(bench, "_absolute_radio_button", "_relative_radio_button");
             expect("it is not the group of the types",
                    bench.form<QRadioButton>("_absolute_radio_button").group()
                        != bench.form<QRadioButton>("_text_radio_button").group());
         }},
        {"panel.anchors", "The position box has these nine anchors.",
         [](ModuleBench &bench) {
             expectEqual("anchors", anchors(bench),
                         QStringList({"Left 0 0.5", "Right 1 0.5", "Top 0.5 1", "Bottom 0.5 0",
                                      "Center 0.5 0.5", "Top Left 0 1", "Top Right 1 1",
                                      "Bottom Left 0 0", "Bottom Right 1 0"}));
         }},
        {"panel.tabLeavesText", "Tab leaves the text field.",
         [](ModuleBench &bench) {
             expect("tab changes the focus",
                    bench.form<QPlainTextEdit>("_text_edit").tabChangesFocus());
         }},
        {"panel.offsetRange", "Offsets reach from -2147483647 to 2147483647.",
         [](ModuleBench &bench) {
             for (const char *name : {"_offset_x_spin_box", "_offset_y_spin_box"}) {
                 const auto &box = bench.form<QDoubleSpinBox>(name);
                 expectEqual(name, box.minimum(), -2147483647.0);
                 expectEqual(name, box.maximum(), 2147483647.0);
             }
         }},
        {"panel.sizeAtStart",
         "Before the first selection the size slider ends at 200 and shows px.",
         [](ModuleBench &bench) {
             bench.callEntry();
             auto &slider = bench.form<QKXSlider>("_size_slider");
             const auto *field = slider.findChild<QDoubleSpinBox *>();
             expect("the slider has a field", field != nullptr);
             expectEqual("suffix", field->suffix().trimmed(), QString("px"));
             auto *handle = slider.findChild<QAbstractSlider *>();
             expect("the slider has a handle", handle != nullptr);
             handle->setSliderDown(true);
             handle->setSliderPosition(handle->maximum());
             expectEqual("upper end", slider.value(), 200.0);
             handle->setSliderPosition(handle->minimum());
             expectEqual("lower end", slider.value(), 0.0);
         },
         Stage::Fresh},
        {"size.handle", "The handle goes to 200 by points, and to 1 by hundredths.",
         [](ModuleBench &bench) {
             bench.open("a2 b3");
             bench.node(2).size = 50;
             bench.node(3).sizeType = 1;
             bench.node(3).size = 0.5;
             bench.select({3});
             expectEqual("relative", handleOf(bench), QString("0 0.01 1"));
             bench.select({2});
             expectEqual("absolute", handleOf(bench), QString("0 1 200"));
         }},
        {"panel.imageIcons", "The five buttons of the image line have their icons, in this order.",
         [](ModuleBench &bench) {
             QStringList shown;
             const auto buttons = bench.form<QWidget>("_image_edit").findChildren<QToolButton *>();
             for (const QToolButton *button : buttons) {
                 for (const char *name :
                      {"FileOpen", "Reload", "Save", "ShowTextureInfo", "Delete"}) {
                     const QIcon icon = kxIconManager::getIcon(name, "");
                     if (button->icon().pixmap(24, 24).toImage() == icon.pixmap(24, 24).toImage())
                         shown.append(name);
                 }
             }
             expectEqual("icons", shown,
                         QStringList({"FileOpen", "Reload", "Save", "ShowTextureInfo", "Delete"}));
         }},
        {"panel.imageLineAlone",
         "Of the image's controls only the file line is shown, and is in use.",
         [](ModuleBench &bench) {
             bench.service().build("a2");
             bench.node(2).type = 1;
             Q_EMIT bench.service().modelReset();
             bench.select({2});
             QWidget &window = bench.window();
             window.show();
             const auto &controls = bench.form<QKXTextureControls>("_image_edit");
             expect("the texture is used", controls.useTexture());
             const auto parts = controls.findChildren<QWidget *>();
             for (const QWidget *part : parts) {
                 const bool isSetting = part->inherits("QCheckBox") || part->inherits("QComboBox")
                                        || part->inherits("QAbstractSpinBox");
                 expect("no setting is shown", !isSetting || !part->isVisible());
             }
         }},
        {"panel.startsAsText",
         "The image line and its label are hidden until an image is selected.",
         [](ModuleBench &bench) {
             bench.callEntry();
             expect("the line is hidden", bench.form<QWidget>("_image_edit").isHidden());
             expect("the label is hidden", bench.form<QWidget>("_image_label").isHidden());
             expect("the text is not", !bench.form<QWidget>("_text_edit").isHidden());
         },
         Stage::Fresh},
    };
}

} // namespace conformance
