// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/kxHostExport.h"

class QColor;

/// A colour as the colour control shows it: hue, saturation and value, opaque. A plain value, free
/// of any thread.
struct KXHOST_EXPORT QKXColor
{
    /// Black.
    QKXColor();

    /// The colour of given parts, which are kept as they are, also outside of their ranges.
    /// @param hue        degrees from 0 to 360
    /// @param saturation from 0 (grey) to 1 (pure)
    /// @param value      from 0 (black) to 1 (bright)
    QKXColor(float hue, float saturation, float value);

    /// The parts of the 8 bit red, green and blue of a colour. When two channels share the maximum,
    /// red comes before green and green before blue. Implicit, so that a QColor can be given wherever
    /// this record is asked for.
    /// @param color its alpha is left out; an invalid colour counts as black
    QKXColor(const QColor &color); // NOLINT(google-explicit-constructor)

    /// The colour of these parts. Parts outside their ranges count as the nearest end, the hue as the
    /// same angle within the circle.
    /// @return opaque, rounded to 8 bits a channel
    QColor toColor() const;

    float hue = 0.0f;        ///< degrees from 0 to 360; 0 for a grey
    float saturation = 0.0f; ///< from 0 (grey) to 1 (pure)
    float value = 0.0f;      ///< from 0 (black) to 1 (bright)
};
