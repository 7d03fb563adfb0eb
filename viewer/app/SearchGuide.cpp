// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/SearchGuide.h"

#include "host/QKXSearchBox.h"
#include "host/kxIconManager.h"

#include <QBoxLayout>
#include <QHash>
#include <QLabel>
#include <QRegExp>
#include <QToolButton>
#include <QTreeView>
#include <QVector>

#include <algorithm>

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
    , m_changesLine(new QWidget(box->parentWidget()))
    , m_changes(new QLabel(m_changesLine))
{
    m_label->setObjectName(QStringLiteral("searchGuide"));
    m_label->setAccessibleName(tr("Search result"));
    m_label->setWordWrap(true);
    m_label->setContentsMargins(4, 2, 4, 3);
    m_label->hide();
    createChangesLine();
    auto *layout = qobject_cast<QBoxLayout *>(box->parentWidget()->layout());
    layout->insertWidget(layout->indexOf(box) + 1, m_label);
    layout->insertWidget(layout->indexOf(box) + 2, m_changesLine);
    m_turn.setSingleShot(true);
    connect(&m_turn, &QTimer::timeout, this, &SearchGuide::count);
    follow();
}

void SearchGuide::createChangesLine()
{
    m_changes->setObjectName(QStringLiteral("searchChanges"));
    m_changes->setWordWrap(true);
    auto *again = new QToolButton(m_changesLine);
    again->setObjectName(QStringLiteral("searchAgain"));
    again->setIcon(kxIconManager::getIcon("Reload", ""));
    again->setToolTip(tr("Search again"));
    again->setAccessibleName(tr("Search again"));
    again->setAutoRaise(true);
    auto *layout = new QHBoxLayout(m_changesLine);
    layout->setContentsMargins(4, 0, 0, 3);
    layout->addWidget(m_changes, 1);
    layout->addWidget(again);
    m_changesLine->hide();
    QWidget::setTabOrder(m_box, again);
    connect(again, &QToolButton::clicked, m_box, &QKXSearchBox::searchAgain);
}

void SearchGuide::follow()
{
    connect(m_box, &QKXSearchBox::searchChanged, this, [this] {
        m_hasChanged = false;
        scheduleCount();
    });
    connect(m_tree->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &SearchGuide::scheduleCount);
    const QAbstractItemModel *model = m_tree->model();
    connect(model, &QAbstractItemModel::modelReset, this, &SearchGuide::noteChange);
    connect(model, &QAbstractItemModel::rowsInserted, this, &SearchGuide::noteChange);
    connect(model, &QAbstractItemModel::rowsRemoved, this, &SearchGuide::noteChange);
    connect(model, &QAbstractItemModel::dataChanged, this, &SearchGuide::noteChange);
}

void SearchGuide::noteChange()
{
    m_hasChanged = true;
    scheduleCount();
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
    if (text.isEmpty() || !m_tree) {
        m_changesLine->hide();
        return;
    }
    // What the modules' boxes search by: see QKXSearchBox.
    const QRegExp pattern(text, Qt::CaseSensitive, QRegExp::Wildcard);
    const int found = matches(pattern);
    QString line = found == 0 ? tr("Nothing found") : tr("%n found", nullptr, found);
    const int hidden = hiddenSelected();
    if (hidden > 0)
        line += QLatin1Char('\n') + tr("%n selected, but hidden by the search", nullptr, hidden);
    m_label->setText(line);
    const int changed = m_hasChanged ? outdated(pattern) : 0;
    m_changes->setText(tr("%n changed since the search", nullptr, changed));
    m_changesLine->setVisible(changed > 0);
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

/// How many rows are shown although they neither match nor hold a match, or the other way round.
int SearchGuide::outdated(const QRegExp &pattern) const
{
    struct Row
    {
        QModelIndex index;
        int parent;
        bool shown;
        bool kept;
    };
    const QAbstractItemModel *model = m_tree->model();
    QVector<Row> rows{{m_tree->rootIndex(), 0, true, true}};
    for (int at = 0; at < rows.size(); ++at) {
        const Row parent = rows.at(at);
        const int children = model->rowCount(parent.index);
        for (int row = 0; row < children; ++row) {
            const QModelIndex index = model->index(row, 0, parent.index);
            rows.append({index, at, parent.shown && !m_tree->isRowHidden(row, parent.index),
                         index.data().toString().contains(pattern)});
        }
    }
    // Children stand behind their parents.
    for (int at = rows.size() - 1; at > 0; --at)
        rows[rows.at(at).parent].kept |= rows.at(at).kept;
    return int(std::count_if(rows.cbegin(), rows.cend(),
                             [](const Row &row) { return row.shown != row.kept; }));
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
