// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>

#include <cmath>

/// How well colours stand out from each other, as the guidelines for accessible contents reckon it.
namespace contrast {

/// From 0 for black to 1 for white.
inline double luminance(const QColor &color)
{
    const auto linear = [](double c) {
        return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF())
           + 0.0722 * linear(color.blueF());
}

/// From 1 for two equal colours to 21 for black and white; text wants 4.5, a sign 3.
inline double between(const QColor &a, const QColor &b)
{
    const double la = luminance(a) + 0.05;
    const double lb = luminance(b) + 0.05;
    return la > lb ? la / lb : lb / la;
}

} // namespace contrast
