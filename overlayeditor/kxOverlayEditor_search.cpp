// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

// The search filter: hides the rows that neither match nor hold a match.

#include "overlayeditor/kxOverlayEditor.h"

#include "overlayeditor/model/kxOverlayQtModel.h"

#include <QRegExp>
#include <QStandardItem>
#include <QTreeView>
#include <QVector>

#include <set>

namespace {

/// Collects the nodes to keep. Children come first, so that a match keeps all its ancestors.
void collectKept(const kxOverlayQtModel *model, QStandardItem *item, const QRegExp &pattern,
                 std::set<QRPC::NodeId> *kept)
{
    for (int row = 0; row < item->rowCount(); ++row)
        collectKept(model, item->child(row), pattern, kept);

    const QRPC::NodeId id = model->getNodeId(item);
    const QString name = item->data(Qt::DisplayRole).toString();
    if (name.indexOf(pattern, 0) >= 0)
        kept->insert(id);
    if (kept->count(id) > 0)
        kept->insert(model->getNodeId(model->getParent(item)));
}

} // namespace

void kxOverlayEditor::searchChanged(const QString &text)
{
    std::set<QRPC::NodeId> kept;
    if (!text.isEmpty()) {
        const QRegExp pattern(text, Qt::CaseSensitive, QRegExp::Wildcard);
        collectKept(m_model, m_model->invisibleRootItem(), pattern, &kept);
    }

    QVector<QStandardItem *> visible{m_model->invisibleRootItem()};
    while (!visible.isEmpty()) {
        QStandardItem *item = visible.takeLast();
        const QModelIndex parent = m_model->indexFromItem(item);
        for (int row = 0; row < item->rowCount(); ++row) {
            QStandardItem *child = item->child(row);
            const bool hidden = !text.isEmpty() && kept.count(m_model->getNodeId(child)) == 0;
            m_treeView->setRowHidden(row, parent, hidden);
            if (!hidden)
                visible.append(child);
        }
    }
}
