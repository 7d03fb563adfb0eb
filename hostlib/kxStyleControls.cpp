// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "hostlib/kxStyleControls.h"

#include "host/kxStyle.h"
#include "hostlib/kxStyleColors.h"

#include <QPainter>
#include <QStyleOption>

namespace {

constexpr qreal radius = 3;

bool isEnabled(const QStyleOption *option)
{
    return option->state & QStyle::State_Enabled;
}

bool hasFocus(const QStyleOption *option)
{
    return option->state & QStyle::State_HasFocus;
}

QColor borderOf(const QStyleOption *option)
{
    return isEnabled(option) ? kxStyleColors::border : kxStyleColors::borderDisabled;
}

QColor markOf(const QStyleOption *option)
{
    return isEnabled(option) ? kxStyleColors::text : kxStyleColors::textDisabled;
}

QColor mixedLineOf(const QStyleOption *option)
{
    return isEnabled(option) ? kxStyleColors::mixed : kxStyleColors::border;
}

QColor buttonGround(const QStyleOption *option)
{
    if (!isEnabled(option))
        return kxStyleColors::window;
    if (option->state & (QStyle::State_Sunken | QStyle::State_On))
        return kxStyleColors::buttonDown;
    return option->state & QStyle::State_MouseOver ? kxStyleColors::buttonHover
                                                   : kxStyleColors::button;
}

// A frame whose line of `width` lies wholly inside `rect` and on whole pixels.
void drawFrame(QPainter *painter, const QRect &rect, const QColor &color, qreal width = 1)
{
    const qreal inset = width / 2;
    painter->setPen(QPen(color, width));
    painter->setBrush(Qt::NoBrush);
    painter->drawRoundedRect(QRectF(rect).adjusted(inset, inset, -inset, -inset), radius, radius);
}

void drawGround(QPainter *painter, const QRect &rect, const QColor &color)
{
    painter->setPen(Qt::NoPen);
    painter->setBrush(color);
    painter->drawRoundedRect(rect, radius, radius);
}

void drawBox(const QStyleOption *option, QPainter *painter, const QColor &ground, bool mixed)
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    if (mixed)
        kxStyle::drawMixedField(painter, option->rect, isEnabled(option));
    else
        drawGround(painter, option->rect, ground);
    if (hasFocus(option))
        drawFrame(painter, option->rect, kxStyleColors::accent, 2);
    else if (!mixed)
        drawFrame(painter, option->rect, borderOf(option));
    painter->restore();
}

void drawChevron(const QStyleOption *option, QPainter *painter, const QRect &rect, bool up)
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    const qreal scale = qMax(1.0, option->fontMetrics.fontDpi() / 96.0);
    painter->setPen(QPen(markOf(option), 1.4 * scale, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const QPointF center = QRectF(rect).center();
    const qreal half = qBound(2.0, qMin(rect.width(), rect.height()) * 0.22, 4.0 * scale);
    const qreal tip = up ? -half / 2 : half / 2;
    const QPointF points[] = {center + QPointF(-half, -tip), center + QPointF(0, tip),
                              center + QPointF(half, -tip)};
    painter->drawPolyline(points, 3);
    painter->restore();
}

void drawStepButton(const QStyleOptionSpinBox *option, QPainter *painter, const QStyle *style,
                    const QWidget *widget, QStyle::SubControl button)
{
    const bool up = button == QStyle::SC_SpinBoxUp;
    const auto flag = up ? QAbstractSpinBox::StepUpEnabled : QAbstractSpinBox::StepDownEnabled;
    QStyleOptionSpinBox own = *option;
    own.state.setFlag(QStyle::State_Enabled,
                      isEnabled(option) && option->stepEnabled.testFlag(flag));
    const QRect rect = style->subControlRect(QStyle::CC_SpinBox, option, button, widget);
    if (isEnabled(&own) && option->activeSubControls == button) {
        const bool down = option->state & QStyle::State_Sunken;
        painter->fillRect(rect.adjusted(1, up ? 2 : 0, -2, up ? 0 : -2),
                          QColor(down ? kxStyleColors::accent : kxStyleColors::buttonHover));
    }
    drawChevron(&own, painter, rect, up);
}

QRect slimGroove(const QStyleOptionSlider *option, const QRect &groove, int thickness)
{
    QRect slim = groove;
    if (option->orientation == Qt::Horizontal)
        slim.setHeight(thickness);
    else
        slim.setWidth(thickness);
    slim.moveCenter(groove.center());
    return slim;
}

// The part of the groove between its start and the handle.
QRect filledPart(const QStyleOptionSlider *option, QRect groove, const QRect &handle)
{
    const QPoint center = handle.center();
    if (option->orientation == Qt::Horizontal) {
        option->upsideDown ? groove.setLeft(center.x()) : groove.setRight(center.x());
        return groove;
    }
    option->upsideDown ? groove.setTop(center.y()) : groove.setBottom(center.y());
    return groove;
}

void drawHandle(const QStyleOptionSlider *option, QPainter *painter, const QRect &rect)
{
    const int side = qMin(rect.width(), rect.height()) - 2;
    QRectF knob(0, 0, side, side);
    knob.moveCenter(QRectF(rect).center());
    const bool live = isEnabled(option) && option->state & (QStyle::State_MouseOver);
    painter->setBrush(QColor(!isEnabled(option) ? kxStyleColors::borderDisabled
                             : live             ? kxStyleColors::bright
                                                : kxStyleColors::text));
    painter->setPen(QPen(QColor(kxStyleColors::base), 1));
    painter->drawEllipse(knob);
}

} // namespace

void kxStyleControls::drawField(const QStyleOption *option, QPainter *painter, bool mixed)
{
    const bool fixed = !isEnabled(option) || option->state & QStyle::State_ReadOnly;
    drawBox(option, painter, fixed ? kxStyleColors::window : kxStyleColors::base, mixed);
}

void kxStyleControls::drawButton(const QStyleOption *option, QPainter *painter, bool mixed)
{
    drawBox(option, painter, buttonGround(option), mixed);
    if (!(option->state & QStyle::State_On))
        return;
    // A button that is on carries a bar, so that it differs from one that is only pressed.
    const QRect rect = option->rect.adjusted(3, 0, -3, -1);
    const QColor bar = isEnabled(option) ? kxStyleColors::accent : kxStyleColors::textDisabled;
    painter->fillRect(QRect(rect.left(), rect.bottom() - 1, rect.width(), 2), bar);
}

void kxStyleControls::drawFocusFrame(const QStyleOption *option, QPainter *painter)
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    drawFrame(painter, option->rect, kxStyleColors::accent);
    painter->restore();
}

void kxStyleControls::drawCheckIndicator(const QStyleOption *option, QPainter *painter, bool mixed)
{
    QStyleOption box = *option;
    box.state &= ~QStyle::State_HasFocus;
    const bool on = !mixed && option->state & QStyle::State_On;
    const bool partly = mixed || option->state & QStyle::State_NoChange;
    drawField(&box, painter, mixed);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    const QRectF r(option->rect);
    const QColor mark = mixed && isEnabled(option) ? QColor(kxStyleColors::mixed) : markOf(option);
    painter->setPen(QPen(mark, r.width() / 8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    if (on) {
        const QPointF tick[] = {{r.x() + r.width() * 0.24, r.y() + r.height() * 0.52},
                                {r.x() + r.width() * 0.43, r.y() + r.height() * 0.71},
                                {r.x() + r.width() * 0.77, r.y() + r.height() * 0.30}};
        painter->drawPolyline(tick, 3);
    } else if (partly) {
        painter->drawLine(QPointF(r.x() + r.width() * 0.3, r.center().y()),
                          QPointF(r.x() + r.width() * 0.7, r.center().y()));
    }
    painter->restore();
}

void kxStyleControls::drawRadioIndicator(const QStyleOption *option, QPainter *painter, bool mixed)
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    const QRectF ring = QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5);
    const QColor line = mixed ? mixedLineOf(option) : borderOf(option);
    const QRgb ground = !isEnabled(option) ? kxStyleColors::window
                        : mixed            ? kxStyleColors::mixedGround
                                           : kxStyleColors::base;
    painter->setPen(QPen(line, 1, mixed ? Qt::DashLine : Qt::SolidLine));
    painter->setBrush(QColor(ground));
    painter->drawEllipse(ring);
    if (mixed) {
        painter->setPen(QPen(line, ring.width() / 8, Qt::SolidLine, Qt::RoundCap));
        const qreal reach = ring.width() * 0.2;
        painter->drawLine(ring.center() - QPointF(reach, 0), ring.center() + QPointF(reach, 0));
    } else if (option->state & QStyle::State_On) {
        painter->setPen(Qt::NoPen);
        painter->setBrush(isEnabled(option) ? QColor(kxStyleColors::accent) : markOf(option));
        painter->drawEllipse(ring.center(), ring.width() * 0.27, ring.height() * 0.27);
    }
    painter->restore();
}

void kxStyleControls::drawComboBox(const QStyleOptionComboBox *option, QPainter *painter,
                                   const QStyle *style, const QWidget *widget, bool mixed)
{
    if (option->editable)
        drawField(option, painter, mixed);
    else
        drawBox(option, painter, buttonGround(option), mixed);
    const QRect arrow =
        style->subControlRect(QStyle::CC_ComboBox, option, QStyle::SC_ComboBoxArrow, widget);
    drawChevron(option, painter, arrow, false);
}

void kxStyleControls::drawSpinBox(const QStyleOptionSpinBox *option, QPainter *painter,
                                  const QStyle *style, const QWidget *widget, bool mixed)
{
    drawField(option, painter, mixed);
    if (option->buttonSymbols == QAbstractSpinBox::NoButtons)
        return;
    drawStepButton(option, painter, style, widget, QStyle::SC_SpinBoxUp);
    drawStepButton(option, painter, style, widget, QStyle::SC_SpinBoxDown);
}

void kxStyleControls::drawSlider(const QStyleOptionSlider *option, QPainter *painter,
                                 const QStyle *style, const QWidget *widget, bool mixed)
{
    const QRect groove =
        style->subControlRect(QStyle::CC_Slider, option, QStyle::SC_SliderGroove, widget);
    const QRect handle =
        style->subControlRect(QStyle::CC_Slider, option, QStyle::SC_SliderHandle, widget);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    if (mixed) {
        // No handle: wherever it stood it would name a value.
        kxStyle::drawMixedField(painter, slimGroove(option, groove, 10), isEnabled(option));
    } else {
        const QRect slim = slimGroove(option, groove, 4);
        drawGround(painter, slim, borderOf(option));
        if (isEnabled(option))
            drawGround(painter, filledPart(option, slim, handle), kxStyleColors::accent);
        drawHandle(option, painter, handle);
    }
    painter->restore();
    if (hasFocus(option))
        drawFocusFrame(option, painter);
}
