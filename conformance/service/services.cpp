// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "conformance/service/hostChecks.h"
#include "host/kxControllerService.h"
#include "host/kxFileIOService.h"
#include "host/kxKernelServiceFactory.h"
#include "host/kxMainWindowService.h"
#include "host/kxPlatformService.h"

#include <QIcon>
#include <QMainWindow>
#include <QPointer>

namespace conformance {

namespace {

template<class T>
T &service(const char *name)
{
    T *found = kxKernelServiceFactory::the()->getService<T>();
    expect(name, found != nullptr);
    return *found;
}

bool isHeadless()
{
    return service<kxControllerService>("kxControllerService is registered").isHeadless();
}

} // namespace

HostChecks servicesChecks()
{
    return {
        {"services.base", "An object is registered under kxBaseService itself.",
         [](HostBench &) { service<kxBaseService>("kxBaseService is registered"); }},
        {"services.controller", "The controller service is registered and keeps to its answer.",
         [](HostBench &) { expectEqual("second answer", isHeadless(), isHeadless()); }},
        {"services.fileIO", "The file service names image files in the form of file dialogs.",
         [](HostBench &) {
             const QString filter =
                 service<kxFileIOService>("kxFileIOService is registered").getImageFileFilter();
             expect("the filter names a pattern", filter.contains(QLatin1String("*.")));
             expect("the patterns stand in brackets", filter.contains('(') && filter.contains(')'));
         }},
        {"services.mainWindow", "With a user interface there is a main window.",
         [](HostBench &) {
             if (isHeadless())
                 return;
             auto &main = service<kxMainWindowService>("kxMainWindowService is registered");
             expect("there is a main window", main.getMainWindow() != nullptr);
             expect("it stays the same", main.getMainWindow() == main.getMainWindow());
         }},
        {"services.registerModule", "A registered window is taken in and can be shown.",
         [](HostBench &) {
             if (isHeadless())
                 return;
             auto &main = service<kxMainWindowService>("kxMainWindowService is registered");
             const QPointer<QWidget> window = new QMainWindow(main.getMainWindow());
             main.registerModule("Conformance", "Scene", window, "Conformance_Help", QIcon(),
                                 "Conformance", 0);
             expect("the window is alive", !window.isNull());
             window->show();
             expect("the window is alive after it was shown", !window.isNull());
             expect("the host's main window holds it",
                    main.getMainWindow()->isAncestorOf(window) || window->isWindow());
         }},
        {"services.platform", "With a user interface the scale of the display is above 0.",
         [](HostBench &) {
             if (isHeadless())
                 return;
             auto &platform = service<kxPlatformService>("kxPlatformService is registered");
             expect("the horizontal factor is above 0", platform.getScaleFactorX() > 0);
             expect("the vertical factor is above 0", platform.getScaleFactorY() > 0);
             expect("the icon width is above 0", platform.getIconWidth() > 0);
             expect("the icon height is above 0", platform.getIconHeight() > 0);
         }},
    };
}

} // namespace conformance
