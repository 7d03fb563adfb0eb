// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "hostlib/FrameHeader.h"

#include "host/kxStyle.h"
#include "hostlib/FrameHeaderAccessible.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyle>

namespace hostlib {

static constexpr int s_padding = 4;

static QFont captionFont(const QWidget *widget)
{
    QFont font = widget->font();
    font.setBold(true);
    return font;
}

FrameHeader::FrameHeader(QWidget *parent) : QAbstractButton(parent)
{
    FrameHeaderAccessible::install();
    setCheckable(true);
    setChecked(true);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    connect(this, &QAbstractButton::toggled, this, &FrameHeader::announceState);
}

FrameHeader::~FrameHeader() = default;

void FrameHeader::setCaption(const QString &caption)
{
    // Not the button's text, where an ampersand would name a shortcut key.
    m_caption = caption;
    setAccessibleName(caption);
    updateGeometry();
    update();
}

QSize FrameHeader::sizeHint() const
{
    const QFontMetrics metrics(captionFont(this));
    const int height = metrics.height() + 2 * s_padding;
    return QSize(height + metrics.horizontalAdvance(m_caption) + s_padding, height);
}

void FrameHeader::keyPressEvent(QKeyEvent *event)
{
    const bool mirrored = layoutDirection() == Qt::RightToLeft;
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        click();
        break;
    case Qt::Key_Left:
        setChecked(mirrored);
        break;
    case Qt::Key_Right:
        setChecked(!mirrored);
        break;
    default:
        QAbstractButton::keyPressEvent(event);
    }
}

void FrameHeader::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF bar = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    const bool lit = isEnabled() && (underMouse() || isDown());
    const QColor fill = palette().color(QPalette::Button);
    painter.setPen(hasFocus() ? QPen(kxStyle::getAccentColor()) : Qt::NoPen);
    painter.setBrush(lit ? fill.lighter(isDown() ? 130 : 115) : fill);
    painter.drawRoundedRect(bar, 3.0, 3.0);

    const int side = height();
    drawTriangle(painter, QStyle::visualRect(layoutDirection(), rect(), QRect(0, 0, side, side)));
    drawCaption(painter, QStyle::visualRect(layoutDirection(), rect(),
                                            rect().adjusted(side, 0, -s_padding, 0)));
}

void FrameHeader::announceState()
{
    QAccessible::State changed;
    changed.expanded = true;
    changed.collapsed = true;
    QAccessibleStateChangeEvent event(this, changed);
    QAccessible::updateAccessibility(&event);
}

void FrameHeader::drawTriangle(QPainter &painter, const QRect &place) const
{
    const qreal reach = place.height() / 6.0;
    painter.save();
    painter.translate(QRectF(place).center());
    if (isChecked())
        painter.rotate(90.0);
    else if (layoutDirection() == Qt::RightToLeft)
        painter.rotate(180.0);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().color(QPalette::ButtonText));
    painter.drawPolygon(QPolygonF(
        {QPointF(-reach * 0.7, -reach), QPointF(reach, 0.0), QPointF(-reach * 0.7, reach)}));
    painter.restore();
}

void FrameHeader::drawCaption(QPainter &painter, const QRect &place) const
{
    painter.setFont(captionFont(this));
    painter.setPen(palette().color(QPalette::ButtonText));
    const QString shown =
        painter.fontMetrics().elidedText(m_caption, Qt::ElideRight, place.width());
    painter.drawText(place, int(Qt::AlignVCenter | Qt::AlignLeading), shown);
}

} // namespace hostlib
