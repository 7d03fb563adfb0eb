// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/Backdrop.h"

#include "viewer/app/StudioColors.h"

#include <QPainter>

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

    QRadialGradient glow(area.center(), qMax(area.width(), area.height()) * 0.55);
    QColor light = StudioColors::glow().lighter(200);
    light.setAlphaF(0.42);
    glow.setColorAt(0, light);
    light.setAlphaF(0);
    glow.setColorAt(1, light);
    painter->fillRect(area, glow);
}

// The floor begins softly, as where paper is rolled from wall to floor.
void paintFloor(QPainter *painter, const QRectF &area)
{
    QLinearGradient floor(0, area.height() * Horizon, 0, area.height());
    QColor shade(0, 0, 0);
    shade.setAlphaF(0);
    floor.setColorAt(0, shade);
    shade.setAlphaF(0.22);
    floor.setColorAt(0.35, shade);
    shade.setAlphaF(0.05);
    floor.setColorAt(1, shade);
    painter->fillRect(area, floor);
}

} // namespace

Backdrop::Backdrop(QWidget *parent) : QWidget(parent)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void Backdrop::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    paintWall(&painter, rect());
    paintFloor(&painter, rect());
    emit painted();
}

} // namespace viewer
