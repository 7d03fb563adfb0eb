// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/QKXColor.h"

#include <QRect>

class QPainter;

namespace hostlib {

/// What the colour control is made of, from left to right.
enum class ColorPart { None, Swatch, Hue, Saturation, Value };

/// Where the parts of a colour control lie, and how they are drawn. Made by the control for one event
/// or one painting; holds no state of its own.
class ColorStrip
{
public:
    explicit ColorStrip(const QRect &area);

    QRect place(ColorPart part) const;
    ColorPart partAt(const QPoint &point) const;

    /// How far along the bar of `part` a point lies, from 0 to 1; the nearest end beside the bar.
    float shareAt(ColorPart part, const QPoint &point) const;

    /// Draws all parts; `framed` is the bar that the keys work on.
    void paint(QPainter &painter, const QKXColor &color, bool enabled, ColorPart framed) const;

    /// True for the parts that stand for one number of a colour.
    static bool isBar(ColorPart part);

    /// The number that `part` stands for, from 0 to 1.
    static float share(const QKXColor &color, ColorPart part);
    static QKXColor withShare(const QKXColor &color, ColorPart part, float share);

private:
    void paintBar(QPainter &painter, const QKXColor &color, ColorPart part) const;
    void paintMarker(QPainter &painter, const QKXColor &color, ColorPart part) const;

    QRect m_area;
};

} // namespace hostlib
