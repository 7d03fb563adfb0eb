// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "kit/ForeignDrop.h"

#include <QDataStream>
#include <QMimeData>
#include <QStandardItemModel>

#include <memory>

namespace {

const char s_same[] = "g2(h3(a4) b5) c6 k7()";

DropData withRows(const QString &format, const QRPC::NodeList &nodes)
{
    return DropData::rowsOf(nodes).add(format, DropData::records(nodes));
}

ForeignDrop row(const char *name, const DropData &data, QRPC::NodeId target, DropCase::Edge edge,
                const char *call, const char *after, const QRPC::NodeList &selection = {5})
{
    return {name, data, target, edge, call, after, selection};
}

} // namespace

DropData &DropData::add(const QString &format, const QByteArray &bytes)
{
    formats.append({format, bytes});
    return *this;
}

DropData DropData::rowsOf(const QRPC::NodeList &ids, int columns)
{
    QStandardItemModel model;
    for (const QRPC::NodeId id : ids) {
        QList<QStandardItem *> row;
        for (int column = 0; column < columns; ++column)
            row.append(new QStandardItem(QStringLiteral("foreign")));
        if (id != 0)
            row.first()->setData(id, Qt::UserRole + 1);
        row.first()->appendRow(new QStandardItem(QStringLiteral("child")));
        model.appendRow(row);
    }
    QModelIndexList indexes;
    for (int row = 0; row < model.rowCount(); ++row) {
        for (int column = 0; column < columns; ++column)
            indexes.append(model.index(row, column));
    }
    const std::unique_ptr<QMimeData> data(model.mimeData(indexes));
    const QString format = model.mimeTypes().constFirst();
    return DropData().add(format, data->data(format));
}

QByteArray DropData::records(const QRPC::NodeList &nodes, int parent)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    for (const QRPC::NodeId node : nodes)
        stream << qint32(node) << qint32(parent);
    return bytes;
}

QString DropData::overlayFormat()
{
    return QStringLiteral("application/pimo-overlay-items");
}

QString DropData::treeFormat()
{
    return QStringLiteral("application/pimo-overlaytree-items");
}

QString ForeignDrop::before()
{
    return QString::fromLatin1(s_same);
}

const QVector<ForeignDrop> &ForeignDrop::all()
{
    const QString overlays = DropData::overlayFormat();
    const QString trees = DropData::treeFormat();
    static const QVector<ForeignDrop> drops{
        row("rows of another view", DropData::rowsOf({0, 0}), 7, DropCase::On, nullptr, s_same),
        row("rows of another view, between rows", DropData::rowsOf({0}), 6, DropCase::Above,
            nullptr, s_same),
        row("rows of another view, onto empty space", DropData::rowsOf({0}), 0, DropCase::On,
            nullptr, s_same),
        row("rows that only look like nodes", DropData::rowsOf({6, 4711}), 7, DropCase::On, nullptr,
            s_same),
        row("no record", DropData().add(overlays, QByteArray()), 7, DropCase::On, "[] 7 -1",
            s_same),
        row("records without rows", DropData().add(overlays, DropData::records({6})), 7,
            DropCase::On, "[6] 7 -1", "g2(h3(a4) b5) k7(c6)", {6}),
        row("half a record", DropData().add(overlays, DropData::records({6}).left(6)), 7,
            DropCase::On, "[6] 7 -1", "g2(h3(a4) b5) k7(c6)", {6}),
        row("a piece of an id", DropData().add(overlays, DropData::records({6}).left(3)), 7,
            DropCase::On, "[0] 7 -1", s_same),
        row("a record and a piece",
            DropData::rowsOf({6}).add(overlays, DropData::records({6, 5}).left(11)), 7,
            DropCase::On, "[6,0] 7 -1", "g2(h3(a4) b5) k7(c6)", {6}),
        row("unknown ids", withRows(overlays, {4711, 4712}), 7, DropCase::On, "[4711,4712] 7 -1",
            s_same),
        row("an unknown and a known id", withRows(overlays, {4711, 6}), 7, DropCase::On,
            "[4711,6] 7 -1", "g2(h3(a4) b5) k7(c6)", {6}),
        row("no id", withRows(overlays, {0}), 7, DropCase::On, "[0] 7 -1", s_same),
        row("an id twice", withRows(overlays, {6, 6}), 7, DropCase::On, "[6,6] 7 -1",
            "g2(h3(a4) b5) k7(c6)", {6}),
        row("ids that are taken here", withRows(trees, {3, 6}), 7, DropCase::On, "[3,6] 7 -1",
            "g2(b5) k7(h3(a4) c6)", {3, 6}),
        row("ids that are taken here, between rows", withRows(overlays, {5}), 6, DropCase::Below,
            "[5] 1 2", "g2(h3(a4)) c6 b5 k7()", {5}),
        row("ids where they are already", withRows(overlays, {6}), 0, DropCase::On, "[6] 1 -1",
            "g2(h3(a4) b5) k7() c6", {6}),
        row("the root", withRows(trees, {1}), 7, DropCase::On, "[1] 7 -1", s_same),
        row("the root, onto empty space", withRows(trees, {1}), 0, DropCase::On, "[1] 1 -1",
            s_same),
        row("a group onto itself", withRows(trees, {2}), 2, DropCase::On, "[2] 2 -1", s_same, {2}),
        row("a group into its own child", withRows(trees, {2}), 3, DropCase::On, "[2] 3 -1", s_same,
            {2}),
        row("a negative id", withRows(overlays, {QRPC::NodeId(-5)}), 7, DropCase::On,
            "[4294967291] 7 -1", s_same),
    };
    return drops;
}
