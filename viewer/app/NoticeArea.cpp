// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/NoticeArea.h"

#include "host/kxIconManager.h"
#include "viewer/app/Scaled.h"

#include <QLabel>
#include <QPainter>
#include <QToolButton>

namespace viewer {

namespace {

constexpr int MostNotices = 4;
constexpr int LeastReading = 6000; // milliseconds
constexpr int ReadingOfLetter = 60;
// Lengths on a display of the usual density.
constexpr int Margin = 12;
constexpr int Spacing = 6;
constexpr int WidestNotice = 760;
constexpr int Padding = 10;
constexpr int MarkSize = 18;
constexpr int MarkPadding = 9;
constexpr int ButtonSize = 18;
constexpr int TextLeft = MarkSize + 2 * Margin;

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
    button->setIcon(kxIconManager::getIcon("Clear", std::string()));
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
    label->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    return label;
}

} // namespace

Notice::Notice(Severity severity, const QString &text, QWidget *parent)
    : QWidget(parent)
    , m_severity(severity)
    , m_label(makeLabel(text, this))
    , m_button(makeCloseButton(this))
{
    setText(text);
    connect(m_button, &QToolButton::clicked, this, &Notice::dismissed);
    connect(&m_reading, &QTimer::timeout, this, [this] {
        // Nobody reads in a window behind others, and what the mouse is on is still being read.
        if (isActiveWindow() && !underMouse())
            emit dismissed();
    });
    if (severity == Severity::Info)
        m_reading.start(LeastReading + text.size() * ReadingOfLetter);
}

QString Notice::text() const
{
    return m_label->text();
}

void Notice::setText(const QString &text)
{
    m_label->setText(text);
    setAccessibleName(text);
}

int Notice::textWidth(int width) const
{
    return width - scaled(TextLeft + ButtonSize + 2 * MarkPadding, this);
}

// Reckoned here and not by a layout of Qt, which reserves the height of the text at its narrowest.
int Notice::heightForWidth(int width) const
{
    return qMax(m_label->heightForWidth(textWidth(width)) + 2 * scaled(Padding, this),
                scaled(MarkSize + 2 * MarkPadding, this));
}

void Notice::resizeEvent(QResizeEvent *)
{
    const int padding = scaled(Padding, this);
    m_label->setGeometry(scaled(TextLeft, this), padding, textWidth(width()),
                         height() - 2 * padding);
    const int side = scaled(ButtonSize, this);
    const int edge = scaled(MarkPadding, this);
    m_button->setGeometry(width() - side - edge, edge, side, side);
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

    const int side = scaled(MarkSize, this);
    const QRectF mark(scaled(Margin, this), scaled(MarkPadding, this), side, side);
    painter.setPen(Qt::NoPen);
    painter.setBrush(look.color);
    painter.drawEllipse(mark);
    QFont bold = font();
    bold.setBold(true);
    bold.setPixelSize(side * 2 / 3);
    painter.setFont(bold);
    painter.setPen(palette().color(QPalette::Window).darker(160));
    painter.drawText(mark, Qt::AlignCenter, QLatin1String(look.mark));
}

NoticeArea::NoticeArea(QWidget *parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("notices"));
    hide();
}

void NoticeArea::add(Severity severity, const QString &text)
{
    if (texts().contains(text))
        return;
    auto *notice = new Notice(severity, text, this);
    connect(notice, &Notice::dismissed, this, [this, notice] { dismiss(notice); });
    m_notices.prepend(notice);
    notice->show();
    while (m_notices.size() > MostNotices)
        dismiss(m_notices.last());
    show();
    place();
}

void NoticeArea::remove(const QString &text)
{
    const int at = texts().indexOf(text);
    if (at >= 0)
        dismiss(m_notices.at(at));
}

void NoticeArea::replace(const QString &text, const QString &other)
{
    const int at = texts().indexOf(text);
    if (at < 0)
        return;
    m_notices.at(at)->setText(other);
    place();
    emit dismissed(text);
}

bool NoticeArea::dismissNewest()
{
    if (m_notices.isEmpty())
        return false;
    dismiss(m_notices.constFirst());
    return true;
}

void NoticeArea::clear()
{
    while (!m_notices.isEmpty())
        dismiss(m_notices.last());
}

QStringList NoticeArea::texts() const
{
    QStringList all;
    for (const Notice *notice : m_notices)
        all.append(notice->text());
    return all;
}

void NoticeArea::place()
{
    const int margin = scaled(Margin, this);
    const int spacing = scaled(Spacing, this);
    const int width = qMin(scaled(WidestNotice, this), parentWidget()->width() - 2 * margin);
    int bottom = 0;
    for (Notice *notice : qAsConst(m_notices)) {
        const int height = notice->heightForWidth(width);
        notice->setGeometry(0, bottom, width, height);
        bottom += height + spacing;
    }
    setGeometry((parentWidget()->width() - width) / 2, margin, width, qMax(0, bottom - spacing));
}

void NoticeArea::dismiss(Notice *notice)
{
    // The button that asked for this may still be at work.
    m_notices.removeOne(notice);
    notice->hide();
    notice->deleteLater();
    setVisible(!m_notices.isEmpty());
    place();
    emit dismissed(notice->text());
}

} // namespace viewer
