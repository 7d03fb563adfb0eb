// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/HistoryPanel.h"

#include "host/kxIconManager.h"
#include "viewer/app/HelpId.h"

#include <QGuiApplication>
#include <QListView>
#include <QPalette>

namespace viewer {

namespace {

constexpr int MarkSize = 16;

} // namespace

HistoryModel::HistoryModel(const QUndoStack *stack, QObject *parent)
    : QAbstractListModel(parent)
    , m_stack(stack)
    , m_savedMark(kxIconManager::getIcon("Save", ""))
{
    // All texts begin at the same place.
    QPixmap none(MarkSize, MarkSize);
    none.fill(Qt::transparent);
    m_noMark.addPixmap(none);
    connect(stack, &QUndoStack::indexChanged, this, &HistoryModel::refresh);
    connect(stack, &QUndoStack::cleanChanged, this, &HistoryModel::refresh);
}

void HistoryModel::refresh()
{
    beginResetModel();
    endResetModel();
}

int HistoryModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_stack->count() + 1;
}

QVariant HistoryModel::data(const QModelIndex &index, int role) const
{
    const bool isSaved = index.row() == m_stack->cleanIndex();
    switch (role) {
    case Qt::DisplayRole:
        return index.row() == 0 ? tr("Start") : m_stack->text(index.row() - 1);
    case Qt::DecorationRole:
        return isSaved ? m_savedMark : m_noMark;
    case Qt::ToolTipRole:
    case Qt::AccessibleDescriptionRole:
        return isSaved ? tr("The scene was saved in this state") : QVariant();
    case Qt::ForegroundRole:
        if (index.row() > m_stack->index())
            return QGuiApplication::palette().brush(QPalette::Disabled, QPalette::Text);
        return {};
    default:
        return {};
    }
}

HistoryPanel::HistoryPanel(OverlayService *service, QWidget *parent)
    : QDockWidget(tr("History"), parent)
    , m_service(service)
    , m_model(new HistoryModel(service->history().stack(), this))
    , m_list(new QListView(this))
{
    setObjectName(QStringLiteral("history"));
    setHelpId(this, QStringLiteral("Viewer_History"));
    m_list->setObjectName(QStringLiteral("historyList"));
    m_list->setAccessibleName(tr("Steps"));
    m_list->setUniformItemSizes(true);
    m_list->setIconSize(QSize(MarkSize, MarkSize));
    m_list->setModel(m_model);
    setWidget(m_list);
    connect(m_model, &QAbstractItemModel::modelReset, this, &HistoryPanel::showCurrent);
    connect(m_list, &QAbstractItemView::clicked, this,
            [this](const QModelIndex &index) { goTo(index.row()); });
    connect(m_list, &QAbstractItemView::activated, this,
            [this](const QModelIndex &index) { goTo(index.row()); });
    showCurrent();
}

void HistoryPanel::goTo(int index)
{
    const QUndoStack *stack = m_service->history().stack();
    // A slot may change the steps meanwhile; then the way ends where it does.
    for (int left = qAbs(index - stack->index()); left > 0; --left) {
        if (index < stack->index())
            m_service->undo();
        else
            m_service->redo();
    }
}

void HistoryPanel::showCurrent()
{
    const QModelIndex current = m_model->index(m_service->history().stack()->index());
    m_list->setCurrentIndex(current);
    m_list->scrollTo(current);
}

} // namespace viewer
