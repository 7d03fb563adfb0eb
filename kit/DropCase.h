// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/QRPC.h"

#include <QPoint>
#include <QVector>

class QModelIndex;
class QTreeView;

/// A drag of selected rows to a place in the tree, and what comes of it. A plain value.
struct DropCase
{
    /// Where in a row; a drop at an edge goes between two rows.
    enum Edge { Above, On, Below };

    const char *name;
    const char *before; ///< the tree in the notation of TreeNotation.h
    QRPC::NodeList
        picked;          ///< the selected nodes in the order of the selection; dragged by the last
    QRPC::NodeId target; ///< 0: the empty space below all rows
    Edge edge;
    const char *call;  ///< what moveNodes() is called with
    const char *after; ///< the tree in the notation of TreeDump.h

    /// Drops of every kind of selection on every kind of place.
    static const QVector<DropCase> &all();

    /// A place in the tree's viewport; without a row it is the empty space below all rows.
    static QPoint placeOf(const QTreeView &tree, const QModelIndex &row, Edge edge);
};
