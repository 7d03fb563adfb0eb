// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/QRPC.h"
#include "viewer/scene/Scene.h"

#include <QHash>
#include <QIcon>
#include <QStandardItemModel>
#include <QTreeView>

/// The least that Qt has to do for the same tree: plain items with the same roles, from values that
/// are at hand, and none of the rules of the module. What the module needs is measured against it.
class FloorTree
{
public:
    explicit FloorTree(const viewer::Scene &scene);

    QStandardItemModel *model() { return &m_model; }

    /// Empties the model and builds all rows, top-level row by top-level row.
    void fill();
    void removeAll();
    void removeEverySecond();
    void renameAll();
    void enableAll();

    /// Moves all other top-level rows, one after the other, to the end of the first one.
    void moveAllIntoFirst();

    /// Moves all top-level rows into a new first one.
    void groupAll();

    /// Appends rows one by one; each is shown and selected by itself.
    void create(int count, QTreeView *view);

    /// Inserts a copy behind each top-level row; the copies are selected and the last is shown.
    void duplicateAll(QTreeView *view);

    /// Appends a copy of each top-level row; the copies are selected and the last is shown.
    void appendCopies(QTreeView *view);

    /// Removes the rows behind the first ones, one by one.
    void removeBehind(int rows);

    /// Moves the last rows to the front, one by one.
    void moveToFront(int rows);

private:
    QStandardItem *createItem(const viewer::Node &node);
    void setActive(QStandardItem *item, bool active);

    const viewer::Scene &m_scene;
    QStandardItemModel m_model;
    QHash<QRPC::NodeId, QStandardItem *> m_items;
    QIcon m_icon;
};
