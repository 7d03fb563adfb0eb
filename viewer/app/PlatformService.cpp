// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/PlatformService.h"

#include <QGuiApplication>
#include <QScreen>

namespace viewer {

namespace {

constexpr double UsualDensity = 96.0;
constexpr double IconSize = 16.0;

} // namespace

// A session without a screen, as between two displays, is taken for a usual one.
double PlatformService::getScaleFactorX()
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    return screen ? screen->logicalDotsPerInchX() / UsualDensity : 1.0;
}

double PlatformService::getScaleFactorY()
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    return screen ? screen->logicalDotsPerInchY() / UsualDensity : 1.0;
}

int PlatformService::getIconWidth()
{
    return qMax(1, qRound(IconSize * getScaleFactorX()));
}

int PlatformService::getIconHeight()
{
    return qMax(1, qRound(IconSize * getScaleFactorY()));
}

} // namespace viewer
