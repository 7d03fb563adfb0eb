// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "conformance/module/MouseDrag.h"
#include "conformance/module/moduleChecks.h"
#include "kit/DropCase.h"

#include <QLineEdit>
#include <QPersistentModelIndex>

#include <algorithm>

namespace conformance {

namespace {

using Nodes = QRPC::NodeList;
using Edge = DropCase::Edge;

/// Drags what is selected by the row of `from`.
void drag(ModuleBench &bench, QRPC::NodeId from, QRPC::NodeId to, Edge edge,
          const std::function<void()> &beforeDrop = nullptr)
{
    QTreeView &tree = bench.tree();
    MouseDrag drag(tree.viewport(), [&bench, &tree, to, edge] {
        return DropCase::placeOf(tree, bench.index(to), edge);
    });
    drag.setBeforeDrop(beforeDrop);
    const QRect row = tree.visualRect(bench.item(from).index());
    expect("the row can be dragged", drag.runFrom(QPoint(row.left() + 30, row.center().y())));
}

void expectOpen(ModuleBench &bench, const Nodes &open, const Nodes &closed)
{
    for (const QRPC::NodeId node : open)
        expect("an open group stays open", bench.tree().isExpanded(bench.item(node).index()));
    for (const QRPC::NodeId node : closed)
        expect("a closed group stays closed", !bench.tree().isExpanded(bench.item(node).index()));
}

ModuleChecks caseChecks()
{
    ModuleChecks checks;
    for (const DropCase &each : DropCase::all()) {
        const auto run = [each](ModuleBench &bench) {
            bench.openShown(each.before);
            bench.select(each.picked);
            const QStringList calls = bench.commandsOf(
                [&] { drag(bench, each.picked.constLast(), each.target, each.edge); });
            expectEqual("calls", calls, QStringList(QStringLiteral("moveNodes ") + each.call));
            bench.expectSettled();
            expectEqual("tree", bench.shown(), QString(each.after));
            Nodes moved = each.picked;
            std::sort(moved.begin(), moved.end());
            expectEqual("selection", bench.selected(), moved);
        };
        const QString name = QString(each.name).remove(',').replace(' ', '_');
        checks.push_back(
            {QStringLiteral("mouse.") + name,
             QStringLiteral("A drag is one call; afterwards the tree shows the service "
                            "and what was dragged is selected."),
             run, Stage::Running});
    }
    return checks;
}

/// What the service does while the button is down.
struct Change
{
    const char *name;
    void (*make)(RecordingService &service);
};

const Change s_changes[] = {
    {"rename",
     [](RecordingService &s) {
         s.setName({2, 3}, "new");
     }},
    {"switchOff", [](RecordingService &s) { s.setEnabled({2}, false); }},
    {"switchOffTarget", [](RecordingService &s) { s.setEnabled({5}, false); }},
    {"remove", [](RecordingService &s) { s.deleteNodes({2}); }},
    {"removeAnother", [](RecordingService &s) { s.deleteNodes({7}); }},
    {"removeChild", [](RecordingService &s) { s.deleteNodes({3}); }},
    {"removeTarget", [](RecordingService &s) { s.deleteNodes({5}); }},
    {"addChild", [](RecordingService &s) { s.createOverlay(2); }},
    {"addAbove", [](RecordingService &s) { Q_EMIT s.nodesAdded(s.insert(1, 0, "x20")); }},
    {"addToTarget", [](RecordingService &s) { s.createGroup(5); }},
    {"moveElsewhere", [](RecordingService &s) { s.moveNodes({2}, 8, -1); }},
    {"moveChildOut", [](RecordingService &s) { s.moveNodes({3}, 1, 0); }},
    {"moveTarget", [](RecordingService &s) { s.moveNodes({5}, 8, -1); }},
    {"group",
     [](RecordingService &s) {
         s.groupNodes({2, 7});
     }},
    {"reset", [](RecordingService &s) { Q_EMIT s.modelReset(); }},
};

ModuleChecks changeChecks()
{
    ModuleChecks checks;
    for (const Change &change : s_changes) {
        const auto run = [change](ModuleBench &bench) {
            bench.openShown("g2(a3 b4) h5(c6) d7 k8() e9");
            bench.select({2});
            drag(bench, 2, 5, Edge::On, [&bench, change] {
                change.make(bench.service());
                bench.tree().expandAll();
                bench.log().clear();
            });
            const QStringList commands = bench.log().commands();
            expectEqual("calls", commands.size(), 1);
            expect("the drop moves nodes", commands.constFirst().startsWith("moveNodes"));
            bench.expectSettled();
        };
        checks.push_back({QStringLiteral("mouse.during.") + change.name,
                          "What the service changes during a drag shows when the drag is over.",
                          run, Stage::Running});
    }
    return checks;
}

// One table, long as it has an entry for each check.
ModuleChecks openChecks() // NOLINT(readability-function-size)
{
    return {
        {"mouse.othersStayOpen", "Groups that were not dragged stay open or closed.",
         [](ModuleBench &bench) {
             bench.openShown("g2(a3) h4(b5 k6(c7)) m8(d9) n10()");
             bench.tree().collapse(bench.index(8));
             bench.select({3});
             drag(bench, 3, 4, Edge::On);
             bench.expectSettled();
             expectOpen(bench, {4, 6}, {8});
         }},
        {"mouse.closedTarget", "A closed group stays closed, and is where the keyboard goes on.",
         [](ModuleBench &bench) {
             bench.openShown("a2 g3(b4) c5");
             bench.tree().collapse(bench.index(3));
             bench.select({2});
             drag(bench, 2, 3, Edge::On);
             bench.expectSettled();
             expectOpen(bench, {}, {3});
             expectEqual("selection", bench.selected(), Nodes({2}));
             expect("the group is current", bench.tree().currentIndex() == bench.index(3));
         }},
        {"mouse.draggedStayOpen", "Groups that were dragged stay open or closed.",
         [](ModuleBench &bench) {
             bench.openShown("g2(h3(a4) k5(b6)) m7()");
             bench.tree().collapse(bench.index(5));
             bench.select({2});
             drag(bench, 2, 7, Edge::On);
             bench.expectSettled();
             expectOpen(bench, {2, 3}, {5});
         }},
        {"mouse.reorderedStayOpen", "Groups whose rows are put into order stay open.",
         [](ModuleBench &bench) {
             bench.openShown("g2(k3(a4)) g5(k6(a7)) g8(k9(a10)) g11(k12(a13)) h14(b15)");
             bench.select({9, 3, 12, 6});
             drag(bench, 6, 14, Edge::On);
             bench.expectSettled();
             expectOpen(bench, {3, 6, 9, 12}, {});
         }},
        {"mouse.refusedStaysOpen", "Where the service refuses a move all stays as it was.",
         [](ModuleBench &bench) {
             bench.openShown("g2(h3(a4) k5(b6)) m7(c8) n9(d10)");
             bench.tree().collapse(bench.index(5));
             bench.tree().collapse(bench.index(9));
             bench.service().setApplies(false);
             bench.select({9, 2});
             drag(bench, 2, 7, Edge::On);
             bench.expectSettled();
             expectOpen(bench, {2, 3, 7}, {5, 9});
         }},
        {"mouse.placeOfService",
         "Where the service chooses the place, rows that were not dragged stay.",
         [](ModuleBench &bench) {
             bench.openShown("g2(a3) h4(b5) k6(c7) m8(d9)");
             bench.inTheNextCommand([&bench] {
                 bench.service().place(6, 1, -1);
                 bench.service().place(8, 1, -1);
             });
             const QPersistentModelIndex first(bench.index(2));
             const QPersistentModelIndex second(bench.index(4));
             bench.select({6, 8});
             drag(bench, 8, 2, Edge::Above);
             bench.expectSettled();
             expect("the rows are the same", first.isValid() && second.isValid());
             expectOpen(bench, {2, 4, 6, 8}, {});
         }},
        {"mouse.keepsData", "What else a dragged row holds goes along.",
         [](ModuleBench &bench) {
             bench.openShown("g2(a3) h4() b5");
             for (const QRPC::NodeId node : {2, 3, 5})
                 bench.item(node).setToolTip(QString::number(node));
             bench.select({5, 2});
             drag(bench, 2, 4, Edge::On);
             bench.expectSettled();
             for (const QRPC::NodeId node : {2, 3, 5})
                 expectEqual("tip", bench.item(node).toolTip(), QString::number(node));
         }},
    };
}

/// The service does more in a move than it was asked for, and says nothing about it.
ModuleChecks silentChecks()
{
    return {
        {"mouse.silent.nested", "Of what is dragged the service may put one into another.",
         [](ModuleBench &bench) {
             bench.openShown("g2(a3) g4(b5) h6()");
             bench.select({2, 4});
             bench.inTheNextCommand([&bench] { bench.service().place(4, 2, -1); });
             drag(bench, 4, 6, Edge::On);
             bench.expectSettled();
             expectEqual("tree", bench.shown(), QString("h6(g2(a3 g4(b5)))"));
         }},
        {"mouse.silent.insideOut", "The service may put the group of the target into the target.",
         [](ModuleBench &bench) {
             bench.openShown("g2(h3(a4)) b5");
             bench.select({5});
             bench.inTheNextCommand([&bench] {
                 bench.service().place(3, 1, -1);
                 bench.service().place(2, 3, 0);
             });
             drag(bench, 5, 3, Edge::On);
             bench.expectSettled();
             expectEqual("tree", bench.shown(), QString("h3(g2() a4 b5)"));
         }},
        {"mouse.silent.lastRemoved", "A last row whose node is gone goes too, and only that one.",
         [](ModuleBench &bench) {
             bench.openShown("g2(a3 b4 c5) h6()");
             bench.select({3});
             const QPersistentModelIndex other(bench.index(4));
             bench.inTheNextCommand([&bench] { bench.service().erase({5}); });
             drag(bench, 3, 6, Edge::On);
             bench.expectSettled();
             expect("the other row is the same", QModelIndex(other) == bench.index(4));
         }},
        {"mouse.silent.firstRemoved", "A first row whose node is gone goes too, and only that one.",
         [](ModuleBench &bench) {
             bench.openShown("g2(c3 b4 a5) h6()");
             bench.select({5});
             const QPersistentModelIndex other(bench.index(4));
             bench.inTheNextCommand([&bench] { bench.service().erase({3}); });
             drag(bench, 5, 6, Edge::On);
             bench.expectSettled();
             expect("the other row is the same", QModelIndex(other) == bench.index(4));
         }},
        {"mouse.silent.allRemoved", "Of what is dragged all may be gone.",
         [](ModuleBench &bench) {
             bench.openShown("g2(h3(a4)) k5() b6");
             bench.select({2, 6});
             bench.inTheNextCommand([&bench] { bench.service().erase({2, 6}); });
             drag(bench, 6, 5, Edge::On);
             bench.expectSettled();
             expectEqual("selection", bench.selected(), Nodes());
         }},
    };
}

// One table, long as it has an entry for each check.
ModuleChecks otherChecks() // NOLINT(readability-function-size)
{
    return {
        {"mouse.insertsOnce", "A drag inserts a row for each that it drops, and no other.",
         [](ModuleBench &bench) {
             bench.openShown("a2 b3 c4");
             bench.select({3});
             const int count = bench.insertionsOf([&bench] {
                 // The view removes what is selected at the end.
                 drag(bench, 3, 2, Edge::Below, [&bench] { bench.select({}); });
             });
             bench.expectSettled();
             expectEqual("insertions", count, 1);
         }},
        {"mouse.intoItself", "A drop into what is dragged is refused.",
         [](ModuleBench &bench) {
             for (const QRPC::NodeId target : {2, 3, 6}) {
                 bench.openShown("g2(h3(a4)) b5 k6()");
                 bench.select({6, 2});
                 const QStringList calls =
                     bench.commandsOf([&] { drag(bench, 2, target, Edge::On); });
                 expectEqual("calls", calls, QStringList());
                 bench.expectSettled();
                 expectEqual("selection", bench.selected(), Nodes({2, 6}));
             }
         }},
        {"mouse.again", "What was dragged can be dragged again, in the same order.",
         [](ModuleBench &bench) {
             bench.openShown("a2 b3 g4() h5()");
             bench.select({3, 2});
             const QStringList calls = bench.commandsOf([&bench] {
                 drag(bench, 2, 4, Edge::On);
                 bench.tree().expandAll();
                 drag(bench, 3, 5, Edge::On);
                 bench.tree().expandAll();
                 drag(bench, 2, 4, Edge::Above);
             });
             expectEqual("calls", calls,
                         QStringList({"moveNodes [3,2] 4 -1", "moveNodes [3,2] 5 -1",
                                      "moveNodes [3,2] 1 0"}));
             bench.expectSettled();
         }},
        {"mouse.hiddenRows", "Selected rows that a search hides stay where they are, and hidden.",
         [](ModuleBench &bench) {
             bench.openShown("a2 b3 g4() h5(b6 a7)");
             bench.select({3, 2, 6});
             const QPersistentModelIndex hidden(bench.index(3));
             static_cast<QLineEdit &>(bench.searchBox()).setText("[agh]");
             const QStringList calls = bench.commandsOf([&] { drag(bench, 2, 4, Edge::On); });
             expectEqual("calls", calls, QStringList("moveNodes [2] 4 -1"));
             bench.expectSettled();
             expectEqual("tree", bench.shown(), QString("b3 g4(a2) h5(b6 a7)"));
             expect("the row is the same", QModelIndex(hidden) == bench.index(3));
             expect("it is hidden", bench.tree().isRowHidden(0, QModelIndex()));
             expectEqual("selection", bench.selected(), Nodes({2}));
         }},
        {"mouse.hiddenParent", "Selected rows in a group that a search hides stay there.",
         [](ModuleBench &bench) {
             bench.openShown("a2 k3(b4) g5()");
             bench.select({4, 2});
             bench.tree().setRowHidden(1, QModelIndex(), true);
             const QPersistentModelIndex hidden(bench.index(4));
             const QStringList calls = bench.commandsOf([&] { drag(bench, 2, 5, Edge::On); });
             expectEqual("calls", calls, QStringList("moveNodes [2] 5 -1"));
             bench.expectSettled();
             expect("the row is the same", QModelIndex(hidden) == bench.index(4));
             bench.tree().setRowHidden(0, QModelIndex(), false);
         }},
        {"mouse.hiddenChildren", "A dragged group brings what a search hides in it.",
         [](ModuleBench &bench) {
             bench.openShown("g2(a3 b4) h5()");
             static_cast<QLineEdit &>(bench.searchBox()).setText("[gha]");
             bench.select({2});
             drag(bench, 2, 5, Edge::On);
             bench.expectSettled();
             expectEqual("tree", bench.shown(), QString("h5(g2(a3 b4))"));
         }},
        {"mouse.selectionChangesDuring", "A row that is selected during a drag is not lost.",
         [](ModuleBench &bench) {
             bench.openShown("a2 g3() h6(b4 c5)");
             bench.select({2});
             drag(bench, 2, 3, Edge::On, [&bench] { bench.select({4, 5}); });
             bench.expectSettled();
             expectEqual("selection", bench.selected(), Nodes({2}));
         }},
        {"mouse.cost", "A drag of groups in groups looks each of them up a few times.",
         [](ModuleBench &bench) {
             constexpr int depth = 60;
             bench.openShown("g2()");
             const QRPC::NodeId top = bench.service().insertChain(1, depth);
             Q_EMIT bench.service().nodesAdded({top});
             bench.tree().expandAll();
             Nodes chain = bench.service().allIds();
             chain.removeOne(2);
             bench.select(chain);
             drag(bench, top, 2, Edge::On);
             const int lookUps = bench.log().count("getRootNode");
             expectEqual("look-ups, at most", qMax(lookUps, 10 * depth), 10 * depth);
             bench.expectSettled();
             expect("the last group is open",
                    bench.tree().isExpanded(bench.index(top + depth - 2)));
         }},
        {"mouse.panel", "After a drag the panel shows what was dragged.",
         [](ModuleBench &bench) {
             bench.openShown("a2 g3() b4");
             bench.select({2});
             drag(bench, 2, 3, Edge::On);
             const auto &name = bench.form<QLineEdit>("_overlay_name");
             expectEqual("name", name.text(), QString("a2"));
             expect("the name is enabled", name.isEnabled());
             bench.tree().expandAll();
             bench.select({2, 4});
             drag(bench, 4, 0, Edge::On);
             expect("the name is marked", name.property("multiselect").toBool());
         }},
        {"mouse.currentRow", "The keyboard goes on from the first of the dragged rows.",
         [](ModuleBench &bench) {
             bench.openShown("g2(a3 b4) h5(c6)");
             bench.select({3, 2});
             drag(bench, 2, 5, Edge::On);
             expectEqual("current row", bench.tree().currentIndex().data(), bench.index(3).data());
         }},
    };
}

} // namespace

ModuleChecks mouseChecks()
{
    return joined<ModuleBench>(
        {caseChecks(), changeChecks(), silentChecks(), openChecks(), otherChecks()});
}

} // namespace conformance
