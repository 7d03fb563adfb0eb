// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "hostlib/ImagePreview.h"

#include "hostlib/ImageView.h"

#include <QFileInfo>
#include <QLabel>
#include <QVBoxLayout>

static QLabel *newLabel(const char *name, QWidget *parent)
{
    auto *label = new QLabel(parent);
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    label->setWordWrap(true);
    return label;
}

hostlib::ImagePreview::ImagePreview(QWidget *parent)
    : QWidget(parent)
    , m_view(new ImageView(this))
    , m_name(newLabel("previewName", this))
    , m_text(newLabel("previewText", this))
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_view, 1);
    layout->addWidget(m_name);
    layout->addWidget(m_text);
    m_view->setObjectName(QStringLiteral("previewImage"));
    m_view->setAccessibleName(tr("Preview"));
    const int em = fontMetrics().height();
    m_view->setMinimumSize(em * 11, em * 11);
    // Two lines each, so that the picture keeps its size from file to file.
    m_name->setMinimumHeight(em * 2);
    m_text->setMinimumHeight(em * 2);
    setFixedWidth(em * 15);
    setFile(QString());
}

hostlib::ImagePreview::~ImagePreview() = default;

void hostlib::ImagePreview::setFile(const QString &path)
{
    m_view->setFile(path);
    const QString name = QFileInfo(path).fileName();
    const int room = m_name->width() * 2 - fontMetrics().averageCharWidth() * 4;
    m_name->setText(path.isEmpty() ? tr("No image selected")
                                   : fontMetrics().elidedText(name, Qt::ElideMiddle, room));
    m_name->setToolTip(name);
    m_text->setText(m_view->summary().text());
}
