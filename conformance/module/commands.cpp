// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "conformance/module/moduleChecks.h"
#include "host/kxIconManager.h"
#include "host/kxShortcut.h"

#include <QAction>
#include <QLineEdit>
#include <QMenu>
#include <QToolBar>

#include <algorithm>

namespace conformance {

namespace {

using Nodes = QRPC::NodeList;

/// A command: its slot, its entry in the menu, and the calls that it makes for the nodes 2 (enabled,
/// an overlay) and 4 (disabled), and with nothing selected.
struct Command
{
    const char *slot;
    const char *entry;
    QStringList calls;
    QStringList callsOfNone;
};

std::vector<Command> commands()
{
    return {
        {"createOverlay", "Create Overlay", {"createOverlay 1"}, {"createOverlay 1"}},
        {"createOverlayGroup", "Create Group", {"createGroup 1"}, {"createGroup 1"}},
        {"createSwitch", "Create Switch", {"createSwitch 1"}, {"createSwitch 1"}},
        {"duplicateOverlays",
         "Duplicate Overlays",
         {"duplicateNodes [2,4]"},
         {"duplicateNodes []"}},
        {"deleteOverlays", "Delete Overlays", {"deleteNodes [2,4]"}, {"deleteNodes []"}},
        {"createGroupFromSelection", "Group Selection", {"groupNodes [2,4]"}, {"groupNodes []"}},
        {"switchOn", "Switch On", {"setEnabled [2,4] true"}, {"setEnabled [] true"}},
        {"switchOff", "Switch Off", {"setEnabled [2,4] false"}, {"setEnabled [] false"}},
        {"toggle",
         "Toggle",
         {"setEnabled [2] false", "setEnabled [4] true"},
         {"setEnabled [] false", "setEnabled [] true"}},
    };
}

/// The node that was created last.
Nodes newest(ModuleBench &bench)
{
    const Nodes all = bench.service().allIds();
    return {*std::max_element(all.begin(), all.end())};
}

void openForCommands(ModuleBench &bench, const Nodes &selection)
{
    bench.open("a2 b3 c4- g5()");
    bench.service().setApplies(false);
    bench.select(selection);
}

ModuleChecks callChecks()
{
    ModuleChecks checks;
    for (const Command &command : commands()) {
        const QString slot = QString::fromLatin1(command.slot);
        checks.push_back({"command." + slot, "The command makes this call for the selection.",
                          [command](ModuleBench &bench) {
                              openForCommands(bench, {2, 4});
                              expectEqual("calls",
                                          bench.commandsOf([&] { bench.call(command.slot); }),
                                          command.calls);
                          }});
        checks.push_back({"command." + slot + ".nothing",
                          "With nothing selected the call is made with an empty list or the root.",
                          [command](ModuleBench &bench) {
                              openForCommands(bench, {});
                              expectEqual("calls",
                                          bench.commandsOf([&] { bench.call(command.slot); }),
                                          command.callsOfNone);
                          }});
        checks.push_back({"menu.calls." + slot, "The menu's entry does what the command does.",
                          [command](ModuleBench &bench) {
                              openForCommands(bench, {2, 4});
                              QAction &entry = bench.menuEntry(command.entry);
                              expectEqual("calls", bench.commandsOf([&] { entry.trigger(); }),
                                          command.calls);
                          }});
    }
    return checks;
}

// One table, long as it has an entry for each check.
ModuleChecks effectChecks() // NOLINT(readability-function-size)
{
    return {
        {"command.selectionOrder", "Targets are sent in the order in which they were selected.",
         [](ModuleBench &bench) {
             bench.open("a2 b3 c4");
             bench.service().setApplies(false);
             bench.select({4, 2, 3});
             expectEqual("calls", bench.commandsOf([&] { bench.call("deleteOverlays"); }),
                         QStringList("deleteNodes [4,2,3]"));
         }},
        {"command.changesNothingItself",
         "A command that the service does not follow changes nothing.",
         [](ModuleBench &bench) {
             bench.open("a2 g3(b4)");
             bench.service().setApplies(false);
             bench.select({2, 4});
             for (const Command &command : commands())
                 bench.call(command.slot);
             bench.expectTree();
             expectEqual("selection", bench.selected(), Nodes({2, 4}));
         }},
        {"command.createdIsSelected", "What a command creates becomes the selection.",
         [](ModuleBench &bench) {
             bench.open("a2 g3()");
             bench.select({3});
             bench.call("createSwitch");
             bench.expectTree();
             expectEqual("selection", bench.selected(), newest(bench));
             bench.select({2, 3});
             bench.call("duplicateOverlays");
             bench.expectTree();
             expectEqual("number of copies", bench.selected().size(), 2);
         }},
        {"command.deletes", "Deleted nodes leave tree and selection.",
         [](ModuleBench &bench) {
             bench.open("a2 g3(b4 c5) d6");
             bench.select({3, 5, 2});
             bench.call("deleteOverlays");
             bench.expectTree();
             expectEqual("selection", bench.selected(), Nodes());
             bench.call("deleteOverlays");
             bench.expectTree();
         }},
        {"command.groups", "The selection is grouped, and the group becomes the selection.",
         [](ModuleBench &bench) {
             bench.open("a2 b3 g4(c5)");
             bench.select({3, 5});
             bench.call("createGroupFromSelection");
             bench.expectTree();
             expectEqual("selection", bench.selected(), newest(bench));
         }},
        {"command.toggles", "Every node ends in the opposite state.",
         [](ModuleBench &bench) {
             bench.open("a2 b3- g4(c5)");
             bench.select({2, 3, 4});
             bench.call("toggle");
             expectEqual("tree", bench.shown(), QString("a2- b3 g4-(c5~)"));
         }},
        {"command.renames", "Rename opens the name of the first selected row in place.",
         [](ModuleBench &bench) {
             bench.open("a2 b3");
             QWidget &window = bench.window();
             window.show();
             bench.select({3, 2});
             expectEqual("calls", bench.commandsOf([&] { bench.call("renameOverlay"); }),
                         QStringList());
             auto *edit = bench.tree().viewport()->findChild<QLineEdit *>();
             expect("an editor is open", edit != nullptr);
             expectEqual("its text", edit->text(), QString("b3"));
         }},
        {"command.renamesUnseen", "A name in a closed group is opened with the group.",
         [](ModuleBench &bench) {
             bench.openShown("g2(a3)");
             bench.tree().collapse(bench.index(2));
             bench.select({3});
             bench.call("renameOverlay");
             auto *edit = bench.tree().viewport()->findChild<QLineEdit *>();
             expect("an editor is open", edit != nullptr);
             expect("it is seen", edit->isVisible());
             expect("it stands in its row",
                    bench.tree().visualRect(bench.index(3)).contains(edit->geometry().center()));
         }},
        {"command.renamesNothing", "Rename with nothing selected opens no editor.",
         [](ModuleBench &bench) {
             bench.open("a2 b3");
             bench.select({});
             bench.call("renameOverlay");
             expect("no editor is open",
                    bench.tree().viewport()->findChild<QLineEdit *>() == nullptr);
         }},
    };
}

/// The texts of the menu in order, "-" for a separator.
QStringList menuTexts(ModuleBench &bench)
{
    QStringList texts;
    const QList<QAction *> entries = bench.menu().actions();
    for (const QAction *entry : entries)
        texts.append(entry->isSeparator() ? QString("-") : entry->text());
    return texts;
}

QStringList wantedTexts()
{
    const auto withKey = [](const char *text, int key, int modifiers) {
        return QString(text) + '\t' + kxShortcut::convertKey(key, modifiers, false);
    };
    const int ctrl = Qt::ControlModifier;
    const int ctrlShift = Qt::ControlModifier | Qt::ShiftModifier;
    return {"Create Overlay",
            withKey("Create Group", Qt::Key_G, ctrl),
            "Create Switch",
            withKey("Duplicate Overlays", Qt::Key_D, ctrl),
            withKey("Delete Overlays", Qt::Key_Delete, 0),
            "-",
            withKey("Rename Overlay", Qt::Key_R, ctrl),
            withKey("Group Selection", Qt::Key_G, ctrlShift),
            "-",
            "Switch On",
            "Switch Off",
            withKey("Toggle", Qt::Key_T, ctrl),
            "-",
            withKey("Select All", Qt::Key_A, ctrl),
            withKey("Deselect All", Qt::Key_A, ctrlShift),
            withKey("Invert Selection", Qt::Key_I, ctrl)};
}

QToolBar &bar(ModuleBench &bench)
{
    auto *found = bench.window().findChild<QToolBar *>("QuickActionBar");
    expect("there is a bar named QuickActionBar", found != nullptr);
    return *found;
}

// One table, long as it has an entry for each check.
ModuleChecks menuAndBarChecks() // NOLINT(readability-function-size)
{
    return {
        {"menu.texts", "The menu has these entries with these keys, in this order.",
         [](ModuleBench &bench) { expectEqual("texts", menuTexts(bench), wantedTexts()); }},
        {"menu.tearOff", "The menu can be torn off.",
         [](ModuleBench &bench) { expect("tear-off", bench.menu().isTearOffEnabled()); }},
        {"menu.noShortcuts", "Entries are enabled, without icon and without a key of their own.",
         [](ModuleBench &bench) {
             const QList<QAction *> entries = bench.menu().actions();
             for (const QAction *entry : entries) {
                 expect("no key", entry->shortcut().isEmpty());
                 expect("no icon", entry->icon().isNull());
                 expect("enabled", entry->isEnabled());
             }
         }},
        {"menu.selects", "The entries of the selection select.",
         [](ModuleBench &bench) {
             bench.open("a2 b3");
             bench.menuEntry("Select All").trigger();
             expectEqual("all", bench.selected(), Nodes({2, 3}));
             bench.menuEntry("Deselect All").trigger();
             expectEqual("none", bench.selected(), Nodes());
             bench.select({2});
             bench.menuEntry("Invert Selection").trigger();
             expectEqual("inverted", bench.selected(), Nodes({3}));
         }},
        {"menu.renames", "The entry Rename Overlay opens the name in place.",
         [](ModuleBench &bench) {
             bench.open("a2");
             QWidget &window = bench.window();
             window.show();
             bench.select({2});
             bench.menuEntry("Rename Overlay").trigger();
             expect("an editor is open", bench.tree().viewport()->findChild<QLineEdit *>());
         }},
        {"bar.place", "The bar is at the bottom and can be neither moved nor floated.",
         [](ModuleBench &bench) {
             const QToolBar &actions = bar(bench);
             expectEqual("class", QByteArray(actions.metaObject()->className()),
                         QByteArray("QKXToolBar"));
             expectEqual("title", actions.windowTitle(), QString("QuickActions"));
             expectEqual("allowed areas", int(actions.allowedAreas()), int(Qt::BottomToolBarArea));
             expectEqual("area", int(bench.window().toolBarArea(const_cast<QToolBar *>(&actions))),
                         int(Qt::BottomToolBarArea));
             expect("not movable", !actions.isMovable());
             expect("not floatable", !actions.isFloatable());
             expectEqual("menu policy", int(actions.contextMenuPolicy()),
                         int(Qt::ActionsContextMenu));
         }},
        {"bar.actions", "The bar has three actions with these texts and tips.",
         [](ModuleBench &bench) {
             QStringList texts;
             const QList<QAction *> actions = bar(bench).actions();
             for (const QAction *action : actions)
                 texts.append(action->text() + ": " + action->statusTip());
             expectEqual("actions", texts,
                         QStringList({"Create: Create a new overlay",
                                      "Duplicate: Duplicates the currently selected overlays",
                                      "Delete: Deletes the currently selected overlays"}));
         }},
        {"bar.icons", "The actions of the bar have their icons.",
         [](ModuleBench &bench) {
             const QList<QAction *> actions = bar(bench).actions();
             expectEqual("number", actions.size(), 3);
             const char *const names[] = {"CreateNew", "Duplicate", "Delete"};
             for (int i = 0; i < 3; ++i)
                 expect(names[i],
                        actions.at(i)->icon().pixmap(24, 24).toImage()
                            == kxIconManager::getIcon(names[i], "").pixmap(24, 24).toImage());
         }},
        {"bar.calls", "The actions of the bar do what their commands do.",
         [](ModuleBench &bench) {
             openForCommands(bench, {2, 4});
             QStringList calls;
             const QList<QAction *> actions = bar(bench).actions();
             for (QAction *action : actions)
                 calls += bench.commandsOf([action] { action->trigger(); });
             expectEqual(
                 "calls", calls,
                 QStringList({"createOverlay 1", "duplicateNodes [2,4]", "deleteNodes [2,4]"}));
         }},
    };
}

} // namespace

ModuleChecks commandChecks()
{
    return joined<ModuleBench>({callChecks(), effectChecks(), menuAndBarChecks()});
}

} // namespace conformance
