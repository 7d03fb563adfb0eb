// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

// How long the editor takes for trees of up to 100,000 nodes, window included, beside the same work
// of the service and of a plain tree view. Prints a table of docs/PERFORMANCE.md; how much is done
// for it, tst_kxOverlayEditor_scale counts.

#include "bench/EditorCase.h"
#include "bench/PanelQuestions.h"
#include "bench/Sides.h"
#include "kit/widgets.h"
#include "overlayeditor/model/kxDropTrace.h"
#include "overlayeditor/model/kxOverlayQtModel.h"

#include <QMimeData>
#include <QRegExp>

#include <functional>
#include <memory>
#include <vector>

namespace {

constexpr int s_dropped = 1000;

template<class Side>
using Step = std::function<void(Side *)>;

/// One operation on all nodes; what prepares it is not measured.
struct Operation
{
    const char *name;
    Step<Editor> prepare;
    Step<Editor> module;
    Step<Plain> preparePlain;
    Step<Plain> floor;
    int more = 0; ///< nodes that the tree has besides
};

template<class Side>
void nothing(Side *)
{
}

template<class Side>
void undo(Side *side)
{
    side->tree.service()->undo();
}

Step<Editor> slot(const char *name)
{
    return [name](Editor *editor) { editor->call(name); };
}

void search(Editor *editor)
{
    QMetaObject::invokeMethod(&editor->editor, "searchChanged",
                              Q_ARG(QString, QStringLiteral("de 1*5")));
}

/// A bare walk that matches each name once.
void match(Plain *plain)
{
    const QRegExp pattern(QStringLiteral("de 1*5"), Qt::CaseSensitive, QRegExp::Wildcard);
    int found = 0;
    std::vector<const QStandardItem *> pending{plain->floor.model()->invisibleRootItem()};
    while (!pending.empty()) {
        const QStandardItem *item = pending.back();
        pending.pop_back();
        found += item->data(Qt::DisplayRole).toString().indexOf(pattern) >= 0 ? 1 : 0;
        for (int row = 0; row < item->rowCount(); ++row)
            pending.push_back(item->child(row));
    }
    benchmark::DoNotOptimize(found);
}

void color(Editor *editor)
{
    QMetaObject::invokeMethod(&editor->editor, "fontColorChanged", Q_ARG(float, 0.25F),
                              Q_ARG(float, 0.5F), Q_ARG(float, 0.75F));
}

void colorPlain(Plain *plain)
{
    plain->tree.service()->setFontColor(plain->tree.allNodes(), Qt::red);
    questions::askFontColor(plain->tree.allNodes());
}

void togglePlain(Plain *plain)
{
    plain->tree.service()->setEnabled(plain->tree.allNodes(), false);
    plain->floor.enableAll();
}

void deletePlain(Plain *plain)
{
    plain->tree.service()->deleteNodes(plain->tree.topNodes());
    plain->floor.removeAll();
}

void duplicatePlain(Plain *plain)
{
    plain->tree.service()->duplicateNodes(plain->tree.topNodes());
    plain->floor.appendCopies(plain->view.get());
}

void selectFirst(QTreeView *view)
{
    const QAbstractItemModel *model = view->model();
    const QItemSelection first(model->index(0, 0), model->index(s_dropped - 1, 0));
    view->selectionModel()->select(first, QItemSelectionModel::ClearAndSelect);
    widgets::settle();
}

/// Drops the first rows at the end, with what the view does when they are dragged by the mouse.
void drop(QTreeView *view)
{
    QAbstractItemModel *model = view->model();
    const std::unique_ptr<QMimeData> data(
        model->mimeData(view->selectionModel()->selectedIndexes()));
    model->dropMimeData(data.get(), Qt::MoveAction, -1, -1, QModelIndex());
    view->selectionModel()->clear();
    model->removeRows(0, s_dropped);
}

void dropInEditor(Editor *editor)
{
    auto *model = static_cast<kxOverlayQtModel *>(editor->view->model());
    const kxDropTrace trace(model);
    drop(editor->view);
    model->settle(trace);
}

void dropPlain(Plain *plain)
{
    plain->tree.service()->moveNodes(plain->tree.topNodes().mid(0, s_dropped),
                                     viewer::Scene::RootId, -1);
    drop(plain->view.get());
}

std::vector<Operation> valueOperations()
{
    return {
        {"select all", [](Editor *editor) { editor->call("deselectAll"); }, slot("selectAll"),
         nothing<Plain>,
         [](Plain *plain) {
             plain->view->selectAll();
             questions::askAll(plain->tree.allNodes());
         }},
        {"full refresh", nothing<Editor>, [](Editor *editor) { editor->editor.updateAll(); },
         nothing<Plain>, [](Plain *plain) { questions::askAll(plain->tree.allNodes()); }},
        {"search, one key", nothing<Editor>, search, nothing<Plain>, match},
        {"colour of all", nothing<Editor>, color, nothing<Plain>, colorPlain},
        {"undo of colour", color, undo<Editor>, colorPlain,
         [](Plain *plain) {
             undo(plain);
             questions::askFontColor(plain->tree.allNodes());
         }},
        {"toggle all", nothing<Editor>, slot("toggle"), nothing<Plain>, togglePlain},
        {"undo of toggle", slot("toggle"), undo<Editor>, togglePlain,
         [](Plain *plain) {
             undo(plain);
             plain->floor.enableAll();
         }},
    };
}

std::vector<Operation> rowOperations()
{
    return {
        {"duplicate all", nothing<Editor>, slot("duplicateOverlays"), nothing<Plain>,
         duplicatePlain},
        {"undo of duplicate", slot("duplicateOverlays"), undo<Editor>, duplicatePlain,
         [](Plain *plain) {
             undo(plain);
             plain->floor.removeBehind(plain->tree.topNodes().size());
         }},
        {"delete all", nothing<Editor>, slot("deleteOverlays"), nothing<Plain>, deletePlain},
        {"undo of delete", slot("deleteOverlays"), undo<Editor>, deletePlain,
         [](Plain *plain) {
             undo(plain);
             plain->floor.fill();
         }},
    };
}

std::vector<Operation> dropOperations()
{
    return {
        {"drop of 1,000", [](Editor *editor) { selectFirst(editor->view); }, dropInEditor,
         [](Plain *plain) { selectFirst(plain->view.get()); }, dropPlain, s_dropped},
        {"undo of drop",
         [](Editor *editor) {
             selectFirst(editor->view);
             dropInEditor(editor);
         },
         undo<Editor>,
         [](Plain *plain) {
             selectFirst(plain->view.get());
             dropPlain(plain);
         },
         [](Plain *plain) {
             undo(plain);
             plain->floor.moveToFront(s_dropped);
         },
         s_dropped},
    };
}

template<class Side>
sides::Run measure(const Start &start, int size, const Step<Side> &prepare, const Step<Side> &work)
{
    return [=](benchmark::State &state) {
        for ([[maybe_unused]] auto iteration : state) {
            Side side(start, size);
            widgets::settle();
            prepare(&side);
            widgets::settle();
            state.SetIterationTime(sides::secondsOf([&] { work(&side); }));
        }
    };
}

void add(const Start &start, const char *tree, const Operation &operation, int most)
{
    for (int nodes = 1000; nodes <= most; nodes *= 10) {
        const int size = nodes + operation.more;
        sides::add(operation.name, tree, nodes,
                   measure<Editor>(start, size, operation.prepare, operation.module),
                   measure<Plain>(start, size, operation.preparePlain, operation.floor), 1);
    }
}

} // namespace

void sides::addAll()
{
    const Start flat{Shape::Flat, false, Picked::All};
    const Start groups{Shape::Groups, true, Picked::All};
    for (const auto &operations : {valueOperations(), rowOperations(), dropOperations()}) {
        for (const Operation &operation : operations)
            add(flat, "flat", operation, 100000);
    }
    for (const auto &operations : {valueOperations(), rowOperations()}) {
        // The plain view takes minutes until 100,000 open rows are gone.
        for (const Operation &operation : operations)
            add(groups, "groups of 20, open", operation, 10000);
    }
}
