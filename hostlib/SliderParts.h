// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/QKXDoubleSpiner.h"

#include <QSlider>

namespace hostlib {

/// The handle of a QKXSlider, which owns it. A press beside the handle brings it there and drags
/// on; while it is marked, and so not drawn, any press does. The wheel moves it only while it has the focus.
class SliderHandle : public QSlider
{
    Q_OBJECT

public:
    explicit SliderHandle(QWidget *parent);
    ~SliderHandle() override;

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    void goTo(int position, bool evenIfThere);
    bool isOnHandle(const QPoint &point) const;
    int positionAt(const QPoint &point) const;
};

/// The number field of a QKXSlider, which owns it: shows no less than a given number of decimals,
/// so that the digits stand still while the handle is dragged, and is as wide as usual numbers
/// need.
class SliderField : public QKXDoubleSpiner
{
    Q_OBJECT

public:
    explicit SliderField(QWidget *parent);
    ~SliderField() override;

    void setLeastDecimals(int decimals);
    QString textFromValue(double value) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

private:
    int m_leastDecimals = 0;
};

} // namespace hostlib
