// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

// Completes the form's property panel: groups, ranges, texts, icons and connections.

#include "overlayeditor/kxOverlayEditor.h"

#include "host/kxIconManager.h"
#include "overlayeditor/kxConnect.h"
#include "overlayeditor/kxMultiselect.h"
#include "overlayeditor/kxOverlayEditorGUIW.h"
#include "overlayeditor/kxPaneWidth.h"

#include <QButtonGroup>
#include <QIcon>
#include <QLabel>
#include <QPointF>

#include <initializer_list>

namespace {

/// Anchors of an overlay on the view: x from left (0) to right (1), y from bottom (0) to top (1).
struct Anchor
{
    const char *text;
    QPointF position;
};

/// The part of a control that takes the focus for it: what shall follow the control follows it.
QWidget *focusPart(QWidget *control)
{
    return control->focusProxy() ? focusPart(control->focusProxy()) : control;
}

/// The labels name the controls beside them to assistive tools too.
void nameControls(const kxOverlayEditorGUIW &form)
{
    const struct
    {
        QLabel *label;
        QWidget *control;
    } rows[] = {
        {form._name_label, form._overlay_name},
        {form._text_label, form._text_edit},
        {form._font_label, form._font_combo_box},
        {form._font_color_label, form._color_slider},
        {form._background_label, form._background_slider},
        {form._transparency_label, form._transparency_slider},
        {form._image_label, form._image_edit},
        {form._size_label, form._size_slider},
        {form._position_label, form._position_combo_box},
    };
    for (const auto &row : rows)
        row.label->setBuddy(row.control);
    form._offset_x_spin_box->setAccessibleName(kxOverlayEditor::tr("Horizontal offset"));
    form._offset_y_spin_box->setAccessibleName(kxOverlayEditor::tr("Vertical offset"));
}

} // namespace

void kxOverlayEditor::createPropertiesView()
{
    orderFocus();
    nameControls(*m_window);
    new kxPaneWidth(m_window->_property_scrollArea);

    kxConnect(m_window->_overlay_name, SIGNAL(editingFinished()), this, SLOT(nameChanged()));

    auto *typeButtons = new QButtonGroup(this);
    typeButtons->addButton(m_window->_text_radio_button, 0);
    typeButtons->addButton(m_window->_image_radio_button, 1);
    kxConnect(typeButtons, SIGNAL(buttonClicked(int)), this, SLOT(typeChanged(int)));

    kxConnect(m_window->_text_edit, SIGNAL(textChanged()), this, SLOT(textChanged()));
    m_window->_text_edit->setTabChangesFocus(true);
    kxConnect(m_window->_font_combo_box, SIGNAL(currentFontChanged(const QFont &)), this,
              SLOT(fontChanged(const QFont &)));
    kxConnect(m_window->_color_slider, SIGNAL(colorChanged(float, float, float)), this,
              SLOT(fontColorChanged(float, float, float)));
    kxConnect(m_window->_background_slider, SIGNAL(colorChanged(float, float, float)), this,
              SLOT(fontBackgroundChanged(float, float, float)));
    kxConnect(m_window->_transparency_slider, SIGNAL(colorChanged(float, float, float)), this,
              SLOT(fontTransparencyChanged(float, float, float)));

    createSizeAndPositionView();
    takeRepeatedChoices();

    setInputEnabled(false);
    m_window->_overlay_name->setEnabled(false);
}

void kxOverlayEditor::createSizeAndPositionView()
{
    auto *sizeTypeButtons = new QButtonGroup(this);
    sizeTypeButtons->addButton(m_window->_absolute_radio_button, 0);
    sizeTypeButtons->addButton(m_window->_relative_radio_button, 1);
    kxConnect(sizeTypeButtons, SIGNAL(buttonClicked(int)), this, SLOT(sizeTypeChanged(int)));

    kxConnect(m_window->_size_slider, SIGNAL(valueChanged(double)), this,
              SLOT(sizeChanged(double)));
    kxConnect(m_window->_size_slider, SIGNAL(sliderReleased()), this, SLOT(sizeSliderChanged()));
    m_window->_size_slider->setRange(0.0, 200.0);
    // Until the first refresh, which shows the unit of the selected size type.
    m_window->_size_slider->setSuffix(QStringLiteral("px"));

    const Anchor anchors[] = {
        {QT_TR_NOOP("Left"), {0.0, 0.5}},         {QT_TR_NOOP("Right"), {1.0, 0.5}},
        {QT_TR_NOOP("Top"), {0.5, 1.0}},          {QT_TR_NOOP("Bottom"), {0.5, 0.0}},
        {QT_TR_NOOP("Center"), {0.5, 0.5}},       {QT_TR_NOOP("Top Left"), {0.0, 1.0}},
        {QT_TR_NOOP("Top Right"), {1.0, 1.0}},    {QT_TR_NOOP("Bottom Left"), {0.0, 0.0}},
        {QT_TR_NOOP("Bottom Right"), {1.0, 0.0}},
    };
    QComboBox *positions = m_window->_position_combo_box;
    for (const Anchor &anchor : anchors)
        positions->insertItem(positions->count(), QIcon(), tr(anchor.text), anchor.position);
    kxConnect(positions, SIGNAL(currentIndexChanged(int)), this, SLOT(positionChanged(int)));

    const double limit = 2147483647.0;
    m_window->_offset_x_spin_box->setRange(-limit, limit);
    kxConnect(m_window->_offset_x_spin_box, SIGNAL(valueChanged(double)), this,
              SLOT(offsetXChanged(double)));
    m_window->_offset_y_spin_box->setRange(-limit, limit);
    kxConnect(m_window->_offset_y_spin_box, SIGNAL(valueChanged(double)), this,
              SLOT(offsetYChanged(double)));
}

/// Tab goes down the panel, frame by frame; the form makes the widgets in another order. The header of
/// a frame stands before its page already, and the image behind the other rows of its frame.
void kxOverlayEditor::orderFocus()
{
    const std::initializer_list<QWidget *> frames[] = {
        {m_window->_overlay_name, m_window->_text_radio_button, m_window->_image_radio_button,
         m_window->_text_edit, m_window->_font_combo_box, m_window->_color_slider,
         m_window->_background_slider, m_window->_transparency_slider},
        {m_window->_absolute_radio_button, m_window->_relative_radio_button, m_window->_size_slider,
         m_window->_position_combo_box, m_window->_offset_x_spin_box, m_window->_offset_y_spin_box},
    };
    for (const std::initializer_list<QWidget *> &controls : frames) {
        for (auto control = controls.begin(); control + 1 != controls.end(); ++control)
            QWidget::setTabOrder(focusPart(*control), *(control + 1));
    }
}

/// A list box tells only of another choice. The one that it has is news too where it hides different
/// values, and so is the family that stands in for a missing one.
void kxOverlayEditor::takeRepeatedChoices()
{
    const QFontComboBox *fonts = m_window->_font_combo_box;
    connect(fonts, &QComboBox::textActivated, this, [this, fonts](const QString &family) {
        const QString current = fonts->currentFont().family();
        if (kxMultiselect::isMarked(fonts) || family.compare(current, Qt::CaseInsensitive) != 0)
            fontChanged(QFont(family));
    });
    const QComboBox *positions = m_window->_position_combo_box;
    connect(positions, QOverload<int>::of(&QComboBox::activated), this,
            [this, positions](int index) {
                if (kxMultiselect::isMarked(positions))
                    positionChanged(index);
            });
}

void kxOverlayEditor::createImageEdit()
{
    QKXTextureControls *controls = m_window->_image_edit;
    controls->setLoadTextureIcon(kxIconManager::getIcon("FileOpen", ""));
    controls->setReloadTextureIcon(kxIconManager::getIcon("Reload", ""));
    controls->setSaveTextureIcon(kxIconManager::getIcon("Save", ""));
    controls->setShowTextureInfoIcon(kxIconManager::getIcon("ShowTextureInfo", ""));
    controls->setClearTextureIcon(kxIconManager::getIcon("Delete", ""));

    // An overlay has a picture and nothing to map it onto: only the file line remains.
    controls->setShowUseTextureControls(false);
    controls->setShowRepeatModeControls(false);
    controls->setShowRepeatControls(false);
    controls->setShowOffsetControls(false);
    controls->setShowRotateControls(false);
    controls->setShowAnisotropicControls(false);
    controls->setShowGammaControls(false);
    controls->setShowAlphaControls(false);
    controls->setShowAllRepeatModes(false);
    controls->setShowLinkTextureSettingsControls(false);
    controls->setShowProjectionModeControls(false);
    controls->setUseTexture(true);

    m_window->_image_label->hide();
    controls->hide();

    const kxConnection connections[] = {
        {SIGNAL(clickedLoadTexture()), SLOT(loadImage())},
        {SIGNAL(clickedReloadTexture()), SLOT(reloadImage())},
        {SIGNAL(clickedWriteTexture()), SLOT(writeImage())},
        {SIGNAL(clickedShowTextureInfo()), SLOT(showTextureInfo())},
        {SIGNAL(clickedClearTexture()), SLOT(clearImage())},
        {SIGNAL(changedTexture()), SLOT(changedImage())},
        {SIGNAL(changedTextureFile(const QString &)), SLOT(setImage(const QString &))},
    };
    kxConnectAll(controls, this, connections);
}

void kxOverlayEditor::setInputEnabled(bool enabled)
{
    m_window->_image_radio_button->setEnabled(enabled);
    m_window->_text_radio_button->setEnabled(enabled);
    m_window->_text_edit->setEnabled(enabled);
    m_window->_font_combo_box->setEnabled(enabled);
    m_window->_color_slider->setEnabled(enabled);
    m_window->_background_slider->setEnabled(enabled);
    m_window->_transparency_slider->setEnabled(enabled);
    m_window->_absolute_radio_button->setEnabled(enabled);
    m_window->_relative_radio_button->setEnabled(enabled);
    m_window->_size_slider->setSliderEnabled(enabled);
    m_window->_position_combo_box->setEnabled(enabled);
    m_window->_offset_x_spin_box->setEnabled(enabled);
    m_window->_offset_y_spin_box->setEnabled(enabled);
}
