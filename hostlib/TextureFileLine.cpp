// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "hostlib/TextureFileLine.h"

#include "host/kxIconManager.h"
#include "hostlib/ImageView.h"
#include "hostlib/TexturePathEdit.h"
#include "hostlib/multiselect.h"

#include <QGridLayout>

namespace {

struct ButtonRow
{
    const char *name;
    const char *icon;
    const char *text;
};

constexpr ButtonRow buttonRows[hostlib::TextureFileLine::ButtonCount] = {
    {"loadTexture", "FileOpen", QT_TRANSLATE_NOOP("hostlib::TextureFileLine", "Load image…")},
    {"reloadTexture", "Reload", QT_TRANSLATE_NOOP("hostlib::TextureFileLine", "Reload image")},
    {"writeTexture", "Save", QT_TRANSLATE_NOOP("hostlib::TextureFileLine", "Save image")},
    {"showTextureInfo", "ShowTextureInfo",
     QT_TRANSLATE_NOOP("hostlib::TextureFileLine", "Show information on the image")},
    {"clearTexture", "Delete", QT_TRANSLATE_NOOP("hostlib::TextureFileLine", "Remove image")},
};

} // namespace

hostlib::TextureFileLine::TextureFileLine(QWidget *parent)
    : QWidget(parent)
    , m_thumbnail(new ImageView(this))
    , m_path(new TexturePathEdit(this))
{
    m_thumbnail->setObjectName(QStringLiteral("thumbnail"));
    m_thumbnail->setAccessibleName(tr("Image"));
    m_path->setObjectName(QStringLiteral("textureFile"));
    createButtons();
    layOut();
    setFocusProxy(m_path);
    connect(m_path, &TexturePathEdit::pathTyped, this, [this](const QString &path) {
        m_thumbnail->setFile(path);
        Q_EMIT fileTyped(path);
    });
    setFile(QString());
}

hostlib::TextureFileLine::~TextureFileLine() = default;

void hostlib::TextureFileLine::createButtons()
{
    for (int i = 0; i < ButtonCount; ++i) {
        const ButtonRow &row = buttonRows[i];
        auto *button = new QToolButton(this);
        button->setObjectName(QLatin1String(row.name));
        button->setIcon(kxIconManager::getIcon(row.icon, std::string()));
        button->setToolTip(tr(row.text));
        button->setAccessibleName(tr(row.text));
        button->setAutoRaise(true);
        button->setFocusPolicy(Qt::StrongFocus);
        m_buttons.at(i) = button;
    }
}

void hostlib::TextureFileLine::layOut()
{
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(2);
    grid->setHorizontalSpacing(4);
    auto *bar = new QHBoxLayout;
    bar->setSpacing(1);
    for (QToolButton *button : m_buttons)
        bar->addWidget(button);
    bar->addStretch();
    grid->addWidget(m_thumbnail, 0, 0, 2, 1);
    grid->addWidget(m_path, 0, 1);
    grid->addLayout(bar, 1, 1);
    const int side = m_path->sizeHint().height() + m_buttons.front()->sizeHint().height() + 2;
    m_thumbnail->setFixedSize(side, side);
    m_path->setMinimumWidth(fontMetrics().averageCharWidth() * 8);
}

void hostlib::TextureFileLine::setFile(const QString &path)
{
    m_path->setPath(path);
    m_thumbnail->setFile(path);
}

QString hostlib::TextureFileLine::file() const
{
    return m_path->path();
}

void hostlib::TextureFileLine::handOnMultiselect(const QWidget *outer)
{
    hostlib::handOnMultiselect(outer, {m_thumbnail, m_path});
}
