// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "conformance/module/moduleChecks.h"
#include "host/QKXSlider.h"
#include "host/QKXTextureControls.h"
#include "kit/PanelProperty.h"
#include "kit/widgets.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>

#include <limits>

namespace conformance {

namespace {

using Nodes = QRPC::NodeList;
using Guard = PanelProperty::Guard;

const char *const s_textRows[] = {
    "_text_label",         "_text_edit",          "_font_label",       "_font_combo_box",
    "_font_color_label",   "_color_slider",       "_background_label", "_background_slider",
    "_transparency_label", "_transparency_slider"};
const char *const s_imageRows[] = {"_image_label", "_image_edit"};
const char *const s_typed[] = {"_text_edit",         "_font_combo_box",      "_color_slider",
                               "_background_slider", "_transparency_slider", "_image_edit"};

bool isMarked(ModuleBench &bench, const char *name)
{
    return widgets::isMarked(bench.form<QWidget>(name));
}

/// Opens three overlays of the type that shows the property.
void openFor(ModuleBench &bench, const PanelProperty &property)
{
    bench.service().build("a2 b3 c4 g5()");
    for (const QRPC::NodeId id : {2U, 3U, 4U})
        bench.node(id).type = property.guard == Guard::Images ? 1 : 0;
    Q_EMIT bench.service().modelReset();
}

void put(ModuleBench &bench, const PanelProperty &property, QRPC::NodeId node, int which)
{
    property.put(&bench.node(node), which);
}

bool isType(const PanelProperty &property)
{
    return qstrcmp(property.name, "type") == 0;
}

void showsCommonValue(ModuleBench &bench, const PanelProperty &property)
{
    openFor(bench, property);
    for (const int which : {0, 1, 0}) {
        put(bench, property, 2, which);
        put(bench, property, 3, which);
        bench.select({});
        bench.select({2, 3});
        expectEqual("shown value", property.shown(bench.window()), QString(property.values[which]));
        expect("the control is not marked", !isMarked(bench, property.control));
    }
}

void marksMixedValues(ModuleBench &bench, const PanelProperty &property)
{
    openFor(bench, property);
    put(bench, property, 2, 1);
    bench.select({2});
    const QString before = property.shown(bench.window());
    put(bench, property, 3, 0);
    bench.select({3, 2});
    expect("the control is marked", isMarked(bench, property.control));
    bench.select({2});
    expect("the control is not marked any more", !isMarked(bench, property.control));
    expectEqual("shown value", property.shown(bench.window()), before);
    expectEqual("marking", bench.form<QWidget>(property.control).property("multiselect"),
                QVariant());
}

void keepsWhatItShowed(ModuleBench &bench, const PanelProperty &property)
{
    openFor(bench, property);
    put(bench, property, 2, 1);
    put(bench, property, 3, 1);
    put(bench, property, 4, 0);
    bench.select({2, 3});
    bench.tree().selectionModel()->select(bench.index(4), QItemSelectionModel::Select);
    expect("the control is marked", isMarked(bench, property.control));
    expectEqual("shown value", property.shown(bench.window()), QString(property.values[1]));
}

void followsItsSignal(ModuleBench &bench, const PanelProperty &property)
{
    openFor(bench, property);
    put(bench, property, 2, 0);
    bench.select({2});
    put(bench, property, 2, 1);
    Q_EMIT(bench.service().*property.changed)({2});
    expectEqual("shown value", property.shown(bench.window()), QString(property.values[1]));
}

void readsTheSelection(ModuleBench &bench, const PanelProperty &property)
{
    openFor(bench, property);
    put(bench, property, 2, 0);
    put(bench, property, 4, 1);
    bench.select({2});
    put(bench, property, 2, 1);
    Q_EMIT(bench.service().*property.changed)({4});
    expectEqual("shown value", property.shown(bench.window()), QString(property.values[1]));
}

void sendsNothing(ModuleBench &bench, const PanelProperty &property)
{
    openFor(bench, property);
    put(bench, property, 2, 0);
    put(bench, property, 3, 1);
    const QStringList calls = bench.commandsOf([&] {
        bench.tree().selectionModel()->select(bench.index(2), QItemSelectionModel::ClearAndSelect);
        bench.tree().selectionModel()->select(bench.index(3), QItemSelectionModel::Select);
        Q_EMIT(bench.service().*property.changed)({3});
        bench.tree().selectionModel()->select(bench.index(3), QItemSelectionModel::ClearAndSelect);
    });
    expectEqual("calls", calls, QStringList());
}

void standsNothingSelected(ModuleBench &bench, const PanelProperty &property)
{
    openFor(bench, property);
    put(bench, property, 2, 1);
    bench.select({2});
    bench.select({});
    put(bench, property, 2, 0);
    Q_EMIT(bench.service().*property.changed)({2});
    expectEqual("shown value", property.shown(bench.window()), QString(property.values[1]));
}

void stopsAtGroups(ModuleBench &bench, const PanelProperty &property)
{
    openFor(bench, property);
    put(bench, property, 2, 1);
    bench.select({2});
    put(bench, property, 2, 0);
    bench.tree().selectionModel()->select(bench.index(5), QItemSelectionModel::Select);
    if (property.guard == Guard::None && !isType(property)) {
        expect("the name differs", isMarked(bench, property.control));
        return;
    }
    expectEqual("shown value", property.shown(bench.window()), QString(property.values[1]));
    if (isType(property))
        return;
    Q_EMIT(bench.service().*property.changed)({2});
    expectEqual("shown value after the signal", property.shown(bench.window()),
                QString(property.values[1]));
}

ModuleChecks propertyChecks()
{
    ModuleChecks checks;
    const auto add = [&checks](const PanelProperty &property, const char *name, const char *rule,
                               void (*run)(ModuleBench &, const PanelProperty &)) {
        const QString subject = QString::fromLatin1(property.name).replace(' ', '_');
        checks.push_back({QStringLiteral("refresh.%1.%2").arg(name, subject), rule,
                          [&property, run](ModuleBench &bench) { run(bench, property); }});
    };
    for (const PanelProperty &property : PanelProperty::all()) {
        add(property, "common", "A value that all selected nodes share is shown.",
            showsCommonValue);
        add(property, "mixed", "Values that differ mark the control; a common one clears the mark.",
            marksMixedValues);
        add(property, "mixedKeeps", "A control of differing values keeps what it showed.",
            keepsWhatItShowed);
        add(property, "signal", "The service's signal of the property refreshes its control.",
            followsItsSignal);
        add(property, "anyNode", "A refresh reads the selection, whichever nodes the signal names.",
            readsTheSelection);
        add(property, "silent", "A refresh writes nothing back to the service.", sendsNothing);
        add(property, "nothing", "A signal with nothing selected touches no control.",
            standsNothingSelected);
        add(property, "groups", "For a selection that holds groups only the name is refreshed.",
            stopsAtGroups);
    }
    return checks;
}

void expectEnabled(ModuleBench &bench, bool enabled)
{
    for (const char *name :
         {"_image_radio_button", "_text_radio_button", "_text_edit", "_font_combo_box",
          "_color_slider", "_background_slider", "_transparency_slider", "_absolute_radio_button",
          "_relative_radio_button", "_size_slider", "_position_combo_box", "_offset_x_spin_box",
          "_offset_y_spin_box"})
        expectEqual(name, bench.form<QWidget>(name).isEnabled(), enabled);
}

template<std::size_t size>
void expectHidden(ModuleBench &bench, const char *const (&names)[size], bool hidden)
{
    for (const char *name : names)
        expectEqual(name, bench.form<QWidget>(name).isHidden(), hidden);
}

void openTwo(ModuleBench &bench)
{
    bench.service().build("a2 b3 g4(c5)");
    Q_EMIT bench.service().modelReset();
    bench.tree().expandAll();
}

// One table, long as it has an entry for each check.
ModuleChecks enablingChecks() // NOLINT(readability-function-size)
{
    return {
        {"refresh.enabledForOverlays", "Overlays enable name and inputs.",
         [](ModuleBench &bench) {
             openTwo(bench);
             bench.select({2, 3});
             expectEnabled(bench, true);
             expect("the name is enabled", bench.form<QWidget>("_overlay_name").isEnabled());
         }},
        {"refresh.disabledForGroups", "A group in the selection disables the inputs, not the name.",
         [](ModuleBench &bench) {
             openTwo(bench);
             bench.select({2, 4});
             expectEnabled(bench, false);
             expect("the name is enabled", bench.form<QWidget>("_overlay_name").isEnabled());
         }},
        {"refresh.disabledForNothing", "Nothing selected disables name and inputs.",
         [](ModuleBench &bench) {
             openTwo(bench);
             bench.select({2});
             bench.select({});
             expectEnabled(bench, false);
             expect("the name is disabled", !bench.form<QWidget>("_overlay_name").isEnabled());
         }},
        {"refresh.afterRemoval", "The panel follows a selection that lost nodes.",
         [](ModuleBench &bench) {
             openTwo(bench);
             bench.select({2, 3});
             expect("the name is marked", isMarked(bench, "_overlay_name"));
             bench.service().deleteNodes({3});
             expect("the name is not marked", !isMarked(bench, "_overlay_name"));
             expectEqual("name", bench.form<QLineEdit>("_overlay_name").text(), QString("a2"));
             bench.service().deleteNodes({2});
             expect("the name is disabled", !bench.form<QWidget>("_overlay_name").isEnabled());
         }},
        {"refresh.textLayout", "Text overlays show the rows of texts alone.",
         [](ModuleBench &bench) {
             openTwo(bench);
             bench.node(3).type = 1;
             bench.select({3});
             bench.select({2});
             expectHidden(bench, s_textRows, false);
             expectHidden(bench, s_imageRows, true);
         }},
        {"refresh.imageLayout", "Image overlays show the row of images alone.",
         [](ModuleBench &bench) {
             openTwo(bench);
             bench.node(2).type = 5;
             bench.select({2});
             expectHidden(bench, s_textRows, true);
             expectHidden(bench, s_imageRows, false);
         }},
        {"refresh.mixedTypes", "Mixed types disable what is typed and keep layout and contents.",
         [](ModuleBench &bench) {
             openTwo(bench);
             bench.node(2).text = "kept";
             bench.node(3).type = 1;
             bench.select({2});
             bench.select({2, 3});
             expect("the type is marked", isMarked(bench, "_text_radio_button"));
             for (const char *name : s_typed)
                 expect(name, !bench.form<QWidget>(name).isEnabled());
             expectHidden(bench, s_textRows, false);
             expectHidden(bench, s_imageRows, true);
             expectEqual("text", bench.form<QPlainTextEdit>("_text_edit").toPlainText(),
                         QString("kept"));
         }},
        {"refresh.mixedTypesKeepOn",
         "What changes of mixed types is shown when they are one again.",
         [](ModuleBench &bench) {
             openTwo(bench);
             bench.node(3).type = 1;
             bench.select({2});
             bench.select({2, 3});
             bench.service().setFontColor({2}, Qt::green);
             expect("the colour is not marked", !isMarked(bench, "_color_slider"));
         }},
        {"refresh.mixedTypesShareSizes", "Mixed types still show size, position and offset.",
         [](ModuleBench &bench) {
             openTwo(bench);
             bench.node(3).type = 1;
             for (const QRPC::NodeId id : {2U, 3U}) {
                 bench.node(id).size = 55;
                 bench.node(id).position = QPointF(1, 1);
                 bench.node(id).offset = QPointF(6, 7);
             }
             bench.select({2, 3});
             expectEqual("size", bench.form<QKXSlider>("_size_slider").value(), 55.0);
             expectEqual("position", bench.form<QComboBox>("_position_combo_box").currentText(),
                         QString("Top Right"));
             expectEqual("offset", bench.form<QDoubleSpinBox>("_offset_y_spin_box").value(), 7.0);
         }},
        {"refresh.otherTypesAreImages",
         "Different types of images are different types all the same.",
         [](ModuleBench &bench) {
             openTwo(bench);
             bench.node(2).type = 1;
             bench.node(3).type = 2;
             bench.node(2).image = "/no/first.png";
             bench.select({2});
             bench.node(2).image = bench.node(3).image = "/no/common.png";
             bench.tree().selectionModel()->select(bench.index(3), QItemSelectionModel::Select);
             expect("the type is not marked", !isMarked(bench, "_text_radio_button"));
             expectEqual("image", bench.form<QKXTextureControls>("_image_edit").getTexture(),
                         QString("/no/first.png"));
         }},
    };
}

/// Value and suffix of the size slider.
QString sizeOf(ModuleBench &bench)
{
    auto &slider = bench.form<QKXSlider>("_size_slider");
    const QString suffix = slider.findChild<QDoubleSpinBox *>()->suffix().trimmed();
    return QStringLiteral("%1%2").arg(slider.value()).arg(suffix);
}

// One table, long as it has an entry for each check.
ModuleChecks sizeChecks() // NOLINT(readability-function-size)
{
    return {
        {"size.absolute", "An absolute size is shown in pt.",
         [](ModuleBench &bench) {
             openTwo(bench);
             bench.node(2).size = 200;
             bench.select({2});
             expectEqual("size", sizeOf(bench), QString("200pt"));
         }},
        {"size.relative", "A relative size is shown without unit.",
         [](ModuleBench &bench) {
             openTwo(bench);
             bench.node(2).sizeType = 3;
             bench.node(2).size = 0.25;
             bench.select({2});
             expectEqual("size", sizeOf(bench), QString("0.25"));
             expect("relative is checked",
                    bench.form<QRadioButton>("_relative_radio_button").isChecked());
         }},
        {"size.mixedTypes", "Mixed size types switch the slider off and leave it as it was.",
         [](ModuleBench &bench) {
             openTwo(bench);
             bench.node(2).size = 40;
             bench.node(3).sizeType = 1;
             bench.node(3).size = 0.5;
             bench.select({2});
             bench.select({2, 3});
             expect("the size type is marked", isMarked(bench, "_absolute_radio_button"));
             expect("the slider is off", !bench.form<QWidget>("_size_slider").isEnabled());
             expect("the slider is not marked", !isMarked(bench, "_size_slider"));
             expectEqual("size", sizeOf(bench), QString("40pt"));
             bench.select({3});
             expect("the slider is on", bench.form<QWidget>("_size_slider").isEnabled());
             expectEqual("size", sizeOf(bench), QString("0.5"));
         }},
        {"size.typeSignal", "A changed size type refreshes the size too.",
         [](ModuleBench &bench) {
             openTwo(bench);
             bench.node(2).size = 40;
             bench.select({2});
             bench.node(2).sizeType = 1;
             bench.node(2).size = 0.75;
             Q_EMIT bench.service().sizeTypeChanged({2});
             expectEqual("size", sizeOf(bench), QString("0.75"));
         }},
        {"size.ofFirst", "The unit is that of the first, where it was changed without a word.",
         [](ModuleBench &bench) {
             openTwo(bench);
             bench.node(2).size = bench.node(3).size = 0.5;
             bench.select({3, 2});
             bench.node(3).sizeType = 1;
             Q_EMIT bench.service().sizeChanged({2, 3});
             expectEqual("size", sizeOf(bench), QString("0.5"));
         }},
        {"size.notANumber", "Sizes that are no numbers differ.",
         [](ModuleBench &bench) {
             openTwo(bench);
             bench.node(2).size = bench.node(3).size = std::numeric_limits<float>::quiet_NaN();
             bench.select({2, 3});
             expect("the slider is marked", isMarked(bench, "_size_slider"));
         }},
        {"size.markHandedOn", "The mark of the slider is handed on to its parts.",
         [](ModuleBench &bench) {
             openTwo(bench);
             bench.node(2).size = 3;
             bench.node(3).size = 4;
             bench.select({2, 3});
             const auto *field =
                 bench.form<QKXSlider>("_size_slider").findChild<QDoubleSpinBox *>();
             expect("the field is marked", widgets::isMarked(*field));
             bench.select({2});
             expect("the field is not marked", !widgets::isMarked(*field));
         }},
    };
}

// One table, long as it has an entry for each check.
ModuleChecks placeChecks() // NOLINT(readability-function-size)
{
    return {
        {"position.tolerance", "Positions closer than 1e-12 count as one.",
         [](ModuleBench &bench) {
             openTwo(bench);
             bench.node(2).position = QPointF(0.5, 0.5);
             bench.node(3).position = QPointF(0.5 + 9e-13, 0.5 - 9e-13);
             bench.select({2, 3});
             expect("not marked", !isMarked(bench, "_position_combo_box"));
             bench.node(3).position = QPointF(0.5 + 3e-12, 0.5);
             Q_EMIT bench.service().positionChanged({3});
             expect("marked", isMarked(bench, "_position_combo_box"));
         }},
        {"position.toleranceAtZero", "The tolerance is the same at 0.",
         [](ModuleBench &bench) {
             openTwo(bench);
             bench.node(2).position = QPointF(0, 0);
             for (const QPointF &close :
                  {QPointF(9e-13, 0), QPointF(1e-12, 0), QPointF(0, 1e-12)}) {
                 bench.node(3).position = close;
                 bench.select({2, 3});
                 expect("not marked", !isMarked(bench, "_position_combo_box"));
             }
         }},
        {"position.noAnchor", "A position that is no anchor leaves the box without a current one.",
         [](ModuleBench &bench) {
             openTwo(bench);
             bench.node(2).position = QPointF(0.3, 0.7);
             bench.select({2});
             expectEqual("index", bench.form<QComboBox>("_position_combo_box").currentIndex(), -1);
         }},
        {"offset.apart", "The coordinates of the offset are marked each by itself.",
         [](ModuleBench &bench) {
             openTwo(bench);
             bench.node(2).offset = QPointF(4, 5);
             bench.node(3).offset = QPointF(4, 6);
             bench.select({2, 3});
             expect("x is not marked", !isMarked(bench, "_offset_x_spin_box"));
             expect("y is marked", isMarked(bench, "_offset_y_spin_box"));
             expectEqual("x", bench.form<QDoubleSpinBox>("_offset_x_spin_box").value(), 4.0);
         }},
        {"text.keepsCursor", "A text that the field shows already is not written again.",
         [](ModuleBench &bench) {
             openTwo(bench);
             bench.node(2).text = bench.node(3).text = "some text";
             bench.select({2});
             auto &field = bench.form<QPlainTextEdit>("_text_edit");
             QTextCursor cursor = field.textCursor();
             cursor.setPosition(5);
             field.setTextCursor(cursor);
             bench.select({3});
             expectEqual("cursor", field.textCursor().position(), 5);
         }},
        {"mark.polishedOnce", "Clearing a mark that is not there polishes nothing.",
         [](ModuleBench &bench) {
             openTwo(bench);
             bench.select({2});
             struct Counter : QObject
             {
                 int changes = 0;
                 bool eventFilter(QObject *, QEvent *event) override
                 {
                     changes += int(event->type() == QEvent::DynamicPropertyChange);
                     return false;
                 }
             } counter;
             bench.form<QWidget>("_overlay_name").installEventFilter(&counter);
             Q_EMIT bench.service().nameChanged({2});
             Q_EMIT bench.service().nameChanged({2});
             expectEqual("changes of the property", counter.changes, 0);
         }},
    };
}

} // namespace

ModuleChecks refreshChecks()
{
    return joined<ModuleBench>({propertyChecks(), enablingChecks(), sizeChecks(), placeChecks()});
}

} // namespace conformance
