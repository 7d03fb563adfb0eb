// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/QRPC.h"

#include <QObject>
#include <QPersistentModelIndex>
#include <QSet>
#include <QVector>

class kxOverlayQtModel;

/// Notes what a drag does to the rows of the model, from its construction to its destruction: the
/// toolkit inserts copies of the dragged rows and then removes what is selected, without a word to
/// the model about either belonging together. Made by the view around a drag; GUI thread only.
class kxDropTrace : public QObject
{
    Q_OBJECT

public:
    explicit kxDropTrace(kxOverlayQtModel *model);
    ~kxDropTrace() override;

    /// The nodes of the last drop that the service was asked to move, in drag order.
    QRPC::NodeList droppedNodes() const { return m_droppedNodes; }

    /// Where the rows of these nodes were when the service was asked; those that are still there.
    QModelIndexList droppedRows() const { return valid(m_droppedRows); }

    /// Rows that were inserted and are still there.
    QModelIndexList insertedRows() const { return valid(m_inserted); }

    /// Parents that lost or gained rows, or nodes of a drop, and are still there, in the order of
    /// their first change: the target of a drop comes before the places that its nodes came from. An
    /// invalid index stands for the root.
    QModelIndexList touchedParents() const;

private:
    static QModelIndexList valid(const QVector<QPersistentModelIndex> &rows);
    void noteDrop(const QRPC::NodeList &nodes, const QModelIndex &target);
    void noteInsertion(const QModelIndex &parent, int first, int last);
    void noteParent(const QModelIndex &parent);

    kxOverlayQtModel *m_model;
    QRPC::NodeList m_droppedNodes;
    QVector<QPersistentModelIndex> m_droppedRows;
    QVector<QPersistentModelIndex> m_inserted;
    QVector<QPersistentModelIndex> m_parents; // in the order of their first change
    QSet<QPersistentModelIndex> m_known;      // the same
    int m_rootAt = -1;                        // the root's place among them; -1 for none
};
