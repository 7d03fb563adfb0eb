// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/kxStyle.h"
#include "tests/support/KxTest.h"

#include <QApplication>
#include <QPainter>
#include <QPlainTextEdit>

/// The frames of areas at scale factors that put them between pixels, and of fields without room.
class tst_kxStyleFrames : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void shouldFrameAnAreaOnAllSidesOfAFineDisplay();
    void shouldDrawNothingIntoAnEmptyField();
};

void tst_kxStyleFrames::initTestCase()
{
    QApplication::setStyle(new kxStyle);
}

/// Its edges lie on half pixels there, at every second place.
void tst_kxStyleFrames::shouldFrameAnAreaOnAllSidesOfAFineDisplay()
{
    QWidget ground;
    QPalette palette = ground.palette();
    palette.setColor(QPalette::Window, Qt::black);
    palette.setColor(QPalette::Base, Qt::black);
    ground.setPalette(palette);
    ground.resize(80, 80);
    QPlainTextEdit area(&ground);
    for (const QRect &place :
         {QRect(10, 10, 60, 60), QRect(11, 11, 60, 60), QRect(10, 10, 61, 61)}) {
        area.setGeometry(place);
        QImage image(ground.size() * 1.5, QImage::Format_RGB32);
        image.setDevicePixelRatio(1.5);
        ground.render(&image);
        const auto shows = [&image](double x, double y) {
            const int left = qFloor(x * 1.5);
            const int top = qFloor(y * 1.5);
            return qGray(image.pixel(left, top)) > 20 || qGray(image.pixel(left + 1, top + 1)) > 20;
        };
        const QPoint center = place.center();
        QVERIFY(shows(place.left(), center.y()));
        QVERIFY(shows(center.x(), place.top()));
        QVERIFY(shows(place.right(), center.y()));
        QVERIFY(shows(center.x(), place.bottom()));
    }
}

void tst_kxStyleFrames::shouldDrawNothingIntoAnEmptyField()
{
    QImage image(80, 80, QImage::Format_RGB32);
    image.fill(Qt::black);
    const QImage empty = image;
    for (const QRect &room :
         {QRect(), QRect(20, 20, 0, 20), QRect(20, 20, 20, 0), QRect(60, 60, -30, -30)}) {
        QPainter painter(&image);
        kxStyle::drawMixedField(&painter, room, true);
        QCOMPARE(image, empty);
        kxStyle::drawMixedText(&painter, room, true);
        QCOMPARE(image, empty);
    }
}

KX_TEST_MAIN(tst_kxStyleFrames)
#include "tst_kxStyleFrames.moc"
