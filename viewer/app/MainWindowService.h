// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/kxMainWindowService.h"

#include <QPointer>

namespace viewer {

class MainWindow;

/// The viewer's main window as modules see it: their windows become docks of it. A name that comes
/// twice is reported to the user and the first window stays. Owned by the host services; the window
/// may go before it.
class MainWindowService : public kxMainWindowService
{
    Q_OBJECT

public:
    explicit MainWindowService(MainWindow *window);
    ~MainWindowService() override;

    QWidget *getMainWindow() override;
    void registerModule(const QString &name, const QString &category, QWidget *window,
                        const QString &helpId, const QIcon &icon, const QString &title,
                        int flag) override;

private:
    QPointer<MainWindow> m_window;
};

} // namespace viewer
