// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/support/KxTest.h"
#include "viewer/render/ImageCache.h"

#include <QTemporaryDir>

using viewer::ImageCache;

class tst_ImageCache : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldReadEachFileOnce();
    void shouldReadAFileAnewWhenReloaded();
    void shouldReadEverythingAnewAfterForgettingAll();
    void shouldRememberThatAFileIsMissing();
    void shouldScaleOnceForEachSize();

private:
    /// A picture file of one colour in a folder of the test.
    QString picture(const QString &name, const QColor &color, const QSize &size)
    {
        QImage image(size, QImage::Format_RGB32);
        image.fill(color);
        const QString path = m_folder.filePath(name);
        return image.save(path) ? path : QString();
    }

    QTemporaryDir m_folder;
};

void tst_ImageCache::shouldReadEachFileOnce()
{
    ImageCache cache;
    const QString path = picture("a.png", Qt::red, {8, 4});
    QCOMPARE(cache.image(path).size(), QSize(8, 4));
    picture("a.png", Qt::blue, {8, 4});
    QCOMPARE(cache.image(path).pixelColor(0, 0), QColor(Qt::red));
    QCOMPARE(cache.readCount(), 1);
}

void tst_ImageCache::shouldReadAFileAnewWhenReloaded()
{
    ImageCache cache;
    const QString path = picture("b.png", Qt::red, {8, 4});
    QCOMPARE(cache.scaledImage(path, {2, 1}).pixelColor(0, 0), QColor(Qt::red));
    picture("b.png", Qt::blue, {8, 4});
    cache.reload(path);
    QCOMPARE(cache.scaledImage(path, {2, 1}).pixelColor(0, 0), QColor(Qt::blue));
    QCOMPARE(cache.readCount(), 2);
}

void tst_ImageCache::shouldReadEverythingAnewAfterForgettingAll()
{
    ImageCache cache;
    const QString first = picture("first.png", Qt::red, {8, 4});
    const QString second = picture("second.png", Qt::red, {8, 4});
    cache.image(first);
    cache.image(second);
    cache.forgetAll();
    cache.image(first);
    cache.image(second);
    QCOMPARE(cache.readCount(), 4);
}

void tst_ImageCache::shouldRememberThatAFileIsMissing()
{
    ImageCache cache;
    QVERIFY(cache.image(m_folder.filePath("no.png")).isNull());
    QVERIFY(cache.image(m_folder.filePath("no.png")).isNull());
    QVERIFY(cache.scaledImage(m_folder.filePath("no.png"), {4, 4}).isNull());
    QCOMPARE(cache.readCount(), 1);
}

void tst_ImageCache::shouldScaleOnceForEachSize()
{
    ImageCache cache;
    const QString path = picture("c.png", Qt::red, {64, 64});
    const qint64 small = cache.scaledImage(path, {4, 4}).cacheKey();
    const qint64 large = cache.scaledImage(path, {16, 16}).cacheKey();
    QCOMPARE(cache.scaledImage(path, {4, 4}).cacheKey(), small);
    QCOMPARE(cache.scaledImage(path, {16, 16}).cacheKey(), large);
    for (int size = 20; size < 40; ++size)
        QCOMPARE(cache.scaledImage(path, {size, size}).size(), QSize(size, size));
    QVERIFY(cache.scaledImage(path, {4, 4}).cacheKey() != small);
}

KX_TEST_MAIN(tst_ImageCache)
#include "tst_ImageCache.moc"
