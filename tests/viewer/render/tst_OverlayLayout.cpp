// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/support/KxTest.h"
#include "viewer/render/OverlayLayout.h"

#include <limits>

using viewer::Overlay;
using viewer::ViewGeometry;

class tst_OverlayLayout : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldPutTheBoxOnItsAnchor_data();
    void shouldPutTheBoxOnItsAnchor();
    void shouldMoveByPointsUpwards();
    void shouldMeasureHeight_data();
    void shouldMeasureHeight();
    void shouldPlaceNothingThatIsNotFinite();
    void shouldMixTransparencyFromTheAverage_data();
    void shouldMixTransparencyFromTheAverage();
    void shouldHaveNoBackgroundWithoutColour();
    void shouldGrowTheMarginWithTheLine();
};

void tst_OverlayLayout::shouldPutTheBoxOnItsAnchor_data()
{
    QTest::addColumn<QPointF>("anchor");
    QTest::addColumn<QRectF>("box"); // of 100 x 40 in a view of 640 x 360
    QTest::newRow("bottom left") << QPointF(0, 0) << QRectF(0, 320, 100, 40);
    QTest::newRow("bottom") << QPointF(0.5, 0) << QRectF(270, 320, 100, 40);
    QTest::newRow("bottom right") << QPointF(1, 0) << QRectF(540, 320, 100, 40);
    QTest::newRow("left") << QPointF(0, 0.5) << QRectF(0, 160, 100, 40);
    QTest::newRow("centre") << QPointF(0.5, 0.5) << QRectF(270, 160, 100, 40);
    QTest::newRow("right") << QPointF(1, 0.5) << QRectF(540, 160, 100, 40);
    QTest::newRow("top left") << QPointF(0, 1) << QRectF(0, 0, 100, 40);
    QTest::newRow("top") << QPointF(0.5, 1) << QRectF(270, 0, 100, 40);
    QTest::newRow("top right") << QPointF(1, 1) << QRectF(540, 0, 100, 40);
    QTest::newRow("a quarter") << QPointF(0.25, 0.25) << QRectF(135, 240, 100, 40);
}

void tst_OverlayLayout::shouldPutTheBoxOnItsAnchor()
{
    QFETCH(QPointF, anchor);
    QFETCH(QRectF, box);
    Overlay overlay;
    overlay.position = anchor;
    const ViewGeometry view{{640, 360}, 96};
    QCOMPARE(viewer::placeBox(overlay, {100, 40}, view), box);
    overlay.offset = {7.5, -15}; // 10 pixels to the right, 20 down
    QCOMPARE(viewer::placeBox(overlay, {100, 40}, view), box.translated(10, 20));
}

void tst_OverlayLayout::shouldMoveByPointsUpwards()
{
    Overlay overlay;
    overlay.position = {0, 0};
    overlay.offset = {72, 36};
    QCOMPARE(viewer::placeBox(overlay, {10, 10}, {{500, 500}, 144}), QRectF(144, 418, 10, 10));
}

void tst_OverlayLayout::shouldMeasureHeight_data()
{
    QTest::addColumn<int>("sizeType");
    QTest::addColumn<float>("size");
    QTest::addColumn<double>("dpi");
    QTest::addColumn<double>("height");
    const float infinite = std::numeric_limits<float>::infinity();
    QTest::newRow("points at 96") << 0 << 24.0F << 96.0 << 32.0;
    QTest::newRow("points at 72") << 0 << 24.0F << 72.0 << 24.0;
    QTest::newRow("points at 300") << 0 << 12.0F << 300.0 << 50.0;
    QTest::newRow("fraction of the view") << 1 << 0.25F << 96.0 << 90.0;
    QTest::newRow("a fraction does not depend on dpi") << 1 << 0.25F << 300.0 << 90.0;
    QTest::newRow("any other type is relative") << 9 << 1.0F << 96.0 << 360.0;
    QTest::newRow("zero") << 0 << 0.0F << 96.0 << 0.0;
    QTest::newRow("negative") << 0 << -4.0F << 96.0 << 0.0;
    QTest::newRow("no number") << 0 << std::numeric_limits<float>::quiet_NaN() << 96.0 << 0.0;
    QTest::newRow("infinite") << 0 << infinite << 96.0 << 0.0;
    QTest::newRow("enormous") << 0 << 1e9F << 96.0 << 8192.0;
}

void tst_OverlayLayout::shouldMeasureHeight()
{
    QFETCH(int, sizeType);
    QFETCH(float, size);
    QFETCH(double, dpi);
    QFETCH(double, height);
    Overlay overlay;
    overlay.sizeType = sizeType;
    overlay.size = size;
    QCOMPARE(viewer::heightInPixels(overlay, {{640, 360}, dpi}), height);
}

void tst_OverlayLayout::shouldPlaceNothingThatIsNotFinite()
{
    Overlay overlay;
    overlay.position = {qQNaN(), 0};
    QVERIFY(viewer::placeBox(overlay, {10, 10}, {{100, 100}, 96}).isEmpty());
    overlay.position = {0, 0};
    overlay.offset = {0, qInf()};
    QVERIFY(viewer::placeBox(overlay, {10, 10}, {{100, 100}, 96}).isEmpty());
}

void tst_OverlayLayout::shouldMixTransparencyFromTheAverage_data()
{
    QTest::addColumn<QColor>("transparency");
    QTest::addColumn<int>("alpha");
    QTest::newRow("black is opaque") << QColor(Qt::black) << 255;
    QTest::newRow("white is invisible") << QColor(Qt::white) << 0;
    QTest::newRow("red is a third") << QColor(255, 0, 0) << 170;
    QTest::newRow("the average counts") << QColor(51, 102, 153) << 153;
    QTest::newRow("none is opaque") << QColor() << 255;
}

void tst_OverlayLayout::shouldMixTransparencyFromTheAverage()
{
    QFETCH(QColor, transparency);
    QFETCH(int, alpha);
    Overlay overlay;
    overlay.backgroundColor = QColor(10, 20, 30);
    overlay.backgroundTransparency = transparency;
    QCOMPARE(viewer::backgroundColor(overlay).alpha(), alpha);
    QCOMPARE(viewer::backgroundColor(overlay).rgb() & 0xffffffU,
             QColor(10, 20, 30).rgb() & 0xffffffU);
}

void tst_OverlayLayout::shouldHaveNoBackgroundWithoutColour()
{
    Overlay overlay;
    overlay.backgroundColor = QColor();
    QVERIFY(!viewer::backgroundColor(overlay).isValid());
}

void tst_OverlayLayout::shouldGrowTheMarginWithTheLine()
{
    QCOMPARE(viewer::backgroundBox({10, 10, 100, 40}, 20), QRectF(3, 7, 114, 46));
}

KX_TEST_MAIN(tst_OverlayLayout)
#include "tst_OverlayLayout.moc"
