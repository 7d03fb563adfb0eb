// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "conformance/module/moduleChecks.h"

#include <QBoxLayout>
#include <QLineEdit>

namespace conformance {

namespace {

using Nodes = QRPC::NodeList;

QStringList createdUnder(ModuleBench &bench, const Nodes &selection)
{
    bench.service().setApplies(false);
    bench.select(selection);
    return bench.commandsOf([&bench] { bench.call("createOverlay"); });
}

ModuleChecks viewChecks()
{
    return {
        {"view.mode", "Rows are selected one by one or in ranges, as items.",
         [](ModuleBench &bench) {
             expectEqual("mode", int(bench.tree().selectionMode()),
                         int(QAbstractItemView::ExtendedSelection));
             expectEqual("behaviour", int(bench.tree().selectionBehavior()),
                         int(QAbstractItemView::SelectItems));
         }},
        {"view.looks", "The header is hidden, rows are even and alternate in colour.",
         [](ModuleBench &bench) {
             expect("no header", bench.tree().isHeaderHidden());
             expect("uniform heights", bench.tree().uniformRowHeights());
             expect("alternating colours", bench.tree().alternatingRowColors());
         }},
        {"view.iconSize", "Icons of the tree have the size that the platform service gives.",
         [](ModuleBench &bench) {
             bench.host().iconSize = QSize(31, 23);
             bench.callEntry();
             expectEqual("size", bench.tree().iconSize(), QSize(31, 23));
         },
         Stage::Fresh},
        {"view.drag", "Rows can be dragged and dropped, and the place of a drop is shown.",
         [](ModuleBench &bench) {
             expect("drags begin", bench.tree().dragEnabled());
             expect("drops are taken", bench.tree().acceptDrops());
             expect("the place is shown", bench.tree().showDropIndicator());
         }},
        {"view.editing", "Only a click on a selected row starts the editing of a name.",
         [](ModuleBench &bench) {
             expectEqual("triggers", int(bench.tree().editTriggers()),
                         int(QAbstractItemView::SelectedClicked));
         }},
        {"view.layout", "The search box stands above the tree, without margins.",
         [](ModuleBench &bench) {
             const auto *layout =
                 qobject_cast<QVBoxLayout *>(bench.form<QFrame>("_overlay_tree_frame").layout());
             expect("the layout is vertical", layout != nullptr);
             expectEqual("margins", layout->contentsMargins(), QMargins());
             expectEqual("class of the first",
                         QByteArray(layout->itemAt(0)->widget()->metaObject()->className()),
                         QByteArray("QKXSearchBox"));
             expect("the second is the tree", layout->itemAt(1)->widget() == &bench.tree());
         }},
    };
}

ModuleChecks firstGroupChecks()
{
    return {
        {"target.none", "With nothing selected new nodes go under the root.",
         [](ModuleBench &bench) {
             bench.open("g2(a3)");
             expectEqual("calls", createdUnder(bench, {}), QStringList("createOverlay 1"));
         }},
        {"target.group", "With a group or switch selected new nodes go into it.",
         [](ModuleBench &bench) {
             bench.open("g2(a3) s4*()");
             expectEqual("group", createdUnder(bench, {2}), QStringList("createOverlay 2"));
             expectEqual("switch", createdUnder(bench, {4}), QStringList("createOverlay 4"));
         }},
        {"target.inGroup", "With an overlay selected new nodes go into the group that holds it.",
         [](ModuleBench &bench) {
             bench.open("g2(s3*(a4)) b5");
             expectEqual("in a switch", createdUnder(bench, {4}), QStringList("createOverlay 3"));
             expectEqual("at the top", createdUnder(bench, {5}), QStringList("createOverlay 1"));
         }},
        {"target.firstOnly", "Only the first of the selected rows counts.",
         [](ModuleBench &bench) {
             bench.open("a2 g3(b4) h5()");
             expectEqual("overlay first", createdUnder(bench, {2, 3, 5}),
                         QStringList("createOverlay 1"));
             expectEqual("inner one first", createdUnder(bench, {4, 5, 2}),
                         QStringList("createOverlay 3"));
         }},
    };
}

// One table, long as it has an entry for each check.
ModuleChecks changeChecks() // NOLINT(readability-function-size)
{
    return {
        {"selection.created", "Created nodes become the selection and are shown.",
         [](ModuleBench &bench) {
             bench.open("a2 g3(b4)");
             bench.select({2, 4});
             const Nodes added = bench.service().insert(3, -1, "c5 d6 e7");
             Q_EMIT bench.service().nodesCreated(added);
             bench.expectTree();
             expectEqual("selection", bench.selected(), added);
         }},
        {"selection.createdUnknown", "Created ids without a node are skipped.",
         [](ModuleBench &bench) {
             bench.open("a2 b3");
             bench.select({2});
             Q_EMIT bench.service().nodesCreated({0, 99, 3});
             expectEqual("selection", bench.selected(), Nodes({3}));
         }},
        {"selection.createdNone", "A list of created nodes without rows ends the selection.",
         [](ModuleBench &bench) {
             bench.open("a2 b3");
             bench.select({2});
             Q_EMIT bench.service().nodesCreated({});
             expectEqual("selection of an empty list", bench.selected(), Nodes());
             bench.select({2});
             Q_EMIT bench.service().nodesCreated({99});
             expectEqual("selection of unknown ids", bench.selected(), Nodes());
         }},
        {"selection.createdIsVisible", "The last created node is scrolled into view.",
         [](ModuleBench &bench) {
             QString line;
             for (int i = 2; i < 302; ++i)
                 line += QStringLiteral("a%1 ").arg(i);
             bench.open(line);
             QWidget &window = bench.window();
             window.resize(600, 400);
             window.show();
             const Nodes added = bench.service().insert(1, -1, "z900");
             Q_EMIT bench.service().nodesAdded(added);
             Q_EMIT bench.service().nodesCreated(added);
             expect("the row is in the view",
                    bench.tree().viewport()->rect().contains(
                        bench.tree().visualRect(bench.index(900)).center()));
         }},
        {"selection.added", "Nodes that are only added leave the selection alone.",
         [](ModuleBench &bench) {
             bench.open("a2 b3");
             bench.select({3});
             Q_EMIT bench.service().nodesAdded(bench.service().insert(1, 0, "c4"));
             expectEqual("selection", bench.selected(), Nodes({3}));
         }},
        {"selection.all", "Select All selects every row that the view has open.",
         [](ModuleBench &bench) {
             bench.open("a2 g3(b4 c5)");
             bench.call("selectAll");
             expectEqual("selection", bench.selected(), Nodes({2, 3, 4, 5}));
         }},
        {"selection.none", "Deselect All leaves nothing selected.",
         [](ModuleBench &bench) {
             bench.open("a2 g3(b4 c5)");
             bench.select({2, 4});
             bench.call("deselectAll");
             expectEqual("selection", bench.selected(), Nodes());
         }},
        {"selection.invert", "Invert Selection selects what was not selected.",
         [](ModuleBench &bench) {
             bench.open("a2 g3(b4 c5) d6");
             bench.select({2, 4});
             bench.call("invertSelection");
             expectEqual("selection", bench.selected(), Nodes({3, 5, 6}));
         }},
        {"selection.invertOrder", "Neighbours that an inversion selects are named from the top.",
         [](ModuleBench &bench) {
             bench.open("a2 b3 c4 d5");
             bench.service().setApplies(false);
             bench.select({2, 4});
             bench.call("invertSelection");
             expectEqual("calls", bench.commandsOf([&] { bench.call("deleteOverlays"); }),
                         QStringList("deleteNodes [3,5]"));
         }},
        {"selection.invertEach", "Every selection of five rows is inverted to all the others.",
         [](ModuleBench &bench) {
             for (unsigned picked = 0; picked < 32; ++picked) {
                 bench.open("a2 b3 c4 g5(d6)");
                 QRPC::NodeList inside;
                 QRPC::NodeList outside;
                 for (unsigned i = 0; i < 5; ++i)
                     ((picked >> i) % 2 == 1 ? inside : outside).append(i + 2);
                 bench.select(inside);
                 bench.call("invertSelection");
                 expectEqual("selection", bench.selected(), outside);
             }
         }},
        {"selection.invertOverlap", "What is selected twice is no longer selected when inverted.",
         [](ModuleBench &bench) {
             bench.open("a2 b3 c4 d5");
             QItemSelection twice;
             twice.append({bench.index(2), bench.index(3)});
             twice.append({bench.index(3), bench.index(4)});
             bench.tree().selectionModel()->select(twice, QItemSelectionModel::ClearAndSelect);
             bench.call("invertSelection");
             expectEqual("selection", bench.selected(), Nodes({5}));
         }},
        {"selection.invertNone", "Inverting no selection selects everything, and back.",
         [](ModuleBench &bench) {
             bench.open("a2 b3");
             bench.call("invertSelection");
             expectEqual("selection", bench.selected(), Nodes({2, 3}));
             bench.call("invertSelection");
             expectEqual("selection after the second time", bench.selected(), Nodes());
         }},
        {"selection.survivesMove",
         "A moved node that was selected and stays visible is still one row.",
         [](ModuleBench &bench) {
             bench.open("a2 g3()");
             bench.select({2});
             bench.service().moveNodes({2}, 3, 0);
             bench.expectTree();
             bench.select({2});
             expectEqual("selection", bench.selected(), Nodes({2}));
         }},
        {"selection.survivesRemoval", "The removal of other rows leaves the selection alone.",
         [](ModuleBench &bench) {
             bench.open("a2 b3 c4 d5");
             bench.select({3, 5});
             bench.service().deleteNodes({2, 4});
             expectEqual("selection", bench.selected(), Nodes({3, 5}));
         }},
        {"selection.findsSearch", "Find puts the focus into the search box and selects its text.",
         [](ModuleBench &bench) {
             bench.open("a2");
             QWidget &window = bench.window();
             window.show();
             window.activateWindow();
             auto *box = qobject_cast<QLineEdit *>(&bench.searchBox());
             box->setText("abc");
             bench.call("find");
             expect("the box is what the window would give the focus to",
                    window.focusWidget() == box);
             expectEqual("selected text", box->selectedText(), QString("abc"));
         }},
    };
}

} // namespace

ModuleChecks selectionChecks()
{
    return joined<ModuleBench>({viewChecks(), firstGroupChecks(), changeChecks()});
}

} // namespace conformance
