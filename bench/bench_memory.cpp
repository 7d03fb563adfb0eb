// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

// How much memory the tree model takes, beside plain Qt items for the same rows. Prints a table of
// docs/PERFORMANCE.md.

#include "bench/FloorTree.h"
#include "bench/TreeCase.h"
#include "overlayeditor/model/kxOverlayQtModel.h"

#include <QApplication>

#include <cstdio>
#include <functional>
#include <malloc.h>
#include <memory>

namespace {

/// The bytes that `fill` leaves allocated.
double bytesOf(const std::function<void()> &fill)
{
    const std::size_t before = mallinfo2().uordblks;
    fill();
    return double(mallinfo2().uordblks - before);
}

double bytesOfModule(TreeCase *tree)
{
    std::unique_ptr<kxOverlayQtModel> model;
    const double bytes = bytesOf([&] {
        model = std::make_unique<kxOverlayQtModel>();
        Q_EMIT tree->service()->modelReset();
    });
    return bytes;
}

double bytesOfFloor(TreeCase *tree)
{
    std::unique_ptr<FloorTree> floor;
    return bytesOf([&] {
        floor = std::make_unique<FloorTree>(tree->service()->scene());
        floor->fill();
    });
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication app(argc, argv);
    std::printf("| tree | nodes | module: bytes a node | floor | ratio |\n"
                "|---|---:|---:|---:|---:|\n");
    for (const Shape shape : {Shape::Flat, Shape::Groups, Shape::Deep}) {
        for (const int size : {1000, 10000, 100000}) {
            TreeCase tree(shape, size);
            // What is made once for all trees is no part of the first one.
            bytesOfModule(&tree);
            const double module = bytesOfModule(&tree);
            const double floor = bytesOfFloor(&tree);
            std::printf("| %s | %d | %.0f | %.0f | %.2f |\n", nameOf(shape), size, module / size,
                        floor / size, module / floor);
        }
    }
    return 0;
}
