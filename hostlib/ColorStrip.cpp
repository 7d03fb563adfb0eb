// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "hostlib/ColorStrip.h"

#include "host/kxStyle.h"
#include "hostlib/kxStyleColors.h"

#include <QLinearGradient>
#include <QPainter>

#include <algorithm>

namespace hostlib {

static constexpr int s_gap = 10;
static constexpr int s_inset = 3; // room for the focus frame
static constexpr int s_swatchWidth = 28;
static constexpr float s_leastBarValue = 0.4f;
static constexpr ColorPart s_parts[] = {ColorPart::Swatch, ColorPart::Hue, ColorPart::Saturation,
                                        ColorPart::Value};

/// The colour that a bar varies. The hue bar shows pure colours, so that it stands still while the
/// others change; the saturation bar of a dark colour is lightened, since black all over says nothing.
static QKXColor baseOf(const QKXColor &color, ColorPart part)
{
    if (part == ColorPart::Hue)
        return QKXColor(0.0f, 1.0f, 1.0f);
    if (part == ColorPart::Saturation)
        return QKXColor(color.hue, color.saturation, std::max(color.value, s_leastBarValue));
    return color;
}

/// Two colours suffice for saturation and value, which are linear in red, green and blue.
static QLinearGradient gradientOf(const QKXColor &color, ColorPart part)
{
    QLinearGradient gradient(0.0, 0.0, 1.0, 0.0);
    gradient.setCoordinateMode(QGradient::ObjectMode);
    const int stops = part == ColorPart::Hue ? 6 : 1;
    const QKXColor base = baseOf(color, part);
    for (int stop = 0; stop <= stops; ++stop) {
        const float share = float(stop) / float(stops);
        gradient.setColorAt(double(share), ColorStrip::withShare(base, part, share).toColor());
    }
    return gradient;
}

ColorStrip::ColorStrip(const QRect &area)
    : m_area(area.adjusted(s_inset, s_inset, -s_inset, -s_inset))
{
}

QRect ColorStrip::place(ColorPart part) const
{
    const int swatch = std::min(s_swatchWidth, m_area.width() / 4);
    if (part == ColorPart::Swatch)
        return QRect(m_area.topLeft(), QSize(swatch, m_area.height()));
    const int index = int(part) - int(ColorPart::Hue);
    const int room = std::max(0, m_area.width() - swatch - 3 * s_gap);
    const int left = m_area.left() + swatch + s_gap + index * s_gap + index * room / 3;
    return QRect(left, m_area.top(), (index + 1) * room / 3 - index * room / 3, m_area.height());
}

ColorPart ColorStrip::partAt(const QPoint &point) const
{
    // The gaps belong to the parts beside them: nothing in the strip is dead to the mouse.
    for (const ColorPart part : s_parts) {
        if (point.x() <= place(part).right() + s_gap / 2)
            return part;
    }
    return ColorPart::Value;
}

float ColorStrip::shareAt(ColorPart part, const QPoint &point) const
{
    const QRect bar = place(part);
    const float share = float(point.x() - bar.left()) / float(std::max(1, bar.width() - 1));
    return std::clamp(share, 0.0f, 1.0f);
}

bool ColorStrip::isBar(ColorPart part)
{
    return part != ColorPart::Swatch && part != ColorPart::None;
}

float ColorStrip::share(const QKXColor &color, ColorPart part)
{
    if (part == ColorPart::Hue)
        return color.hue / 360.0f;
    return part == ColorPart::Saturation ? color.saturation : color.value;
}

QKXColor ColorStrip::withShare(const QKXColor &color, ColorPart part, float share)
{
    QKXColor changed = color;
    if (part == ColorPart::Hue)
        changed.hue = 360.0f * share;
    else if (part == ColorPart::Saturation)
        changed.saturation = share;
    else
        changed.value = share;
    return changed;
}

void ColorStrip::paint(QPainter &painter, const QKXColor &color, bool enabled,
                       ColorPart framed) const
{
    painter.save();
    painter.setOpacity(enabled ? 1.0 : 0.3);
    for (const ColorPart part : s_parts) {
        paintBar(painter, color, part);
        painter.setBrush(Qt::NoBrush);
        painter.setPen(part == framed ? kxStyle::getAccentColor() : QColor(kxStyleColors::border));
        painter.drawRect(place(part).adjusted(-1, -1, 0, 0));
        if (enabled && isBar(part))
            paintMarker(painter, color, part);
    }
    painter.restore();
}

void ColorStrip::paintBar(QPainter &painter, const QKXColor &color, ColorPart part) const
{
    if (part == ColorPart::Swatch)
        painter.fillRect(place(part), color.toColor());
    else
        painter.fillRect(place(part), gradientOf(color, part));
}

void ColorStrip::paintMarker(QPainter &painter, const QKXColor &color, ColorPart part) const
{
    const QRect bar = place(part);
    const int x = bar.left() + qRound(share(color, part) * float(bar.width() - 1));
    painter.setPen(Qt::black);
    painter.setBrush(Qt::white);
    painter.drawRect(QRect(x - 2, bar.top() - 2, 4, bar.height() + 3));
}

} // namespace hostlib
