// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "overlayeditor/model/kxDropTrace.h"

#include "overlayeditor/model/kxOverlayQtModel.h"

kxDropTrace::kxDropTrace(kxOverlayQtModel *model) : m_model(model)
{
    connect(model, &QAbstractItemModel::rowsInserted, this, &kxDropTrace::noteInsertion);
    connect(model, &QAbstractItemModel::rowsRemoved, this, &kxDropTrace::noteParent);
    connect(model, &kxOverlayQtModel::nodesDropped, this, &kxDropTrace::noteDrop);
}

kxDropTrace::~kxDropTrace() = default;

/// The view removes the rows that were dragged, but rows of nodes that came with a drag from
/// elsewhere stay where they were; and a drop without rows of the toolkit's inserts none.
void kxDropTrace::noteDrop(const QRPC::NodeList &nodes, const QModelIndex &target)
{
    m_droppedNodes = nodes;
    noteParent(target);
    for (const QRPC::NodeId node : nodes)
        noteParent(m_model->indexFromId(node).parent());
}

void kxDropTrace::noteInsertion(const QModelIndex &parent, int first, int last)
{
    noteParent(parent);
    for (int row = first; row <= last; ++row)
        m_inserted.append(m_model->index(row, 0, parent));
}

void kxDropTrace::noteParent(const QModelIndex &parent)
{
    if (!parent.isValid()) {
        m_rootTouched = true;
    } else if (!m_known.contains(parent)) {
        m_known.insert(parent);
        m_parents.append(parent);
    }
}

QModelIndexList kxDropTrace::insertedRows() const
{
    QModelIndexList rows;
    for (const QPersistentModelIndex &row : m_inserted) {
        if (row.isValid())
            rows.append(row);
    }
    return rows;
}

QModelIndexList kxDropTrace::touchedParents() const
{
    QModelIndexList parents;
    if (m_rootTouched)
        parents.append(QModelIndex());
    for (const QPersistentModelIndex &parent : m_parents) {
        if (parent.isValid())
            parents.append(parent);
    }
    return parents;
}
