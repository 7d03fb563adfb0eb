// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/kxHostExport.h"

#include <QMetaType>
#include <QPointF>
#include <QSizeF>

/// How a texture lies on what it covers: the record that QKXTextureControls shows and reports. A
/// plain value, free of any thread; as made it leaves a texture as it is. No operation has an error: a
/// part that is no number differs from every other.
struct KXHOST_EXPORT QKXTextureSettings
{
    /// What is drawn beyond the edges of the image.
    enum RepeatMode {
        Repeat, ///< the image again
        Clamp,  ///< the colour of its edge
        Mirror, ///< the image again, every second one mirrored
        Decal,  ///< nothing
    };

    /// How places on a surface are found in the image.
    enum Projection {
        Uv,          ///< by the surface's own coordinates
        Planar,      ///< from one side
        Box,         ///< from six sides
        Cylindrical, ///< from around an axis
        Spherical    ///< from around a point
    };

    Projection projection = Uv;      ///< how the image comes onto the surface
    RepeatMode repeatModeU = Repeat; ///< across
    RepeatMode repeatModeV = Repeat; ///< upwards
    QPointF repeat = {1, 1};         ///< number of images; without real-world scale only
    QPointF offset = {0, 0};         ///< fraction of the image
    double rotation = 0;             ///< degrees, counter-clockwise
    bool realWorldScale = false;     ///< on: one image covers realWorldSize instead of `repeat`
    QSizeF realWorldSize = {1, 1};   ///< metres
    int anisotropy = 1;              ///< samples: 1, 2, 4, 8 or 16
    double gamma = 1;                ///< 0.1 to 10
    double alpha = 1;                ///< opacity, 0 to 1
    bool linked = false;             ///< shared with the other textures of the same owner

    /// Whether all parts are equal.
    /// @param a one record
    /// @param b the other one
    /// @return false when one part differs, however little
    friend KXHOST_EXPORT bool operator==(const QKXTextureSettings &a, const QKXTextureSettings &b);
    /// Whether a part differs.
    /// @param a one record
    /// @param b the other one
    /// @return false when all parts are equal
    friend bool operator!=(const QKXTextureSettings &a, const QKXTextureSettings &b)
    {
        return !(a == b);
    }
};

Q_DECLARE_METATYPE(QKXTextureSettings)
