// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "viewer/render/OverlayLayout.h"

namespace viewer {

/// The view that is edited in. All places and lengths of this library are pixels of the display,
/// from the top left corner; what has to suit a hand or an eye is stated in device-independent
/// pixels and turned into them here.
struct EditView
{
    ViewGeometry geometry;
    double pixelRatio = 1.0; ///< pixels of the display in a device-independent one

    double pixels(double independent) const { return independent * pixelRatio; }
};

} // namespace viewer
