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

void OverlayLayer::paintEvent(QPaintEvent *)
{
    // Drawn in the display's own pixels, so that an export of that size is the same picture.
    const qreal scale = devicePixelRatioF();
    QPainter painter(this);
    painter.scale(1 / scale, 1 / scale);
    m_draw(&painter, (QSizeF(size()) * scale).toSize(), Dpi * scale);
}

} // namespace viewer
