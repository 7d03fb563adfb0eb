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
#include <QRegularExpression>

namespace conformance {

namespace {

template<class T>
T &service(const char *name)
{
    T *found = kxKernelServiceFactory::the()->getService<T>();
    expect(name, found != nullptr);
    return *found;
}

/// A window that the host was given.
QPointer<QWidget> registered(kxMainWindowService *main, const QString &name)
{
    QPointer<QWidget> window = new QMainWindow(main->getMainWindow());
    main->registerModule(name, "Scene", window, "Conformance_Help", QIcon(), name, 0);
    return window;
}

bool isHeadless()
{
    return service<kxControllerService>("kxControllerService is registered").isHeadless();
}

} // namespace

// One table, long as it has an entry for each check.
HostChecks servicesChecks() // NOLINT(readability-function-size)
{
    return {
        {"services.base", "An object is registered under kxBaseService itself.",
         [](HostBench &) { service<kxBaseService>("kxBaseService is registered"); }},
        {"services.controller", "The controller service is registered and keeps to its answer.",
         [](HostBench &) { expectEqual("second answer", isHeadless(), isHeadless()); }},
        {"services.fileIO",
         "The file service names image files in the form of file dialogs, or restricts nothing.",
         [](HostBench &) {
             const QString all =
                 service<kxFileIOService>("kxFileIOService is registered").getImageFileFilter();
             static const QRegularExpression form(R"(\([^()]*\*[^()]*\)$)");
             const QStringList filters = all.split(";;", Qt::SkipEmptyParts);
             for (const QString &filter : filters)
                 expectEqual("patterns in brackets", form.match(filter).hasMatch(), true);
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
             const QPointer<QWidget> window = registered(&main, "Conformance");
             expect("the window is alive", !window.isNull());
             window->show();
             expect("the window is alive after it was shown", !window.isNull());
             expect("the host's main window holds it",
                    main.getMainWindow()->isAncestorOf(window) || window->isWindow());
         }},
        {"services.registerTwice", "A name that is registered twice keeps its first window.",
         [](HostBench &) {
             if (isHeadless())
                 return;
             auto &main = service<kxMainWindowService>("kxMainWindowService is registered");
             const QPointer<QWidget> first = registered(&main, "Conformance Twice");
             const QWidget *place = first->parentWidget();
             // How the host says so is its own affair.
             const QtMessageHandler handler = qInstallMessageHandler(
                 [](QtMsgType, const QMessageLogContext &, const QString &) {});
             const QPointer<QWidget> second = registered(&main, "Conformance Twice");
             qInstallMessageHandler(handler);
             expect("the first is alive", !first.isNull());
             expect("the first keeps its place", first->parentWidget() == place);
             expect("the second is alive", !second.isNull());
             expect("the second is not taken in", second->parentWidget() == main.getMainWindow());
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
