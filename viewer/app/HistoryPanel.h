// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "viewer/scene/OverlayService.h"

#include <QAbstractListModel>
#include <QDockWidget>
#include <QIcon>

class QListView;

namespace viewer {

/// The steps of the history as rows, below the state in which the scene was opened. The saved state
/// carries a mark, what has been undone is grey. Owned by its panel.
class HistoryModel : public QAbstractListModel
{
    Q_OBJECT

public:
    HistoryModel(const QUndoStack *stack, QObject *parent);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

private:
    void refresh();

    const QUndoStack *m_stack;
    QIcon m_savedMark;
    QIcon m_noMark;
};

/// The list of steps beside the view; a click takes the scene to that state, one step after the
/// other, so that each is announced like any other. Owned by the window; hidden until it is asked
/// for.
class HistoryPanel : public QDockWidget
{
    Q_OBJECT

public:
    HistoryPanel(OverlayService *service, QWidget *parent);

private:
    void goTo(int index);
    void showCurrent();

    OverlayService *m_service;
    HistoryModel *m_model;
    QListView *m_list;
};

} // namespace viewer
