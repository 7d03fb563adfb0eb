// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/QKXSlider.h"

#include "host/kxStyle.h"
#include "hostlib/SliderParts.h"
#include "hostlib/multiselect.h"
#include "hostlib/numberText.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QSignalBlocker>

#include <algorithm>
#include <cmath>

/// A handle with more places than this could not be placed by a mouse on any screen.
static constexpr double s_mostPlaces = 100000.0;

QKXSlider::QKXSlider(QWidget *parent, const char *name)
    : QWidget(parent)
    , m_handle(new hostlib::SliderHandle(this))
    , m_field(new hostlib::SliderField(this))
{
    setObjectName(QLatin1String(name));
    m_handle->setAccessibleName(tr("Slider"));
    m_field->setAccessibleName(tr("Value"));
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_handle, 1);
    layout->addWidget(m_field);
    setFocusProxy(m_field);
    placeHandle();
    connect(m_handle, &QAbstractSlider::actionTriggered, this, &QKXSlider::takeAction);
    connect(m_handle, &QAbstractSlider::sliderReleased, this, &QKXSlider::sliderReleased);
    connect(m_field, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this, &QKXSlider::edit);
}

QKXSlider::~QKXSlider() = default;

void QKXSlider::setRange(double minimum, double maximum)
{
    if (!std::isfinite(maximum - minimum) || maximum <= minimum)
        return;
    m_minimum = minimum;
    m_maximum = maximum;
    placeHandle();
}

void QKXSlider::setValue(double value)
{
    if (!std::isfinite(value) || value == m_value)
        return;
    take(value);
    Q_EMIT valueChanged(value);
}

double QKXSlider::value() const
{
    return m_value;
}

void QKXSlider::setLineStep(double step)
{
    // The field writes its text anew for each setting: an equal one must not end what is being
    // typed.
    if (!std::isfinite(step) || step <= 0.0 || step == m_step)
        return;
    m_step = step;
    m_field->setSingleStep(step);
    m_field->setLeastDecimals(hostlib::neededDecimals(step));
    placeHandle();
}

void QKXSlider::setSuffix(const QString &suffix)
{
    if (m_field->suffix() != suffix)
        m_field->setSuffix(suffix);
}

void QKXSlider::setSliderEnabled(bool enabled)
{
    setEnabled(enabled);
}

void QKXSlider::propagateMultiselectProperty()
{
    hostlib::handOnMultiselect(this, {m_handle, m_field});
}

void QKXSlider::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    nameParts();
}

/// Assistive tools meet the parts and not the whole.
void QKXSlider::nameParts()
{
    const QAccessibleInterface *whole = QAccessible::queryAccessibleInterface(this);
    const QString name = whole ? whole->text(QAccessible::Name) : QString();
    if (name.isEmpty())
        return;
    m_field->setAccessibleName(name);
    m_handle->setAccessibleName(tr("%1, slider").arg(name));
}

void QKXSlider::takeAction(int action)
{
    if (action == QAbstractSlider::SliderSingleStepAdd)
        edit(stepped(m_step));
    else if (action == QAbstractSlider::SliderSingleStepSub)
        edit(stepped(-m_step));
    else
        edit(valueAt(m_handle->sliderPosition()));
}

void QKXSlider::edit(double value)
{
    if (value == m_value && !kxStyle::isMultiselect(this))
        return;
    take(value);
    Q_EMIT valueChanged(value);
}

void QKXSlider::take(double value)
{
    m_value = value;
    placeHandle();
    const QSignalBlocker blocker(m_field);
    m_field->setValue(value);
}

/// The value one step further; a value outside the range is not led farther out.
double QKXSlider::stepped(double step) const
{
    return std::clamp(m_value + step, std::min(m_minimum, m_value), std::max(m_maximum, m_value));
}

double QKXSlider::valueAt(int position) const
{
    return m_minimum + position * (m_maximum - m_minimum) / m_handle->maximum();
}

int QKXSlider::positionOf(double value) const
{
    const double part = (value - m_minimum) / (m_maximum - m_minimum);
    return int(std::lround(std::clamp(part, 0.0, 1.0) * m_handle->maximum()));
}

void QKXSlider::placeHandle()
{
    const double places = std::clamp((m_maximum - m_minimum) / m_step, 1.0, s_mostPlaces);
    const QSignalBlocker blocker(m_handle);
    m_handle->setRange(0, int(std::lround(places)));
    m_handle->setPageStep(std::max(1, m_handle->maximum() / 10));
    m_handle->setValue(positionOf(m_value));
}
