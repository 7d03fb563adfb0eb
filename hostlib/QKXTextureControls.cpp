// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/QKXTextureControls.h"

#include "hostlib/ImageSummary.h"
#include "hostlib/TextureFileLine.h"
#include "hostlib/TextureSettingsPanel.h"

#include <QCheckBox>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QSignalBlocker>
#include <QUrl>
#include <QVBoxLayout>

using hostlib::TextureFileLine;
using hostlib::TextureSettingsPanel;

// The one image file that a drag carries; empty when it carries none or several files.
static QString draggedImage(const QMimeData *data)
{
    const QList<QUrl> urls = data->urls();
    const QString path = urls.size() == 1 ? urls.first().toLocalFile() : QString();
    return hostlib::isImageName(path) ? path : QString();
}

QKXTextureControls::QKXTextureControls(QWidget *parent)
    : QWidget(parent)
    , m_use(new QCheckBox(tr("Use texture"), this))
    , m_file(new TextureFileLine(this))
    , m_settings(new TextureSettingsPanel(this))
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addWidget(m_use);
    layout->addWidget(m_file);
    layout->addWidget(m_settings);
    m_use->setObjectName(QStringLiteral("useTexture"));
    m_use->setChecked(true);
    setFocusProxy(m_file);
    setAcceptDrops(true);
    connectParts();
}

QKXTextureControls::~QKXTextureControls() = default;

void QKXTextureControls::connectParts()
{
    const struct
    {
        TextureFileLine::Button button;
        void (QKXTextureControls::*clicked)();
    } buttons[] = {
        {TextureFileLine::Load, &QKXTextureControls::clickedLoadTexture},
        {TextureFileLine::Reload, &QKXTextureControls::clickedReloadTexture},
        {TextureFileLine::Write, &QKXTextureControls::clickedWriteTexture},
        {TextureFileLine::Info, &QKXTextureControls::clickedShowTextureInfo},
        {TextureFileLine::Clear, &QKXTextureControls::clickedClearTexture},
    };
    for (const auto &row : buttons)
        connect(m_file->button(row.button), &QToolButton::clicked, this, row.clicked);
    connect(m_file, &TextureFileLine::fileTyped, this, &QKXTextureControls::changedTextureFile);
    connect(m_settings, &TextureSettingsPanel::changed, this,
            &QKXTextureControls::changedTextureSettings);
    connect(m_use, &QCheckBox::toggled, m_file, &QWidget::setEnabled);
    connect(m_use, &QCheckBox::toggled, m_settings, &QWidget::setEnabled);
    connect(m_use, &QCheckBox::clicked, this, &QKXTextureControls::changedTexture);
}

void QKXTextureControls::setTexture(const QString &path)
{
    m_file->setFile(path);
}

QString QKXTextureControls::getTexture() const
{
    return m_file->file();
}

void QKXTextureControls::setUseTexture(bool use)
{
    m_use->setChecked(use);
}

bool QKXTextureControls::useTexture() const
{
    return m_use->isChecked();
}

void QKXTextureControls::setTextureSettings(const QKXTextureSettings &settings)
{
    m_settings->setSettings(settings);
}

QKXTextureSettings QKXTextureControls::textureSettings() const
{
    return m_settings->settings();
}

void QKXTextureControls::setLoadTextureIcon(const QIcon &icon)
{
    m_file->button(TextureFileLine::Load)->setIcon(icon);
}

void QKXTextureControls::setSaveTextureIcon(const QIcon &icon)
{
    m_file->button(TextureFileLine::Write)->setIcon(icon);
}

void QKXTextureControls::setClearTextureIcon(const QIcon &icon)
{
    m_file->button(TextureFileLine::Clear)->setIcon(icon);
}

void QKXTextureControls::setReloadTextureIcon(const QIcon &icon)
{
    m_file->button(TextureFileLine::Reload)->setIcon(icon);
}

void QKXTextureControls::setShowTextureInfoIcon(const QIcon &icon)
{
    m_file->button(TextureFileLine::Info)->setIcon(icon);
}

void QKXTextureControls::setShowAlphaControls(bool show)
{
    m_settings->setRowShown(TextureSettingsPanel::Alpha, show);
}

void QKXTextureControls::setShowGammaControls(bool show)
{
    m_settings->setRowShown(TextureSettingsPanel::Gamma, show);
}

void QKXTextureControls::setShowAllRepeatModes(bool show)
{
    m_settings->setAllRepeatModes(show);
}

void QKXTextureControls::setShowOffsetControls(bool show)
{
    m_settings->setRowShown(TextureSettingsPanel::Offset, show);
}

void QKXTextureControls::setShowRepeatControls(bool show)
{
    m_settings->setRowShown(TextureSettingsPanel::Repeat, show);
}

void QKXTextureControls::setShowRotateControls(bool show)
{
    m_settings->setRowShown(TextureSettingsPanel::Rotation, show);
}

void QKXTextureControls::setShowRepeatModeControls(bool show)
{
    m_settings->setRowShown(TextureSettingsPanel::RepeatModes, show);
}

void QKXTextureControls::setShowUseTextureControls(bool show)
{
    m_use->setVisible(show);
}

void QKXTextureControls::setShowAnisotropicControls(bool show)
{
    m_settings->setRowShown(TextureSettingsPanel::Anisotropy, show);
}

void QKXTextureControls::setShowProjectionModeControls(bool show)
{
    m_settings->setRowShown(TextureSettingsPanel::Projection, show);
}

void QKXTextureControls::setShowRealWorldScaleControls(bool show)
{
    m_settings->setRowShown(TextureSettingsPanel::RealWorld, show);
}

void QKXTextureControls::setShowLinkTextureSettingsControls(bool show)
{
    m_settings->setRowShown(TextureSettingsPanel::Linked, show);
}

void QKXTextureControls::propagateMultiselectProperty()
{
    m_file->handOnMultiselect(this);
}

void QKXTextureControls::dragEnterEvent(QDragEnterEvent *event)
{
    if (m_use->isChecked() && !draggedImage(event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void QKXTextureControls::dropEvent(QDropEvent *event)
{
    event->acceptProposedAction();
    const QString path = draggedImage(event->mimeData());
    setTexture(path);
    Q_EMIT changedTextureFile(path);
}
