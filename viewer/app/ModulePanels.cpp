// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/ModulePanels.h"

#include "viewer/app/HelpId.h"
#include "viewer/app/Scaled.h"

#include <QCoreApplication>
#include <QDockWidget>
#include <QMainWindow>
#include <QMenu>
#include <QStatusBar>

namespace viewer {

namespace {

// Room for a tree beside a column of labels and controls.
constexpr int UsualWidth = 700;

// Layouts are remembered by object name.
QString dockName(const QString &module)
{
    return QStringLiteral("module/") + module;
}

QString categoryName(const QString &category)
{
    return QStringLiteral("category/") + category;
}

/// What the user reads for a category; one that the viewer does not know stays as the module wrote it.
QString categoryTitle(const QString &category)
{
    constexpr const char *known[] = {QT_TRANSLATE_NOOP("ModuleCategory", "Scene")};
    for (const char *name : known) {
        if (category == QLatin1String(name))
            return QCoreApplication::translate("ModuleCategory", name);
    }
    return category;
}

} // namespace

ModulePanels::ModulePanels(QMainWindow *window, QMenu *menu)
    : QObject(window)
    , m_window(window)
    , m_menu(menu)
{
}

bool ModulePanels::add(const ModuleInfo &info, QWidget *content)
{
    if (dock(info.name))
        return false;
    QDockWidget *panel = makeDock(info, content);
    m_window->addDockWidget(Qt::RightDockWidgetArea, panel);
    QAction *toggle = panel->toggleViewAction();
    // A checkable entry that also has an icon hides its check mark.
    toggle->setIconVisibleInMenu(false);
    connect(toggle, &QAction::triggered, panel, &QWidget::raise);
    QMenu *menu = categoryMenu(info.category);
    menu->addAction(toggle);
    m_menu->setEnabled(true);
    // A module that fails to start takes its window back.
    connect(content, &QObject::destroyed, panel, &QObject::deleteLater);
    connect(toggle, &QObject::destroyed, this, [this, menu] { tidy(menu); });
    return true;
}

QDockWidget *ModulePanels::dock(const QString &name) const
{
    return m_window->findChild<QDockWidget *>(dockName(name), Qt::FindDirectChildrenOnly);
}

QString ModulePanels::helpId(const QString &name) const
{
    return helpIdOf(dock(name));
}

void ModulePanels::applyDefaultSizes()
{
    const QList<QDockWidget *> docks =
        m_window->findChildren<QDockWidget *>(QString(), Qt::FindDirectChildrenOnly);
    const int width = qMin(scaled(UsualWidth, m_window), m_window->width() * 3 / 5);
    for (QDockWidget *panel : docks)
        m_window->resizeDocks({panel}, {width}, Qt::Horizontal);
}

QMenu *ModulePanels::categoryMenu(const QString &category)
{
    const QString name = categoryName(category);
    if (auto *known = m_menu->findChild<QMenu *>(name, Qt::FindDirectChildrenOnly))
        return known;
    QMenu *menu = m_menu->addMenu(categoryTitle(category));
    menu->setObjectName(name);
    return menu;
}

/// Takes the menu of a category away that has lost its last switch.
void ModulePanels::tidy(QMenu *menu)
{
    if (menu->isEmpty())
        delete menu;
    m_menu->setEnabled(!m_menu->isEmpty());
}

QDockWidget *ModulePanels::makeDock(const ModuleInfo &info, QWidget *content)
{
    auto *panel = new QDockWidget(info.title, m_window);
    panel->setObjectName(dockName(info.name));
    panel->setWindowIcon(info.icon);
    panel->toggleViewAction()->setIcon(info.icon);
    setHelpId(panel, info.helpId);
    // A window of its own becomes part of the dock; its class may hide QWidget::show().
    panel->setWidget(content);
    content->setVisible(true);
    // A part of a window has no corner of its own to be dragged by.
    const QList<QStatusBar *> bars = content->findChildren<QStatusBar *>();
    for (QStatusBar *bar : bars)
        bar->setSizeGripEnabled(false);
    return panel;
}

} // namespace viewer
