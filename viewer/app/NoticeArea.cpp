// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/NoticeArea.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QStyle>
#include <QToolButton>

namespace viewer {

namespace {

constexpr int MostNotices = 4;
constexpr int Margin = 12;
constexpr int WidestNotice = 760;
constexpr int MarkSize = 18;

struct Look
{
    QColor color;
    const char *mark;
};

Look lookOf(Severity severity)
{
    switch (severity) {
    case Severity::Error:
        return {QColor(229, 83, 75), "!"};
    case Severity::Warning:
        return {QColor(226, 162, 60), "!"};
    case Severity::Info:
        break;
    }
    return {QColor(88, 156, 219), "i"};
}

QToolButton *makeCloseButton(QWidget *parent)
{
    auto *button = new QToolButton(parent);
    button->setObjectName(QStringLiteral("dismiss"));
    button->setAutoRaise(true);
    button->setIcon(parent->style()->standardIcon(QStyle::SP_TitleBarCloseButton));
    button->setToolTip(Notice::tr("Dismiss"));
    button->setAccessibleName(Notice::tr("Dismiss"));
    return button;
}

QLabel *makeLabel(const QString &text, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    return label;
}

} // namespace

Notice::Notice(Severity severity, const QString &text, QWidget *parent)
    : QWidget(parent)
    , m_severity(severity)
    , m_text(text)
{
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(2 * Margin + MarkSize, 8, 8, 8);
    row->addWidget(makeLabel(text, this), 1);
    row->addWidget(makeCloseButton(this), 0, Qt::AlignTop);
    setAccessibleName(text);
}

void Notice::paintEvent(QPaintEvent *)
{
    const Look look = lookOf(m_severity);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QColor ground = palette().color(QPalette::Window);
    ground.setAlpha(240);
    painter.setPen(QPen(look.color, 1));
    painter.setBrush(ground);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 6, 6);

    const QRectF mark(Margin, 11, MarkSize, MarkSize);
    painter.setPen(Qt::NoPen);
    painter.setBrush(look.color);
    painter.drawEllipse(mark);
    QFont bold = font();
    bold.setBold(true);
    bold.setPixelSize(MarkSize * 2 / 3);
    painter.setFont(bold);
    painter.setPen(palette().color(QPalette::Window).darker(160));
    painter.drawText(mark, Qt::AlignCenter, QLatin1String(look.mark));
}

NoticeArea::NoticeArea(QWidget *parent)
    : QWidget(parent)
    , m_layout(new QVBoxLayout(this))
{
    setObjectName(QStringLiteral("notices"));
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(6);
    hide();
}

void NoticeArea::add(Severity severity, const QString &text)
{
    if (texts().contains(text))
        return;
    auto *notice = new Notice(severity, text, this);
    const auto *button = notice->findChild<QToolButton *>(QStringLiteral("dismiss"));
    connect(button, &QToolButton::clicked, this, [this, notice] { dismiss(notice); });
    m_layout->insertWidget(0, notice);
    const QList<Notice *> all = notices();
    for (int i = MostNotices; i < all.size(); ++i)
        dismiss(all.at(i));
    setVisible(true);
    place();
}

void NoticeArea::clear()
{
    const QList<Notice *> all = notices();
    for (Notice *notice : all)
        dismiss(notice);
}

QStringList NoticeArea::texts() const
{
    QStringList all;
    const QList<Notice *> shown = notices();
    for (const Notice *notice : shown)
        all.append(notice->text());
    return all;
}

void NoticeArea::place()
{
    const QWidget *around = parentWidget();
    const int width = qMin(WidestNotice, around->width() - 2 * Margin);
    const int height = layout()->hasHeightForWidth() ? layout()->heightForWidth(width)
                                                     : sizeHint().height();
    setGeometry((around->width() - width) / 2, Margin, width, height);
}

QList<Notice *> NoticeArea::notices() const
{
    QList<Notice *> all;
    for (int i = 0; i < m_layout->count(); ++i)
        all.append(static_cast<Notice *>(m_layout->itemAt(i)->widget()));
    return all;
}

void NoticeArea::dismiss(Notice *notice)
{
    // The button that asked for this may still be at work.
    m_layout->removeWidget(notice);
    notice->hide();
    notice->deleteLater();
    setVisible(m_layout->count() > 0);
    place();
}

} // namespace viewer
