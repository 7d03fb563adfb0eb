// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "Services.h"

#include "host/kxKernelServiceFactory.h"

#include <QCoreApplication>
#include <QDockWidget>
#include <QGuiApplication>
#include <QImageReader>
#include <QMainWindow>
#include <QMenuBar>
#include <QScreen>

namespace minimal {

//! [register]
Services::Services() : m_window(new QMainWindow), m_windows(m_window.get())
{
    auto *registry = kxKernelServiceFactory::the();
    registry->registerService<kxBaseService>(&m_base);
    registry->registerService<kxControllerService>(&m_controller);
    registry->registerService<kxFileIOService>(&m_files);
    registry->registerService<kxPlatformService>(&m_platform);
    registry->registerService<kxMainWindowService>(&m_windows);
    registry->registerService<kxOverlayService>(&m_overlays);
}
//! [register]

//! [unregister]
Services::~Services()
{
    m_window.reset(); // with all that modules put into it, which asks the services to the last
    auto *registry = kxKernelServiceFactory::the();
    registry->unregisterService<kxOverlayService>();
    registry->unregisterService<kxMainWindowService>();
    registry->unregisterService<kxPlatformService>();
    registry->unregisterService<kxFileIOService>();
    registry->unregisterService<kxControllerService>();
    registry->unregisterService<kxBaseService>();
}
//! [unregister]

//! [ready]
void Services::announceReady()
{
    Q_EMIT m_overlays.modelReset();
    Q_EMIT m_base.init();
}
//! [ready]

//! [answers]
QString Files::getImageFileFilter()
{
    const QString formats = QString::fromLatin1(QImageReader::supportedImageFormats().join(" *."));
    return QCoreApplication::translate("minimal", "Images (*.%1);;All files (*)").arg(formats);
}

double Platform::getScaleFactorX()
{
    return QGuiApplication::primaryScreen()->logicalDotsPerInchX() / 96;
}

double Platform::getScaleFactorY()
{
    return QGuiApplication::primaryScreen()->logicalDotsPerInchY() / 96;
}
//! [answers]

//! [windows]
QWidget *Windows::getMainWindow()
{
    return m_window;
}

void Windows::registerModule(const QString &name, const QString &category, QWidget *window,
                             const QString &, const QIcon &icon, const QString &title, int)
{
    if (m_window->findChild<QDockWidget *>(name)) {
        qWarning("A module named \"%s\" is registered already.", qPrintable(name));
        return;
    }
    auto *dock = new QDockWidget(title, m_window);
    dock->setObjectName(name); // by which QMainWindow::saveState() knows it
    dock->setWindowIcon(icon);
    dock->setWidget(window);
    m_window->addDockWidget(Qt::RightDockWidgetArea, dock);

    auto *menu = m_window->menuBar()->findChild<QMenu *>(category);
    if (!menu) {
        menu = m_window->menuBar()->addMenu(category);
        menu->setObjectName(category);
    }
    menu->addAction(dock->toggleViewAction());
}
//! [windows]

} // namespace minimal
