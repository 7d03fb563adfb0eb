// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

// How long undo takes after each kind of operation on all nodes of a scene, and how that grows with
// the scene.

#include "viewer/scene/OverlayService.h"

#include <benchmark/benchmark.h>

#include <QGuiApplication>

#include <string>

using QRPC::NodeList;
using viewer::OverlayService;
using viewer::Scene;

namespace {

constexpr int GroupSize = 100;

/// Overlays in groups of a hundred. Gives the overlays.
NodeList fill(OverlayService *service, int nodes)
{
    NodeList overlays;
    for (int i = 0; i < nodes / GroupSize; ++i) {
        const QRPC::NodeId group = service->createGroup(Scene::RootId);
        for (int j = 1; j < GroupSize; ++j)
            overlays.append(service->createOverlay(group));
    }
    return overlays;
}

using Operation = void (*)(OverlayService *service, const NodeList &overlays);

struct Case
{
    const char *name;
    Operation operation;
};

const Case cases[] = {
    {"create one", [](auto *s, auto &) { s->createOverlay(Scene::RootId); }},
    {"rename one", [](auto *s, auto &o) { s->setName(o.mid(0, 1), QStringLiteral("x")); }},
    {"set colour of all", [](auto *s, auto &o) { s->setFontColor(o, Qt::red); }},
    {"set offset of all", [](auto *s, auto &o) { s->setOffset(o, QPointF(1, 2)); }},
    {"switch all off", [](auto *s, auto &o) { s->setEnabled(o, false); }},
    {"duplicate all", [](auto *s, auto &o) { s->duplicateNodes(o); }},
    {"delete all", [](auto *s, auto &o) { s->deleteNodes(o); }},
    {"group all", [](auto *s, auto &o) { s->groupNodes(o); }},
    {"move all", [](auto *s, auto &o) { s->moveNodes(o, Scene::RootId, 0); }},
};

void undo(benchmark::State &state, Operation operation)
{
    OverlayService service;
    operation(&service, fill(&service, int(state.range(0))));
    for (auto _ : state) {
        service.undo();
        state.PauseTiming();
        service.redo();
        state.ResumeTiming();
    }
}

void atBothSizes(benchmark::internal::Benchmark *benchmark)
{
    benchmark->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);
}

} // namespace

int main(int argc, char **argv)
{
    const QGuiApplication application(argc, argv);
    for (const Case &entry : cases) {
        const Operation operation = entry.operation;
        atBothSizes(benchmark::RegisterBenchmark(
            (std::string("undo ") + entry.name).c_str(),
            [operation](benchmark::State &state) { undo(state, operation); }));
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
