// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "viewer/app/Language.h"
#include "viewer/app/ViewerSession.h"

#include <QSettings>
#include <QTemporaryDir>

#include <functional>
#include <memory>

class QTreeView;

/// The viewer with the plug-in, led through what it can show: its window with each kind of selection, its
/// menus and its dialogs. For tests of what holds of every text and control. A process has the editor once
/// and so makes one of these.
class WholeViewer
{
public:
    /// Is shown each window or menu when it is on the screen, with words for it.
    using Visitor = std::function<void(QWidget *window, const QString &what)>;

    /// Starts in the language of the environment variable KX_LOCALE, with a window that fits on a
    /// display of 1920 x 1080 device pixels.
    WholeViewer();
    ~WholeViewer();

    /// Shows everything, one after the other.
    void visitAll(const Visitor &visit);

    /// The size of the display that the window is made for.
    QSize display() const;

    viewer::ViewerSession &session() { return *m_session; }

    /// What stands in texts in the user's words or those of the scene's file: paths and keys.
    QStringList namesOfUser() const;

private:
    QString writeScene() const;
    void select(const QStringList &names);
    void visitSelections();
    void visitCommands();
    void visitSearch();
    void visitNotices();
    void visitMenus(QWidget *parent);
    void visitDialogs();
    void visitModal(const QString &what, const std::function<void()> &open);
    void show(QWidget *window, const QString &what);
    QAction *action(const char *name) const;

    QTemporaryDir m_folder;
    viewer::Language m_language;
    std::unique_ptr<QSettings> m_settings;
    std::unique_ptr<viewer::ViewerSession> m_session;
    QTreeView *m_tree = nullptr;
    Visitor m_visit;
};
