// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

// The tree view, its selection and the selection commands.

#include "overlayeditor/kxOverlayEditor.h"

#include "host/QKXSearchBox.h"
#include "host/kxOverlayService.h"
#include "host/kxPlatformService.h"
#include "overlayeditor/kxConnect.h"
#include "overlayeditor/kxOverlayEditorGUIW.h"
#include "overlayeditor/kxOverlayTreeView.h"
#include "overlayeditor/kxSelectionRanges.h"
#include "overlayeditor/kxServices.h"
#include "overlayeditor/model/kxOverlayQtModel.h"

#include <QVBoxLayout>

#include <algorithm>

void kxOverlayEditor::createTreeView()
{
    QFrame *frame = m_window->_overlay_tree_frame;
    auto *treeView = new kxOverlayTreeView(frame);
    m_treeView = treeView;
    m_treeView->setHeaderHidden(true);
    m_treeView->setModel(m_model);
    m_treeView->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_treeView->setSelectionBehavior(QAbstractItemView::SelectItems);
    m_treeView->setDragEnabled(true);
    m_treeView->setAcceptDrops(true);
    m_treeView->setDropIndicatorShown(true);
    m_treeView->setUniformRowHeights(true);
    const int iconWidth = kxService<kxPlatformService>()->getIconWidth();
    const int iconHeight = kxService<kxPlatformService>()->getIconHeight();
    m_treeView->setIconSize(QSize(iconWidth, iconHeight));
    m_treeView->setAlternatingRowColors(true);
    m_treeView->setEditTriggers(QAbstractItemView::SelectedClicked);
    m_treeView->setAccessibleName(tr("Overlays"));
    m_treeView->installEventFilter(this);
    kxConnect(m_treeView->selectionModel(),
              SIGNAL(selectionChanged(const QItemSelection &, const QItemSelection &)), this,
              SLOT(selectionChanged()));
    // A reset empties the selection without a word. By pointer, because the model's slot of that
    // name hides the signal from the text form.
    connect(m_model, &QAbstractItemModel::modelReset, this, &kxOverlayEditor::selectionChanged);
    connect(m_model, &kxOverlayQtModel::nodesAboutToGo, this, &kxOverlayEditor::deselect);
    connect(m_model, &kxOverlayQtModel::nodesAboutToGo, treeView, &kxOverlayTreeView::closeRows);

    m_searchBox = new QKXSearchBox(frame);
    kxConnect(m_searchBox, SIGNAL(searchChanged(const QString &)), this,
              SLOT(searchChanged(const QString &)));

    auto *layout = new QVBoxLayout;
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_searchBox);
    layout->addWidget(m_treeView);
    frame->setLayout(layout);
    // Box and tree are made after the panel but stand before it, as their frame does. Only a widget
    // that takes the focus can be followed.
    frame->setFocusPolicy(Qt::TabFocus);
    QWidget::setTabOrder(frame, m_searchBox);
    frame->setFocusPolicy(Qt::NoFocus);
    QWidget::setTabOrder(m_searchBox, m_treeView);
}

QRPC::NodeList kxOverlayEditor::getSelectedNodes() const
{
    const QModelIndexList indexes = m_treeView->selectionModel()->selectedIndexes();
    QRPC::NodeList nodes;
    nodes.reserve(indexes.size());
    for (const QModelIndex &index : indexes)
        nodes.append(m_model->getNodeId(index));
    return nodes;
}

QModelIndex kxOverlayEditor::getFirstSelected() const
{
    return m_treeView->selectionModel()->selectedIndexes().value(0);
}

QRPC::NodeId kxOverlayEditor::getFirstGroup() const
{
    // The service may change its tree in an answer.
    QPersistentModelIndex index = getFirstSelected();
    while (index.isValid() && kxService<kxOverlayService>()->isOverlay(m_model->getNodeId(index)))
        index = index.parent();
    return index.isValid() ? m_model->getNodeId(index)
                           : kxService<kxOverlayService>()->getRootNode();
}

bool kxOverlayEditor::containsGroup(const QRPC::NodeList &nodes)
{
    return std::any_of(nodes.begin(), nodes.end(), [](QRPC::NodeId node) {
        return !kxService<kxOverlayService>()->isOverlay(node);
    });
}

void kxOverlayEditor::selectionChanged()
{
    updateAll();
}

void kxOverlayEditor::nodesCreated(const QRPC::NodeList &nodes)
{
    m_model->nodesAddedUpdate(nodes);
    QItemSelection created;
    for (const QRPC::NodeId node : nodes) {
        const QModelIndex index = m_model->indexFromId(node);
        if (!index.isValid())
            continue;
        kxSelectionRanges::append(&created, index);
        m_treeView->scrollTo(index, QAbstractItemView::EnsureVisible);
    }
    m_treeView->selectionModel()->select(created, QItemSelectionModel::ClearAndSelect);
}

void kxOverlayEditor::nodeRemovedUpdate(QRPC::NodeId node)
{
    Q_UNUSED(node)
    updateAll();
}

void kxOverlayEditor::nodesRemovedUpdate(const QRPC::NodeList &nodeList)
{
    Q_UNUSED(nodeList)
    updateAll();
}

/// Deselects rows with all that lies in them, in one step: each change of the selection refreshes
/// the panel, and the rows leave one by one.
void kxOverlayEditor::deselect(const QModelIndexList &rows)
{
    QItemSelectionModel *selectionModel = m_treeView->selectionModel();
    const QModelIndexList selected = selectionModel->selectedIndexes();
    const QItemSelection remaining = kxSelectionRanges::outside(selected, rows);
    if (remaining.indexes().size() < selected.size())
        selectionModel->select(remaining, QItemSelectionModel::ClearAndSelect);
}

void kxOverlayEditor::selectAll()
{
    m_treeView->selectAll();
}

void kxOverlayEditor::deselectAll()
{
    m_treeView->selectionModel()->clearSelection();
}

void kxOverlayEditor::invertSelection()
{
    QItemSelectionModel *selectionModel = m_treeView->selectionModel();
    const QItemSelection before = selectionModel->selection();
    m_treeView->selectAll();
    // Deselecting what was selected leaves the same rows, but takes minutes where those are many
    // and scattered.
    selectionModel->select(kxSelectionRanges::subtract(selectionModel->selection(), before),
                           QItemSelectionModel::ClearAndSelect);
}

void kxOverlayEditor::find()
{
    m_searchBox->beginSearch();
}
