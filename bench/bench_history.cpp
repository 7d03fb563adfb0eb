// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

// How long undo takes after each kind of operation on all nodes of a scene, and how that grows with
// the scene; with it, reading and writing the scene's file.

#include "viewer/scene/OverlayService.h"
#include "viewer/scene/SceneReader.h"
#include "viewer/scene/SceneWriter.h"

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

QByteArray fileOf(const OverlayService &service)
{
    return viewer::SceneWriter::content(service.scene(), QStringLiteral("/tmp/a.json"), nullptr);
}

void write(benchmark::State &state)
{
    OverlayService service;
    fill(&service, int(state.range(0)));
    for (auto _ : state)
        benchmark::DoNotOptimize(fileOf(service));
}

void read(benchmark::State &state)
{
    OverlayService service;
    fill(&service, int(state.range(0)));
    const QByteArray file = fileOf(service);
    for (auto _ : state)
        benchmark::DoNotOptimize(viewer::SceneReader::parse(file, QStringLiteral("/tmp/a.json")));
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
    atBothSizes(benchmark::RegisterBenchmark("write", write));
    atBothSizes(benchmark::RegisterBenchmark("read", read));
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
