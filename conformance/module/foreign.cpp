// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "conformance/module/moduleChecks.h"
#include "conformance/module/viewDrop.h"
#include "kit/ForeignDrop.h"

#include <QMimeData>
#include <QPersistentModelIndex>

namespace conformance {

namespace {

using Nodes = QRPC::NodeList;

void drop(ModuleBench &bench, const DropData &dropped, QRPC::NodeId target, DropCase::Edge edge,
          Qt::DropAction action = Qt::MoveAction)
{
    QMimeData data;
    for (const auto &[format, bytes] : dropped.formats)
        data.setData(format, bytes);
    dropOnView(bench.tree(), DropCase::placeOf(bench.tree(), bench.index(target), edge), data,
               action);
}

ModuleChecks tableChecks()
{
    ModuleChecks checks;
    for (const ForeignDrop &each : ForeignDrop::all()) {
        const auto run = [each](ModuleBench &bench) {
            bench.openShown(ForeignDrop::before());
            bench.select({5});
            const QStringList calls =
                bench.commandsOf([&] { drop(bench, each.data, each.target, each.edge); });
            expectEqual("calls", calls,
                        each.call ? QStringList(QStringLiteral("moveNodes ") + each.call)
                                  : QStringList());
            bench.expectSettled();
            expectEqual("tree", bench.shown(), QString(each.after));
            expectEqual("selection", bench.selected(), each.selection);
        };
        const QString name = QString(each.name).remove(',').replace(' ', '_');
        checks.push_back({QStringLiteral("foreign.") + name,
                          "A drop from elsewhere loses nothing and asks for no more than it says.",
                          run, Stage::Running});
    }
    return checks;
}

ModuleChecks refusedChecks()
{
    return {
        {"foreign.copy", "Nodes from elsewhere that are to be copied are refused.",
         [](ModuleBench &bench) {
             bench.openShown("a2 g3() c6");
             bench.select({2});
             const DropData data =
                 DropData::rowsOf({6}).add(DropData::overlayFormat(), DropData::records({6}));
             const QStringList calls =
                 bench.commandsOf([&] { drop(bench, data, 3, DropCase::On, Qt::CopyAction); });
             expectEqual("calls", calls, QStringList());
             bench.expectSettled();
             expectEqual("selection", bench.selected(), Nodes({2}));
         }},
        {"foreign.text", "A text from elsewhere changes nothing.",
         [](ModuleBench &bench) {
             bench.openShown("a2 g3() c6");
             bench.select({2});
             drop(bench, DropData().add("text/plain", "a text"), 3, DropCase::On);
             bench.expectSettled();
             expectEqual("selection", bench.selected(), Nodes({2}));
         }},
    };
}

ModuleChecks rowChecks()
{
    return {
        {"foreign.staysOpen", "Groups that come with a drop from elsewhere stay open or closed.",
         [](ModuleBench &bench) {
             bench.openShown("g2(h3(a4) k5(b6)) m7(c8)");
             bench.tree().collapse(bench.index(5));
             const QPersistentModelIndex other(bench.index(7));
             drop(bench, DropData().add(DropData::treeFormat(), DropData::records({2})), 0,
                  DropCase::On);
             bench.expectSettled();
             expectEqual("tree", bench.shown(), QString("m7(c8) g2(h3(a4) k5(b6))"));
             expect("the other row is the same", other.isValid());
             for (const QRPC::NodeId node : {2, 3, 7})
                 expect("it is open", bench.tree().isExpanded(bench.index(node)));
             expect("it is closed", !bench.tree().isExpanded(bench.index(5)));
         }},
        {"foreign.keepsData", "What else the row of a node that comes back holds goes along.",
         [](ModuleBench &bench) {
             bench.openShown("g2(a3) m4()");
             bench.item(3).setToolTip("a tip");
             drop(bench, DropData().add(DropData::overlayFormat(), DropData::records({3})), 4,
                  DropCase::On);
             bench.expectSettled();
             expectEqual("tree", bench.shown(), QString("g2() m4(a3)"));
             expectEqual("tip", bench.item(3).toolTip(), QString("a tip"));
         }},
        {"foreign.currentRow", "The keyboard goes on from the first of the rows that came.",
         [](ModuleBench &bench) {
             bench.openShown("g2(a3) m4()");
             // It stays in its group.
             bench.inTheNextCommand([&bench] { bench.service().place(3, 2, 0); });
             drop(bench, DropData().add(DropData::treeFormat(), DropData::records({3, 2})), 0,
                  DropCase::On);
             expectEqual("tree", bench.shown(), QString("m4() g2(a3)"));
             expect("the first is current", bench.tree().currentIndex() == bench.index(3));
         }},
        {"foreign.oneColumn", "Rows of a table leave the tree with one column.",
         [](ModuleBench &bench) {
             bench.openShown("a2 g3() c6");
             drop(bench, DropData::rowsOf({0, 0}, 3), 0, DropCase::On);
             drop(bench, DropData::rowsOf({0, 0}, 3), 3, DropCase::On);
             bench.expectSettled();
             expectEqual("columns", bench.model().columnCount(), 1);
             expectEqual("columns below", bench.model().columnCount(bench.index(3)), 1);
         }},
    };
}

} // namespace

ModuleChecks foreignChecks()
{
    return joined<ModuleBench>({tableChecks(), refusedChecks(), rowChecks()});
}

} // namespace conformance
