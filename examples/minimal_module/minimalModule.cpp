// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/initPlugin.h"
#include "host/kxControllerService.h"
#include "host/kxKernelServiceFactory.h"
#include "host/kxMainWindowService.h"
#include "host/kxOverlayService.h"

#include <QIcon>
#include <QLabel>

namespace {

//! [count]
kxOverlayService *overlays()
{
    return kxKernelServiceFactory::the()->getService<kxOverlayService>();
}

int countBelow(QRPC::NodeId node)
{
    int count = overlays()->isOverlay(node) ? 1 : 0;
    for (int row = 0; row < overlays()->getChildCount(node); ++row)
        count += countBelow(overlays()->getChild(node, row));
    return count;
}
//! [count]

//! [panel]
/// Says how many overlays the scene has. Owned by the host's main window. GUI thread only.
class Counter : public QLabel
{
public:
    explicit Counter(QWidget *parent) : QLabel(parent)
    {
        const kxOverlayService *service = overlays();
        connect(service, &kxOverlayService::modelReset, this, &Counter::count);
        connect(service, &kxOverlayService::nodesAdded, this, &Counter::count);
        connect(service, &kxOverlayService::nodesRemoved, this, &Counter::count);
    }

private:
    void count()
    {
        const int number = countBelow(overlays()->getRootNode());
        setText(QStringLiteral("%1 overlays").arg(number));
    }
};
//! [panel]

} // namespace

//! [entry]
void initPlugin()
{
    auto *registry = kxKernelServiceFactory::the();
    static bool isBuilt = false;
    if (isBuilt || registry->getService<kxControllerService>()->isHeadless())
        return;
    auto *windows = registry->getService<kxMainWindowService>();
    auto *counter = new Counter(windows->getMainWindow());
    windows->registerModule(QStringLiteral("Overlay Counter"), QStringLiteral("Scene"), counter,
                            QString(), QIcon(), QStringLiteral("Overlay Count"), 0);
    isBuilt = true;
}
//! [entry]
