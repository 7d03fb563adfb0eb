// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/OverlayLayer.h"

#include "host/kxOverlayService.h"

#include <QPainter>

namespace viewer {

OverlayLayer::OverlayLayer(kxOverlayService *service, Draw draw, QWidget *parent)
    : QWidget(parent)
    , m_draw(std::move(draw))
{
    setObjectName(QStringLiteral("overlayLayer"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    followTree(service);
    followValues(service);
}

// nodesCreated() follows nodesAdded() and says nothing more about the picture.
void OverlayLayer::followTree(const kxOverlayService *service)
{
    const auto redraw = qOverload<>(&OverlayLayer::update);
    connect(service, &kxOverlayService::modelReset, this, redraw);
    connect(service, &kxOverlayService::nodesAdded, this, redraw);
    connect(service, &kxOverlayService::nodesRemoved, this, redraw);
    connect(service, &kxOverlayService::nodesMoved, this, redraw);
    connect(service, &kxOverlayService::enabledStateChanged, this, redraw);
}

// All values but the name, which is not drawn.
void OverlayLayer::followValues(const kxOverlayService *service)
{
    const auto redraw = qOverload<>(&OverlayLayer::update);
    connect(service, &kxOverlayService::overlayTypeChanged, this, redraw);
    connect(service, &kxOverlayService::textChanged, this, redraw);
    connect(service, &kxOverlayService::fontChanged, this, redraw);
    connect(service, &kxOverlayService::fontColorChanged, this, redraw);
    connect(service, &kxOverlayService::backgroundColorChanged, this, redraw);
    connect(service, &kxOverlayService::backgroundTransparencyChanged, this, redraw);
    connect(service, &kxOverlayService::imageChanged, this, redraw);
    connect(service, &kxOverlayService::sizeTypeChanged, this, redraw);
    connect(service, &kxOverlayService::sizeChanged, this, redraw);
    connect(service, &kxOverlayService::positionChanged, this, redraw);
    connect(service, &kxOverlayService::offsetChanged, this, redraw);
}

ViewGeometry OverlayLayer::geometryOf(const QWidget &widget)
{
    const qreal scale = widget.devicePixelRatioF();
    return {(QSizeF(widget.size()) * scale).toSize(), Dpi * scale};
}

void OverlayLayer::paintEvent(QPaintEvent *)
{
    // Drawn in the display's own pixels, so that an export of that size is the same picture.
    const ViewGeometry view = geometryOf(*this);
    QPainter painter(this);
    painter.scale(1 / devicePixelRatioF(), 1 / devicePixelRatioF());
    m_draw(&painter, view.size, view.dpi);
}

} // namespace viewer
