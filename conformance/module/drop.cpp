// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "conformance/module/moduleChecks.h"

#include <QDataStream>
#include <QMimeData>

namespace conformance {

namespace {

using Nodes = QRPC::NodeList;

const char s_tree[] = "application/pimo-overlaytree-items";
const char s_overlays[] = "application/pimo-overlay-items";

std::unique_ptr<QMimeData> mimeOf(ModuleBench &bench, const Nodes &nodes)
{
    QModelIndexList indexes;
    for (const QRPC::NodeId id : nodes)
        indexes.append(bench.item(id).index());
    return std::unique_ptr<QMimeData>(bench.model().mimeData(indexes));
}

/// Pairs of node and parent as the payload holds them.
QByteArray payload(const QVector<QPair<int, int>> &records)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    for (const auto &[node, parent] : records)
        stream << node << parent;
    return bytes;
}

/// What a view does: the drop, then the removal of the dragged rows.
bool drop(ModuleBench &bench, const Nodes &nodes, int row, const QModelIndex &parent)
{
    const std::unique_ptr<QMimeData> data = mimeOf(bench, nodes);
    QList<QPersistentModelIndex> rows;
    for (const QRPC::NodeId id : nodes)
        rows.append(bench.item(id).index());
    bench.log().clear();
    const bool taken = bench.model().dropMimeData(data.get(), Qt::MoveAction, row, 0, parent);
    for (const QPersistentModelIndex &source : qAsConst(rows)) {
        if (taken)
            bench.model().removeRow(source.row(), source.parent());
    }
    return taken;
}

ModuleChecks payloadChecks()
{
    return {
        {"drag.actions", "Rows are moved and never copied.",
         [](ModuleBench &bench) {
             expectEqual("actions", int(bench.model().supportedDropActions()), int(Qt::MoveAction));
         }},
        {"drag.types", "The two types of the module stand behind those of the base.",
         [](ModuleBench &bench) {
             QStringList wanted = QStandardItemModel().mimeTypes();
             wanted << s_tree << s_overlays;
             expectEqual("types", bench.model().mimeTypes(), wanted);
         }},
        {"drag.overlays", "Overlays alone are dragged under the type of overlays.",
         [](ModuleBench &bench) {
             bench.open("a2 g3(b4)");
             const auto data = mimeOf(bench, {4, 2});
             expect("the type is there", data->hasFormat(s_overlays));
             expect("the other one is not", !data->hasFormat(s_tree));
             expectEqual("payload", data->data(s_overlays), payload({{4, 3}, {2, 1}}));
         }},
        {"drag.groups",
         "With a group or switch among them nodes are dragged under the type of trees.",
         [](ModuleBench &bench) {
             bench.open("a2 g3(s4*())");
             const auto data = mimeOf(bench, {2, 4});
             expect("the type is there", data->hasFormat(s_tree));
             expect("the other one is not", !data->hasFormat(s_overlays));
             expectEqual("payload", data->data(s_tree), payload({{2, 1}, {4, 3}}));
         }},
        {"drag.base", "The base's own encoding of the rows goes along.",
         [](ModuleBench &bench) {
             bench.open("a2");
             const auto data = mimeOf(bench, {2});
             expect("it is there", data->hasFormat(QStandardItemModel().mimeTypes().constFirst()));
         }},
        {"drag.nothing", "No rows give no data.",
         [](ModuleBench &bench) {
             expect("there is no data", bench.model().mimeData({}) == nullptr);
         }},
        {"drag.zeroIds", "Rows without a node are left out of the payload.",
         [](ModuleBench &bench) {
             bench.open("a2");
             bench.model().appendRow(new QStandardItem("stranger"));
             const QModelIndex stranger = bench.model().index(1, 0);
             const std::unique_ptr<QMimeData> data(bench.model().mimeData({stranger}));
             expect("the type is that of overlays", data->hasFormat(s_overlays));
             expectEqual("payload", data->data(s_overlays), QByteArray());
             bench.model().removeRow(1);
         }},
    };
}

// One table, long as it has an entry for each check.
ModuleChecks dropMoveChecks() // NOLINT(readability-function-size)
{
    return {
        {"drop.onGroup", "A drop onto a group moves behind its last child, with one call.",
         [](ModuleBench &bench) {
             bench.open("a2 g3(b4)");
             bool taken = false;
             const QStringList calls =
                 bench.commandsOf([&] { taken = drop(bench, {2}, -1, bench.index(3)); });
             expect("the drop is taken", taken);
             expectEqual("calls", calls, QStringList("moveNodes [2] 3 -1"));
             bench.expectTree();
         }},
        {"drop.between", "A drop between rows passes the view's row on.",
         [](ModuleBench &bench) {
             bench.open("a2 b3 c4");
             const QStringList calls =
                 bench.commandsOf([&] { drop(bench, {2}, 2, QModelIndex()); });
             expectEqual("calls", calls, QStringList("moveNodes [2] 1 2"));
             bench.expectTree();
         }},
        {"drop.onEmptySpace", "A drop onto empty space goes to the root.",
         [](ModuleBench &bench) {
             bench.open("g2(a3) b4");
             const QStringList calls =
                 bench.commandsOf([&] { drop(bench, {3}, -1, QModelIndex()); });
             expectEqual("calls", calls, QStringList("moveNodes [3] 1 -1"));
             bench.expectTree();
         }},
        {"drop.several", "One drop is one call with all ids in the order of the drag.",
         [](ModuleBench &bench) {
             bench.open("a2 b3 g4(c5)");
             const QStringList calls = bench.commandsOf([&] {
                 drop(bench, {3, 2}, 0, bench.index(4));
             });
             expectEqual("calls", calls, QStringList("moveNodes [3,2] 4 0"));
         }},
        {"drop.subtree", "A dropped group brings all that lies in it.",
         [](ModuleBench &bench) {
             bench.open("g2(h3(a4 b5-)) i6()");
             drop(bench, {3}, 0, bench.index(6));
             bench.expectTree();
         }},
        {"drop.afterwards", "Dropped nodes follow the service like all others.",
         [](ModuleBench &bench) {
             bench.open("a2 g3(b4)");
             drop(bench, {2}, 0, bench.index(3));
             bench.service().setName({2}, "x2");
             bench.service().setEnabled({2, 4}, false);
             bench.expectTree();
             bench.service().moveNodes({2}, 1, 0);
             bench.expectTree();
             bench.service().deleteNodes({2});
             bench.expectTree();
         }},
        {"drop.targetGone", "A drop whose target goes while it is made is not taken.",
         [](ModuleBench &bench) {
             bench.open("a2 g3()");
             bench.beforeNext("moveNodes", [&bench] { bench.service().deleteNodes({3}); });
             expect("it is refused", !drop(bench, {2}, -1, bench.index(3)));
             bench.expectSettled();
         }},
        {"drop.copyRefused", "A drop that copies is refused.",
         [](ModuleBench &bench) {
             bench.open("a2 g3()");
             const auto data = mimeOf(bench, {2});
             bool taken = true;
             const QStringList calls = bench.commandsOf([&] {
                 taken =
                     bench.model().dropMimeData(data.get(), Qt::CopyAction, 0, 0, bench.index(3));
             });
             expect("the drop is refused", !taken);
             expectEqual("calls", calls, QStringList());
             bench.expectTree();
         }},
        {"drop.noData", "A drop of nothing is refused.",
         [](ModuleBench &bench) {
             bench.open("a2");
             expect("the drop is refused",
                    !bench.model().dropMimeData(nullptr, Qt::MoveAction, 0, 0, QModelIndex()));
         }},
        {"drop.foreign", "A drop of another format does not reach the service.",
         [](ModuleBench &bench) {
             bench.open("a2 g3()");
             QMimeData data;
             data.setText("text");
             const QStringList calls = bench.commandsOf(
                 [&] { bench.model().dropMimeData(&data, Qt::MoveAction, 0, 0, bench.index(3)); });
             expectEqual("calls", calls, QStringList());
         }},
        {"drop.truncated", "A payload that ends within a record is read as far as it goes.",
         [](ModuleBench &bench) {
             bench.open("a2 b3 g4()");
             bench.service().setApplies(false);
             QMimeData data;
             data.setData(s_overlays, payload({{2, 1}, {3, 1}}).chopped(4));
             const QStringList calls = bench.commandsOf(
                 [&] { bench.model().dropMimeData(&data, Qt::MoveAction, -1, 0, bench.index(4)); });
             expectEqual("calls", calls, QStringList("moveNodes [2,3] 4 -1"));
         }},
        {"drop.treeTypeFirst", "Where both types are present that of trees is read.",
         [](ModuleBench &bench) {
             bench.open("a2 b3 g4()");
             bench.service().setApplies(false);
             QMimeData data;
             data.setData(s_overlays, payload({{3, 1}}));
             data.setData(s_tree, payload({{2, 1}}));
             const QStringList calls = bench.commandsOf(
                 [&] { bench.model().dropMimeData(&data, Qt::MoveAction, -1, 0, bench.index(4)); });
             expectEqual("calls", calls, QStringList("moveNodes [2] 4 -1"));
         }},
    };
}

} // namespace

ModuleChecks dropChecks()
{
    return joined<ModuleBench>({payloadChecks(), dropMoveChecks()});
}

} // namespace conformance
