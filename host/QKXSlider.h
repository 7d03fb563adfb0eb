// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/kxHostExport.h"

#include <QWidget>

namespace hostlib {
class SliderField;
class SliderHandle;
} // namespace hostlib

/// A slider with a number field: the handle for what is usual, the field for any number.
///
/// Owner: its parent widget. Called by modules; GUI thread only. The range binds the handle alone:
/// a typed or given value may lie outside it on both sides, and the handle then stands at its end.
/// Dragging moves in line steps, typing is sent when it is committed. The wheel changes the value
/// only while handle or field has the focus; Tab goes to the field alone. While the slider is marked
/// "multiselect" its value is not that of all nodes: no handle is drawn, a press anywhere sets the
/// value of its place, and an edit is sent even when it gives the value last shown. Its accessible name, or
/// that of the label whose buddy it is, names handle and field too once it is shown.
class KXHOST_EXPORT QKXSlider : public QWidget
{
    Q_OBJECT

public:
    /// A slider from 0 to 100 that stands at 0.
    /// @param parent becomes the owner; null for none
    /// @param name   the object name; null for none
    explicit QKXSlider(QWidget *parent = nullptr, const char *name = nullptr);
    ~QKXSlider() override;

    /// Sets the range of the handle. The value stays as it is, also where it lies outside; the handle
    /// moves to fit. A range that is empty or not finite is ignored.
    /// @param minimum at the left end, in the unit of the value
    /// @param maximum at the right end, in the unit of the value
    void setRange(double minimum, double maximum);

    /// Shows a value. As with Qt's own sliders one that differs is announced, unless signals are
    /// blocked. A number that is being typed is lost only when the value differs.
    /// @param value any finite number, in the unit of the owner's choice, kept as it is; others are
    ///              ignored
    void setValue(double value);

    /// The value that was set, typed or dragged last.
    /// @return in the unit of the owner's choice; 0 at first
    double value() const;

    /// Sets how far an arrow key and the smallest drag go, 1 at first. The field shows at least the
    /// decimals of the step, and up to six where a value has more.
    /// @param step in the unit of the value; one that is not above 0 is ignored
    void setLineStep(double step);

    /// Has the field show a unit.
    /// @param suffix stands directly behind the number; empty for none
    void setSuffix(const QString &suffix);

    /// Makes the whole slider usable or not.
    /// @param enabled what isEnabled() becomes
    virtual void setSliderEnabled(bool enabled);

    /// Hands the marking "multiselect" of the slider to its handle and its field. Called by modules
    /// after they have set or removed the marking.
    void propagateMultiselectProperty();

Q_SIGNALS:
    /// The value has changed: with each step of a drag, with each key on the handle, when a typed
    /// number is committed, and by setValue().
    /// @param value in the unit of the owner's choice; may lie outside the range
    void valueChanged(double value);

    /// The handle was let go; value() is what the drag has led to.
    void sliderReleased();

protected:
    void showEvent(QShowEvent *event) override;

private:
    void nameParts();
    void takeAction(int action);
    void edit(double value);
    void take(double value);
    double stepped(double step) const;
    double valueAt(int position) const;
    int positionOf(double value) const;
    void placeHandle();

    hostlib::SliderHandle *m_handle;
    hostlib::SliderField *m_field;
    double m_minimum = 0.0;
    double m_maximum = 100.0;
    double m_step = 1.0;
    double m_value = 0.0;
};
