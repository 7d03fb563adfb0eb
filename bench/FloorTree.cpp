// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "bench/FloorTree.h"

#include <QBrush>
#include <QPixmap>

namespace {

const int s_idRole = Qt::UserRole + 1;
const int s_activeRole = Qt::UserRole + 2;

QStandardItem *copyOf(const QStandardItem *item)
{
    QStandardItem *copy = item->clone();
    for (int row = 0; row < item->rowCount(); ++row)
        copy->appendRow(copyOf(item->child(row)));
    return copy;
}

} // namespace

FloorTree::FloorTree(const viewer::Scene &scene) : m_scene(scene), m_icon(QPixmap(16, 16)) {}

void FloorTree::fill()
{
    m_items.clear();
    m_model.clear();
    for (const QRPC::NodeId id : m_scene.root().children)
        m_model.invisibleRootItem()->appendRow(createItem(*m_scene.find(id)));
}

QStandardItem *FloorTree::createItem(const viewer::Node &node)
{
    auto *item = new QStandardItem;
    m_items.insert(node.id, item);
    item->setData(node.id, s_idRole);
    item->setText(node.name);
    item->setDropEnabled(!node.isOverlay());
    item->setCheckable(true);
    item->setData(int(node.enabled ? Qt::Checked : Qt::Unchecked), Qt::CheckStateRole);
    setActive(item, true);
    for (const QRPC::NodeId id : node.children)
        item->appendRow(createItem(*m_scene.find(id)));
    return item;
}

void FloorTree::setActive(QStandardItem *item, bool active)
{
    item->setData(active, s_activeRole);
    item->setData(m_icon, Qt::DecorationRole);
    item->setData(QBrush(Qt::white), Qt::ForegroundRole);
}

void FloorTree::removeAll()
{
    while (m_model.rowCount() > 0)
        qDeleteAll(m_model.takeRow(m_model.rowCount() - 1));
}

void FloorTree::removeEverySecond()
{
    for (int row = (m_model.rowCount() - 1) / 2 * 2; row >= 0; row -= 2)
        qDeleteAll(m_model.takeRow(row));
}

void FloorTree::appendCopies(QTreeView *view)
{
    const int count = m_model.rowCount();
    for (int row = 0; row < count; ++row)
        m_model.appendRow(copyOf(m_model.item(row)));
    const QModelIndex last = m_model.index(2 * count - 1, 0);
    view->scrollTo(last);
    view->selectionModel()->select(QItemSelection(m_model.index(count, 0), last),
                                   QItemSelectionModel::ClearAndSelect);
}

void FloorTree::removeBehind(int rows)
{
    while (m_model.rowCount() > rows)
        qDeleteAll(m_model.takeRow(m_model.rowCount() - 1));
}

void FloorTree::moveToFront(int rows)
{
    const int first = m_model.rowCount() - rows;
    for (int i = 0; i < rows; ++i)
        m_model.insertRow(i, m_model.takeRow(first + i));
}

void FloorTree::renameAll()
{
    for (QStandardItem *item : qAsConst(m_items))
        item->setText(QStringLiteral("New name"));
}

void FloorTree::enableAll()
{
    for (QStandardItem *item : qAsConst(m_items)) {
        item->setData(int(Qt::Unchecked), Qt::CheckStateRole);
        setActive(item, false);
    }
}

void FloorTree::moveAllIntoFirst()
{
    QStandardItem *target = m_model.item(0);
    while (m_model.rowCount() > 1)
        target->appendRow(m_model.takeRow(1));
}

void FloorTree::groupAll()
{
    m_model.insertRow(0, new QStandardItem(QStringLiteral("Group")));
    moveAllIntoFirst();
}

void FloorTree::create(int count, QTreeView *view)
{
    for (int i = 0; i < count; ++i) {
        auto *item = new QStandardItem(QStringLiteral("New"));
        setActive(item, true);
        m_model.appendRow(item);
        view->scrollTo(item->index());
        view->selectionModel()->select(item->index(), QItemSelectionModel::ClearAndSelect);
    }
}

void FloorTree::duplicateAll(QTreeView *view)
{
    QItemSelection copies;
    for (int row = m_model.rowCount() - 1; row >= 0; --row)
        m_model.insertRow(row + 1, m_model.item(row)->clone());
    for (int row = 1; row < m_model.rowCount(); row += 2)
        copies.append(QItemSelectionRange(m_model.index(row, 0)));
    view->scrollTo(copies.last().topLeft());
    view->selectionModel()->select(copies, QItemSelectionModel::ClearAndSelect);
}
