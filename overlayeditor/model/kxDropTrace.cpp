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
    m_droppedRows.clear();
    for (const QRPC::NodeId node : nodes) {
        m_droppedRows.append(m_model->indexFromId(node));
        noteParent(m_droppedRows.constLast().parent());
    }
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
        if (m_rootAt < 0)
            m_rootAt = m_parents.size();
    } else if (!m_known.contains(parent)) {
        m_known.insert(parent);
        m_parents.append(parent);
    }
}

QModelIndexList kxDropTrace::valid(const QVector<QPersistentModelIndex> &rows)
{
    QModelIndexList found;
    for (const QPersistentModelIndex &row : rows) {
        if (row.isValid())
            found.append(row);
    }
    return found;
}

QModelIndexList kxDropTrace::touchedParents() const
{
    QModelIndexList parents;
    for (int i = 0; i <= m_parents.size(); ++i) {
        if (i == m_rootAt)
            parents.append(QModelIndex());
        if (i < m_parents.size() && m_parents.at(i).isValid())
            parents.append(m_parents.at(i));
    }
    return parents;
}
