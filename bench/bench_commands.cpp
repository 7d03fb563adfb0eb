// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

// How long commands on many nodes take, from the slot of the editor to the idle window, beside the
// same rows and selection in a plain tree view. Prints a table of docs/PERFORMANCE.md.

#include "bench/EditorCase.h"
#include "bench/Sides.h"
#include "kit/widgets.h"

#include <functional>
#include <string>
#include <vector>

namespace {

struct Command
{
    const char *name;
    const char *state;
    Start start;
    std::function<void(Editor *)> module;
    std::function<void(Plain *)> floor;
};

void invert(Plain *plain)
{
    QItemSelection others;
    const QAbstractItemModel *model = plain->view->model();
    for (int row = 1; row < model->rowCount(); row += 2)
        others.append(QItemSelectionRange(model->index(row, 0)));
    plain->view->selectionModel()->select(others, QItemSelectionModel::ClearAndSelect);
}

std::vector<Command> commands()
{
    const auto slot = [](const char *name) {
        return [name](Editor *editor) { editor->call(name); };
    };
    const Start all{Shape::Flat, false, Picked::All};
    const Start half{Shape::Flat, false, Picked::Half};
    const auto removeAll = [](Plain *plain) { plain->floor.removeAll(); };
    const auto deleteAll = [](Editor *editor) {
        editor->tree.service()->deleteNodes(editor->tree.topNodes());
    };
    return {
        {"duplicate", "flat, all selected", all, slot("duplicateOverlays"),
         [](Plain *plain) { plain->floor.duplicateAll(plain->view.get()); }},
        {"delete", "flat, all selected", all, slot("deleteOverlays"), removeAll},
        {"delete", "flat, half selected", half, slot("deleteOverlays"),
         [](Plain *plain) { plain->floor.removeEverySecond(); }},
        {"delete from elsewhere", "groups, collapsed", {Shape::Groups}, deleteAll, removeAll},
        {"delete from elsewhere", "groups, expanded", {Shape::Groups, true}, deleteAll, removeAll},
        {"delete",
         "groups, expanded, all selected",
         {Shape::Groups, true, Picked::All},
         slot("deleteOverlays"),
         removeAll},
        {"group", "flat, all selected", all, slot("createGroupFromSelection"),
         [](Plain *plain) { plain->floor.groupAll(); }},
        {"toggle", "flat, all selected", all, slot("toggle"),
         [](Plain *plain) { plain->floor.enableAll(); }},
        {"toggle",
         "one switch, all selected",
         {Shape::OneSwitch, true, Picked::All},
         slot("toggle"),
         [](Plain *plain) { plain->floor.enableAll(); }},
        {"move to a group",
         "flat, all but one",
         {},
         [](Editor *editor) {
             const QRPC::NodeId group = editor->tree.service()->createGroup(viewer::Scene::RootId);
             editor->tree.service()->moveNodes(editor->tree.topNodes(), group, -1);
         },
         [](Plain *plain) { plain->floor.groupAll(); }},
        {"create 1,000, one by one",
         "flat",
         {},
         [](Editor *editor) {
             for (int i = 0; i < 1000; ++i)
                 editor->call("createOverlay");
         },
         [](Plain *plain) { plain->floor.create(1000, plain->view.get()); }},
        {"invert the selection", "flat, half selected", half, slot("invertSelection"), invert},
    };
}

template<class Side>
sides::Run measure(const Start &start, int size, const std::function<void(Side *)> &work)
{
    return [=](benchmark::State &state) {
        for ([[maybe_unused]] auto iteration : state) {
            Side side(start, size);
            widgets::settle(); // what was left to the event loop is not the command's
            state.SetIterationTime(sides::secondsOf([&] { work(&side); }));
        }
    };
}

} // namespace

void sides::addAll()
{
    for (const Command &command : commands()) {
        for (const int size : {1000, 10000})
            sides::add(command.name, command.state, size,
                       measure<Editor>(command.start, size, command.module),
                       measure<Plain>(command.start, size, command.floor), 1);
    }
}
