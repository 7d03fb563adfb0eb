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

QImage OverlayLayer::picture(const ViewGeometry &view, const Draw &draw)
{
    QImage image(view.size, QImage::Format_ARGB32_Premultiplied);
    if (image.isNull())
        return image;
    image.fill(Qt::transparent);
    QPainter painter(&image);
    draw(&painter, view.size, view.dpi);
    return image;
}

void OverlayLayer::paintEvent(QPaintEvent *)
{
    QImage image = picture(geometryOf(*this), m_draw);
    image.setDevicePixelRatio(devicePixelRatioF());
    QPainter(this).drawImage(0, 0, image);
}

} // namespace viewer
