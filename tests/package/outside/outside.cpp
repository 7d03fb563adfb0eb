// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/QKXSlider.h"
#include "host/initPlugin.h"
#include "host/kxControllerService.h"
#include "host/kxKernelServiceFactory.h"
#include "host/kxShortcut.h"
#include "host/kxStyle.h"

#include <QApplication>
#include <QLibrary>

#include <cstdio>

namespace {

/// A service of this program's own: its class has to have one identity here and in the library.
class Controller : public kxControllerService
{
public:
    bool isHeadless() override { return true; }
};

} // namespace

/// Uses each kind of thing that the package offers: registry, widget, style and the plug-in file.
/// Says what it found, and returns 0 when all of it works.
int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    QApplication::setStyle(new kxStyle);

    Controller controller;
    auto *registry = kxKernelServiceFactory::the();
    registry->registerService<kxControllerService>(&controller);
    const bool found = registry->getService<kxControllerService>() == &controller;
    registry->unregisterService<kxControllerService>();

    QKXSlider slider;
    slider.setValue(12.5);
    kxShortcut::addKey(QStringLiteral("Outside"), Qt::Key_F1, 0, QStringLiteral("Help"));

    QLibrary plugin(QStringLiteral(PLUGIN));
    plugin.setLoadHints(QLibrary::ResolveAllSymbolsHint);
    using Entry = decltype(&initPlugin);
    const auto entry = reinterpret_cast<Entry>(plugin.resolve("initPlugin"));
    if (!entry)
        std::fprintf(stderr, "%s\n", qPrintable(plugin.errorString()));

    std::printf("registry %d, slider %g, keys %d, entry %d, from %s\n", int(found), slider.value(),
                kxShortcut::registeredKeys().size(), int(entry != nullptr), PLUGIN);
    return found && entry ? 0 : 1;
}
