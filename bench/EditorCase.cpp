// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "bench/EditorCase.h"

#include <QApplication>

#include <functional>

namespace {

/// Selects every row or every second one, among siblings that are shown.
void pick(QTreeView *view, const Start &start)
{
    if (start.expanded)
        view->expandAll();
    QItemSelection picked;
    const QAbstractItemModel *model = view->model();
    const std::function<void(const QModelIndex &)> walk = [&](const QModelIndex &parent) {
        const int step = start.picked == Picked::Half ? 2 : 1;
        for (int row = 0; row < model->rowCount(parent); row += step) {
            const QModelIndex index = model->index(row, 0, parent);
            picked.append(QItemSelectionRange(index));
            if (start.expanded)
                walk(index);
        }
    };
    if (start.picked == Picked::All && !start.expanded)
        picked.select(model->index(0, 0), model->index(model->rowCount() - 1, 0));
    else if (start.picked != Picked::None)
        walk(QModelIndex());
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
