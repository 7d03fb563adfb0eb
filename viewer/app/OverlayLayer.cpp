// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/OverlayLayer.h"

#include "host/kxOverlayService.h"

#include <QPainter>

namespace viewer {

namespace {

using Announcement = void (kxOverlayService::*)(const QRPC::NodeList &);

// All that the picture depends on; names are not drawn, and nodesCreated() follows nodesAdded().
const Announcement s_visibleChanges[] = {
    &kxOverlayService::nodesAdded,
    &kxOverlayService::nodesRemoved,
    &kxOverlayService::overlayTypeChanged,
    &kxOverlayService::textChanged,
    &kxOverlayService::fontChanged,
    &kxOverlayService::fontColorChanged,
    &kxOverlayService::backgroundColorChanged,
    &kxOverlayService::backgroundTransparencyChanged,
    &kxOverlayService::imageChanged,
    &kxOverlayService::sizeTypeChanged,
    &kxOverlayService::sizeChanged,
    &kxOverlayService::positionChanged,
    &kxOverlayService::offsetChanged,
    &kxOverlayService::enabledStateChanged,
};

} // namespace

OverlayLayer::OverlayLayer(kxOverlayService *service, Draw draw, QWidget *parent)
    : QWidget(parent)
    , m_draw(std::move(draw))
{
    setObjectName(QStringLiteral("overlayLayer"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    for (const Announcement change : s_visibleChanges)
        connect(service, change, this, &OverlayLayer::redraw);
    connect(service, &kxOverlayService::nodesMoved, this, &OverlayLayer::redraw);
    connect(service, &kxOverlayService::modelReset, this, &OverlayLayer::redraw);
}

void OverlayLayer::paintEvent(QPaintEvent *)
{
    // Drawn in the display's own pixels, so that an export of that size is the same picture.
    const qreal scale = devicePixelRatioF();
    QPainter painter(this);
    painter.scale(1 / scale, 1 / scale);
    m_draw(&painter, (QSizeF(size()) * scale).toSize(), Dpi * scale);
}

void OverlayLayer::redraw()
{
    update();
}

} // namespace viewer
