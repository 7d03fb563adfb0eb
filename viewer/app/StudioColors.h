// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>

/// The colours of the studio behind the model, in one place for the 3D view and for the backdrop that
/// is painted where no 3D view can be had.
namespace viewer::StudioColors {

inline QColor above()
{
    return {38, 43, 51};
}
inline QColor below()
{
    return {74, 80, 89};
}
inline QColor glow()
{
    return {44, 47, 52};
}

} // namespace viewer::StudioColors
