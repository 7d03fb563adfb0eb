// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>

class QListWidget;
class QTextBrowser;
class QUrl;

namespace viewer {

class UserGuide;

/// The window that shows the user guide beside its contents. Owned by the main window.
class GuideWindow : public QDialog
{
    Q_OBJECT

public:
    /// Shows the guide from `file`; an empty one says that there is none.
    explicit GuideWindow(const QString &file, QWidget *parent = nullptr);

    /// Shows the page of a help identifier or of a heading's words; the beginning where there is no such
    /// page.
    void goTo(const QString &anchor);

private:
    void fillContents();
    void follow(const QUrl &link);

    UserGuide *m_guide;
    QListWidget *m_contents;
    QTextBrowser *m_text;
};

} // namespace viewer
