// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/MainWindowService.h"

#include "viewer/app/MainWindow.h"
#include "viewer/app/ModulePanels.h"

namespace viewer {

MainWindowService::MainWindowService(MainWindow *window) : m_window(window) {}

MainWindowService::~MainWindowService() = default;

QWidget *MainWindowService::getMainWindow()
{
    return m_window;
}

void MainWindowService::registerModule(const QString &name, const QString &category,
                                       QWidget *window, const QString &helpId, const QIcon &icon,
                                       const QString &title, int)
{
    if (!m_window || !window)
        return;
    if (m_window->modulePanels()->add({name, category, helpId, icon, title}, window))
        return;
    m_window->notify(
        Severity::Warning,
        tr("A module named \"%1\" is registered already; the second one is not shown.").arg(name));
}

} // namespace viewer
