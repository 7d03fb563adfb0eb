// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "kit/TreeDump.h"

#include "host/kxStyle.h"
#include "kit/RecordingService.h"

#include <QBrush>
#include <QStandardItemModel>
#include <QVector>

#include <algorithm>

namespace {

constexpr int idRole = Qt::UserRole + 1;
constexpr int activeRole = Qt::UserRole + 2;

QString row(const QString &name, QRPC::NodeId id, bool enabled, bool active)
{
    QString line = name.isEmpty() ? QStringLiteral("?") : name;
    if (notation::idOf(name) != id)
        line += QStringLiteral("#%1").arg(id);
    if (!enabled)
        line += active ? QStringLiteral("-!active") : QStringLiteral("-");
    else if (!active)
        line += QLatin1Char('~');
    return line;
}

/// What is wrong with a row whatever the service says.
QString faults(const QStandardItem *item)
{
    QString found;
    const bool active = item->data(activeRole).toBool();
    const QColor colour = active ? QColor(255, 255, 255) : kxStyle::getInactiveNodeColor();
    if (item->data(Qt::ForegroundRole).value<QBrush>() != QBrush(colour))
        found += QStringLiteral("!colour");
    if (item->data(Qt::CheckStateRole).type() != QVariant::Int)
        found += QStringLiteral("!check");
    constexpr Qt::ItemFlags wanted = Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsEditable
                                     | Qt::ItemIsDragEnabled | Qt::ItemIsUserCheckable;
    if ((item->flags() & ~Qt::ItemIsDropEnabled) != wanted)
        found += QStringLiteral("!flags");
    if (item->columnCount() > 1)
        found += QStringLiteral("!columns");
    return found;
}

QString rowOf(const QStandardItem *item)
{
    if (!item)
        return QStringLiteral("!null");
    return row(item->text(), item->data(idRole).toUInt(),
               item->data(Qt::CheckStateRole).toInt() == Qt::Checked,
               item->data(activeRole).toBool())
           + faults(item);
}

QString rowOf(const RecordingService::Node *node)
{
    return row(node->name, node->id, node->enabled, RecordingService::isActiveNode(*node));
}

bool holdsRows(const QStandardItem *item)
{
    return item && (item->isDropEnabled() || item->hasChildren());
}

bool holdsRows(const RecordingService::Node *node)
{
    return node->kind != notation::Kind::Overlay;
}

int countOf(const QStandardItem *item)
{
    return item->rowCount();
}

int countOf(const RecordingService::Node *node)
{
    return node->children.size();
}

const QStandardItem *childOf(const QStandardItem *item, int at)
{
    return item->child(at);
}

const RecordingService::Node *childOf(const RecordingService::Node *node, int at)
{
    return node->children.at(at);
}

/// A walk without recursion: trees of 10,000 levels are compared, under sanitizers too.
template<class Node>
QString dump(const Node *root)
{
    QString line;
    QVector<QPair<const Node *, int>> open{{root, 0}};
    while (!open.isEmpty()) {
        const auto [node, next] = open.last();
        if (next == countOf(node)) {
            open.removeLast();
            line += QLatin1Char(')');
            continue;
        }
        ++open.last().second;
        if (next > 0)
            line += QLatin1Char(' ');
        const Node *child = childOf(node, next);
        line += rowOf(child);
        if (holdsRows(child)) {
            line += QLatin1Char('(');
            open.append({child, 0});
        }
    }
    line.chop(1);
    return line;
}

} // namespace

QString dumpTree(const RecordingService &service)
{
    return dump(
        static_cast<const RecordingService::Node *>(&service.node(RecordingService::rootId)));
}

QString dumpTree(const QStandardItemModel &model)
{
    return dump(static_cast<const QStandardItem *>(model.invisibleRootItem()));
}

QString treeDifference(const QStandardItemModel &model, const RecordingService &service)
{
    const QString shown = dumpTree(model);
    const QString wanted = dumpTree(service);
    if (shown == wanted)
        return QString();
    constexpr int before = 40;
    constexpr int length = 160;
    const auto difference =
        std::mismatch(shown.cbegin(), shown.cend(), wanted.cbegin(), wanted.cend());
    const int start = std::max(0, int(difference.first - shown.cbegin()) - before);
    return QStringLiteral("the tree differs from position %1 on\n   shown:  %2\n   wanted: %3")
        .arg(difference.first - shown.cbegin())
        .arg(shown.mid(start, length), wanted.mid(start, length));
}
