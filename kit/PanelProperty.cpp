// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "kit/PanelProperty.h"

#include "host/QKXColor.h"
#include "host/QKXColorManipulator.h"
#include "host/QKXSlider.h"
#include "host/QKXTextureControls.h"
#include "kit/widgets.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QPlainTextEdit>

namespace {

using Node = RecordingService::Node;
using widgets::child;

QString text(const QKXColorManipulator *control)
{
    return control->color().toColor().name();
}

// One table, long as it has a row for each property.
QVector<PanelProperty> allProperties() // NOLINT(readability-function-size)
{
    using P = PanelProperty;
    using S = kxOverlayService;
    return {
        {"name",
         "getName",
         &S::nameChanged,
         "_overlay_name",
         P::None,
         [](Node *node, int which) { node->name = which ? "two" : "one"; },
         [](const QWidget &window) { return child<QLineEdit>(window, "_overlay_name")->text(); },
         {"one", "two"}},
        {"type",
         "getOverlayType",
         &S::overlayTypeChanged,
         "_text_radio_button",
         P::None,
         [](Node *node, int which) { node->type = which; },
         [](const QWidget &window) {
             return QString(child<QAbstractButton>(window, "_text_radio_button")->isChecked()
                                ? "text"
                                : "image");
         },
         {"text", "image"}},
        {"text",
         "getText",
         &S::textChanged,
         "_text_edit",
         P::Texts,
         [](Node *node, int which) { node->text = which ? "two\nlines" : "line"; },
         [](const QWidget &window) {
             return child<QPlainTextEdit>(window, "_text_edit")->toPlainText();
         },
         {"line", "two\nlines"}},
        {"font",
         "getFont",
         &S::fontChanged,
         "_font_combo_box",
         P::Texts,
         [](Node *node, int which) { node->font = which ? "DejaVu Serif" : "DejaVu Sans"; },
         [](const QWidget &window) {
             return child<QComboBox>(window, "_font_combo_box")->currentText();
         },
         {"DejaVu Sans", "DejaVu Serif"}},
        {"font color",
         "getFontColor",
         &S::fontColorChanged,
         "_color_slider",
         P::Texts,
         [](Node *node, int which) { node->fontColor = which ? "#336699" : "#ff8000"; },
         [](const QWidget &window) {
             return text(child<QKXColorManipulator>(window, "_color_slider"));
         },
         {"#ff8000", "#336699"}},
        {"background color",
         "getBackgroundColor",
         &S::backgroundColorChanged,
         "_background_slider",
         P::Texts,
         [](Node *node, int which) { node->backgroundColor = which ? "#102030" : "#00ff00"; },
         [](const QWidget &window) {
             return text(child<QKXColorManipulator>(window, "_background_slider"));
         },
         {"#00ff00", "#102030"}},
        {"transparency",
         "getBackgroundTransparency",
         &S::backgroundTransparencyChanged,
         "_transparency_slider",
         P::Texts,
         [](Node *node, int which) { node->transparency = which ? "#808080" : "#ffffff"; },
         [](const QWidget &window) {
             return text(child<QKXColorManipulator>(window, "_transparency_slider"));
         },
         {"#ffffff", "#808080"}},
        {"image",
         "getImage",
         &S::imageChanged,
         "_image_edit",
         P::Images,
         [](Node *node, int which) { node->image = which ? "/no/b.png" : "/no/a.png"; },
         [](const QWidget &window) {
             return child<QKXTextureControls>(window, "_image_edit")->getTexture();
         },
         {"/no/a.png", "/no/b.png"}},
        {"size type",
         "getSizeType",
         &S::sizeTypeChanged,
         "_absolute_radio_button",
         P::Overlays,
         [](Node *node, int which) { node->sizeType = which; },
         [](const QWidget &window) {
             return QString(child<QAbstractButton>(window, "_absolute_radio_button")->isChecked()
                                ? "absolute"
                                : "relative");
         },
         {"absolute", "relative"}},
        {"size",
         "getSize",
         &S::sizeChanged,
         "_size_slider",
         P::Overlays,
         [](Node *node, int which) { node->size = which ? 40.5F : 30.0F; },
         [](const QWidget &window) {
             return QString::number(child<QKXSlider>(window, "_size_slider")->value());
         },
         {"30", "40.5"}},
        {"position",
         "getPosition",
         &S::positionChanged,
         "_position_combo_box",
         P::Overlays,
         [](Node *node, int which) {
             node->position = {0.5, which ? 1.0 : 0.0};
         },
         [](const QWidget &window) {
             return child<QComboBox>(window, "_position_combo_box")->currentText();
         },
         {"Bottom", "Top"}},
        {"offset x",
         "getOffset",
         &S::offsetChanged,
         "_offset_x_spin_box",
         P::Overlays,
         [](Node *node, int which) { node->offset.setX(which ? -12.75 : 3.0); },
         [](const QWidget &window) {
             return QString::number(child<QDoubleSpinBox>(window, "_offset_x_spin_box")->value());
         },
         {"3", "-12.75"}},
        {"offset y",
         "getOffset",
         &S::offsetChanged,
         "_offset_y_spin_box",
         P::Overlays,
         [](Node *node, int which) { node->offset.setY(which ? 0.5 : -4.0); },
         [](const QWidget &window) {
             return QString::number(child<QDoubleSpinBox>(window, "_offset_y_spin_box")->value());
         },
         {"-4", "0.5"}},
    };
}

} // namespace

const QVector<PanelProperty> &PanelProperty::all()
{
    static const QVector<PanelProperty> all = allProperties();
    return all;
}
