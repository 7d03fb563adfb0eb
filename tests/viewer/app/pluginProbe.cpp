// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

// A module that tells on standard error, once all is ready, what the modules loaded before it have
// done: how many follow the tree, and how many windows there are.

#include "host/initPlugin.h"
#include "host/kxControllerService.h"
#include "host/kxOverlayService.h"
#include "tests/viewer/app/registered.h"

#include <QApplication>

#include <cstdio>

namespace {

// Listeners are counted by a protected function of every object.
struct Countable : kxOverlayService
{
    static constexpr auto count = &Countable::receivers;
};

void report()
{
    const char *signal = SIGNAL(nodesMoved(QRPC::NodeList, QRPC::NodeList, QRPC::NodeList));
    std::fprintf(stderr, "headless %d, trees %d, windows %d\n",
                 registered<kxControllerService>()->isHeadless(),
                 (registered<kxOverlayService>()->*Countable::count)(signal),
                 QApplication::topLevelWidgets().size());
}

} // namespace

void initPlugin()
{
    QObject::connect(registered<kxBaseService>(), &kxBaseService::init, [] { report(); });
}
