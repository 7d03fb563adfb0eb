// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/HostServices.h"

namespace viewer {

HostServices::HostServices(MainWindow *window, std::unique_ptr<OverlayService> overlays)
    : m_controller(!window)
    , m_overlays(overlays ? std::move(overlays) : std::make_unique<OverlayService>())
    , m_mainWindow(window)
{
    if (!window)
        return;
    m_mainWindowEntry.emplace(&m_mainWindow);
    m_platformEntry.emplace(&m_platform);
}

HostServices::~HostServices() = default;

void HostServices::announceReady()
{
    emit m_base.init();
}

} // namespace viewer
