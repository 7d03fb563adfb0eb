// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

// The program around what is measured in sides. Programs that bring a main() of their own leave this
// one in the library.

#include "bench/RatioReporter.h"
#include "bench/Sides.h"

#include <QApplication>

int main(int argc, char **argv)
{
    const QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    sides::addAll();
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return 0;
}
