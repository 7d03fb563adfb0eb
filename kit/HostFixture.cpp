// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "kit/HostFixture.h"

#include "host/kxKernelServiceFactory.h"
#include "host/kxShortcut.h"

#include <QTreeView>

#include <stdexcept>

class HostFixture::Base : public kxBaseService
{
public:
    using QObject::receivers;
};

class HostFixture::Controller : public kxControllerService
{
public:
    explicit Controller(HostFixture *host) : m_host(host) {}

    bool isHeadless() override
    {
        m_host->note(QStringLiteral("controller.isHeadless"));
        return m_host->headless;
    }

private:
    HostFixture *m_host;
};

class HostFixture::MainWindow : public kxMainWindowService
{
public:
    explicit MainWindow(HostFixture *host) : m_host(host) {}

    QWidget *getMainWindow() override
    {
        m_host->note(QStringLiteral("mainWindow.getMainWindow"));
        return m_host->m_mainWindow.get();
    }

    void registerModule(const QString &name, const QString &category, QWidget *window,
                        const QString &helpId, const QIcon &icon, const QString &title,
                        int flag) override
    {
        m_host->note(QStringLiteral("mainWindow.registerModule"));
        const auto *panel = qobject_cast<QMainWindow *>(window);
        const bool hasForm = panel && panel->centralWidget();
        m_host->m_registrations.append(Registration{name, category, window, helpId, icon, title,
                                                    flag, window->objectName(), hasForm,
                                                    window->findChild<QTreeView *>() != nullptr});
    }

private:
    HostFixture *m_host;
};

class HostFixture::Platform : public kxPlatformService
{
public:
    explicit Platform(HostFixture *host) : m_host(host) {}

    double getScaleFactorX() override
    {
        m_host->note(QStringLiteral("platform.getScaleFactorX"));
        return m_host->scaleX;
    }

    double getScaleFactorY() override
    {
        m_host->note(QStringLiteral("platform.getScaleFactorY"));
        return m_host->scaleY;
    }

    int getIconWidth() override
    {
        m_host->note(QStringLiteral("platform.getIconWidth"));
        return m_host->iconSize.width();
    }

    int getIconHeight() override
    {
        m_host->note(QStringLiteral("platform.getIconHeight"));
        return m_host->iconSize.height();
    }

private:
    HostFixture *m_host;
};

class HostFixture::FileIO : public kxFileIOService
{
public:
    explicit FileIO(HostFixture *host) : m_host(host) {}

    QString getImageFileFilter() override
    {
        m_host->note(QStringLiteral("fileIO.getImageFileFilter"));
        return m_host->imageFilter;
    }

private:
    HostFixture *m_host;
};

HostFixture::HostFixture()
    : m_mainWindow(std::make_unique<QMainWindow>())
    , m_base(std::make_unique<Base>())
    , m_controller(std::make_unique<Controller>(this))
    , m_mainWindowService(std::make_unique<MainWindow>(this))
    , m_platform(std::make_unique<Platform>(this))
    , m_fileIO(std::make_unique<FileIO>(this))
    , m_overlays(std::make_unique<RecordingService>(&m_log))
{
    kxShortcut::clear();
    auto *registry = kxKernelServiceFactory::the();
    registry->registerService<kxBaseService>(m_base.get());
    registry->registerService<kxControllerService>(m_controller.get());
    registry->registerService<kxMainWindowService>(m_mainWindowService.get());
    registry->registerService<kxPlatformService>(m_platform.get());
    registry->registerService<kxFileIOService>(m_fileIO.get());
    registry->registerService<kxOverlayService>(m_overlays.get());
}

HostFixture::~HostFixture()
{
    auto *registry = kxKernelServiceFactory::the();
    registry->unregisterService<kxOverlayService>();
    registry->unregisterService<kxFileIOService>();
    registry->unregisterService<kxPlatformService>();
    registry->unregisterService<kxMainWindowService>();
    registry->unregisterService<kxControllerService>();
    registry->unregisterService<kxBaseService>();
    kxShortcut::clear();
}

void HostFixture::announceInit()
{
    Q_EMIT m_base->init();
}

int HostFixture::initReceivers() const
{
    return m_base->receivers(SIGNAL(init()));
}

void HostFixture::note(const QString &call)
{
    m_log.add(call);
    if (onCall)
        onCall(call);
    if (call == m_throwingCall)
        throw std::runtime_error(call.toStdString());
}
