// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QIcon>
#include <QObject>
#include <QString>

class QDockWidget;
class QMainWindow;
class QMenu;

namespace viewer {

/// What a module tells about its window when it registers.
struct ModuleInfo
{
    QString name;     ///< untranslated, unique
    QString category; ///< untranslated
    QString helpId;
    QIcon icon;
    QString title; ///< translated
};

/// The panels of the loaded modules: each is a dock of the main window, with a switch in the menu of
/// its category. Owned by the main window.
class ModulePanels : public QObject
{
    Q_OBJECT

public:
    /// The switches go into `menu`, one submenu for each category.
    ModulePanels(QMainWindow *window, QMenu *menu);

    /// Docks a module's window on the right. False, and nothing happens, when the name is taken. The
    /// panel goes with the window when somebody destroys that.
    bool add(const ModuleInfo &info, QWidget *content);

    /// The dock of a module; null for an unknown name.
    QDockWidget *dock(const QString &name) const;

    /// Identifier of a module's help page; empty for an unknown name.
    QString helpId(const QString &name) const;

    /// The places of panels when nothing is remembered: on the right, at their usual width, but with no
    /// more than three fifths of the window.
    void applyDefaultSizes();

private:
    QMenu *categoryMenu(const QString &category);
    void tidy(QMenu *menu);
    QDockWidget *makeDock(const ModuleInfo &info, QWidget *content);

    QMainWindow *m_window;
    QMenu *m_menu;
};

} // namespace viewer
