// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

// What kxStyle draws itself; the rest is left to its base style.

#include "host/kxStyle.h"

#include "hostlib/kxStyleColors.h"
#include "hostlib/kxStyleControls.h"

#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QEvent>
#include <QPainter>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QStyleOption>

namespace {

// How much of a field's old text shows while a mixed field has the focus.
constexpr qreal staleOpacity = 0.5;

bool isInnerEdit(const QWidget *widget)
{
    const QWidget *parent = widget ? widget->parentWidget() : nullptr;
    return qobject_cast<const QAbstractSpinBox *>(parent)
           || qobject_cast<const QComboBox *>(parent);
}

// A mixed field shows no value without the focus, and its old text dimmed with it. The field draws
// its text next, with this painter.
void drawEditContents(const QStyleOption *option, QPainter *painter)
{
    const bool edited = option->state & QStyle::State_HasFocus;
    const bool enabled = option->state & QStyle::State_Enabled;
    if (!edited)
        kxStyle::drawMixedText(painter, option->rect, enabled);
    painter->setOpacity(edited ? staleOpacity : 0);
}

void drawEditPanel(const QStyleOption *option, QPainter *painter, const QWidget *widget)
{
    const bool mixed = kxStyleControls::isMixed(widget);
    const auto *frame = qstyleoption_cast<const QStyleOptionFrame *>(option);
    const bool framed = frame && frame->lineWidth > 0;
    if (framed)
        kxStyleControls::drawField(option, painter, mixed);
    else if (!isInnerEdit(widget))
        painter->fillRect(option->rect, option->palette.brush(QPalette::Base));
    if (mixed)
        drawEditContents(option, painter);
}

// The pen in hand goes round inside `rect`, also where a point is not a whole number of pixels: without
// smoothing the line would be shifted there, under what the frame holds.
void drawInside(QPainter *painter, const QRect &rect)
{
    painter->setRenderHint(QPainter::Antialiasing);
    painter->drawRect(QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5));
}

void drawAreaFrame(const QStyleOption *option, QPainter *painter, const QWidget *widget)
{
    QRgb color = kxStyleColors::borderDisabled;
    if (option->state & QStyle::State_Enabled && kxStyleControls::isMixed(widget))
        color = kxStyleColors::mixed;
    if (option->state & QStyle::State_HasFocus)
        color = kxStyleColors::accent;
    painter->save();
    painter->setPen(QColor(color));
    painter->setBrush(Qt::NoBrush);
    drawInside(painter, option->rect);
    painter->restore();
}

// The state of a marked button is not known, so that it is drawn neither on nor off.
template<class Option>
Option withoutState(const Option &option)
{
    Option neutral = option;
    neutral.state &= ~(QStyle::State_On | QStyle::State_Sunken | QStyle::State_AutoRaise);
    neutral.state |= QStyle::State_Raised;
    for (const auto role : {QPalette::ButtonText, QPalette::WindowText, QPalette::Text})
        neutral.palette.setColor(role, QColor(neutral.state & QStyle::State_Enabled
                                                  ? kxStyleColors::mixedText
                                                  : kxStyleColors::textDisabled));
    return neutral;
}

// A menu stands out from the fields that it opens over.
void drawMenuPanel(const QStyleOption *option, QPainter *painter)
{
    painter->save();
    painter->setPen(QColor(kxStyleColors::border));
    painter->setBrush(QColor(kxStyleColors::window));
    drawInside(painter, option->rect);
    painter->restore();
}

// A row keeps the colour of its own text when it is selected: the name of a node that does not show
// stays distinct.
QStyleOptionViewItem withOwnTextColor(const QStyleOptionViewItem &option)
{
    QStyleOptionViewItem own = option;
    for (const auto group : {QPalette::Active, QPalette::Inactive})
        own.palette.setBrush(group, QPalette::HighlightedText,
                             option.palette.brush(group, QPalette::Text));
    return own;
}

void drawMixedComboLabel(const QStyleOption *option, QPainter *painter, const QWidget *widget,
                         const QStyle *style)
{
    const auto *combo = qstyleoption_cast<const QStyleOptionComboBox *>(option);
    if (!combo || combo->editable)
        return;
    const QRect field =
        style->subControlRect(QStyle::CC_ComboBox, combo, QStyle::SC_ComboBoxEditField, widget);
    kxStyle::drawMixedText(painter, field, option->state & QStyle::State_Enabled);
}

template<class Draw>
void drawSlanted(QPainter *painter, Draw draw)
{
    painter->save();
    QFont font = painter->font();
    font.setItalic(true);
    painter->setFont(font);
    draw();
    painter->restore();
}

void drawGround(QWidget *viewport)
{
    // The frame of the editor goes round it already: of the field's own only the edge is wanted.
    QPainter painter(viewport);
    kxStyle::drawMixedField(&painter, viewport->rect().adjusted(0, -4, 4, 4),
                            viewport->isEnabled());
}

// The words on the first line, where the text would begin; over a text that is being edited, a veil
// that dims it.
void drawVeil(QWidget *viewport, bool edited)
{
    QPainter painter(viewport);
    if (edited) {
        QColor veil = kxStyleColors::mixedGround;
        veil.setAlphaF(staleOpacity);
        painter.fillRect(viewport->rect(), veil);
        return;
    }
    const QRect line(0, 2, viewport->width(), painter.fontMetrics().height() + 4);
    kxStyle::drawMixedText(&painter, line, viewport->isEnabled());
}

} // namespace

void kxStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                            const QWidget *widget) const
{
    switch (element) {
    case PE_PanelLineEdit:
        return drawEditPanel(option, painter, widget);
    case PE_FrameLineEdit:
        return kxStyleControls::drawField(option, painter, kxStyleControls::isMixed(widget));
    case PE_Frame:
        return drawAreaFrame(option, painter, widget);
    case PE_PanelMenu:
        return drawMenuPanel(option, painter);
    case PE_FrameFocusRect:
        if (qobject_cast<const QPushButton *>(widget))
            return; // its panel carries the frame
        return kxStyleControls::drawFocusFrame(option, painter);
    case PE_PanelButtonCommand:
    case PE_PanelButtonTool:
        return kxStyleControls::drawButton(option, painter, kxStyleControls::isMixed(widget));
    case PE_IndicatorCheckBox:
        return kxStyleControls::drawCheckIndicator(option, painter,
                                                   kxStyleControls::isMixed(widget));
    case PE_IndicatorRadioButton:
        return kxStyleControls::drawRadioIndicator(option, painter,
                                                   kxStyleControls::isMixed(widget));
    default:
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

void kxStyle::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                          const QWidget *widget) const
{
    if (const auto *item = qstyleoption_cast<const QStyleOptionViewItem *>(option)) {
        QStyleOptionViewItem own = withOwnTextColor(*item);
        return QProxyStyle::drawControl(element, &own, painter, widget);
    }
    if (!kxStyleControls::isMixed(widget))
        return QProxyStyle::drawControl(element, option, painter, widget);
    if (element == CE_ComboBoxLabel)
        return drawMixedComboLabel(option, painter, widget, proxy());
    if (const auto *button = qstyleoption_cast<const QStyleOptionButton *>(option);
        button && (element == CE_PushButtonBevel || element == CE_PushButtonLabel)) {
        QStyleOptionButton own = withoutState(*button);
        own.features &= ~QStyleOptionButton::Flat;
        return drawSlanted(painter,
                           [&] { QProxyStyle::drawControl(element, &own, painter, widget); });
    }
    QProxyStyle::drawControl(element, option, painter, widget);
}

void kxStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                                 QPainter *painter, const QWidget *widget) const
{
    const bool mixed = kxStyleControls::isMixed(widget);
    if (const auto *combo = qstyleoption_cast<const QStyleOptionComboBox *>(option))
        return kxStyleControls::drawComboBox(combo, painter, proxy(), widget, mixed);
    if (const auto *spin = qstyleoption_cast<const QStyleOptionSpinBox *>(option))
        return kxStyleControls::drawSpinBox(spin, painter, proxy(), widget, mixed);
    const auto *slider = qstyleoption_cast<const QStyleOptionSlider *>(option);
    if (slider && control == CC_Slider)
        return kxStyleControls::drawSlider(slider, painter, proxy(), widget, mixed);
    const auto *button = qstyleoption_cast<const QStyleOptionToolButton *>(option);
    if (button && mixed) {
        QStyleOptionToolButton own = withoutState(*button);
        own.font.setItalic(true);
        painter->save();
        QProxyStyle::drawComplexControl(control, &own, painter, widget);
        painter->restore();
        return;
    }
    QProxyStyle::drawComplexControl(control, option, painter, widget);
}

bool kxStyle::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Paint || m_drawingBeneath)
        return QProxyStyle::eventFilter(watched, event);
    auto *viewport = static_cast<QWidget *>(watched);
    const bool edited = viewport->parentWidget()->hasFocus();
    drawGround(viewport);
    if (edited) {
        const QScopedValueRollback<bool> guard(m_drawingBeneath, true);
        QCoreApplication::sendEvent(viewport, event);
    }
    drawVeil(viewport, edited);
    return true;
}
