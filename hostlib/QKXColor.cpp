// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/QKXColor.h"

#include <QColor>

#include <algorithm>
#include <cmath>

/// The hue in degrees, not below 0; `range` is the distance from the smallest to the largest
/// channel.
static double hueOf(double red, double green, double blue, double range)
{
    const double largest = std::max({red, green, blue});
    double hue = 0.0;
    if (red == largest)
        hue = 60.0 * (green - blue) / range;
    else if (green == largest)
        hue = 60.0 * (blue - red) / range + 120.0;
    else
        hue = 60.0 * (red - green) / range + 240.0;
    return hue < 0.0 ? hue + 360.0 : hue;
}

/// One channel of a colour: `sextant` is its distance from the hue, in sixths of the circle.
static int channelOf(double sextant, double saturation, double value)
{
    const double place = std::fmod(sextant, 6.0);
    const double lack = std::clamp(std::min(place, 4.0 - place), 0.0, 1.0);
    return int(std::lround(255.0 * value * (1.0 - saturation * lack)));
}

QKXColor::QKXColor() = default;

QKXColor::QKXColor(float hueDegrees, float saturationPart, float valuePart)
    : hue(hueDegrees)
    , saturation(saturationPart)
    , value(valuePart)
{
}

QKXColor::QKXColor(const QColor &color)
{
    const double red = color.red() / 255.0;
    const double green = color.green() / 255.0;
    const double blue = color.blue() / 255.0;
    const double largest = std::max({red, green, blue});
    const double range = largest - std::min({red, green, blue});
    value = float(largest);
    saturation = largest == 0.0 ? 0.0f : float(range / largest);
    hue = range == 0.0 ? 0.0f : float(hueOf(red, green, blue, range));
}

QColor QKXColor::toColor() const
{
    const double turned = std::fmod(double(hue), 360.0);
    const double sextants = (turned < 0.0 ? turned + 360.0 : turned) / 60.0;
    const double pure = std::clamp(double(saturation), 0.0, 1.0);
    const double bright = std::clamp(double(value), 0.0, 1.0);
    return QColor(channelOf(sextants + 5.0, pure, bright), channelOf(sextants + 3.0, pure, bright),
                  channelOf(sextants + 1.0, pure, bright));
}
