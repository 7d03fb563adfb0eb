// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "viewer/app/KeyList.h"
#include "viewer/app/NoticeArea.h"
#include "viewer/app/ViewArea.h"

#include <QMainWindow>

#include <functional>

class QDockWidget;
class QLabel;
class QMenu;
class QSettings;

namespace viewer {

class ModulePanels;

/// The viewer's window: menus, the view in the middle, module panels around it, a status bar. It
/// shows what it is told and asks for scenes by a signal; loading is the session's work. Owned by
/// the session.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(ViewArea::Background background);
    ~MainWindow() override;

    ViewArea *viewArea() const { return m_viewArea; }
    ModulePanels *modulePanels() const { return m_panels; }

    /// Takes what opens and saves scenes, before its first entry.
    QMenu *fileMenu() const { return m_fileMenu; }

    /// Takes what edits the scene; the window itself does not.
    QMenu *editMenu() const { return m_editMenu; }

    /// Takes the list of steps in, hidden until the user asks for it in the view menu.
    void addHistory(QDockWidget *panel);

    /// Tells the user of keys that stand for a command of the menus and for one of a module. To be
    /// called once all modules are loaded.
    void reportKeyClashes();

    /// Names the open scene in the title; an empty path for one without file.
    void setScenePath(const QString &path);

    /// Is asked whether the window may close.
    void setCloseGuard(std::function<bool()> mayClose) { m_mayClose = std::move(mayClose); }

    /// Has the control with the focus hand over what is typed in it or dragged, as if the focus went
    /// elsewhere.
    void finishEdits();

    /// Tells the user something without blocking; errors and warnings also stand in the status bar.
    void notify(Severity severity, const QString &text);

    /// Takes the place, size and panel layout that an earlier run left in `settings`, or the default
    /// ones, as large as the display's density and room allow. To be called once all modules are loaded, before the window is shown.
    void restoreLayout(const QSettings &settings);

    /// Arranges the window as if nothing was remembered, in the same size on every display.
    void useDefaultLayout();

    /// Writes what restoreLayout() reads.
    void saveLayout(QSettings *settings) const;

Q_SIGNALS:
    /// The user dropped a scene file on the window.
    void openRequested(const QString &path);

    /// The user closed the window; its layout is still that of the screen.
    void closing();

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void createFileMenu();
    void createEditMenu();
    void createViewMenu();
    void createModulesMenu();
    void createHelpMenu();
    void createStatusBar();
    void forgetNotice(const QString &text);
    void toggleFullScreen(bool on);
    QVector<kxShortcut::Entry> ownKeys(KeyScope scope) const;
    void showShortcuts();
    void showGuide();
    void showAbout();

    ViewArea *m_viewArea;
    ModulePanels *m_panels = nullptr;
    QMenu *m_fileMenu = nullptr;
    QMenu *m_editMenu = nullptr;
    QMenu *m_viewMenu = nullptr;
    QAction *m_fullScreen = nullptr;
    QLabel *m_backgroundLabel = nullptr;
    std::function<bool()> m_mayClose;
    bool m_wantsDefaultSizes = false;
};

} // namespace viewer
