// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <benchmark/benchmark.h>

#include <functional>
#include <string>

/// What RatioReporter compares: one piece of work as the module does it and as plain Qt does it.
namespace sides {

/// The seconds that `work` takes, with what it leaves to the event loop.
double secondsOf(const std::function<void()> &work);

using Run = std::function<void(benchmark::State &state)>;

/// Registers both for one size. Each run measures its iterations by secondsOf(); `iterations` is 0
/// for as many as a steady figure needs.
void add(const std::string &operation, const std::string &tree, int size, const Run &module,
         const Run &floor, int iterations = 0);

/// Adds all that a program measures. Defined by each program, and called by the main() that comes
/// with the library once there is an application.
void addAll();

} // namespace sides
