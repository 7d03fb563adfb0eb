// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/support/KxTest.h"
#include "viewer/render/ImageCache.h"

#include <QSignalSpy>
#include <QTemporaryDir>

using viewer::ImageCache;
using State = viewer::ImageCache::State;
Q_DECLARE_METATYPE(viewer::ImageCache::State)

class tst_ImageCache_background : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void cleanup() override;
    void shouldNotWaitForAPicture();
    void shouldReadEachFileOnce();
    void shouldTellWhenAllIsRead();
    void shouldShowAFileThatChanges();
    void shouldShowAFileThatReplacesAnother();
    void shouldKeepTheLastPictureOfAFileThatVanishes();
    void shouldKeepTheLastPictureUntilTheNextIsWhole();
    void shouldShowAFileThatComes();
    void shouldKeepThePictureWhileItIsReadAnew();
    void shouldReadAFileAgainThatChangedWhileItWasRead();
    void shouldGiveUpWhatIsNotNeededAnyMore();
    void shouldReadPicturesSmallerWhereMemoryIsShort();
    void shouldForgetWhatIsNotDrawnWhereMemoryIsShort();
    void shouldTellThatNotAllFilesAreWatched();

private:
    QString path(const QString &name) const { return m_folder->filePath(name); }
    QString picture(const QString &name, const QColor &color, const QSize &size = {8, 4}) const;
    void start(const viewer::ImageLimits &limits = {});
    QColor colorOf(const QString &file);

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<ImageCache> m_cache;
};

namespace {

constexpr int Patience = 30000;

#define TRY_COMPARE(actual, expected) QTRY_COMPARE_WITH_TIMEOUT(actual, expected, Patience)

} // namespace

void tst_ImageCache_background::init()
{
    KxTest::init();
    m_folder = std::make_unique<QTemporaryDir>();
    start();
}

void tst_ImageCache_background::cleanup()
{
    m_cache.reset();
    KxTest::cleanup();
}

void tst_ImageCache_background::start(const viewer::ImageLimits &limits)
{
    m_cache = std::make_unique<ImageCache>(ImageCache::Reading::InBackground, limits);
}

QString tst_ImageCache_background::picture(const QString &name, const QColor &color,
                                           const QSize &size) const
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    return image.save(path(name)) ? path(name) : QString();
}

/// What the cache shows; no colour for no picture.
QColor tst_ImageCache_background::colorOf(const QString &file)
{
    const QImage &image = m_cache->image(file);
    return image.isNull() ? QColor() : image.pixelColor(0, 0);
}

void tst_ImageCache_background::shouldNotWaitForAPicture()
{
    const QString file = picture("a.png", Qt::red);
    QSignalSpy changes(m_cache.get(), &ImageCache::pictureChanged);
    QVERIFY(m_cache->image(file).isNull());
    QVERIFY(m_cache->scaledImage(file, {2, 1}).isNull());
    QCOMPARE(m_cache->state(file), State::Loading);
    QVERIFY(m_cache->isLoading());
    TRY_COMPARE(changes, (QList<QList<QVariant>>{{file}}));
    QCOMPARE(colorOf(file), QColor(Qt::red));
    QCOMPARE(m_cache->scaledImage(file, {2, 1}).size(), QSize(2, 1));
    QCOMPARE(m_cache->state(file), State::Ready);
}

void tst_ImageCache_background::shouldReadEachFileOnce()
{
    const QString file = picture("a.png", Qt::red);
    colorOf(file);
    colorOf(file);
    TRY_COMPARE(m_cache->isLoading(), false);
    colorOf(file);
    QCOMPARE(m_cache->readCount(), 1);
}

void tst_ImageCache_background::shouldTellWhenAllIsRead()
{
    QSignalSpy finished(m_cache.get(), &ImageCache::finished);
    for (int i = 0; i < 20; ++i)
        colorOf(picture(QString::number(i) + ".png", Qt::red));
    QVERIFY(finished.wait(Patience));
    for (int i = 0; i < 20; ++i)
        QCOMPARE(m_cache->state(path(QString::number(i) + ".png")), State::Ready);
    QCOMPARE(finished.size(), 1);
}

void tst_ImageCache_background::shouldShowAFileThatChanges()
{
    const QString file = picture("a.png", Qt::red);
    TRY_COMPARE(colorOf(file), QColor(Qt::red));
    picture("a.png", Qt::blue);
    TRY_COMPARE(colorOf(file), QColor(Qt::blue));
    picture("a.png", Qt::green);
    TRY_COMPARE(colorOf(file), QColor(Qt::green));
    QCOMPARE(m_cache->state(file), State::Ready);
}

void tst_ImageCache_background::shouldShowAFileThatReplacesAnother()
{
    const QString file = picture("a.png", Qt::red);
    TRY_COMPARE(colorOf(file), QColor(Qt::red));
    for (const Qt::GlobalColor color : {Qt::blue, Qt::green}) {
        const QString other = picture("other.png", color);
        QCOMPARE(rename(qPrintable(other), qPrintable(file)), 0);
        TRY_COMPARE(colorOf(file), color);
    }
}

void tst_ImageCache_background::shouldKeepTheLastPictureOfAFileThatVanishes()
{
    const QString file = picture("a.png", Qt::red);
    TRY_COMPARE(colorOf(file), QColor(Qt::red));
    QVERIFY(QFile::remove(file));
    TRY_COMPARE(m_cache->state(file), State::Outdated);
    QCOMPARE(colorOf(file), QColor(Qt::red));
    QCOMPARE(m_cache->scaledImage(file, {2, 1}).pixelColor(0, 0), QColor(Qt::red));
    picture("a.png", Qt::blue);
    TRY_COMPARE(colorOf(file), QColor(Qt::blue));
    QCOMPARE(m_cache->state(file), State::Ready);
}

void tst_ImageCache_background::shouldKeepTheLastPictureUntilTheNextIsWhole()
{
    const QString next = picture("next.jpg", Qt::blue, {64, 64});
    QFile whole(next);
    QVERIFY(whole.open(QIODevice::ReadOnly));
    const QByteArray bytes = whole.readAll();
    const QString file = picture("a.jpg", Qt::red);
    TRY_COMPARE(m_cache->state(file), State::Ready);
    const QColor before = colorOf(file);

    QFile writing(file);
    QVERIFY(writing.open(QIODevice::WriteOnly));
    writing.write(bytes.left(bytes.size() / 2));
    writing.flush();
    TRY_COMPARE(m_cache->state(file), State::Outdated);
    QCOMPARE(colorOf(file), before);
    writing.write(bytes.mid(bytes.size() / 2));
    writing.close();
    TRY_COMPARE(m_cache->state(file), State::Ready);
    QCOMPARE(m_cache->image(file).size(), QSize(64, 64));
}

void tst_ImageCache_background::shouldShowAFileThatComes()
{
    TRY_COMPARE(m_cache->state(path("a.png")), State::Unreadable);
    QVERIFY(m_cache->image(path("a.png")).isNull());
    picture("a.png", Qt::blue);
    TRY_COMPARE(colorOf(path("a.png")), QColor(Qt::blue));
}

void tst_ImageCache_background::shouldKeepThePictureWhileItIsReadAnew()
{
    const QString file = picture("a.png", Qt::red);
    TRY_COMPARE(colorOf(file), QColor(Qt::red));
    QSignalSpy changes(m_cache.get(), &ImageCache::pictureChanged);
    m_cache->reload(file);
    QVERIFY(m_cache->isLoading());
    QCOMPARE(colorOf(file), QColor(Qt::red));
    QCOMPARE(m_cache->state(file), State::Ready);
    TRY_COMPARE(changes.size(), 1);
    QCOMPARE(m_cache->readCount(), 2);
}

void tst_ImageCache_background::shouldReadAFileAgainThatChangedWhileItWasRead()
{
    const QString file = picture("a.png", Qt::red);
    colorOf(file);
    m_cache->reload(file);
    m_cache->reload(file);
    TRY_COMPARE(m_cache->isLoading(), false);
    QCOMPARE(m_cache->readCount(), 2);
}

void tst_ImageCache_background::shouldGiveUpWhatIsNotNeededAnyMore()
{
    const QString file = picture("a.png", Qt::red);
    QSignalSpy changes(m_cache.get(), &ImageCache::pictureChanged);
    colorOf(file);
    m_cache->forgetAll();
    TRY_COMPARE(m_cache->isLoading(), false);
    QCOMPARE(changes.size(), 0);
    // What is read for nobody is not taken for what is asked for now.
    colorOf(file);
    m_cache->forgetAll();
    colorOf(file);
    TRY_COMPARE(m_cache->isLoading(), false);
    QCOMPARE(changes.size(), 1);
    QCOMPARE(colorOf(file), QColor(Qt::red));
}

void tst_ImageCache_background::shouldReadPicturesSmallerWhereMemoryIsShort()
{
    viewer::ImageLimits limits;
    limits.bytes = 16 << 20;
    start(limits);
    const QSize size(1024, 1024); // 4 MB
    const QString first = picture("first.png", Qt::red, size);
    TRY_COMPARE(m_cache->image(first).size(), size);
    const QString second = picture("second.png", Qt::red, size);
    TRY_COMPARE(m_cache->image(second).width(), 887); // of 3 MB
    for (int i = 0; i < 20; ++i) {
        const QString file = picture(QString::number(i) + ".png", Qt::red, size);
        TRY_COMPARE(m_cache->state(file), State::Ready);
        QVERIFY(m_cache->image(file).width() >= 512);
    }
    QCOMPARE(m_cache->image(path("19.png")).width(), 512);
    m_cache->forgetAll();
    TRY_COMPARE(m_cache->image(first).size(), size);
}

void tst_ImageCache_background::shouldForgetWhatIsNotDrawnWhereMemoryIsShort()
{
    viewer::ImageLimits limits;
    limits.bytes = 16 << 20;
    start(limits);
    QStringList files;
    for (const char *name : {"a.png", "b.png", "c.png", "d.png"}) {
        files.append(picture(name, Qt::red, {900, 900}));
        TRY_COMPARE(m_cache->state(files.constLast()), State::Ready);
    }
    m_cache->endDrawing(); // it asked for all
    m_cache->image(files.at(1));
    m_cache->endDrawing();
    QCOMPARE(m_cache->state(files.at(1)), State::Ready);
    QCOMPARE(m_cache->state(files.at(0)), State::Loading);
    TRY_COMPARE(m_cache->isLoading(), false);
    // There is enough now.
    m_cache->endDrawing();
    m_cache->endDrawing();
    QCOMPARE(m_cache->state(files.at(0)), State::Ready);
}

void tst_ImageCache_background::shouldTellThatNotAllFilesAreWatched()
{
    viewer::ImageLimits limits;
    limits.watch.notices = 1;
    limits.watch.interval = 20;
    start(limits);
    QSignalSpy limited(m_cache.get(), &ImageCache::watchLimited);
    const QString file = picture("a.png", Qt::red);
    TRY_COMPARE(colorOf(file), QColor(Qt::red));
    QCOMPARE(limited.size(), 1);
    picture("a.png", Qt::blue, {9, 9});
    TRY_COMPARE(colorOf(file), QColor(Qt::blue));
}

KX_TEST_MAIN(tst_ImageCache_background)
#include "tst_ImageCache_background.moc"
