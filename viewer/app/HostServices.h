// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/kxBaseService.h"
#include "host/kxKernelServiceFactory.h"
#include "viewer/app/ControllerService.h"
#include "viewer/app/FileIOService.h"
#include "viewer/app/MainWindowService.h"
#include "viewer/app/PlatformService.h"
#include "viewer/scene/OverlayService.h"

#include <memory>
#include <optional>

namespace viewer {

/// Keeps one service in the registry for as long as it lives itself.
template<class T>
class ServiceRegistration
{
public:
    explicit ServiceRegistration(T *service)
    {
        kxKernelServiceFactory::the()->registerService<T>(service);
    }
    ~ServiceRegistration() { kxKernelServiceFactory::the()->unregisterService<T>(); }
    Q_DISABLE_COPY(ServiceRegistration)
};

/// All services that modules find in this host, registered from construction to destruction. Made
/// before the first module is loaded; goes after the main window, because what modules put into it
/// asks services to the last. GUI thread only.
class HostServices
{
public:
    /// A run with a window, or without user interface when `window` is null: modules then find no
    /// main window and no platform service. `overlays` stands in for a plain overlay service.
    explicit HostServices(MainWindow *window, std::unique_ptr<OverlayService> overlays = nullptr);
    ~HostServices();
    Q_DISABLE_COPY(HostServices)

    OverlayService *overlays() { return m_overlays.get(); }

    /// Tells all modules that everything is loaded.
    void announceReady();

private:
    kxBaseService m_base;
    ControllerService m_controller;
    FileIOService m_files;
    const std::unique_ptr<OverlayService> m_overlays;
    MainWindowService m_mainWindow;
    PlatformService m_platform;

    // Behind the services, so that each is unregistered before it goes.
    ServiceRegistration<kxBaseService> m_baseEntry{&m_base};
    ServiceRegistration<kxControllerService> m_controllerEntry{&m_controller};
    ServiceRegistration<kxFileIOService> m_filesEntry{&m_files};
    ServiceRegistration<kxOverlayService> m_overlaysEntry{m_overlays.get()};
    std::optional<ServiceRegistration<kxMainWindowService>> m_mainWindowEntry;
    std::optional<ServiceRegistration<kxPlatformService>> m_platformEntry;
};

} // namespace viewer
