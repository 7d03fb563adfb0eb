// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/HostServices.h"

#include "tests/support/KxTest.h"
#include "viewer/app/MainWindow.h"

#include <QImageReader>
#include <QScreen>
#include <QSignalSpy>

using namespace viewer;

namespace {

template<class T>
T *find()
{
    return kxKernelServiceFactory::the()->getService<T>();
}

} // namespace

class tst_HostServices : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldRegisterAllServicesForARunWithAWindow();
    void shouldRegisterNoWindowServicesForAHeadlessRun();
    void shouldLeaveAnEmptyRegistry();
    void shouldOutliveTheWindow();
    void shouldAnnounceItsReadinessOnTheBaseService();
    void shouldScaleByTheDensityOfTheScreen();
    void shouldOfferAllImageFormatsOfQt();
};

void tst_HostServices::shouldRegisterAllServicesForARunWithAWindow()
{
    MainWindow window(ViewArea::Background::Painted);
    HostServices services(&window);
    QVERIFY(find<kxBaseService>());
    QVERIFY(!find<kxControllerService>()->isHeadless());
    QCOMPARE(find<kxMainWindowService>()->getMainWindow(), &window);
    QVERIFY(find<kxPlatformService>());
    QVERIFY(find<kxFileIOService>());
    QCOMPARE(find<kxOverlayService>(), services.overlays());
}

void tst_HostServices::shouldRegisterNoWindowServicesForAHeadlessRun()
{
    HostServices services(nullptr);
    QVERIFY(find<kxControllerService>()->isHeadless());
    QVERIFY(find<kxOverlayService>());
    QVERIFY(!find<kxMainWindowService>());
    QVERIFY(!find<kxPlatformService>());
}

void tst_HostServices::shouldLeaveAnEmptyRegistry()
{
    {
        MainWindow window(ViewArea::Background::Painted);
        HostServices services(&window);
    }
    QVERIFY(!find<kxBaseService>());
    QVERIFY(!find<kxControllerService>());
    QVERIFY(!find<kxMainWindowService>());
    QVERIFY(!find<kxPlatformService>());
    QVERIFY(!find<kxFileIOService>());
    QVERIFY(!find<kxOverlayService>());
}

void tst_HostServices::shouldOutliveTheWindow()
{
    auto window = std::make_unique<MainWindow>(ViewArea::Background::Painted);
    HostServices services(window.get());
    window.reset();
    QCOMPARE(find<kxMainWindowService>()->getMainWindow(), nullptr);
}

void tst_HostServices::shouldAnnounceItsReadinessOnTheBaseService()
{
    HostServices services(nullptr);
    QSignalSpy ready(find<kxBaseService>(), &kxBaseService::init);
    services.announceReady();
    QCOMPARE(ready.size(), 1);
}

void tst_HostServices::shouldScaleByTheDensityOfTheScreen()
{
    MainWindow window(ViewArea::Background::Painted);
    HostServices services(&window);
    auto *platform = find<kxPlatformService>();
    const QScreen *screen = QGuiApplication::primaryScreen();
    QCOMPARE(platform->getScaleFactorX(), screen->logicalDotsPerInchX() / 96);
    QCOMPARE(platform->getScaleFactorY(), screen->logicalDotsPerInchY() / 96);
    QCOMPARE(platform->getIconWidth(), qRound(screen->logicalDotsPerInchX() / 6));
    QCOMPARE(platform->getIconHeight(), qRound(screen->logicalDotsPerInchY() / 6));
}

void tst_HostServices::shouldOfferAllImageFormatsOfQt()
{
    HostServices services(nullptr);
    const QStringList filters = find<kxFileIOService>()->getImageFileFilter().split(";;");
    QCOMPARE(filters.size(), 2);
    QVERIFY(filters.at(0).startsWith("Images (*."));
    const QList<QByteArray> formats = QImageReader::supportedImageFormats();
    QVERIFY(formats.contains("png"));
    for (const QByteArray &format : formats)
        QVERIFY2(filters.at(0).contains("*." + QString::fromLatin1(format)), format);
    QCOMPARE(filters.at(1), QString("All files (*)"));
}

KX_TEST_MAIN(tst_HostServices)
#include "tst_HostServices.moc"
