// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/kxIconManager.h"
#include "host/kxIconOptions.h"
#include "host/kxStyle.h"
#include "tests/support/KxTest.h"

#include <QIcon>
#include <QPainter>
#include <QPixmap>
#include <QScreen>

namespace {

const char *const names[] = {
    "ModuleOverlay",
    "scenegraph/Overlay",
    "scenegraph/Switch",
    "scenegraph/GroupNode",
    "CreateNew",
    "Duplicate",
    "Delete",
    "FileOpen",
    "Reload",
    "Save",
    "ShowTextureInfo",
    "Search",
    "Clear",
    "Undo",
    "Redo",
    "Float",
    "Home",
    "ResetView",
    "Application",
    "MessageError",
    "MessageInformation",
    "MessageQuestion",
    "MessageWarning",
};

kxIconOptions with(unsigned int option)
{
    kxIconOptions options;
    options.setOption(option, true);
    return options;
}

QIcon icon(const char *name)
{
    return kxIconManager::getIcon(name, std::string());
}

int greatestAlpha(const QImage &image)
{
    int alpha = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            alpha = qMax(alpha, qAlpha(image.pixel(x, y)));
    return alpha;
}

/// The share of pixels that are neither clear nor full: what makes a drawing soft.
double softPart(const QImage &image)
{
    int soft = 0;
    int drawn = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const int alpha = qAlpha(image.pixel(x, y));
            drawn += alpha > 0;
            soft += alpha > 0 && alpha < 255;
        }
    }
    return double(soft) / drawn;
}

} // namespace

class tst_kxIconManager : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldDrawEveryName_data();
    void shouldDrawEveryName();
    void shouldDrawDifferentIconsForDifferentNames();
    void shouldGiveTreeIconsAtTheSizeOfARow();
    void shouldRenderOncePerNameOptionsAndScale();
    void shouldShareOnePixmapAmongRows();
    void shouldDimInactiveIcons();
    void shouldDrawHighlightedIconsInTheAccentColor();
    void shouldIgnoreUnknownOptions();
    void shouldDrawSharpAtEverySize();
    void shouldFollowThePixelRatioOfThePainter();
    void shouldDimDisabledIcons();
    void shouldShowTheVariantWhenOn();
    void shouldStaySquareInAnOblongPlace();
    void shouldWarnOnceForAnUnknownName();
    void shouldWarnOnceForAnUnknownNameOfATreeIcon();
};

void tst_kxIconManager::shouldDrawEveryName_data()
{
    QTest::addColumn<QByteArray>("name");
    for (const char *name : names)
        QTest::newRow(name) << QByteArray(name);
}

void tst_kxIconManager::shouldDrawEveryName()
{
    QFETCH(QByteArray, name);
    QVERIFY(!icon(name).isNull());
    QVERIFY(greatestAlpha(icon(name).pixmap(16).toImage()) > 200);
    QVERIFY(greatestAlpha(kxIconManager::get(name, kxIconOptions()).toImage()) > 200);
}

void tst_kxIconManager::shouldDrawDifferentIconsForDifferentNames()
{
    QVector<QImage> seen;
    for (const char *name : names) {
        const QImage image = icon(name).pixmap(24).toImage();
        QVERIFY2(!seen.contains(image), name);
        seen.append(image);
    }
}

void tst_kxIconManager::shouldGiveTreeIconsAtTheSizeOfARow()
{
    const QPixmap pixmap = kxIconManager::get("scenegraph/Switch", kxIconOptions());
    const QScreen *screen = QGuiApplication::primaryScreen();
    const qreal scale = qMax(1.0, screen->logicalDotsPerInch() / 96) * qGuiApp->devicePixelRatio();
    QCOMPARE(pixmap.size(), QSize(qRound(16 * scale), qRound(16 * scale)));
    QCOMPARE(pixmap.devicePixelRatio(), qGuiApp->devicePixelRatio());
}

void tst_kxIconManager::shouldRenderOncePerNameOptionsAndScale()
{
    const int before = kxIconManager::renderingCount();
    icon("Home").pixmap(31);
    QCOMPARE(kxIconManager::renderingCount(), before + 1);
    for (int i = 0; i < 100; ++i)
        icon("Home").pixmap(31);
    QCOMPARE(kxIconManager::renderingCount(), before + 1);
    icon("Home").pixmap(32);
    icon("Home").pixmap(31, 31, QIcon::Disabled);
    icon("Undo").pixmap(31);
    QCOMPARE(kxIconManager::renderingCount(), before + 4);
}

void tst_kxIconManager::shouldShareOnePixmapAmongRows()
{
    const kxIconOptions inactive = with(kxIconOptions::Inactive);
    const QPixmap first = kxIconManager::get("scenegraph/GroupNode", inactive);
    const int before = kxIconManager::renderingCount();
    QCOMPARE(kxIconManager::get("scenegraph/GroupNode", inactive).cacheKey(), first.cacheKey());
    QCOMPARE(kxIconManager::renderingCount(), before);
}

void tst_kxIconManager::shouldDimInactiveIcons()
{
    const QImage dimmed =
        kxIconManager::get("scenegraph/Switch", with(kxIconOptions::Inactive)).toImage();
    QVERIFY(greatestAlpha(dimmed) < 140);
    for (int y = 0; y < dimmed.height(); ++y)
        for (int x = 0; x < dimmed.width(); ++x)
            QVERIFY(dimmed.pixelColor(x, y).hsvSaturation() < 20 || dimmed.pixel(x, y) == 0);
}

void tst_kxIconManager::shouldDrawHighlightedIconsInTheAccentColor()
{
    const QImage image =
        kxIconManager::get("scenegraph/Overlay", with(kxIconOptions::Highlighted)).toImage();
    const QColor accent = kxStyle::getAccentColor();
    bool found = false;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor color = image.pixelColor(x, y);
            if (color.alpha() < 200)
                continue;
            found = true;
            QVERIFY(qAbs(color.red() - accent.red()) < 6 && qAbs(color.blue() - accent.blue()) < 6);
        }
    }
    QVERIFY(found);
}

void tst_kxIconManager::shouldIgnoreUnknownOptions()
{
    QCOMPARE(kxIconManager::get("Save", with(64)).toImage(),
             kxIconManager::get("Save", kxIconOptions()).toImage());
}

void tst_kxIconManager::shouldDrawSharpAtEverySize()
{
    // An enlarged small drawing would be soft all over; a fresh one only along its edges.
    const QImage large = icon("Save").pixmap(256).toImage();
    QCOMPARE(large.size(), QSize(256, 256));
    QVERIFY(softPart(large) < 0.2);
}

void tst_kxIconManager::shouldFollowThePixelRatioOfThePainter()
{
    QImage image(64, 64, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    image.setDevicePixelRatio(2);
    QPainter painter(&image);
    icon("Save").paint(&painter, QRect(0, 0, 32, 32));
    painter.end();
    image.setDevicePixelRatio(1);
    const QImage direct = icon("Save").pixmap(64).toImage();
    QCOMPARE(image, direct.convertToFormat(image.format()));
}

void tst_kxIconManager::shouldDimDisabledIcons()
{
    QVERIFY(greatestAlpha(icon("Save").pixmap(16, 16, QIcon::Disabled).toImage()) < 140);
}

void tst_kxIconManager::shouldShowTheVariantWhenOn()
{
    const QIcon both = kxIconManager::getIcon("Undo", "Redo");
    QCOMPARE(both.pixmap(20, 20, QIcon::Normal, QIcon::Off).toImage(),
             icon("Undo").pixmap(20).toImage());
    QCOMPARE(both.pixmap(20, 20, QIcon::Normal, QIcon::On).toImage(),
             icon("Redo").pixmap(20).toImage());
    QCOMPARE(icon("Undo").pixmap(20, 20, QIcon::Normal, QIcon::On).toImage(),
             icon("Undo").pixmap(20).toImage());
}

void tst_kxIconManager::shouldStaySquareInAnOblongPlace()
{
    QCOMPARE(icon("Save").actualSize(QSize(48, 20)), QSize(20, 20));
    QCOMPARE(icon("Save").pixmap(QSize(48, 20)).size(), QSize(20, 20));
}

void tst_kxIconManager::shouldWarnOnceForAnUnknownName()
{
    expectMessage("kxIconManager: .*\"NoSuchIcon\"");
    QVERIFY(icon("NoSuchIcon").isNull());
    QVERIFY(icon("NoSuchIcon").isNull());
    QVERIFY(kxIconManager::get("NoSuchIcon", kxIconOptions()).isNull());
}

void tst_kxIconManager::shouldWarnOnceForAnUnknownNameOfATreeIcon()
{
    expectMessage("kxIconManager: .*\"scenegraph/None\"");
    expectMessage("kxIconManager: .*\"NoVariant\"");
    QVERIFY(kxIconManager::get("scenegraph/None", kxIconOptions()).isNull());
    QVERIFY(kxIconManager::get("scenegraph/None", kxIconOptions()).isNull());
    QVERIFY(!kxIconManager::getIcon("Save", "NoVariant").isNull());
}

KX_TEST_MAIN(tst_kxIconManager)
#include "tst_kxIconManager.moc"
