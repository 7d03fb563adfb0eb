// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/kxShortcut.h"

#include <QDialog>

class QLabel;
class QKXSearchBox;
class QTreeWidget;
class QTreeWidgetItem;

namespace viewer {

/// The window that lists all keyboard shortcuts by category, with a box that filters them by
/// command, key or category. For reading only. Owned by the main window.
class ShortcutsDialog : public QDialog
{
    Q_OBJECT

public:
    explicit ShortcutsDialog(const QVector<kxShortcut::Entry> &keys, QWidget *parent = nullptr);

private:
    void fill(const QVector<kxShortcut::Entry> &keys);
    QTreeWidgetItem *addCategory(const QString &name);
    void fitColumns(const QList<QTreeWidgetItem *> &commands);
    void filter(const QString &text);

    QKXSearchBox *m_search;
    QTreeWidget *m_list;
    QLabel *m_count;
};

} // namespace viewer
