// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

// How long the tree model needs to follow the service, beside what plain Qt items need for the same
// rows in the same run. Prints the table of docs/PERFORMANCE.md.

#include "bench/FloorTree.h"
#include "bench/Sides.h"
#include "bench/TreeCase.h"
#include "overlayeditor/model/kxOverlayQtModel.h"

#include <QCoreApplication>

#include <functional>
#include <string>
#include <vector>

namespace {

/// One operation, on the module's model and on the plain one. Both start filled.
struct Operation
{
    const char *name;
    std::function<void(kxOverlayQtModel *, TreeCase *)> module;
    std::function<void(FloorTree *)> floor;
    bool startsEmpty;
};

void moveAllIntoFirst(TreeCase *tree)
{
    QRPC::NodeList nodes = tree->topNodes();
    const QRPC::NodeId first = nodes.takeFirst();
    // Behind the last child that the first one has already.
    const int count = tree->service()->getChildCount(first);
    QRPC::NodeList afters{count > 0 ? tree->service()->getChild(first, count - 1) : 0};
    QRPC::NodeList parents;
    for (const QRPC::NodeId node : qAsConst(nodes)) {
        parents.append(first);
        afters.append(node);
    }
    Q_EMIT tree->service()->nodesMoved(nodes, parents, afters);
}

std::vector<Operation> operations()
{
    return {
        {"fill by modelReset", [](auto *model, auto *) { model->modelReset(); },
         [](auto *floor) { floor->fill(); }, true},
        {"fill by nodesAdded of all",
         [](auto *, auto *tree) { Q_EMIT tree->service()->nodesAdded(tree->allNodes()); },
         [](auto *floor) { floor->fill(); }, true},
        {"remove all",
         [](auto *, auto *tree) { Q_EMIT tree->service()->nodesRemoved(tree->topNodes()); },
         [](auto *floor) { floor->removeAll(); }, false},
        {"rename all",
         [](auto *, auto *tree) { Q_EMIT tree->service()->nameChanged(tree->allNodes()); },
         [](auto *floor) { floor->renameAll(); }, false},
        {"enable all",
         [](auto *, auto *tree) { Q_EMIT tree->service()->enabledStateChanged(tree->topNodes()); },
         [](auto *floor) { floor->enableAll(); }, false},
        {"move all into the first", [](auto *, auto *tree) { moveAllIntoFirst(tree); },
         [](auto *floor) { floor->moveAllIntoFirst(); }, false},
    };
}

void runModule(benchmark::State &state, const Operation &operation, Shape shape, int size,
               bool shown)
{
    TreeCase tree(shape, size);
    for ([[maybe_unused]] auto iteration : state) {
        kxOverlayQtModel model;
        const std::unique_ptr<QTreeView> view = makeView(shown, &model);
        if (!operation.startsEmpty)
            model.modelReset();
        QCoreApplication::processEvents();
        state.SetIterationTime(sides::secondsOf([&] { operation.module(&model, &tree); }));
    }
}

void runFloor(benchmark::State &state, const Operation &operation, Shape shape, int size,
              bool shown)
{
    TreeCase tree(shape, size);
    for ([[maybe_unused]] auto iteration : state) {
        FloorTree floor(tree.service()->scene());
        const std::unique_ptr<QTreeView> view = makeView(shown, floor.model());
        if (!operation.startsEmpty)
            floor.fill();
        QCoreApplication::processEvents();
        state.SetIterationTime(sides::secondsOf([&] { operation.floor(&floor); }));
    }
}

void addCase(const Operation &operation, Shape shape, int size, bool shown)
{
    sides::add(
        operation.name, std::string(nameOf(shape)) + (shown ? ", shown" : ""), size,
        [=](benchmark::State &state) { runModule(state, operation, shape, size, shown); },
        [=](benchmark::State &state) { runFloor(state, operation, shape, size, shown); });
}

} // namespace

void sides::addAll()
{
    for (const Operation &operation : operations()) {
        for (const Shape shape : {Shape::Flat, Shape::Groups, Shape::Deep}) {
            for (const bool shown : {false, true}) {
                for (const int size : {1000, 10000, 100000})
                    addCase(operation, shape, size, shown);
            }
        }
    }
}
