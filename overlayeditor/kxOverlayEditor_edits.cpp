// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

// Edits in the property panel: each slot sends one value to the whole selection. What the service
// announces brings the new state back into the panel.

#include "overlayeditor/kxOverlayEditor.h"

#include "host/QKXImageFileDialog.h"
#include "host/kxFileIOService.h"
#include "host/kxOverlayService.h"
#include "overlayeditor/kxMultiselect.h"
#include "overlayeditor/kxOverlayEditorGUIW.h"
#include "overlayeditor/kxServices.h"

#include <QSignalBlocker>

#include <cstdio>

namespace {

/// Sends `value` to the whole selection by one setter of the service.
template<class Parameter, class Value>
void send(const kxOverlayEditor *editor,
          void (kxOverlayService::*setter)(const QRPC::NodeList &, Parameter), const Value &value)
{
    (kxService<kxOverlayService>()->*setter)(editor->getSelectedNodes(), value);
}

/// Colour controls report three floats; the colours that they stand for are opaque.
QColor opaque(float r, float g, float b)
{
    return QColor::fromRgbF(r, g, b, 1.0);
}

} // namespace

void kxOverlayEditor::nameChanged()
{
    // Losing the focus finishes an edit too: a name that is shown as mixed and was not touched is
    // no name for all.
    if (kxMultiselect::showsStaleText(m_window->_overlay_name))
        return;
    send(this, &kxOverlayService::setName, m_window->_overlay_name->text());
}

void kxOverlayEditor::typeChanged(int type)
{
    send(this, &kxOverlayService::setOverlayType, type);
}

void kxOverlayEditor::textChanged()
{
    send(this, &kxOverlayService::setText, m_window->_text_edit->document()->toPlainText());
}

void kxOverlayEditor::fontChanged(const QFont &font)
{
    send(this, &kxOverlayService::setFont, font.family());
}

void kxOverlayEditor::fontColorChanged(float r, float g, float b)
{
    send(this, &kxOverlayService::setFontColor, opaque(r, g, b));
}

void kxOverlayEditor::fontBackgroundChanged(float r, float g, float b)
{
    send(this, &kxOverlayService::setBackgroundColor, opaque(r, g, b));
}

void kxOverlayEditor::fontTransparencyChanged(float r, float g, float b)
{
    send(this, &kxOverlayService::setBackgroundTransparency, opaque(r, g, b));
}

void kxOverlayEditor::loadImage()
{
    const QString current = m_window->_image_edit->getTexture();
    auto *files = kxService<kxFileIOService>();
    // Without its filter the dialog lists all files.
    const QString filter = files ? files->getImageFileFilter() : QString();
    const QString path = QKXImageFileDialog::getOpenFileNameExternalProc(
        m_window, tr("Load Texture"), current, filter, nullptr);
    if (!path.isEmpty())
        setImage(path);
}

void kxOverlayEditor::reloadImage()
{
    setImage(m_window->_image_edit->getTexture());
}

void kxOverlayEditor::writeImage()
{
    std::puts("kxOverlayEditor::writeImage()");
}

void kxOverlayEditor::showTextureInfo()
{
    std::puts("kxOverlayEditor::showTextureInfo()");
}

void kxOverlayEditor::clearImage()
{
    send(this, &kxOverlayService::setImage, QString());
}

void kxOverlayEditor::changedImage()
{
    setImage(m_window->_image_edit->getTexture());
}

void kxOverlayEditor::setImage(const QString &path)
{
    send(this, &kxOverlayService::setImage, path);
}

void kxOverlayEditor::sizeTypeChanged(int sizeType)
{
    send(this, &kxOverlayService::setSizeType, sizeType);
}

void kxOverlayEditor::sizeChanged(double size)
{
    if (size < 0.0) {
        const QSignalBlocker blocker(m_window->_size_slider);
        m_window->_size_slider->setValue(0.0);
        size = 0.0;
    }
    send(this, &kxOverlayService::setSize, float(size));
}

void kxOverlayEditor::sizeSliderChanged()
{
    sizeChanged(m_window->_size_slider->value());
}

void kxOverlayEditor::positionChanged(int index)
{
    const QVariant position = m_window->_position_combo_box->itemData(index, Qt::UserRole);
    send(this, &kxOverlayService::setPosition, position.toPointF());
}

void kxOverlayEditor::offsetXChanged(double x)
{
    send(this, &kxOverlayService::setOffsetX, float(x));
}

void kxOverlayEditor::offsetYChanged(double y)
{
    send(this, &kxOverlayService::setOffsetY, float(y));
}
