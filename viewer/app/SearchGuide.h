// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPointer>
#include <QTimer>

class QKXSearchBox;
class QLabel;
class QRegExp;
class QTreeView;
class QWidget;

namespace viewer {

/// Says below a module's search box what the search has found, and when it hides rows that are
/// selected: a command would change what nobody sees. Modules filter when the text changes and at no
/// other time, so that a row does not vanish while it is being named; the guide says how many rows
/// the search would now show or hide, and lets the user search again.
///
/// Modules tell the host nothing about their searches. But the box is a widget of the host, and the
/// rows that the module's filter leaves are plain to see in the tree below it. Changes nothing of
/// box or tree, counts once for all that happens in one turn of the event loop, and not at all
/// while nothing is searched for. Owned by the box. GUI thread only.
class SearchGuide : public QObject
{
    Q_OBJECT

public:
    /// Guides every search box below `parent` that stands above a tree in one layout.
    static void guideAll(const QWidget *parent);

    SearchGuide(QKXSearchBox *box, QTreeView *tree);

    /// The line below the box; hidden while nothing is searched for.
    QLabel *label() const { return m_label; }

private:
    void createChangesLine();
    void follow();
    void noteChange();
    void scheduleCount();
    void count();
    int matches(const QRegExp &pattern) const;
    int outdated(const QRegExp &pattern) const;
    int hiddenSelected() const;

    QKXSearchBox *m_box;
    QPointer<QTreeView> m_tree;
    QLabel *m_label;
    QWidget *m_changesLine; // the label of the changes and the button that searches again
    QLabel *m_changes;
    bool m_hasChanged = false; // since the search
    QTimer m_turn;             // ends with the turn of the event loop
};

} // namespace viewer
