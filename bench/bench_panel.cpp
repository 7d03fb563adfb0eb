// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

// How long the property panel needs to show a whole selection anew, beside the questions that it has
// to ask the service for it, asked bare in the same run.

#include "bench/Sides.h"
#include "bench/TreeCase.h"
#include "host/kxKernelServiceFactory.h"
#include "kit/HostFixture.h"
#include "overlayeditor/kxOverlayEditor.h"
#include "overlayeditor/kxOverlayEditorGUIW.h"

namespace {

/// One question to each node, each through the registry as a module asks; `repeats` times.
template<class T>
void ask(T (kxOverlayService::*getter)(QRPC::NodeId), const QRPC::NodeList &nodes, int repeats)
{
    for (int i = 0; i < repeats; ++i) {
        for (const QRPC::NodeId node : nodes) {
            auto *service = kxKernelServiceFactory::the()->getService<kxOverlayService>();
            benchmark::DoNotOptimize((service->*getter)(node));
        }
    }
}

/// The questions of a full refresh for texts that are equal in everything.
void askAll(const QRPC::NodeList &nodes)
{
    using S = kxOverlayService;
    ask(&S::isOverlay, nodes, 11);
    ask(&S::getOverlayType, nodes, 7);
    ask(&S::getName, nodes, 1);
    ask(&S::getText, nodes, 1);
    ask(&S::getFont, nodes, 1);
    ask(&S::getFontColor, nodes, 1);
    ask(&S::getBackgroundColor, nodes, 1);
    ask(&S::getBackgroundTransparency, nodes, 1);
    ask(&S::getSizeType, nodes, 1);
    ask(&S::getSize, nodes, 2);
    ask(&S::getPosition, nodes, 1);
    ask(&S::getOffset, nodes, 2);
}

/// A host and the viewer's service with overlays that are equal in everything.
struct PanelCase
{
    explicit PanelCase(int size) : tree(Shape::Flat, size)
    {
        tree.service()->setName(tree.allNodes(), QStringLiteral("Overlay"));
    }

    HostFixture host;
    TreeCase tree;
};

void runModule(benchmark::State &state, int size)
{
    PanelCase panel(size);
    kxOverlayEditor editor;
    Q_EMIT panel.tree.service()->modelReset();
    QMetaObject::invokeMethod(&editor, "selectAll");
    for ([[maybe_unused]] auto iteration : state)
        state.SetIterationTime(sides::secondsOf([&] { editor.updateAll(); }));
}

void runFloor(benchmark::State &state, int size)
{
    const PanelCase panel(size);
    for ([[maybe_unused]] auto iteration : state)
        state.SetIterationTime(sides::secondsOf([&] { askAll(panel.tree.allNodes()); }));
}

} // namespace

void sides::addAll()
{
    for (const int size : {1000, 10000}) {
        sides::add(
            "full refresh", "equal texts", size,
            [size](benchmark::State &state) { runModule(state, size); },
            [size](benchmark::State &state) { runFloor(state, size); });
    }
}
