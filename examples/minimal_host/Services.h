// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Overlays.h"
#include "host/kxControllerService.h"
#include "host/kxFileIOService.h"
#include "host/kxMainWindowService.h"
#include "host/kxPlatformService.h"

#include <memory>

class QMainWindow;

namespace minimal {

//! [small]
/// Says that there is a user interface.
class Controller : public kxControllerService
{
    bool isHeadless() override { return false; }
};

/// The image files that this installation of Qt reads.
class Files : public kxFileIOService
{
    QString getImageFileFilter() override;
};

/// The measures of the display, against one of 96 dots per inch.
class Platform : public kxPlatformService
{
    double getScaleFactorX() override;
    double getScaleFactorY() override;
    int getIconWidth() override { return qRound(16 * getScaleFactorX()); }
    int getIconHeight() override { return qRound(16 * getScaleFactorY()); }
};
//! [small]

//! [windows]
/// The main window, in which each module's window becomes a dock.
class Windows : public kxMainWindowService
{
public:
    explicit Windows(QMainWindow *window) : m_window(window) {}

    QWidget *getMainWindow() override;
    void registerModule(const QString &name, const QString &category, QWidget *window,
                        const QString &helpId, const QIcon &icon, const QString &title,
                        int flag) override;

private:
    QMainWindow *m_window;
};
//! [windows]

//! [services]
/// All services of this host and the main window that one of them speaks for: registered when it is
/// made, unregistered before they go. Made by the program after the application object, once.
class Services
{
public:
    Services();
    ~Services();
    Q_DISABLE_COPY(Services)

    QMainWindow *window() const { return m_window.get(); }
    Overlays *overlays() { return &m_overlays; }

    /// Tells modules that everything is there. Called by the program once, when all are loaded.
    void announceReady();

private:
    std::unique_ptr<QMainWindow> m_window;
    kxBaseService m_base; // as it is
    Controller m_controller;
    Files m_files;
    Platform m_platform;
    Windows m_windows;
    Overlays m_overlays;
};
//! [services]

} // namespace minimal
