// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/kxControllerService.h"
#include "host/kxFileIOService.h"
#include "host/kxMainWindowService.h"
#include "host/kxPlatformService.h"
#include "kit/CallLog.h"
#include "kit/RecordingService.h"

#include <QIcon>
#include <QMainWindow>
#include <QPointer>
#include <QSize>

#include <functional>
#include <memory>

/// A whole host for a test: every service that a module may ask for, registered while it lives.
///
/// Role: stands for the application. Owner: the test, which destroys what it built of the module
/// first. All services note their calls in one log, so that an order across services can be
/// compared; calls to others than the overlay service carry the service's name ("platform.…").
class HostFixture
{
public:
    /// What a module told the main window service.
    struct Registration
    {
        QString name;
        QString category;
        QPointer<QWidget> window;
        QString helpId;
        QIcon icon;
        QString title;
        int flag = -1;
        QString objectName;   ///< of the window, at that time
        bool hadForm = false; ///< the window had its central widget by then
        bool hadTree = false; ///< the window had its tree view by then
    };

    HostFixture();
    ~HostFixture();
    Q_DISABLE_COPY(HostFixture)

    CallLog &log() { return m_log; }
    RecordingService &service() { return *m_overlays; }
    QMainWindow &mainWindow() { return *m_mainWindow; }
    const QList<Registration> &registrations() const { return m_registrations; }

    /// Emits what a host emits once all modules are loaded.
    void announceInit();

    /// How many slots wait for that.
    int initReceivers() const;

    /// @name Answers of the services, free to be changed before the module asks
    /// @{
    bool headless = false;
    double scaleX = 1.0;
    double scaleY = 1.0;
    QSize iconSize = QSize(18, 16);
    QString imageFilter = QStringLiteral("Images (*.png)");
    /// @}

    /// Is told the name of each call before it is answered; empty for none.
    std::function<void(const QString &)> onCall;

    /// Makes one named call ("platform.getScaleFactorX") throw std::runtime_error from now on; an
    /// empty name ends that.
    void throwAt(const QString &call) { m_throwingCall = call; }

private:
    class Base;
    class Controller;
    class MainWindow;
    class Platform;
    class FileIO;

    void note(const QString &call);

    CallLog m_log;
    QString m_throwingCall;
    QList<Registration> m_registrations;
    std::unique_ptr<QMainWindow> m_mainWindow;
    std::unique_ptr<Base> m_base;
    std::unique_ptr<Controller> m_controller;
    std::unique_ptr<MainWindow> m_mainWindowService;
    std::unique_ptr<Platform> m_platform;
    std::unique_ptr<FileIO> m_fileIO;
    std::unique_ptr<RecordingService> m_overlays;
};
