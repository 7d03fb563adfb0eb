// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/edit/Picking.h"

#include "tests/support/KxTest.h"

using QRPC::NodeId;
using QRPC::NodeList;
using namespace viewer;

Q_DECLARE_METATYPE(QSet<QRPC::NodeId>)

/// A view of 100 by 80 pixels with a shade (1) behind all, a text (2) with a background, a picture
/// (3) over its right half, a hairline (4), and a picture (5) that lies beside the view.
class tst_Picking : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldNameTheOverlaysAtAPlaceFromTheTop_data();
    void shouldNameTheOverlaysAtAPlaceFromTheTop();
    void shouldGoDownAndBeginAnew_data();
    void shouldGoDownAndBeginAnew();
    void shouldTellWhatSpansTheView_data();
    void shouldTellWhatSpansTheView();
    void shouldTakeHold_data();
    void shouldTakeHold();
    void shouldPickWhatTheBandTouches_data();
    void shouldPickWhatTheBandTouches();

private:
    const QSize m_view{100, 80};
    const std::vector<DrawnOverlay> m_drawn{
        {1, {0, 40, 100, 40}, {0, 40, 100, 40}},   {2, {20, 10, 30, 10}, {15, 8, 40, 14}},
        {3, {40, 5, 30, 50}, {40, 5, 30, 50}},     {4, {10, 30, 20, 1}, {10, 30, 20, 1}},
        {5, {110, 10, 30, 10}, {110, 10, 30, 10}},
    };
};

void tst_Picking::shouldNameTheOverlaysAtAPlaceFromTheTop_data()
{
    QTest::addColumn<QPointF>("at");
    QTest::addColumn<NodeList>("order");
    QTest::newRow("empty") << QPointF(5, 5) << NodeList();
    QTest::newRow("one") << QPointF(25, 15) << NodeList{2};
    QTest::newRow("two") << QPointF(45, 15) << NodeList{3, 2};
    QTest::newRow("the background of a text") << QPointF(16, 9) << NodeList{2};
    QTest::newRow("over the shade") << QPointF(50, 50) << NodeList{3, 1};
    QTest::newRow("on a hairline") << QPointF(12, 30.5) << NodeList{4};
    QTest::newRow("just beside a hairline") << QPointF(12, 33.5) << NodeList{4};
    QTest::newRow("beside a hairline") << QPointF(12, 35.5) << NodeList();
    QTest::newRow("just before a hairline's end") << QPointF(9, 30.5) << NodeList();
    QTest::newRow("beside the view") << QPointF(120, 15) << NodeList{5};
}

void tst_Picking::shouldNameTheOverlaysAtAPlaceFromTheTop()
{
    QFETCH(QPointF, at);
    QTEST(pickOrder(m_drawn, at, 8), "order");
}

void tst_Picking::shouldGoDownAndBeginAnew_data()
{
    QTest::addColumn<NodeList>("order");
    QTest::addColumn<NodeId>("last");
    QTest::addColumn<NodeId>("pick");
    const NodeList order{7, 5, 3};
    QTest::newRow("first") << order << NodeId(0) << NodeId(7);
    QTest::newRow("below") << order << NodeId(7) << NodeId(5);
    QTest::newRow("lowest") << order << NodeId(5) << NodeId(3);
    QTest::newRow("anew") << order << NodeId(3) << NodeId(7);
    QTest::newRow("the last is elsewhere") << order << NodeId(9) << NodeId(7);
    QTest::newRow("none") << NodeList() << NodeId(3) << NodeId(0);
}

void tst_Picking::shouldGoDownAndBeginAnew()
{
    QFETCH(NodeList, order);
    QFETCH(NodeId, last);
    QTEST(nextPick(order, last), "pick");
}

void tst_Picking::shouldTellWhatSpansTheView_data()
{
    QTest::addColumn<QRectF>("box");
    QTest::addColumn<bool>("spans");
    QTest::newRow("all") << QRectF(0, 0, 100, 80) << true;
    QTest::newRow("across") << QRectF(-5, 30, 120, 10) << true;
    QTest::newRow("along") << QRectF(30, 0, 10, 80) << true;
    QTest::newRow("not to the right") << QRectF(0, 30, 99, 10) << false;
    QTest::newRow("not to the bottom") << QRectF(30, 0, 10, 79) << false;
    QTest::newRow("beside it") << QRectF(200, 0, 90, 10) << false;
}

void tst_Picking::shouldTellWhatSpansTheView()
{
    QFETCH(QRectF, box);
    QTEST(spansView(box, m_view), "spans");
}

void tst_Picking::shouldTakeHold_data()
{
    QTest::addColumn<NodeList>("order");
    QTest::addColumn<QSet<NodeId>>("moved");
    QTest::addColumn<NodeId>("grip");
    const auto row = [](const char *name, const NodeList &order, const QSet<NodeId> &moved,
                        NodeId grip) { QTest::newRow(name) << order << moved << grip; };
    row("nothing there", {}, {2}, 0);
    row("the topmost", {3, 2}, {}, 3);
    row("the topmost, which moves", {3, 2}, {3, 2}, 3);
    row("what moves below", {3, 2}, {2}, 2);
    row("in front of a shade that moves", {3, 1}, {1}, 3);
    row("what moves between it and a shade", {3, 2, 1}, {1, 2}, 2);
    row("a shade", {1}, {}, 0);
    row("a shade that moves", {1}, {1}, 1);
    row("a shade in front of what stands", {1, 3}, {}, 0);
    row("a shade in front of what moves", {1, 3}, {3}, 3);
    row("a shade in front of one that moves", {1, 9}, {9}, 9);
}

void tst_Picking::shouldTakeHold()
{
    QFETCH(NodeList, order);
    QFETCH(QSet<NodeId>, moved);
    QTEST(gripOf(order, moved, {1, 9}), "grip");
}

void tst_Picking::shouldPickWhatTheBandTouches_data()
{
    QTest::addColumn<QRectF>("band");
    QTest::addColumn<NodeList>("picked");
    QTest::newRow("nothing") << QRectF(2, 2, 10, 5) << NodeList();
    QTest::newRow("a corner") << QRectF(10, 5, 8, 6) << NodeList{2};
    QTest::newRow("several, the lowest first") << QRectF(18, 12, 30, 24) << NodeList{2, 3, 4};
    QTest::newRow("a part of the shade") << QRectF(2, 45, 10, 10) << NodeList();
    QTest::newRow("all of the view") << QRectF(-1, -1, 102, 82) << NodeList{1, 2, 3, 4};
}

void tst_Picking::shouldPickWhatTheBandTouches()
{
    QFETCH(QRectF, band);
    QTEST(pickedByBand(m_drawn, band, m_view), "picked");
}

KX_TEST_MAIN(tst_Picking)
#include "tst_Picking.moc"
