// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/support/KxTest.h"
#include "viewer/render/ImageCache.h"

#include <QTemporaryDir>

#include <sys/stat.h>

using viewer::ImageCache;

class tst_ImageCache : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldReadEachFileOnce();
    void shouldReadAForgottenFileAnew();
    void shouldReadEverythingAnewAfterForgettingAll();
    void shouldRememberThatAFileIsMissing();
    void shouldNotWaitForAPipe();
    void shouldBoundThePixelsOfAFile_data();
    void shouldBoundThePixelsOfAFile();
    void shouldScaleOnceForEachSize();
    void shouldReadDrawingsLarge();

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

void tst_ImageCache::shouldReadAForgottenFileAnew()
{
    ImageCache cache;
    const QString path = picture("b.png", Qt::red, {8, 4});
    QCOMPARE(cache.scaledImage(path, {2, 1}).pixelColor(0, 0), QColor(Qt::red));
    picture("b.png", Qt::blue, {8, 4});
    cache.forget(path);
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

void tst_ImageCache::shouldNotWaitForAPipe()
{
    const QString pipe = m_folder.filePath("pipe.png");
    QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    ImageCache cache;
    QVERIFY(cache.image(pipe).isNull());
}

void tst_ImageCache::shouldBoundThePixelsOfAFile_data()
{
    QTest::addColumn<QSize>("stored");
    QTest::addColumn<QSize>("read");
    QTest::newRow("usual") << QSize(8192, 4) << QSize(8192, 4);
    QTest::newRow("large") << QSize(16384, 64) << QSize(8192, 32);
    QTest::newRow("high") << QSize(64, 16384) << QSize(32, 8192);
    QTest::newRow("wider than can be drawn") << QSize(32768, 1) << QSize();
    QTest::newRow("higher than can be drawn") << QSize(1, 32768) << QSize();
}

void tst_ImageCache::shouldBoundThePixelsOfAFile()
{
    QFETCH(QSize, stored);
    QFETCH(QSize, read);
    QImage image(stored, QImage::Format_Mono);
    image.fill(1);
    const QString path = m_folder.filePath("large.png");
    QVERIFY(image.save(path));
    ImageCache cache;
    QCOMPARE(cache.image(path).isNull(), !read.isValid());
    if (read.isValid())
        QCOMPARE(cache.image(path).size(), read);
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

void tst_ImageCache::shouldReadDrawingsLarge()
{
    QFile file(m_folder.filePath("d.svg"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(R"(<svg xmlns="http://www.w3.org/2000/svg" width="20" height="10"
        viewBox="0 0 20 10"><rect width="20" height="10" fill="#00ff00"/></svg>)");
    file.close();
    ImageCache cache;
    QCOMPARE(cache.image(file.fileName()).size(), QSize(2048, 1024));
    QCOMPARE(cache.image(file.fileName()).pixelColor(2000, 1000), QColor(0, 255, 0));
}

KX_TEST_MAIN(tst_ImageCache)
#include "tst_ImageCache.moc"
