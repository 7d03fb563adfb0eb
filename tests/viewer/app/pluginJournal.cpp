// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

// A module with a window that writes down, in the application's property "journal", what its host
// does and when.

#include "host/initPlugin.h"
#include "host/kxMainWindowService.h"
#include "host/kxOverlayService.h"
#include "tests/viewer/app/registered.h"

#include <QCoreApplication>
#include <QIcon>
#include <QVariant>
#include <QWidget>

namespace {

void note(const char *event)
{
    const QStringList journal = qApp->property("journal").toStringList();
    qApp->setProperty("journal", journal + QStringList(QString::fromLatin1(event)));
}

} // namespace

void initPlugin()
{
    note("initPlugin");
    auto *windows = registered<kxMainWindowService>();
    auto *window = new QWidget(windows->getMainWindow());
    windows->registerModule("Journal", "Scene", window, QString(), QIcon(), "Journal", 0);
    QObject::connect(registered<kxOverlayService>(), &kxOverlayService::modelReset, window,
                     [] { note("modelReset"); });
    QObject::connect(registered<kxBaseService>(), &kxBaseService::init, window,
                     [] { note("init"); });
    // What goes with the window still finds the services.
    QObject::connect(window, &QObject::destroyed,
                     [] { note(registered<kxOverlayService>() ? "gone" : "gone too late"); });
}
