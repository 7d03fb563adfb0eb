// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "conformance/module/moduleChecks.h"
#include "host/kxIconManager.h"
#include "host/kxIconOptions.h"

#include <QBrush>
#include <QIcon>

namespace conformance {

namespace {

constexpr int idRole = Qt::UserRole + 1;
constexpr int activeRole = Qt::UserRole + 2;

void expectIcon(ModuleBench &bench, QRPC::NodeId id, const char *name, bool active)
{
    kxIconOptions options;
    options.setOption(2, !active);
    options.setOption(4, false);
    const QImage wanted = kxIconManager::get(name, options).toImage();
    const QIcon icon = bench.item(id).data(Qt::DecorationRole).value<QIcon>();
    const QList<QSize> sizes = icon.availableSizes();
    expect("the row has an icon", !sizes.isEmpty());
    expect(name, icon.pixmap(sizes.first()).toImage() == wanted);
}

QColor colourOf(ModuleBench &bench, QRPC::NodeId id)
{
    return bench.item(id).data(Qt::ForegroundRole).value<QBrush>().color();
}

} // namespace

// One table, long as it has an entry for each check.
ModuleChecks itemChecks() // NOLINT(readability-function-size)
{
    return {
        {"item.type", "Every row is an item of type 1000, the prototype included.",
         [](ModuleBench &bench) {
             bench.open("a2 g3()");
             expectEqual("overlay", bench.item(2).type(), 1000);
             expectEqual("group", bench.item(3).type(), 1000);
             expectEqual("prototype", bench.model().itemPrototype()->type(), 1000);
         }},
        {"item.idRole", "Role 257 holds the node's id as an unsigned number.",
         [](ModuleBench &bench) {
             bench.open("a7");
             const QVariant id = bench.model().index(0, 0).data(idRole);
             expectEqual("id", id, QVariant(7U));
             expectEqual("type", int(id.type()), int(QVariant::UInt));
         }},
        {"item.withoutId", "A row whose id is taken away stands for no node.",
         [](ModuleBench &bench) {
             bench.open("a2 b3");
             bench.item(2).setData(QVariant(), idRole);
             Q_EMIT bench.service().nodesMoved({3}, {1}, {0});
             expectEqual("first", bench.model().index(0, 0).data(idRole), QVariant(3U));
         }},
        {"item.editIsNoEcho", "What is edited in the tree is not asked for again.",
         [](ModuleBench &bench) {
             bench.open("a2 b3");
             expectEqual("calls", bench.callsOf([&bench] {
                 bench.model().setData(bench.index(2), "new", Qt::EditRole);
             }),
                         QStringList("setName [2] \"new\""));
             expectEqual("row", bench.item(2).text(), QString("new"));
         }},
        {"item.checkRole", "The check state is the number 2 for enabled and 0 for disabled.",
         [](ModuleBench &bench) {
             bench.open("a2 b3-");
             expectEqual("enabled", bench.item(2).data(Qt::CheckStateRole), QVariant(2));
             expectEqual("disabled", bench.item(3).data(Qt::CheckStateRole), QVariant(0));
         }},
        {"item.activeRole", "Role 258 tells whether the node is active.",
         [](ModuleBench &bench) {
             bench.open("g2-(a3) b4");
             expectEqual("below a disabled group", bench.item(3).data(activeRole), QVariant(false));
             expectEqual("active", bench.item(4).data(activeRole), QVariant(true));
         }},
        {"item.dropFlags", "Groups and switches accept drops, overlays do not.",
         [](ModuleBench &bench) {
             bench.open("a2 g3() s4*()");
             expect("overlay", !bench.item(2).isDropEnabled());
             expect("group", bench.item(3).isDropEnabled());
             expect("switch", bench.item(4).isDropEnabled());
         }},
        {"item.flags", "Every row can be checked, edited, selected and dragged.",
         [](ModuleBench &bench) {
             bench.open("a2 g3() s4*()");
             for (const QRPC::NodeId id : {2U, 3U, 4U}) {
                 const QStandardItem &item = bench.item(id);
                 expect("checkable", item.isCheckable());
                 expect("editable", item.isEditable());
                 expect("selectable", item.isSelectable());
                 expect("draggable", item.isDragEnabled());
                 expect("enabled", item.isEnabled());
             }
         }},
        {"item.icons", "Each kind of node has its icon.",
         [](ModuleBench &bench) {
             bench.open("a2 g3() s4*()");
             expectIcon(bench, 2, "scenegraph/Overlay", true);
             expectIcon(bench, 3, "scenegraph/GroupNode", true);
             expectIcon(bench, 4, "scenegraph/Switch", true);
         }},
        {"item.inactiveIcons", "Inactive nodes have their icon with option 2 on.",
         [](ModuleBench &bench) {
             bench.open("g2-(a3 s4*())");
             expectIcon(bench, 2, "scenegraph/GroupNode", false);
             expectIcon(bench, 3, "scenegraph/Overlay", false);
             expectIcon(bench, 4, "scenegraph/Switch", false);
         }},
        {"item.overlayBeforeSwitch",
         "A node reported as overlay and switch has the overlay's icon.",
         [](ModuleBench &bench) {
             bench.service().build("a2");
             bench.node(2).claimsToBeSwitch = true;
             Q_EMIT bench.service().modelReset();
             expectIcon(bench, 2, "scenegraph/Overlay", true);
         }},
        {"item.colours", "Active names are opaque white, inactive ones have the style's colour.",
         [](ModuleBench &bench) {
             bench.open("a2 b3-");
             expectEqual("active", colourOf(bench, 2), QColor(255, 255, 255, 255));
             expectEqual("inactive", colourOf(bench, 3), kxStyle::getInactiveNodeColor());
             expectEqual("pattern",
                         int(bench.item(2).data(Qt::ForegroundRole).value<QBrush>().style()),
                         int(Qt::SolidPattern));
         }},
        {"item.looksFollow", "Icon and colour follow the active state.",
         [](ModuleBench &bench) {
             bench.open("g2(a3)");
             bench.service().setEnabled({2}, false);
             expectIcon(bench, 3, "scenegraph/Overlay", false);
             expectEqual("colour", colourOf(bench, 3), kxStyle::getInactiveNodeColor());
             bench.service().setEnabled({2}, true);
             expectIcon(bench, 3, "scenegraph/Overlay", true);
             expectEqual("colour", colourOf(bench, 3), QColor(Qt::white));
         }},
        {"item.clones", "A clone of a row carries all its roles and flags.",
         [](ModuleBench &bench) {
             bench.open("g2(a3-)");
             const std::unique_ptr<QStandardItem> clone(bench.item(3).clone());
             for (const int role : {int(Qt::DisplayRole), int(Qt::CheckStateRole),
                                    int(Qt::ForegroundRole), idRole, activeRole})
                 expectEqual("role", clone->data(role), bench.item(3).data(role));
             expectEqual("icon", clone->icon().cacheKey(), bench.item(3).icon().cacheKey());
             expectEqual("flags", int(clone->flags()), int(bench.item(3).flags()));
             expectEqual("type", clone->type(), 1000);
         }},
    };
}

} // namespace conformance
