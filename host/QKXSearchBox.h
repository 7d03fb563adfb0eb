// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/kxHostExport.h"

#include <QLineEdit>

/// A line for a search text, with a button that clears it.
///
/// Owner: its parent widget. Called by modules; GUI thread only. Escape clears the text and, when
/// there is none, is left to the window. Down and Return hand the focus on to the widget that stands
/// below in the same layout, usually what is searched; without one, to the next in the tab order.
class KXHOST_EXPORT QKXSearchBox : public QLineEdit
{
    Q_OBJECT

public:
    /// An empty line.
    /// @param parent becomes the owner; null for none
    explicit QKXSearchBox(QWidget *parent = nullptr);
    ~QKXSearchBox() override;

    /// Takes the focus and selects the text, so that typing begins a new search. Called by a
    /// module's "find" command.
    void beginSearch();

    /// Announces the text once more, since what is searched has changed. Called by the host.
    void searchAgain();

Q_SIGNALS:
    /// The text has changed, by typing, clearing or setText(), or is to be searched again.
    /// @param text the whole text. All modules read it alike: QRegExp::Wildcard, case counts, found
    ///             anywhere in a name; empty finds all
    void searchChanged(const QString &text);

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    bool clearsOn(const QKeyEvent *event) const;
    void handFocusOn();
};
