// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/support/TreeDump.h"

#include "host/kxStyle.h"
#include "tests/support/RecordingService.h"

#include <QBrush>
#include <QStandardItemModel>

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

void addNode(const RecordingService &service, const RecordingService::Node &node, QString *line)
{
    if (node.id != RecordingService::rootId)
        *line += row(node.name, node.id, node.enabled, service.isActiveNode(node));
    if (node.kind == notation::Kind::Overlay)
        return;
    *line += QLatin1Char('(');
    for (const RecordingService::Node *child : node.children) {
        if (!line->endsWith(QLatin1Char('(')))
            *line += QLatin1Char(' ');
        addNode(service, *child, line);
    }
    *line += QLatin1Char(')');
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

void addItem(const QStandardItem *item, bool isRoot, QString *line)
{
    if (!item) {
        *line += QStringLiteral("!null");
        return;
    }
    if (!isRoot) {
        *line += row(item->text(), item->data(idRole).toUInt(),
                     item->data(Qt::CheckStateRole).toInt() == Qt::Checked,
                     item->data(activeRole).toBool());
        *line += faults(item);
        if (!item->isDropEnabled() && !item->hasChildren())
            return;
    }
    *line += QLatin1Char('(');
    for (int at = 0; at < item->rowCount(); ++at) {
        if (!line->endsWith(QLatin1Char('(')))
            *line += QLatin1Char(' ');
        addItem(item->child(at), false, line);
    }
    *line += QLatin1Char(')');
}

} // namespace

QString dumpTree(const RecordingService &service)
{
    QString line;
    addNode(service, service.node(RecordingService::rootId), &line);
    return line.mid(1, line.size() - 2);
}

QString dumpTree(const QStandardItemModel &model)
{
    QString line;
    addItem(model.invisibleRootItem(), true, &line);
    return line.mid(1, line.size() - 2);
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
