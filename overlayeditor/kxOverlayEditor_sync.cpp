// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

// The property panel follows the selection: one value where all selected nodes agree, a marking
// where they do not. Every refresh reads the service; none writes to it.

#include "overlayeditor/kxOverlayEditor.h"

#include "host/QKXColor.h"
#include "host/QKXColorManipulator.h"
#include "host/kxOverlayService.h"
#include "overlayeditor/kxCommonValue.h"
#include "overlayeditor/kxMultiselect.h"
#include "overlayeditor/kxOverlayEditorGUIW.h"
#include "overlayeditor/kxServices.h"

#include <QScopeGuard>
#include <QSignalBlocker>

#include <cmath>
#include <functional>
#include <initializer_list>

using kxMultiselect::setControlMultiselect;

namespace {

/// Shows the value that all nodes share, silently, or marks the control as mixed.
template<class T>
void updateControl(QWidget *control, const QRPC::NodeList &nodes,
                   const std::function<T(QRPC::NodeId)> &getter,
                   const std::function<void(T)> &setter)
{
    const std::optional<T> value = kxCommonValue<T>(nodes, getter);
    setControlMultiselect(control, !value);
    if (!value)
        return;
    const QSignalBlocker blocker(control);
    setter(*value);
}

/// A getter of the service, which is fetched anew for each node.
template<class T>
std::function<T(QRPC::NodeId)> read(T (kxOverlayService::*getter)(QRPC::NodeId))
{
    return [getter](QRPC::NodeId node) { return (kxService<kxOverlayService>()->*getter)(node); };
}

/// One refresh of a property that only overlays of one type have.
template<class T>
void updateTypeProperty(kxOverlayEditor *editor, QWidget *control,
                        T (kxOverlayService::*getter)(QRPC::NodeId),
                        const std::function<void(T)> &setter)
{
    const QRPC::NodeList nodes = editor->refreshedNodes();
    if (editor->shouldUpdate(nodes, true))
        updateControl<T>(control, nodes, read(getter), setter);
}

/// One refresh of a colour.
void updateColor(kxOverlayEditor *editor, QKXColorManipulator *control,
                 QColor (kxOverlayService::*getter)(QRPC::NodeId))
{
    updateTypeProperty<QColor>(editor, control, getter, [control](const QColor &color) {
        control->setColor(QKXColor(color));
    });
}

bool isText(QRPC::NodeId node)
{
    return kxService<kxOverlayService>()->getOverlayType(node) == 0;
}

/// Written out, because the toolkit's own comparison of points is relative.
bool isSamePosition(const QPointF &left, const QPointF &right)
{
    const double tolerance = 1e-12;
    return std::abs(left.x() - right.x()) <= tolerance
           && std::abs(left.y() - right.y()) <= tolerance;
}

/// Shows a family, installed or not; what is being typed stays as long as the family does.
void showFamily(QFontComboBox *box, const QString &family)
{
    const bool isEdited = box->hasFocus() && box->currentFont().family() == family;
    box->setCurrentFont(QFont(family, -1, -1, false));
    // The box itself shows the row that stands in for a missing family.
    if (!isEdited && box->currentText().compare(family, Qt::CaseInsensitive) != 0)
        box->setEditText(family);
}

} // namespace

bool kxOverlayEditor::shouldUpdate(const QRPC::NodeList &nodes, bool sameType)
{
    if (nodes.isEmpty() || containsGroup(nodes))
        return false;
    if (!sameType)
        return true;
    return kxCommonValue<int>(nodes, read(&kxOverlayService::getOverlayType)).has_value();
}

QRPC::NodeList kxOverlayEditor::refreshedNodes() const
{
    return m_refreshedNodes ? *m_refreshedNodes : getSelectedNodes();
}

void kxOverlayEditor::updateAll()
{
    // A dozen parts of one refresh: reading a large selection takes as long as asking its service.
    const QRPC::NodeList nodes = getSelectedNodes();
    m_refreshedNodes = nodes;
    const auto finished = qScopeGuard([this] { m_refreshedNodes.reset(); });
    const bool hasNonOverlay = containsGroup(nodes);
    setInputEnabled(!hasNonOverlay && !nodes.isEmpty());
    m_window->_overlay_name->setEnabled(!nodes.isEmpty());
    if (nodes.isEmpty())
        return;

    updateName(nodes);
    if (hasNonOverlay)
        return;

    updateOverlayType(nodes);
    const auto type = kxCommonValue<int>(nodes, read(&kxOverlayService::getOverlayType));
    if (type && *type == 0) {
        updateText(nodes);
        updateFont(nodes);
        updateFontColor(nodes);
        updateBackgroundColor(nodes);
        updateBackgroundTransparency(nodes);
    } else if (type) {
        updateImage(nodes);
    }
    updateSizeType(nodes);
    updateSize(nodes);
    updatePosition(nodes);
    updateOffset(nodes);
}

void kxOverlayEditor::updateName(const QRPC::NodeList &changed)
{
    Q_UNUSED(changed)
    const QRPC::NodeList nodes = refreshedNodes();
    if (nodes.isEmpty())
        return;
    QLineEdit *name = m_window->_overlay_name;
    const bool wasMixed = kxMultiselect::isMarked(name);
    updateControl<QString>(name, nodes, read(&kxOverlayService::getName),
                           [name](const QString &value) { name->setText(value); });
    if (!wasMixed)
        kxMultiselect::rememberStaleText(name);
}

void kxOverlayEditor::updateOverlayType(const QRPC::NodeList &changed)
{
    Q_UNUSED(changed)
    const QRPC::NodeList nodes = refreshedNodes();
    if (nodes.isEmpty())
        return;
    updateControl<bool>(m_window->_text_radio_button, nodes, isText, [this](bool text) {
        (text ? m_window->_text_radio_button : m_window->_image_radio_button)->setChecked(true);
    });

    const bool mixed = kxMultiselect::isMarked(m_window->_text_radio_button);
    const std::initializer_list<QWidget *> editors = {
        m_window->_text_edit,         m_window->_font_combo_box,      m_window->_color_slider,
        m_window->_background_slider, m_window->_transparency_slider, m_window->_image_edit};
    for (QWidget *editor : editors)
        editor->setEnabled(!mixed);
    if (!mixed)
        showTypeControls(isText(nodes.first()));
}

void kxOverlayEditor::showTypeControls(bool text)
{
    const std::initializer_list<QWidget *> textControls = {
        m_window->_text_label,         m_window->_text_edit,         m_window->_font_label,
        m_window->_font_combo_box,     m_window->_font_color_label,  m_window->_color_slider,
        m_window->_background_label,   m_window->_background_slider, m_window->_transparency_label,
        m_window->_transparency_slider};
    for (QWidget *control : textControls)
        control->setVisible(text);
    m_window->_image_label->setVisible(!text);
    m_window->_image_edit->setVisible(!text);
}

void kxOverlayEditor::updateText(const QRPC::NodeList &changed)
{
    Q_UNUSED(changed)
    QPlainTextEdit *edit = m_window->_text_edit;
    updateTypeProperty<QString>(this, edit, &kxOverlayService::getText,
                                [edit](const QString &text) {
                                    // Unchanged text keeps cursor and undo history.
                                    if (edit->document()->toPlainText() != text)
                                        edit->setPlainText(text);
                                });
}

void kxOverlayEditor::updateFont(const QRPC::NodeList &changed)
{
    Q_UNUSED(changed)
    QFontComboBox *box = m_window->_font_combo_box;
    updateTypeProperty<QString>(this, box, &kxOverlayService::getFont,
                                [box](const QString &family) { showFamily(box, family); });
}

void kxOverlayEditor::updateFontColor(const QRPC::NodeList &changed)
{
    Q_UNUSED(changed)
    updateColor(this, m_window->_color_slider, &kxOverlayService::getFontColor);
}

void kxOverlayEditor::updateBackgroundColor(const QRPC::NodeList &changed)
{
    Q_UNUSED(changed)
    updateColor(this, m_window->_background_slider, &kxOverlayService::getBackgroundColor);
}

void kxOverlayEditor::updateBackgroundTransparency(const QRPC::NodeList &changed)
{
    Q_UNUSED(changed)
    updateColor(this, m_window->_transparency_slider, &kxOverlayService::getBackgroundTransparency);
}

void kxOverlayEditor::updateImage(const QRPC::NodeList &changed)
{
    Q_UNUSED(changed)
    const QRPC::NodeList nodes = refreshedNodes();
    if (!shouldUpdate(nodes, true))
        return;
    QKXTextureControls *controls = m_window->_image_edit;
    updateControl<QString>(controls, nodes, read(&kxOverlayService::getImage),
                           [controls](const QString &path) { controls->setTexture(path); });
    controls->propagateMultiselectProperty();
}

void kxOverlayEditor::updateSizeType(const QRPC::NodeList &changed)
{
    const QRPC::NodeList nodes = refreshedNodes();
    if (!shouldUpdate(nodes, false))
        return;
    const auto isAbsolute = [](QRPC::NodeId node) {
        return kxService<kxOverlayService>()->getSizeType(node) == 0;
    };
    updateControl<bool>(m_window->_absolute_radio_button, nodes, isAbsolute, [this](bool absolute) {
        (absolute ? m_window->_absolute_radio_button : m_window->_relative_radio_button)
            ->setChecked(true);
    });
    updateSize(changed);
}

void kxOverlayEditor::updateSize(const QRPC::NodeList &changed)
{
    Q_UNUSED(changed)
    const QRPC::NodeList nodes = refreshedNodes();
    if (!shouldUpdate(nodes, false))
        return;
    QKXSlider *slider = m_window->_size_slider;
    const bool sizeTypeMixed = kxMultiselect::isMarked(m_window->_absolute_radio_button);
    slider->setSliderEnabled(!sizeTypeMixed);
    // A size means different things in the two units.
    if (sizeTypeMixed)
        return;

    const std::optional<float> size = kxCommonValue<float>(nodes, read(&kxOverlayService::getSize));
    setControlMultiselect(slider, !size);
    if (size) {
        const QSignalBlocker blocker(slider);
        const bool absolute = kxService<kxOverlayService>()->getSizeType(nodes.first()) == 0;
        slider->setLineStep(absolute ? 1.0 : 0.01);
        slider->setRange(0.0, absolute ? 200.0 : 1.0);
        slider->setSuffix(absolute ? QStringLiteral("pt") : QString());
        slider->setValue(double(*size));
    }
    slider->propagateMultiselectProperty();
}

void kxOverlayEditor::updatePosition(const QRPC::NodeList &changed)
{
    Q_UNUSED(changed)
    const QRPC::NodeList nodes = refreshedNodes();
    if (!shouldUpdate(nodes, false))
        return;
    QComboBox *positions = m_window->_position_combo_box;
    const std::optional<QPointF> position =
        kxCommonValue<QPointF>(nodes, read(&kxOverlayService::getPosition), isSamePosition);
    setControlMultiselect(positions, !position);
    if (!position)
        return;
    const QSignalBlocker blocker(positions);
    positions->setCurrentIndex(positions->findData(QVariant(*position)));
}

void kxOverlayEditor::updateOffset(const QRPC::NodeList &changed)
{
    Q_UNUSED(changed)
    const QRPC::NodeList nodes = refreshedNodes();
    if (!shouldUpdate(nodes, false))
        return;
    const struct
    {
        QDoubleSpinBox *box;
        double (*coordinate)(const QPointF &);
    } offsets[] = {
        {m_window->_offset_x_spin_box, [](const QPointF &offset) { return offset.x(); }},
        {m_window->_offset_y_spin_box, [](const QPointF &offset) { return offset.y(); }},
    };
    for (const auto &offset : offsets) {
        const auto getter = [&offset](QRPC::NodeId node) {
            return offset.coordinate(kxService<kxOverlayService>()->getOffset(node));
        };
        updateControl<double>(offset.box, nodes, getter, [&offset](double value) {
            // The service stores single precision: the box keeps the digits that were typed.
            if (float(offset.box->value()) != float(value))
                offset.box->setValue(value);
        });
    }
}
