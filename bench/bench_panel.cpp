// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

// How long the property panel needs to show a whole selection anew, beside the questions that it has
// to ask the service for it, asked bare in the same run.

#include "bench/PanelQuestions.h"
#include "bench/Sides.h"
#include "bench/TreeCase.h"
#include "kit/HostFixture.h"
#include "overlayeditor/kxOverlayEditor.h"
#include "overlayeditor/kxOverlayEditorGUIW.h"

namespace {

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
        state.SetIterationTime(sides::secondsOf([&] { questions::askAll(panel.tree.allNodes()); }));
}

} // namespace

void sides::addAll()
{
    for (const int size : {1000, 10000, 100000}) {
        sides::add(
            "full refresh", "equal texts", size,
            [size](benchmark::State &state) { runModule(state, size); },
            [size](benchmark::State &state) { runFloor(state, size); });
    }
}
