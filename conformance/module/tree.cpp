// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "conformance/module/moduleChecks.h"

namespace conformance {

namespace {

constexpr int idRole = Qt::UserRole + 1;
constexpr int activeRole = Qt::UserRole + 2;

void add(ModuleBench &bench, QRPC::NodeId parent, int row, const char *line)
{
    const QRPC::NodeList added = bench.service().insert(parent, row, line);
    Q_EMIT bench.service().nodesAdded(added);
}

void move(ModuleBench &bench, QRPC::NodeId node, QRPC::NodeId parent, int row, QRPC::NodeId after)
{
    bench.service().place(node, parent, row);
    Q_EMIT bench.service().nodesMoved({node}, {parent}, {after});
}

bool isChecked(ModuleBench &bench, QRPC::NodeId id)
{
    return bench.item(id).data(Qt::CheckStateRole).toInt() == Qt::Checked;
}

bool isShownActive(ModuleBench &bench, QRPC::NodeId id)
{
    return bench.item(id).data(activeRole).toBool();
}

} // namespace

// One table, long as it has an entry for each check.
ModuleChecks treeChecks() // NOLINT(readability-function-size)
{
    return {
        {"tree.resetFills",
         "A reset shows every node with name and states, in the service's order.",
         [](ModuleBench &bench) {
             bench.open("a2 g3(b4- s5*(c6 d7-)) h8-(e9 f10-) i11()");
             bench.expectTree();
         }},
        {"tree.resetReplaces", "A reset leaves nothing of the tree before.",
         [](ModuleBench &bench) {
             bench.open("a2 g3(b4)");
             bench.open("g2(c5) d3");
             bench.expectTree();
             bench.open("");
             expectEqual("rows", bench.model().rowCount(), 0);
         }},
        {"tree.rootId", "The invisible root carries the id of the service's root.",
         [](ModuleBench &bench) {
             expectEqual("id", bench.model().invisibleRootItem()->data(idRole),
                         QVariant(RecordingService::rootId));
         }},
        {"tree.oneColumn", "Rows have one column.",
         [](ModuleBench &bench) {
             bench.open("g2(a3)");
             expectEqual("columns", bench.model().columnCount(), 1);
             expectEqual("columns below", bench.model().columnCount(bench.index(2)), 1);
         }},
        {"tree.addsInPlace", "New nodes appear at the rows that the service gives.",
         [](ModuleBench &bench) {
             bench.open("a2 g3(b4 c5)");
             add(bench, 3, 1, "d6");
             bench.expectTree();
             add(bench, 1, 0, "e7");
             bench.expectTree();
             add(bench, 1, -1, "f8");
             bench.expectTree();
         }},
        {"tree.addsSubtreeAtOnce", "A new subtree is one insertion.",
         [](ModuleBench &bench) {
             bench.open("a2");
             const int count =
                 bench.insertionsOf([&bench] { add(bench, 1, 0, "g3(b4 s5*(c6 d7-))"); });
             bench.expectTree();
             expectEqual("insertions", count, 1);
         }},
        {"tree.addsMissingAncestors",
         "A node whose ancestors have no row brings the whole chain, at its row, in one insertion.",
         [](ModuleBench &bench) {
             bench.open("a2 b3");
             bench.service().insert(1, 1, "g4(h5(c6 d7))");
             const int count =
                 bench.insertionsOf([&bench] { Q_EMIT bench.service().nodesAdded({6}); });
             bench.expectTree();
             expectEqual("insertions", count, 1);
         }},
        {"tree.addedTwiceIsOneRow", "A node that has a row already gets no second one.",
         [](ModuleBench &bench) {
             bench.open("a2 g3()");
             bench.service().insert(3, -1, "h4(b5)");
             Q_EMIT bench.service().nodesAdded({4, 5});
             Q_EMIT bench.service().nodesAdded({4});
             Q_EMIT bench.service().nodesCreated({4});
             bench.expectTree();
         }},
        {"tree.addsUnknown", "Unknown ids and 0 add nothing.",
         [](ModuleBench &bench) {
             bench.open("a2 g3()");
             Q_EMIT bench.service().nodesAdded({0, 99});
             bench.expectTree();
         }},
        {"tree.addsOutOfOrder", "Siblings of one list may be announced in any order.",
         [](ModuleBench &bench) {
             const struct
             {
                 int row;
                 QRPC::NodeList order;
             } cases[] = {{0, {6, 5, 4}}, {1, {6, 5, 4}}, {1, {5, 6, 4}}, {1, {6, 4, 5}}};
             for (const auto &each : cases) {
                 for (const QRPC::NodeId parent : {1U, 2U}) {
                     bench.open("g2(a3)");
                     bench.service().insert(parent, each.row, "x4 y5 z6");
                     Q_EMIT bench.service().nodesAdded(each.order);
                     bench.expectTree();
                 }
             }
         }},
        {"tree.addsEarlierLater", "A sibling may be announced after one that stands behind it.",
         [](ModuleBench &bench) {
             bench.open("g2()");
             bench.service().insert(2, 0, "x3 y4");
             Q_EMIT bench.service().nodesAdded({4});
             expectEqual("tree", bench.shown(), QString("g2(y4)"));
             Q_EMIT bench.service().nodesAdded({3});
             bench.expectTree();
         }},
        {"tree.removes", "Removed nodes lose their rows, with all that lies in them.",
         [](ModuleBench &bench) {
             bench.open("a2 g3(b4 h5(c6)) d7");
             bench.service().deleteNodes({5, 2});
             bench.expectTree();
             bench.service().deleteNodes({3, 7});
             bench.expectTree();
         }},
        {"tree.othersStayOpen", "Rows that stay are left open when others go.",
         [](ModuleBench &bench) {
             bench.open("g2(a3 h4(b5)) i6(c7)");
             bench.service().deleteNodes({3});
             bench.service().moveNodes({7}, 1, 0);
             for (const QRPC::NodeId node : {2, 4})
                 expect("the group is open", bench.tree().isExpanded(bench.index(node)));
         }},
        {"tree.removesUnknown", "Ids without a row are skipped by a removal.",
         [](ModuleBench &bench) {
             bench.open("a2 b3");
             bench.service().erase({2});
             Q_EMIT bench.service().nodesRemoved({0, 99, 2, 2});
             bench.expectTree();
         }},
        {"tree.removesNoRoot", "The root is no row: a removal that names it takes nothing away.",
         [](ModuleBench &bench) {
             bench.open("a2 g3(b4)");
             Q_EMIT bench.service().nodesRemoved({RecordingService::rootId});
             bench.expectTree();
             Q_EMIT bench.service().modelReset();
             bench.expectTree();
         }},
        {"tree.nodeComesBack",
         "A removed node that comes back shows its present name and children.",
         [](ModuleBench &bench) {
             bench.open("a2 g3(b4 c5)");
             bench.service().deleteNodes({3});
             add(bench, 1, 0, "x3-(y5)");
             bench.expectTree();
             bench.service().setName({3, 5}, "new");
             bench.expectTree();
             bench.service().setEnabled({3}, true);
             bench.expectTree();
             bench.service().moveNodes({5}, 1, 0);
             bench.expectTree();
             bench.service().deleteNodes({3});
             bench.expectTree();
         }},
        {"tree.movesWithin", "A moved row stands behind the named sibling.",
         [](ModuleBench &bench) {
             bench.open("a2 b3 c4 d5");
             move(bench, 2, 1, 2, 4);
             bench.expectTree();
             move(bench, 5, 1, 0, 0);
             bench.expectTree();
         }},
        {"tree.movesAcross", "A moved row takes what lies in it along.",
         [](ModuleBench &bench) {
             bench.open("g2(a3 h4(b5)) i6(c7)");
             move(bench, 4, 6, 1, 7);
             bench.expectTree();
             move(bench, 7, 1, 0, 0);
             bench.expectTree();
         }},
        {"tree.movesSeveral", "Several moves of one signal are applied in order.",
         [](ModuleBench &bench) {
             bench.open("a2 b3 g4(c5)");
             bench.service().moveNodes({2, 3}, 4, 0);
             bench.expectTree();
         }},
        {"tree.moveKeepsRow",
         "A move takes the row itself along, and what lies in it, and makes no other.",
         [](ModuleBench &bench) {
             bench.open("g2(a3) h4()");
             const QStandardItem *before = &bench.item(2);
             move(bench, 2, 4, 0, 0);
             expect("the item is the same", &bench.item(2) == before);
         }},
        {"tree.moveBehindUnknown", "A move behind an unknown sibling goes to the front.",
         [](ModuleBench &bench) {
             bench.open("a2 b3 c4");
             Q_EMIT bench.service().nodesMoved({4}, {1}, {99});
             expectEqual("tree", bench.shown(), QString("c4 a2 b3"));
         }},
        {"tree.moveBehindStranger", "A move behind a row of another parent takes the row out.",
         [](ModuleBench &bench) {
             bench.open("a2 g3(b4) c5");
             Q_EMIT bench.service().nodesMoved({2}, {1}, {4});
             expectEqual("tree", bench.shown(), QString("g3(b4) c5"));
         }},
        {"tree.moveToUnknown", "A move to an unknown parent takes the row out.",
         [](ModuleBench &bench) {
             bench.open("a2 b3");
             Q_EMIT bench.service().nodesMoved({2}, {99}, {0});
             expectEqual("tree", bench.shown(), QString("b3"));
         }},
        {"tree.moveOfNewNode", "A moved node without a row gets one.",
         [](ModuleBench &bench) {
             bench.open("a2 g3()");
             bench.service().insert(3, -1, "b4");
             Q_EMIT bench.service().nodesMoved({4}, {3}, {0});
             bench.expectTree();
         }},
        {"tree.renames", "A new name is shown.",
         [](ModuleBench &bench) {
             bench.open("a2 g3(b4)");
             bench.service().setName({3, 4}, "x 3");
             bench.expectTree();
         }},
        {"tree.changesOfUnknown", "Names and states of unknown ids are skipped.",
         [](ModuleBench &bench) {
             bench.open("a2 b3");
             bench.node(3).name = "x3";
             Q_EMIT bench.service().nameChanged({0, 99, 3});
             bench.expectTree();
             bench.node(3).enabled = false;
             Q_EMIT bench.service().enabledStateChanged({0, 99, 3});
             bench.expectTree();
         }},
        {"tree.showsEnabled",
         "A changed enabled state shows as check mark, with all that lies below.",
         [](ModuleBench &bench) {
             bench.open("g2(h3(a4 b5-)) c6");
             bench.service().setEnabled({2, 6}, false);
             bench.expectTree();
             bench.service().setEnabled({2}, true);
             bench.expectTree();
         }},
        {"tree.belowInactive",
         "Below an inactive parent the check mark changes and the looks stay.",
         [](ModuleBench &bench) {
             bench.open("g2-(a3)");
             bench.service().setEnabled({3}, false);
             expect("the row is unchecked", !isChecked(bench, 3));
             bench.service().setEnabled({3}, true);
             expect("the row is checked", isChecked(bench, 3));
             expect("the row looks inactive", !isShownActive(bench, 3));
         }},
        {"tree.switchSiblings", "Under a switch the siblings' check marks are read anew too.",
         [](ModuleBench &bench) {
             bench.open("s2*(a3 g4-(b5) c6-)");
             bench.node(3).enabled = false;
             bench.node(4).enabled = true;
             Q_EMIT bench.service().enabledStateChanged({4});
             bench.expectTree();
         }},
        {"tree.groupSiblings", "Under a group the siblings are left alone.",
         [](ModuleBench &bench) {
             bench.open("g2(a3 b4)");
             bench.node(3).enabled = false;
             Q_EMIT bench.service().enabledStateChanged({4});
             expect("the sibling is still checked", isChecked(bench, 3));
         }},
        {"tree.renameBySetData", "An edited name is sent once, and its echo does not come back.",
         [](ModuleBench &bench) {
             bench.open("g2(a3)");
             const QModelIndex index = bench.index(3);
             const QStringList calls =
                 bench.commandsOf([&] { bench.model().setData(index, "new 3", Qt::EditRole); });
             expectEqual("calls", calls, QStringList(R"(setName [3] "new 3")"));
             bench.expectTree();
         }},
        {"tree.checkBySetData", "A clicked check box is sent once and shown.",
         [](ModuleBench &bench) {
             bench.open("g2(a3)");
             const QModelIndex index = bench.index(2);
             const QStringList calls = bench.commandsOf(
                 [&] { bench.model().setData(index, Qt::Unchecked, Qt::CheckStateRole); });
             expectEqual("calls", calls, QStringList("setEnabled [2] false"));
             bench.expectTree();
         }},
        {"tree.checkInSwitch", "A check box in a switch turns its siblings off.",
         [](ModuleBench &bench) {
             bench.open("s2*(a3 b4- c5-)");
             const QModelIndex index = bench.index(5);
             const QStringList calls = bench.commandsOf(
                 [&] { bench.model().setData(index, Qt::Checked, Qt::CheckStateRole); });
             expectEqual("calls", calls, QStringList("setEnabled [5] true"));
             bench.expectTree();
         }},
        {"tree.otherRoles", "Data of other roles are kept and not sent.",
         [](ModuleBench &bench) {
             bench.open("a2");
             const QModelIndex index = bench.index(2);
             const QStringList calls =
                 bench.commandsOf([&] { bench.model().setData(index, "tip", Qt::ToolTipRole); });
             expectEqual("calls", calls, QStringList());
             expectEqual("data", index.data(Qt::ToolTipRole).toString(), QString("tip"));
         }},
        {"tree.keepsAnEdit", "An edited name is shown even where the service does not announce it.",
         [](ModuleBench &bench) {
             bench.open("a2");
             bench.service().setApplies(false);
             bench.model().setData(bench.index(2), "new2", Qt::EditRole);
             expectEqual("tree", bench.shown(), QString("new2"));
         }},
        {"tree.resetInsideAnEdit", "A reset or removal inside an edit does no harm.",
         [](ModuleBench &bench) {
             bench.open("g2(a3) b4");
             bench.inTheNextCommand([&bench] { Q_EMIT bench.service().modelReset(); });
             bench.model().setData(bench.index(3), "x3", Qt::EditRole);
             bench.expectTree();
             bench.inTheNextCommand([&bench] { bench.service().deleteNodes({2}); });
             bench.model().setData(bench.index(3), Qt::Unchecked, Qt::CheckStateRole);
             bench.expectTree();
         }},
        {"tree.createdGroupWithRows", "A new group that holds nodes with rows takes them over.",
         [](ModuleBench &bench) {
             bench.open("a2 b3 c4");
             bench.service().insert(1, 0, "g5()");
             bench.service().place(2, 5, -1);
             bench.service().place(3, 5, -1);
             Q_EMIT bench.service().nodesAdded({5});
             bench.expectTree();
         }},
        {"tree.deep", "A chain of 1,000 levels is mirrored, moved and removed.",
         [](ModuleBench &bench) {
             bench.open("a2");
             const QRPC::NodeId top = bench.service().insertChain(1, 1000);
             Q_EMIT bench.service().nodesAdded({top});
             bench.expectTree();
             bench.service().moveNodes({top}, 1, 0);
             bench.expectTree();
             bench.service().deleteNodes({top});
             bench.expectTree();
         }},
    };
}

} // namespace conformance
