// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "kit/DropCase.h"

#include <QByteArray>
#include <QPair>
#include <QString>

/// What a drag carries: formats with their bytes. A plain value.
struct DropData
{
    QVector<QPair<QString, QByteArray>> formats;

    DropData &add(const QString &format, const QByteArray &bytes);

    /// The toolkit's own format of rows of items, which show these nodes or, with 0, none.
    static DropData rowsOf(const QRPC::NodeList &ids, int columns = 1);

    /// The records of nodes as a drag of an editor writes them, each with its parent.
    static QByteArray records(const QRPC::NodeList &nodes, int parent = 1);

    static QString overlayFormat();
    static QString treeFormat();
};

/// A drop that another application makes on the tree `before()` with node 5 selected, and what comes
/// of it: nothing is lost, and the service is asked for no more than the data say. A plain value.
struct ForeignDrop
{
    const char *name;
    DropData data;
    QRPC::NodeId target; ///< 0: the empty space below all rows
    DropCase::Edge edge;
    const char *call;  ///< what moveNodes() is called with; null where it is not called
    const char *after; ///< the tree in the notation of TreeDump.h
    QRPC::NodeList selection;

    static QString before();
    static const QVector<ForeignDrop> &all();
};
