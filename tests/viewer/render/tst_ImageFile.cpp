// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/render/ImageFile.h"

#include "tests/support/KxTest.h"

#include <QPainter>
#include <QTemporaryDir>

#include <sys/stat.h>

using viewer::readImageFile;

class tst_ImageFile : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldNotWaitForAPipe();
    void shouldBoundThePixelsOfAFile_data();
    void shouldBoundThePixelsOfAFile();
    void shouldReadAPictureSmallerThatTakesTooMuch_data();
    void shouldReadAPictureSmallerThatTakesTooMuch();
    void shouldReadDrawingsLarge();
    void shouldTurnAPhotographUpright();
    void shouldRefuseAFileThatEndsTooEarly_data();
    void shouldRefuseAFileThatEndsTooEarly();
    void shouldReadWhatFollowsThePictureAsNothing_data();
    void shouldReadWhatFollowsThePictureAsNothing();

private:
    QString write(const QString &name, const QByteArray &content) const;

    QTemporaryDir m_folder;
};

namespace {

constexpr qint64 Plenty = 1LL << 30;

QByteArray drawing()
{
    return R"(<svg xmlns="http://www.w3.org/2000/svg" width="20" height="10" viewBox="0 0 20 10">)"
           R"(<rect width="20" height="10" fill="#00ff00"/></svg>)";
}

/// Two pixels, with a comment and colours of its own.
QByteArray tinyGif()
{
    return QByteArray::fromHex("474946383961"
                               "02000100"
                               "800000"
                               "ff0000"
                               "0000ff"
                               "21fe"
                               "03616263"
                               "00"
                               "2c"
                               "00000000"
                               "02000100"
                               "00"
                               "02"
                               "03"
                               "440205"
                               "00"
                               "3b");
}

QByteArray encoded(const char *format)
{
    QImage image(20, 10, QImage::Format_RGB32);
    image.fill(Qt::red);
    QPainter painter(&image);
    painter.drawLine(0, 0, 20, 10);
    painter.end();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    return image.save(&buffer, format) ? bytes : QByteArray();
}

} // namespace

QString tst_ImageFile::write(const QString &name, const QByteArray &content) const
{
    QFile file(m_folder.filePath(name));
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size()
               ? file.fileName()
               : QString();
}

void tst_ImageFile::shouldNotWaitForAPipe()
{
    const QString pipe = m_folder.filePath("pipe.png");
    QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    QVERIFY(readImageFile(pipe, Plenty).isNull());
}

void tst_ImageFile::shouldBoundThePixelsOfAFile_data()
{
    QTest::addColumn<QSize>("stored");
    QTest::addColumn<QSize>("read");
    QTest::newRow("usual") << QSize(8192, 4) << QSize(8192, 4);
    QTest::newRow("large") << QSize(16384, 64) << QSize(8192, 32);
    QTest::newRow("high") << QSize(64, 16384) << QSize(32, 8192);
    QTest::newRow("wider than can be drawn") << QSize(32768, 1) << QSize();
    QTest::newRow("higher than can be drawn") << QSize(1, 32768) << QSize();
}

void tst_ImageFile::shouldBoundThePixelsOfAFile()
{
    QFETCH(QSize, stored);
    QFETCH(QSize, read);
    QImage image(stored, QImage::Format_Mono);
    image.fill(1);
    const QString path = m_folder.filePath("large.png");
    QVERIFY(image.save(path));
    const QImage found = readImageFile(path, Plenty);
    QCOMPARE(found.isNull(), !read.isValid());
    if (read.isValid())
        QCOMPARE(found.size(), read);
}

void tst_ImageFile::shouldReadAPictureSmallerThatTakesTooMuch_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content");
    QImage image(400, 200, QImage::Format_RGB32);
    image.fill(Qt::red);
    for (const char *format : {"png", "jpg", "bmp"}) {
        QByteArray bytes;
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        QVERIFY(image.save(&buffer, format));
        QTest::newRow(format) << QString("large.") + format << bytes;
    }
    QTest::newRow("svg") << "large.svg" << drawing();
}

void tst_ImageFile::shouldReadAPictureSmallerThatTakesTooMuch()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, content);
    const QString path = write(name, content);
    QCOMPARE(readImageFile(path, 4LL * 200 * 100).size(), QSize(200, 100));
    QCOMPARE(readImageFile(path, 1).size(), QSize(1, 1));
}

/// Cameras store the pixels as the sensor lies, and how it was held in a note.
void tst_ImageFile::shouldTurnAPhotographUpright()
{
    const QByteArray rightSideUp = QByteArray::fromHex("ffe10022"
                                                       "457869660000"
                                                       "4d4d002a00000008"
                                                       "0001"
                                                       "011200030000000100060000"
                                                       "00000000");
    QImage image(64, 32, QImage::Format_RGB32);
    image.fill(Qt::blue);
    QPainter(&image).fillRect(0, 0, 32, 32, Qt::red);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QVERIFY(image.save(&buffer, "jpg"));
    const QImage shown = readImageFile(write("photo.jpg", bytes.insert(2, rightSideUp)), Plenty);
    QCOMPARE(shown.size(), QSize(32, 64));
    QVERIFY(shown.pixelColor(16, 8).red() > 200);
    QVERIFY(shown.pixelColor(16, 56).blue() > 200);
}

void tst_ImageFile::shouldReadDrawingsLarge()
{
    const QImage image = readImageFile(write("d.svg", drawing()), Plenty);
    QCOMPARE(image.size(), QSize(2048, 1024));
    QCOMPARE(image.pixelColor(2000, 1000), QColor(0, 255, 0));
}

void tst_ImageFile::shouldRefuseAFileThatEndsTooEarly_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content");
    for (const char *format : {"png", "jpg", "bmp", "ppm"})
        QTest::newRow(format) << QString("part.") + format << encoded(format);
    QTest::newRow("gif") << "part.gif" << tinyGif();
    QTest::newRow("svg") << "part.svg" << drawing();
}

void tst_ImageFile::shouldRefuseAFileThatEndsTooEarly()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, content);
    const QImage whole = readImageFile(write(name, content), Plenty);
    QVERIFY(!whole.isNull());
    // A mark of the end need not be there for the picture to be.
    const int longest = content.size() - (name.endsWith("gif") ? 2 : 1);
    const int step = 1 + longest / 50;
    for (int missing = 0; missing <= longest; missing += step) {
        const QImage part = readImageFile(write(name, content.left(longest - missing)), Plenty);
        QVERIFY2(part.isNull(), qPrintable(QString::number(missing)));
    }
}

void tst_ImageFile::shouldReadWhatFollowsThePictureAsNothing_data()
{
    shouldRefuseAFileThatEndsTooEarly_data();
}

// Some programs put notes of their own there.
void tst_ImageFile::shouldReadWhatFollowsThePictureAsNothing()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, content);
    const QImage whole = readImageFile(write(name, content), Plenty);
    const QByteArray tail = name.endsWith("svg") ? "<!-- a note -->\n" : "a note";
    QCOMPARE(readImageFile(write(name, content + tail), Plenty), whole);
}

KX_TEST_MAIN(tst_ImageFile)
#include "tst_ImageFile.moc"
