// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

// What makes a control look mixed, and which controls do.

#include "host/kxStyle.h"
#include "hostlib/kxStyleColors.h"
#include "hostlib/kxStyleControls.h"

#include <QAbstractSpinBox>
#include <QButtonGroup>
#include <QComboBox>
#include <QPainter>
#include <QPainterPath>
#include <QRadioButton>

#include <algorithm>

namespace {

constexpr int edgeWidth = 3;
constexpr int hatchStep = 7;
constexpr int textMargin = 4;

void drawHatching(QPainter *painter, const QRect &rect, QColor color)
{
    color.setAlpha(60);
    painter->setPen(QPen(color, 1.2));
    for (int x = rect.left() - rect.height(); x < rect.right(); x += hatchStep)
        painter->drawLine(x, rect.bottom() + 1, x + rect.height(), rect.top());
}

// The control that an inner line edit belongs to; the widget itself where it stands alone.
const QWidget *controlOf(const QWidget *widget)
{
    const QWidget *parent = widget->parentWidget();
    const bool inner =
        qobject_cast<const QAbstractSpinBox *>(parent) || qobject_cast<const QComboBox *>(parent);
    return inner ? parent : widget;
}

bool excludes(const QRadioButton *button, const QAbstractButton *other)
{
    if (other == button || other->group() != button->group())
        return false;
    if (button->group())
        return button->group()->exclusive();
    return button->autoExclusive() && other->autoExclusive()
           && qobject_cast<const QRadioButton *>(other);
}

QList<QAbstractButton *> candidates(const QRadioButton *button)
{
    if (button->group())
        return button->group()->buttons();
    const QWidget *parent = button->parentWidget();
    return parent ? parent->findChildren<QAbstractButton *>(QString(), Qt::FindDirectChildrenOnly)
                  : QList<QAbstractButton *>();
}

} // namespace

QList<QWidget *> kxStyleControls::groupMates(const QWidget *widget)
{
    QList<QWidget *> mates;
    const auto *radio = qobject_cast<const QRadioButton *>(widget);
    if (!radio)
        return mates;
    const QList<QAbstractButton *> buttons = candidates(radio);
    for (QAbstractButton *button : buttons) {
        if (excludes(radio, button))
            mates.append(button);
    }
    return mates;
}

bool kxStyleControls::isMixed(const QWidget *widget)
{
    if (!widget)
        return false;
    if (kxStyle::isMultiselect(controlOf(widget)))
        return true;
    const QList<QWidget *> mates = groupMates(widget);
    return std::any_of(mates.begin(), mates.end(), &kxStyle::isMultiselect);
}

bool kxStyle::isMultiselect(const QWidget *widget)
{
    return widget && widget->property("multiselect").toBool();
}

QString kxStyle::mixedText()
{
    return tr("several values");
}

void kxStyle::drawMixedField(QPainter *painter, const QRect &rect, bool enabled)
{
    if (rect.isEmpty())
        return;
    const QColor color = enabled ? QColor(kxStyleColors::mixed) : QColor(kxStyleColors::border);
    QPainterPath shape;
    shape.addRoundedRect(rect, 3, 3);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setClipPath(shape, Qt::IntersectClip);
    painter->fillRect(rect, QColor(enabled ? kxStyleColors::mixedGround : kxStyleColors::window));
    drawHatching(painter, rect, color);
    QRect edge = rect;
    edge.setWidth(edgeWidth);
    painter->fillRect(edge, color);
    painter->setPen(QPen(color, 1));
    painter->setBrush(Qt::NoBrush);
    painter->drawRoundedRect(QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
    painter->restore();
}

void kxStyle::drawMixedText(QPainter *painter, const QRect &rect, bool enabled)
{
    if (rect.isEmpty())
        return;
    painter->save();
    QFont font = painter->font();
    font.setItalic(true);
    painter->setFont(font);
    painter->setPen(QColor(enabled ? kxStyleColors::mixedText : kxStyleColors::textDisabled));
    const QRect inner = rect.adjusted(edgeWidth + textMargin, 0, -textMargin, 0);
    const bool fits = QFontMetrics(font).horizontalAdvance(mixedText()) <= inner.width();
    if (fits)
        painter->drawText(inner, Qt::AlignLeft | Qt::AlignVCenter, mixedText());
    else
        painter->drawText(rect, Qt::AlignCenter, QString(QChar(0x2014)));
    painter->restore();
}
