// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/SearchGuide.h"

#include "host/QKXSearchBox.h"

#include <QBoxLayout>
#include <QHash>
#include <QLabel>
#include <QRegExp>
#include <QTreeView>

namespace viewer {

namespace {

/// The tree that stands below a box in its layout; null for none.
QTreeView *treeBelow(const QWidget *box)
{
    const QLayout *layout = box->parentWidget() ? box->parentWidget()->layout() : nullptr;
    if (!qobject_cast<const QBoxLayout *>(layout))
        return nullptr;
    const int own = layout->indexOf(const_cast<QWidget *>(box));
    for (int i = own + 1; own >= 0 && i < layout->count(); ++i) {
        auto *tree = qobject_cast<QTreeView *>(layout->itemAt(i)->widget());
        if (tree && tree->model())
            return tree;
    }
    return nullptr;
}

/// Whether rows are hidden, by themselves or by a row above them; each parent is asked once.
class HiddenRows
{
public:
    explicit HiddenRows(const QTreeView *tree) : m_tree(tree) {}

    bool contains(const QModelIndex &index)
    {
        return m_tree->isRowHidden(index.row(), index.parent()) || holds(index.parent());
    }

private:
    bool holds(QModelIndex parent)
    {
        QModelIndexList unknown;
        while (parent.isValid() && !m_parents.contains(parent)
               && !m_tree->isRowHidden(parent.row(), parent.parent())) {
            unknown.append(parent);
            parent = parent.parent();
        }
        const bool hidden = parent.isValid() && m_parents.value(parent, true);
        for (const QModelIndex &index : qAsConst(unknown))
            m_parents.insert(index, hidden);
        if (parent.isValid())
            m_parents.insert(parent, hidden);
        return hidden;
    }

    const QTreeView *m_tree;
    QHash<QModelIndex, bool> m_parents;
};

} // namespace

void SearchGuide::guideAll(const QWidget *parent)
{
    const QList<QKXSearchBox *> boxes = parent->findChildren<QKXSearchBox *>();
    for (QKXSearchBox *box : boxes) {
        if (QTreeView *tree = treeBelow(box))
            new SearchGuide(box, tree);
    }
}

SearchGuide::SearchGuide(QKXSearchBox *box, QTreeView *tree)
    : QObject(box)
    , m_box(box)
    , m_tree(tree)
    , m_label(new QLabel(box->parentWidget()))
{
    m_label->setObjectName(QStringLiteral("searchGuide"));
    m_label->setAccessibleName(tr("Search result"));
    m_label->setWordWrap(true);
    m_label->setContentsMargins(4, 2, 4, 3);
    m_label->hide();
    auto *layout = qobject_cast<QBoxLayout *>(box->parentWidget()->layout());
    layout->insertWidget(layout->indexOf(box) + 1, m_label);
    m_turn.setSingleShot(true);
    connect(&m_turn, &QTimer::timeout, this, &SearchGuide::count);
    follow();
}

void SearchGuide::follow()
{
    connect(m_box, &QKXSearchBox::searchChanged, this, &SearchGuide::scheduleCount);
    connect(m_tree->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &SearchGuide::scheduleCount);
    const QAbstractItemModel *model = m_tree->model();
    connect(model, &QAbstractItemModel::modelReset, this, &SearchGuide::scheduleCount);
    connect(model, &QAbstractItemModel::rowsInserted, this, &SearchGuide::scheduleCount);
    connect(model, &QAbstractItemModel::rowsRemoved, this, &SearchGuide::scheduleCount);
    connect(model, &QAbstractItemModel::dataChanged, this, &SearchGuide::scheduleCount);
}

void SearchGuide::scheduleCount()
{
    if (!m_box->text().isEmpty() || !m_label->isHidden())
        m_turn.start();
}

void SearchGuide::count()
{
    const QString text = m_box->text();
    m_label->setVisible(!text.isEmpty());
    if (text.isEmpty() || !m_tree)
        return;
    // What the modules' boxes search by: see QKXSearchBox.
    const int found = matches(QRegExp(text, Qt::CaseSensitive, QRegExp::Wildcard));
    QString line = found == 0 ? tr("Nothing found") : tr("%n found", nullptr, found);
    const int hidden = hiddenSelected();
    if (hidden > 0)
        line += QLatin1Char('\n') + tr("%n selected, but hidden by the search", nullptr, hidden);
    m_label->setText(line);
}

/// How many names match. Every match is shown, so that the rows below a hidden one are left out.
int SearchGuide::matches(const QRegExp &pattern) const
{
    int found = 0;
    const QAbstractItemModel *model = m_tree->model();
    QModelIndexList parents{m_tree->rootIndex()};
    while (!parents.isEmpty()) {
        const QModelIndex parent = parents.takeLast();
        const int rows = model->rowCount(parent);
        for (int row = 0; row < rows; ++row) {
            if (m_tree->isRowHidden(row, parent))
                continue;
            const QModelIndex index = model->index(row, 0, parent);
            found += index.data().toString().contains(pattern) ? 1 : 0;
            parents.append(index);
        }
    }
    return found;
}

int SearchGuide::hiddenSelected() const
{
    HiddenRows rows(m_tree);
    int hidden = 0;
    const QModelIndexList selected = m_tree->selectionModel()->selectedIndexes();
    for (const QModelIndex &index : selected)
        hidden += rows.contains(index) ? 1 : 0;
    return hidden;
}

} // namespace viewer
