// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/PictureFile.h"

#include "tests/support/FullDisk.h"
#include "tests/support/KxTest.h"

#include <QImage>
#include <QTemporaryDir>

using viewer::savePicture;

class tst_PictureFile : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldWriteInTheFormatOfTheEnding_data();
    void shouldWriteInTheFormatOfTheEnding();
    void shouldSayWhatIsWrongAndLeaveWhatWasThere_data();
    void shouldSayWhatIsWrongAndLeaveWhatWasThere();

private:
    static QImage picture(QRgb color);
};

QImage tst_PictureFile::picture(QRgb color)
{
    QImage image(64, 64, QImage::Format_RGB32);
    image.fill(color);
    return image;
}

void tst_PictureFile::shouldWriteInTheFormatOfTheEnding_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("begin");
    QTest::newRow("png") << "a.b.png" << QByteArray("\x89PNG");
    QTest::newRow("capitals") << "a.PNG" << QByteArray("\x89PNG");
    QTest::newRow("jpg") << "a.jpg" << QByteArray("\xff\xd8");
}

void tst_PictureFile::shouldWriteInTheFormatOfTheEnding()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, begin);
    const QTemporaryDir folder;
    const QString path = folder.filePath(name);
    QCOMPARE(savePicture(picture(0xff0000ff), path), QString());
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.readAll().startsWith(begin));
    QCOMPARE(QImage(path).size(), QSize(64, 64));
}

void tst_PictureFile::shouldSayWhatIsWrongAndLeaveWhatWasThere_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isFull");
    QTest::newRow("the disk is full") << "a.png" << true;
    QTest::newRow("the format is unknown") << "a.none" << false;
}

void tst_PictureFile::shouldSayWhatIsWrongAndLeaveWhatWasThere()
{
    QFETCH(QString, name);
    QFETCH(bool, isFull);
    const QTemporaryDir folder;
    const QString path = folder.filePath(name);
    QVERIFY(picture(0xff0000ff).save(path, "PNG"));
    const auto write = [&] {
        const FullDisk disk(isFull ? 40 : RLIM_INFINITY);
        return savePicture(picture(0xffff0000), path);
    };
    QVERIFY(!write().isEmpty());
    QCOMPARE(QImage(path).pixel(9, 9), QRgb(0xff0000ff));
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList(name));
}

KX_TEST_MAIN(tst_PictureFile)
#include "tst_PictureFile.moc"
