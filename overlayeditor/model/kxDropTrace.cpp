// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "overlayeditor/model/kxDropTrace.h"

#include "overlayeditor/model/kxOverlayQtModel.h"

kxDropTrace::kxDropTrace(kxOverlayQtModel *model) : m_model(model)
{
    connect(model, &QAbstractItemModel::rowsInserted, this, &kxDropTrace::noteInsertion);
    connect(model, &QAbstractItemModel::rowsRemoved, this, &kxDropTrace::noteParent);
    connect(model, &kxOverlayQtModel::nodesDropped, this,
            [this](const QRPC::NodeList &nodes) { m_droppedNodes = nodes; });
}

kxDropTrace::~kxDropTrace() = default;

void kxDropTrace::noteInsertion(const QModelIndex &parent, int first, int last)
{
    noteParent(parent);
    for (int row = first; row <= last; ++row)
        m_inserted.append(m_model->index(row, 0, parent));
}

void kxDropTrace::noteParent(const QModelIndex &parent)
{
    if (!parent.isValid())
        m_rootTouched = true;
    else if (!m_parents.contains(parent))
        m_parents.append(parent);
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
