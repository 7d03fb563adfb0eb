// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/overlayeditor/PanelTest.h"

#include "host/QKXColor.h"

#include <QApplication>
#include <QSlider>

namespace {

using Node = RecordingService::Node;
using Form = kxOverlayEditorGUIW;

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
         [](const Form &form) { return form._overlay_name->text(); },
         {"one", "two"}},
        {"type",
         "getOverlayType",
         &S::overlayTypeChanged,
         "_text_radio_button",
         P::None,
         [](Node *node, int which) { node->type = which; },
         [](const Form &form) {
             return QString(form._text_radio_button->isChecked() ? "text" : "image");
         },
         {"text", "image"}},
        {"text",
         "getText",
         &S::textChanged,
         "_text_edit",
         P::Texts,
         [](Node *node, int which) { node->text = which ? "two\nlines" : "line"; },
         [](const Form &form) { return form._text_edit->toPlainText(); },
         {"line", "two\nlines"}},
        {"font",
         "getFont",
         &S::fontChanged,
         "_font_combo_box",
         P::Texts,
         [](Node *node, int which) { node->font = which ? "DejaVu Serif" : "DejaVu Sans"; },
         [](const Form &form) { return form._font_combo_box->currentText(); },
         {"DejaVu Sans", "DejaVu Serif"}},
        {"font color",
         "getFontColor",
         &S::fontColorChanged,
         "_color_slider",
         P::Texts,
         [](Node *node, int which) { node->fontColor = which ? "#336699" : "#ff8000"; },
         [](const Form &form) { return text(form._color_slider); },
         {"#ff8000", "#336699"}},
        {"background color",
         "getBackgroundColor",
         &S::backgroundColorChanged,
         "_background_slider",
         P::Texts,
         [](Node *node, int which) { node->backgroundColor = which ? "#102030" : "#00ff00"; },
         [](const Form &form) { return text(form._background_slider); },
         {"#00ff00", "#102030"}},
        {"transparency",
         "getBackgroundTransparency",
         &S::backgroundTransparencyChanged,
         "_transparency_slider",
         P::Texts,
         [](Node *node, int which) { node->transparency = which ? "#808080" : "#ffffff"; },
         [](const Form &form) { return text(form._transparency_slider); },
         {"#ffffff", "#808080"}},
        {"image",
         "getImage",
         &S::imageChanged,
         "_image_edit",
         P::Images,
         [](Node *node, int which) { node->image = which ? "/no/b.png" : "/no/a.png"; },
         [](const Form &form) { return form._image_edit->getTexture(); },
         {"/no/a.png", "/no/b.png"}},
        {"size type",
         "getSizeType",
         &S::sizeTypeChanged,
         "_absolute_radio_button",
         P::Overlays,
         [](Node *node, int which) { node->sizeType = which; },
         [](const Form &form) {
             return QString(form._absolute_radio_button->isChecked() ? "absolute" : "relative");
         },
         {"absolute", "relative"}},
        {"size",
         "getSize",
         &S::sizeChanged,
         "_size_slider",
         P::Overlays,
         [](Node *node, int which) { node->size = which ? 40.5F : 30.0F; },
         [](const Form &form) { return QString::number(form._size_slider->value()); },
         {"30", "40.5"}},
        {"position",
         "getPosition",
         &S::positionChanged,
         "_position_combo_box",
         P::Overlays,
         [](Node *node, int which) {
             node->position = {0.5, which ? 1.0 : 0.0};
         },
         [](const Form &form) { return form._position_combo_box->currentText(); },
         {"Bottom", "Top"}},
        {"offset x",
         "getOffset",
         &S::offsetChanged,
         "_offset_x_spin_box",
         P::Overlays,
         [](Node *node, int which) { node->offset.setX(which ? -12.75 : 3.0); },
         [](const Form &form) { return QString::number(form._offset_x_spin_box->value()); },
         {"3", "-12.75"}},
        {"offset y",
         "getOffset",
         &S::offsetChanged,
         "_offset_y_spin_box",
         P::Overlays,
         [](Node *node, int which) { node->offset.setY(which ? 0.5 : -4.0); },
         [](const Form &form) { return QString::number(form._offset_y_spin_box->value()); },
         {"-4", "0.5"}},
    };
}

} // namespace

const QVector<PanelProperty> &PanelTest::properties()
{
    static const QVector<PanelProperty> all = allProperties();
    return all;
}

void PanelTest::addProperties(const QVector<PanelProperty::Guard> &guards)
{
    QTest::addColumn<int>("row");
    for (int row = 0; row < properties().size(); ++row) {
        if (guards.isEmpty() || guards.contains(property(row).guard))
            QTest::newRow(property(row).name) << row;
    }
}

QWidget &PanelTest::control(const PanelProperty &property)
{
    return *window().findChild<QWidget *>(QString::fromLatin1(property.control));
}

void PanelTest::suit(const PanelProperty &property)
{
    const QRPC::NodeList ids = service().allIds();
    for (const QRPC::NodeId id : ids)
        node(id).type = property.guard == PanelProperty::Images ? 1 : 0;
}

void PanelTest::announce(PanelProperty::Signal signal, const QRPC::NodeList &nodes)
{
    Q_EMIT(service().*signal)(nodes);
}

bool PanelTest::isMarked(const QWidget &control)
{
    const QVariant marking = control.property("multiselect");
    return marking.isValid() && marking == QVariant(true);
}

QAbstractSlider &PanelTest::sizeHandle()
{
    return *window()._size_slider->findChild<QSlider *>();
}

QDoubleSpinBox &PanelTest::sizeField()
{
    return *window()._size_slider->findChild<QDoubleSpinBox *>();
}

void PanelTest::focus(QWidget &control)
{
    control.setFocus(Qt::TabFocusReason);
    QVERIFY(control.hasFocus());
}

void PanelTest::type(const QString &text)
{
    for (const QChar character : text)
        QTest::keyClick(QApplication::focusWidget(), character.toLatin1());
}

void PanelTest::press(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
}
