// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/Backdrop.h"

#include "viewer/app/OverlayLayer.h"
#include "viewer/app/StudioColors.h"

#include <QPainter>

#include <cmath>

namespace viewer {

namespace {

constexpr qreal Horizon = 0.72;

// The wall with a glow in its middle.
void paintWall(QPainter *painter, const QRectF &area)
{
    QLinearGradient wall(area.topLeft(), area.bottomLeft());
    wall.setColorAt(0, StudioColors::above());
    wall.setColorAt(1, StudioColors::below());
    painter->fillRect(area, wall);

    // Light adds up; the stops follow the bell curve of the 3D view's wall.
    QRadialGradient glow(area.width() * 0.5, area.height() * 0.44, area.height());
    const QColor light = StudioColors::glow();
    for (qreal reach = 0; reach < 1.05; reach += 0.1) {
        const qreal fall = std::exp(-reach * reach * 3.2);
        glow.setColorAt(
            qMin(reach, 1.0),
            QColor::fromRgbF(light.redF() * fall, light.greenF() * fall, light.blueF() * fall));
    }
    painter->setCompositionMode(QPainter::CompositionMode_Plus);
    painter->fillRect(area, glow);
    painter->setCompositionMode(QPainter::CompositionMode_SourceOver);
}

// The floor begins softly, as where paper is rolled from wall to floor.
void paintFloor(QPainter *painter, const QRectF &area)
{
    QLinearGradient floor(0, area.height() * Horizon, 0, area.height());
    QColor shade(0, 0, 0);
    shade.setAlphaF(0);
    floor.setColorAt(0, shade);
    shade.setAlphaF(0.16);
    floor.setColorAt(0.35, shade);
    shade.setAlphaF(0.02);
    floor.setColorAt(1, shade);
    painter->fillRect(area, floor);
}

} // namespace

Backdrop::Backdrop(QWidget *parent) : QWidget(parent)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
}

// Put on the window as a picture of its own, as an export is: gradients that are drawn elsewhere in a
// window are rounded otherwise. It also lasts, while the overlays above it change.
void Backdrop::paintEvent(QPaintEvent *)
{
    const QSize size = OverlayLayer::geometryOf(*this).size;
    if (m_picture.size() != size)
        m_picture = picture(size);
    m_picture.setDevicePixelRatio(devicePixelRatioF());
    QPainter(this).drawImage(0, 0, m_picture);
    emit painted();
}

QImage Backdrop::picture(const QSize &size)
{
    QImage image(size, QImage::Format_RGB32);
    if (image.isNull())
        return image;
    QPainter painter(&image);
    paintWall(&painter, image.rect());
    paintFloor(&painter, image.rect());
    return image;
}

} // namespace viewer
