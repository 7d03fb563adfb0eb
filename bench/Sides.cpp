// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "bench/Sides.h"

#include <QCoreApplication>
#include <QElapsedTimer>

#include <utility>

double sides::secondsOf(const std::function<void()> &work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    QCoreApplication::processEvents();
    return double(timer.nsecsElapsed()) * 1e-9;
}

void sides::add(const std::string &operation, const std::string &tree, int size, const Run &module,
                const Run &floor, int iterations)
{
    const std::string name = operation + '|' + tree + '|' + std::to_string(size) + '|';
    const std::pair<const char *, const Run &> both[] = {{"module", module}, {"floor", floor}};
    for (const auto &side : both) {
        auto *bench = benchmark::RegisterBenchmark((name + side.first).c_str(), side.second);
        bench->UseManualTime()->Unit(benchmark::kMillisecond)->Repetitions(3);
        if (iterations > 0)
            bench->Iterations(iterations);
        else
            bench->MinTime(0.05);
    }
}
