// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "hostlib/SliderParts.h"

#include "host/kxStyle.h"

#include <QLineEdit>
#include <QMouseEvent>
#include <QStyleOptionSlider>
#include <QStyleOptionSpinBox>

namespace hostlib {

SliderHandle::SliderHandle(QWidget *parent) : QSlider(Qt::Horizontal, parent)
{
    // The field steps by keys too, and the toolkit's Tab would find the handle on its way back alone.
    setFocusPolicy(Qt::ClickFocus);
}

SliderHandle::~SliderHandle() = default;

void SliderHandle::mousePressEvent(QMouseEvent *event)
{
    // The base class drags from the handle only: the handle is brought under the mouse first.
    const bool mixed = kxStyle::isMultiselect(this);
    if (event->button() == Qt::LeftButton && (mixed || !isOnHandle(event->pos())))
        goTo(positionAt(event->pos()), mixed);
    QSlider::mousePressEvent(event);
}

void SliderHandle::wheelEvent(QWheelEvent *event)
{
    if (hasFocus())
        QSlider::wheelEvent(event);
    else
        event->ignore();
}

void SliderHandle::goTo(int position, bool evenIfThere)
{
    if (position != sliderPosition())
        setSliderPosition(position);
    else if (evenIfThere)
        triggerAction(SliderMove);
}

bool SliderHandle::isOnHandle(const QPoint &point) const
{
    QStyleOptionSlider option;
    initStyleOption(&option);
    return style()->hitTestComplexControl(QStyle::CC_Slider, &option, point, this)
           == QStyle::SC_SliderHandle;
}

int SliderHandle::positionAt(const QPoint &point) const
{
    QStyleOptionSlider option;
    initStyleOption(&option);
    const QRect groove =
        style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderGroove, this);
    const QRect handle =
        style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this);
    return QStyle::sliderValueFromPosition(minimum(), maximum(),
                                           point.x() - handle.width() / 2 - groove.left(),
                                           groove.width() - handle.width(), option.upsideDown);
}

SliderField::SliderField(QWidget *parent) : QKXDoubleSpiner(parent)
{
    setRange(-2147483647.0, 2147483647.0);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

SliderField::~SliderField() = default;

void SliderField::setLeastDecimals(int decimals)
{
    if (m_leastDecimals == decimals)
        return;
    m_leastDecimals = decimals;
    setSuffix(suffix()); // writes the text anew
}

QString SliderField::textFromValue(double value) const
{
    QString text = QKXDoubleSpiner::textFromValue(value);
    const QChar point = locale().decimalPoint();
    const int found = text.indexOf(point);
    const int shown = found < 0 ? 0 : text.size() - found - 1;
    if (shown >= m_leastDecimals)
        return text;
    if (found < 0)
        text += point;
    return text + QString(m_leastDecimals - shown, locale().zeroDigit());
}

QSize SliderField::sizeHint() const
{
    ensurePolished();
    QStyleOptionSpinBox option;
    initStyleOption(&option);
    const QFontMetrics metrics = fontMetrics();
    const QSize text(metrics.horizontalAdvance(QStringLiteral("-0000.00 pt")),
                     lineEdit()->sizeHint().height());
    return style()->sizeFromContents(QStyle::CT_SpinBox, &option, text, this);
}

QSize SliderField::minimumSizeHint() const
{
    return sizeHint();
}

} // namespace hostlib
