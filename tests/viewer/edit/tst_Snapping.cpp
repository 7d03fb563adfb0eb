// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/edit/Snapping.h"

#include "tests/support/KxTest.h"

using namespace viewer;

Q_DECLARE_METATYPE(viewer::Guide)

/// A view of 400 by 300 pixels, in which an overlay stands at (100, 50), 60 by 40 in size, whose
/// anchor is the point (310, 230).
class tst_Snapping : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldSnapToTheNearestLine_data();
    void shouldSnapToTheNearestLine();
    void shouldSnapWithinTheDistanceOnly();
    void shouldSnapInEachDirectionByItself();
    void shouldPreferTheLineThatWasAddedFirst();
    void shouldShowTheLinesThatAreMet_data();
    void shouldShowTheLinesThatAreMet();
    void shouldShowALineOnceForAllThatAreInLine();

private:
    static Snapping lines();
};

Snapping tst_Snapping::lines()
{
    Snapping lines({400, 300});
    lines.addOverlay({100, 50, 60, 40}, {310, 230});
    return lines;
}

void tst_Snapping::shouldSnapToTheNearestLine_data()
{
    QTest::addColumn<QRectF>("box");
    QTest::addColumn<QPointF>("reference");
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("y");
    const double none = 1000;
    const QPointF nowhere(-500, -500);
    const auto row = [](const char *name, const QRectF &box, const QPointF &reference, double x,
                        double y) { QTest::newRow(name) << box << reference << x << y; };
    row("nothing near", {220, 120, 30, 16}, nowhere, none, none);
    row("left edge on a left edge", {103, 190, 37, 17}, nowhere, -3, none);
    row("left edge on a right edge", {157, 190, 17, 17}, nowhere, 3, none);
    row("right edge on a left edge", {60, 190, 44, 17}, nowhere, -4, none);
    row("top on a bottom", {220, 92, 27, 17}, nowhere, none, -2);
    row("bottom on a top", {220, 30, 27, 18}, nowhere, none, 2);
    row("middles", {120, 190, 24, 17}, nowhere, -2, none);
    row("a middle is no edge", {113, 190, 23, 17}, {-500, -500}, none, none);
    row("an edge is no middle", {132, 190, 45, 17}, nowhere, none, none);
    row("edge of the view", {3, 190, 44, 17}, nowhere, -3, none);
    row("far edges of the view", {352, 272, 44, 24}, nowhere, 4, 4);
    row("middle on the middle of the view", {182, 120, 40, 17}, nowhere, -2, none);
    row("edge on the middle of the view", {202, 120, 33, 17}, nowhere, -2, none);
    row("edge on an anchor", {313, 120, 33, 17}, nowhere, -3, none);
    row("middle on an anchor", {292, 120, 40, 17}, nowhere, -2, none);
    row("reference on an anchor", {322, 250, 40, 17}, {312, 227}, -2, 3);
    row("reference on an edge of the view", {220, 120, 37, 17}, {396, 303}, 4, -3);
    row("reference on no edge of an overlay", {220, 120, 37, 17}, {102, 52}, none, none);
}

void tst_Snapping::shouldSnapToTheNearestLine()
{
    QFETCH(QRectF, box);
    QFETCH(QPointF, reference);
    const Snap snap = lines().snap({box, reference}, 5);
    QTEST(snap.x.value_or(1000), "x");
    QTEST(snap.y.value_or(1000), "y");
}

void tst_Snapping::shouldSnapWithinTheDistanceOnly()
{
    const MovedShape shape{{106, 190, 30, 17}, {-500, -500}};
    QCOMPARE(*lines().snap(shape, 6).x, -6.0);
    QVERIFY(!lines().snap(shape, 5.9).x);
}

void tst_Snapping::shouldSnapInEachDirectionByItself()
{
    const Snap snap = lines().snap({{102, 93, 37, 17}, {-500, -500}}, 5);
    QCOMPARE(*snap.x, -2.0);
    QCOMPARE(*snap.y, -3.0);
}

void tst_Snapping::shouldPreferTheLineThatWasAddedFirst()
{
    Snapping lines({400, 300});
    lines.addAnchor({52, 150});
    lines.addOverlay({48, 200, 100, 20}, {-900, -900});
    QCOMPARE(*lines.snap({{50, 10, 37, 17}, {-500, -500}}, 5).x, 2.0);
}

void tst_Snapping::shouldShowTheLinesThatAreMet_data()
{
    QTest::addColumn<QRectF>("box");
    QTest::addColumn<QVector<Guide>>("guides");
    const auto row = [](const char *name, const QRectF &box, const QVector<Guide> &guides) {
        QTest::newRow(name) << box << guides;
    };
    row("none", {220, 120, 30, 16}, {});
    row("from overlay to shape", {100, 190, 37, 17}, {{Qt::Vertical, 100, 50, 207}});
    row("from shape to overlay", {220, 90, 37, 17}, {{Qt::Horizontal, 90, 100, 257}});
    row("across the view", {0, 190, 37, 17}, {{Qt::Vertical, 0, 0, 300}});
    row("beyond the view", {-40, -30, 40, 30},
        {{Qt::Vertical, 0, -30, 300}, {Qt::Horizontal, 0, -40, 400}});
    row("as near as rounding leaves it", {100.04, 190, 37, 17}, {{Qt::Vertical, 100, 50, 207}});
    row("beside", {100.06, 190, 37, 17}, {});
    row("a middle on an edge is by chance", {81.5, 190, 37, 17}, {});
    row("to an anchor", {310, 120, 37, 17}, {{Qt::Vertical, 310, 120, 230}});
}

void tst_Snapping::shouldShowTheLinesThatAreMet()
{
    QFETCH(QRectF, box);
    QFETCH(QVector<Guide>, guides);
    QCOMPARE(lines().guides({box, {-500, -500}}), guides);
}

void tst_Snapping::shouldShowALineOnceForAllThatAreInLine()
{
    Snapping lines({400, 300});
    lines.addOverlay({100, 50, 60, 40}, {-900, -900});
    lines.addOverlay({100, 250, 20, 10}, {-900, -900});
    const QVector<Guide> expected{{Qt::Vertical, 100, 50, 260}};
    QCOMPARE(lines.guides({{100, 130, 37, 17}, {-500, -500}}), expected);
}

KX_TEST_MAIN(tst_Snapping)
#include "tst_Snapping.moc"
