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
    /// `name` becomes the object name; null for none.
    explicit QKXSlider(QWidget *parent = nullptr, const char *name = nullptr);
    ~QKXSlider() override;

    /// The range of the handle, 0 to 100 at first. The value stays as it is, also where it lies
    /// outside; the handle moves to fit. A range that is empty or not finite is ignored.
    void setRange(double minimum, double maximum);

    /// Any finite value, kept as it is; others are ignored. As with Qt's own sliders a value that
    /// differs is announced, unless signals are blocked. A number that is being typed is lost only
    /// when the value differs.
    void setValue(double value);
    double value() const;

    /// How far an arrow key and the smallest drag go, 1 at first. The field shows at least the
    /// decimals of the step, and up to six where a value has more. A step that is not above 0 is
    /// ignored.
    void setLineStep(double step);

    /// The unit that the field shows behind the number; empty for none.
    void setSuffix(const QString &suffix);

    /// Makes the whole slider usable or not: isEnabled() follows.
    virtual void setSliderEnabled(bool enabled);

    /// Hands the marking "multiselect" of the slider to its handle and its field. Called by modules
    /// after they have set or removed the marking.
    void propagateMultiselectProperty();

Q_SIGNALS:
    /// The value has changed: with each step of a drag, with each key on the handle, when a typed
    /// number is committed, and by setValue().
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
