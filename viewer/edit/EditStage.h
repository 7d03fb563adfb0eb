// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "viewer/edit/EditView.h"
#include "viewer/render/OverlayPainter.h"

namespace viewer {

/// What a gesture sees of the window that it is made in, and the selection that it changes there.
/// Implemented by whoever owns the gesture and outlives it.
class EditStage
{
public:
    virtual ~EditStage() = default;

    virtual EditView view() const = 0;

    /// The overlays as they are drawn in that view, the lowest first.
    virtual std::vector<DrawnOverlay> drawnOverlays() const = 0;

    virtual QRPC::NodeList selection() const = 0;

    /// Makes nodes the selection.
    virtual void select(const QRPC::NodeList &nodes) = 0;
};

} // namespace viewer
