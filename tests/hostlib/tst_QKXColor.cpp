// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/QKXColor.h"
#include "tests/support/KxTest.h"

#include <QColor>

class tst_QKXColor : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldTakeHueSaturationAndValueFromAColor_data();
    void shouldTakeHueSaturationAndValueFromAColor();
    void shouldGiveTheSameColorBack();
    void shouldTakePartsOutsideTheirRangesAsTheNearestEnd();
};

void tst_QKXColor::shouldTakeHueSaturationAndValueFromAColor_data()
{
    QTest::addColumn<QColor>("color");
    QTest::addColumn<float>("hue");
    QTest::addColumn<float>("saturation");
    QTest::addColumn<float>("value");
    QTest::newRow("black") << QColor(0, 0, 0) << 0.0f << 0.0f << 0.0f;
    QTest::newRow("white") << QColor(255, 255, 255) << 0.0f << 0.0f << 1.0f;
    QTest::newRow("red") << QColor(255, 0, 0) << 0.0f << 1.0f << 1.0f;
    QTest::newRow("green") << QColor(0, 255, 0) << 120.0f << 1.0f << 1.0f;
    QTest::newRow("blue") << QColor(0, 0, 255) << 240.0f << 1.0f << 1.0f;
    QTest::newRow("red and green share the maximum")
        << QColor(255, 255, 0) << 60.0f << 1.0f << 1.0f;
    QTest::newRow("green and blue share the maximum")
        << QColor(0, 255, 255) << 180.0f << 1.0f << 1.0f;
    QTest::newRow("red and blue share the maximum")
        << QColor(255, 0, 255) << 300.0f << 1.0f << 1.0f;
    QTest::newRow("negative hue turns once") << QColor(255, 0, 51) << 348.0f << 1.0f << 1.0f;
    QTest::newRow("dull") << QColor(51, 102, 51) << 120.0f << 0.5f << 0.4f;
    QTest::newRow("alpha is left out") << QColor(0, 0, 255, 10) << 240.0f << 1.0f << 1.0f;
    QTest::newRow("invalid") << QColor() << 0.0f << 0.0f << 0.0f;
}

void tst_QKXColor::shouldTakeHueSaturationAndValueFromAColor()
{
    QFETCH(QColor, color);
    const QKXColor record = color;
    QTEST(record.hue, "hue");
    QTEST(record.saturation, "saturation");
    QTEST(record.value, "value");
}

void tst_QKXColor::shouldGiveTheSameColorBack()
{
    for (int red = 0; red <= 255; red += 5) {
        for (int green = 0; green <= 255; green += 15) {
            for (int blue = 0; blue <= 255; blue += 3) {
                const QColor color(red, green, blue);
                QCOMPARE(QKXColor(color).toColor(), color);
            }
        }
    }
}

void tst_QKXColor::shouldTakePartsOutsideTheirRangesAsTheNearestEnd()
{
    QCOMPARE(QKXColor(480.0f, 2.0f, 3.0f).toColor(), QColor(0, 255, 0));
    QCOMPARE(QKXColor(-120.0f, 1.0f, 1.0f).toColor(), QColor(0, 0, 255));
    QCOMPARE(QKXColor(360.0f, 1.0f, 1.0f).toColor(), QColor(255, 0, 0));
    QCOMPARE(QKXColor(0.0f, -1.0f, -1.0f).toColor(), QColor(0, 0, 0));
}

KX_TEST_MAIN(tst_QKXColor)
#include "tst_QKXColor.moc"
