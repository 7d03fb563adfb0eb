// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "bench/EditorCase.h"

#include <QApplication>

namespace {

/// Adds all rows below a parent, in one range, or every second one.
void pickRows(const QTreeView *view, const QModelIndex &parent, Picked which,
              QItemSelection *picked)
{
    const QAbstractItemModel *model = view->model();
    const int count = model->rowCount(parent);
    if (which == Picked::All && count > 0)
        picked->select(model->index(0, 0, parent), model->index(count - 1, 0, parent));
    for (int row = 0; which == Picked::Half && row < count; row += 2)
        picked->append(QItemSelectionRange(model->index(row, 0, parent)));
}

/// Selects among the rows that are shown.
void pick(QTreeView *view, const Start &start)
{
    if (start.expanded)
        view->expandAll();
    QItemSelection picked;
    QModelIndexList open{QModelIndex()};
    while (!open.isEmpty()) {
        const QModelIndex parent = open.takeLast();
        pickRows(view, parent, start.picked, &picked);
        for (int row = 0; start.expanded && row < view->model()->rowCount(parent); ++row)
            open.append(view->model()->index(row, 0, parent));
    }
    view->selectionModel()->select(picked, QItemSelectionModel::ClearAndSelect);
    QCoreApplication::processEvents();
}

} // namespace

Editor::Editor(const Start &start, int size) : tree(start.shape, size)
{
    Q_EMIT tree.service()->modelReset();
    host.mainWindow().resize(900, 800);
    host.mainWindow().show();
    host.registrations().last().window->show();
    view = host.registrations().last().window->findChild<QTreeView *>();
    QCoreApplication::processEvents();
    pick(view, start);
}

Plain::Plain(const Start &start, int size)
    : tree(start.shape, size)
    , floor(tree.service()->scene())
    , view(makeView(true, floor.model()))
{
    floor.fill();
    QCoreApplication::processEvents();
    pick(view.get(), start);
}
