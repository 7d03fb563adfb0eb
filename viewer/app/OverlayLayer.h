// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "viewer/render/OverlayLayout.h"

#include <QImage>
#include <QWidget>

#include <functional>

class kxOverlayService;

namespace viewer {

/// The transparent widget that shows the overlays above the 3D view and lets the mouse through. It
/// is drawn as an export is, and only when the service announces something
/// visible: several announcements in a row cost one drawing. Owned by the view area.
class OverlayLayer : public QWidget
{
    Q_OBJECT

public:
    /// Draws all overlays for a view of `size` pixels with `dpi` dots per inch.
    using Draw = std::function<void(QPainter *painter, const QSize &size, double dpi)>;

    OverlayLayer(kxOverlayService *service, Draw draw, QWidget *parent = nullptr);

    /// The overlays alone, as the widget shows them; for exports too. They are drawn in a picture of
    /// their own and put over what is behind as a whole, since a drawing is rounded otherwise
    /// elsewhere in a window or on another ground. Null without the memory.
    static QImage picture(const ViewGeometry &view, const Draw &draw);

    /// The view that a widget comes to, in the display's own pixels.
    static ViewGeometry geometryOf(const QWidget &widget);

    /// Dots per inch of a view whose pixels are not scaled by the display.
    static constexpr double Dpi = 96.0;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void followTree(const kxOverlayService *service);
    void followValues(const kxOverlayService *service);

    const Draw m_draw;
};

} // namespace viewer
