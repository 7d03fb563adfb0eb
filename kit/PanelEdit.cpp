// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "kit/PanelEdit.h"

#include "host/QKXColorManipulator.h"
#include "host/QKXSlider.h"
#include "host/QKXTextureControls.h"
#include "kit/keys.h"
#include "kit/widgets.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFontComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>

namespace {

using keys::press;
using widgets::child;

// One table, long as it has a row for each edit.
QVector<PanelEdit> allEdits() // NOLINT(readability-function-size)
{
    return {
        {"name",
         [](const QWidget &window) {
             child<QLineEdit>(window, "_overlay_name")->setText("new");
             press(child<QLineEdit>(window, "_overlay_name"), Qt::Key_Return);
         },
         R"(setName %1 "new")"},
        {"type",
         [](const QWidget &window) {
             child<QAbstractButton>(window, "_image_radio_button")->click();
         },
         "setOverlayType %1 1"},
        {"same type",
         [](const QWidget &window) {
             child<QAbstractButton>(window, "_text_radio_button")->click();
         },
         "setOverlayType %1 0"},
        {"text",
         [](const QWidget &window) {
             child<QPlainTextEdit>(window, "_text_edit")->setPlainText("x\ny");
         },
         "setText %1 \"x\ny\""},
        {"font",
         [](const QWidget &window) {
             child<QFontComboBox>(window, "_font_combo_box")
                 ->setCurrentFont(QFont("DejaVu Serif", 33, 75));
         },
         R"(setFont %1 "DejaVu Serif")"},
        {"font color",
         [](const QWidget &window) {
             Q_EMIT child<QKXColorManipulator>(window, "_color_slider")
                 ->colorChanged(1.0F, 0.5F, 0.0F);
         },
         "setFontColor %1 #ffff8000"},
        {"background color",
         [](const QWidget &window) {
             Q_EMIT child<QKXColorManipulator>(window, "_background_slider")
                 ->colorChanged(0.0F, 1.0F, 0.2F);
         },
         "setBackgroundColor %1 #ff00ff33"},
        {"transparency",
         [](const QWidget &window) {
             Q_EMIT child<QKXColorManipulator>(window, "_transparency_slider")
                 ->colorChanged(0.4F, 0.4F, 0.4F);
         },
         "setBackgroundTransparency %1 #ff666666"},
        {"image file",
         [](const QWidget &window) {
             Q_EMIT child<QKXTextureControls>(window, "_image_edit")
                 ->changedTextureFile("/no/b.png");
         },
         R"(setImage %1 "/no/b.png")"},
        {"use of the image",
         [](const QWidget &window) {
             child<QKXTextureControls>(window, "_image_edit")->setTexture("/no/c.png");
             Q_EMIT child<QKXTextureControls>(window, "_image_edit")->changedTexture();
         },
         R"(setImage %1 "/no/c.png")"},
        {"reload",
         [](const QWidget &window) {
             child<QKXTextureControls>(window, "_image_edit")->setTexture("/no/d.png");
             Q_EMIT child<QKXTextureControls>(window, "_image_edit")->clickedReloadTexture();
         },
         R"(setImage %1 "/no/d.png")"},
        {"clear",
         [](const QWidget &window) {
             child<QKXTextureControls>(window, "_image_edit")->setTexture("/no/d.png");
             Q_EMIT child<QKXTextureControls>(window, "_image_edit")->clickedClearTexture();
         },
         R"(setImage %1 "")"},
        {"size type",
         [](const QWidget &window) {
             child<QAbstractButton>(window, "_relative_radio_button")->click();
         },
         "setSizeType %1 1"},
        {"same size type",
         [](const QWidget &window) {
             child<QAbstractButton>(window, "_absolute_radio_button")->click();
         },
         "setSizeType %1 0"},
        {"size",
         [](const QWidget &window) { child<QKXSlider>(window, "_size_slider")->setValue(33.25); },
         "setSize %1 33.25"},
        {"position",
         [](const QWidget &window) {
             child<QComboBox>(window, "_position_combo_box")->setCurrentIndex(2);
         },
         "setPosition %1 (0.5,1)"},
        {"offset x",
         [](const QWidget &window) {
             child<QDoubleSpinBox>(window, "_offset_x_spin_box")->setValue(-7.5);
         },
         "setOffsetX %1 -7.5"},
        {"offset y",
         [](const QWidget &window) {
             child<QDoubleSpinBox>(window, "_offset_y_spin_box")->setValue(8.25);
         },
         "setOffsetY %1 8.25"},
    };
}

} // namespace

const QVector<PanelEdit> &PanelEdit::all()
{
    static const QVector<PanelEdit> all = allEdits();
    return all;
}
