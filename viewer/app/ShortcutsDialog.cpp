// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/ShortcutsDialog.h"

#include "host/QKXSearchBox.h"

#include <QDialogButtonBox>
#include <QHash>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace viewer {

ShortcutsDialog::ShortcutsDialog(const QVector<kxShortcut::Entry> &keys, QWidget *parent)
    : QDialog(parent)
    , m_search(new QKXSearchBox(this))
    , m_list(new QTreeWidget(this))
    , m_count(new QLabel(this))
{
    setObjectName(QStringLiteral("keyboardShortcuts"));
    setWindowTitle(tr("Keyboard Shortcuts"));
    m_list->setHeaderLabels({tr("Command"), tr("Key")});
    m_list->setAccessibleName(tr("Keyboard shortcuts"));
    m_list->setUniformRowHeights(true);
    m_list->setAlternatingRowColors(true);
    // What a search finds must not lie in a closed category.
    m_list->setItemsExpandable(false);
    m_list->setRootIsDecorated(false);
    fill(keys);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    // Return in the search box goes on to the list.
    buttons->button(QDialogButtonBox::Close)->setAutoDefault(false);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_search);
    layout->addWidget(m_list);
    layout->addWidget(m_count);
    layout->addWidget(buttons);
    connect(m_search, &QKXSearchBox::searchChanged, this, &ShortcutsDialog::filter);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    filter(QString());
    m_search->setFocus();
    const QSize usual = sizeHint().expandedTo(fontMetrics().averageCharWidth() * QSize(60, 70));
    resize(parent ? usual.boundedTo(parent->window()->size()) : usual);
}

void ShortcutsDialog::fill(const QVector<kxShortcut::Entry> &keys)
{
    QHash<QString, QTreeWidgetItem *> categories;
    QHash<QPair<QTreeWidgetItem *, QString>, QTreeWidgetItem *> commands;
    for (const kxShortcut::Entry &key : keys) {
        QTreeWidgetItem *&category = categories[key.category];
        if (!category)
            category = addCategory(key.category);
        QTreeWidgetItem *&command = commands[{category, key.description}];
        const QString text = kxShortcut::convertKey(key.key, key.modifiers, false);
        if (command)
            command->setText(1, tr("%1 or %2").arg(command->text(1), text));
        else
            command = new QTreeWidgetItem(category, {key.description, text});
    }
    fitColumns(commands.values());
}

QTreeWidgetItem *ShortcutsDialog::addCategory(const QString &name)
{
    auto *category = new QTreeWidgetItem(m_list, {name});
    category->setFirstColumnSpanned(true);
    category->setExpanded(true);
    QFont bold = font();
    bold.setBold(true);
    category->setFont(0, bold);
    return category;
}

/// Each column has room for its longest text, also while that is not shown.
void ShortcutsDialog::fitColumns(const QList<QTreeWidgetItem *> &commands)
{
    const QFontMetrics metrics = m_list->fontMetrics();
    int widest[] = {0, 0};
    for (const QTreeWidgetItem *command : commands) {
        for (int column = 0; column < 2; ++column)
            widest[column] = qMax(widest[column], metrics.horizontalAdvance(command->text(column)));
    }
    QHeaderView *header = m_list->header();
    header->setStretchLastSection(false);
    header->setSectionResizeMode(0, QHeaderView::Stretch);
    header->setSectionResizeMode(1, QHeaderView::Fixed);
    const int keyWidth = widest[1] + 4 * metrics.averageCharWidth();
    header->resizeSection(1, keyWidth);
    const int bar = m_list->verticalScrollBar()->sizeHint().width() + 2 * m_list->frameWidth();
    m_list->setMinimumWidth(m_list->indentation() + widest[0] + 2 * metrics.averageCharWidth()
                            + keyWidth + bar);
}

void ShortcutsDialog::filter(const QString &text)
{
    const auto matches = [&text](const QTreeWidgetItem &item, int column) {
        return item.text(column).contains(text, Qt::CaseInsensitive);
    };
    int shown = 0;
    for (int i = 0; i < m_list->topLevelItemCount(); ++i) {
        QTreeWidgetItem *category = m_list->topLevelItem(i);
        int shownHere = 0;
        for (int row = 0; row < category->childCount(); ++row) {
            QTreeWidgetItem *key = category->child(row);
            const bool matching = matches(*category, 0) || matches(*key, 0) || matches(*key, 1);
            key->setHidden(!matching);
            shownHere += matching ? 1 : 0;
        }
        category->setHidden(shownHere == 0);
        shown += shownHere;
    }
    m_count->setText(shown > 0 ? tr("Shortcuts shown: %1").arg(shown) : tr("No shortcut matches."));
}

} // namespace viewer
