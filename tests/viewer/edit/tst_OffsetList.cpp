// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/edit/OffsetList.h"

#include "tests/viewer/scene/ServiceTest.h"

using namespace viewer;

class tst_OffsetList : public ServiceTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldListTheOffsetsOfOverlays();
    void shouldMoveOnInFewDigits_data();
    void shouldMoveOnInFewDigits();
};

void tst_OffsetList::shouldListTheOffsetsOfOverlays()
{
    open("a b c");
    service().setOffset(ids("b"), {3, -4});
    const QVector<NodeOffset> offsets = offsetsOf(scene(), ids("b a"));
    QCOMPARE(offsets.size(), 2);
    QCOMPARE(offsets.first().node, id("b"));
    QCOMPARE(offsets.first().offset, QPointF(3, -4));
    QCOMPARE(offsets.last().offset, QPointF());
}

void tst_OffsetList::shouldMoveOnInFewDigits_data()
{
    QTest::addColumn<double>("offset");
    QTest::addColumn<double>("way");
    QTest::addColumn<double>("moved");
    QTest::newRow("whole") << 12.0 << -3.0 << 9.0;
    QTest::newRow("a sum of thirds") << 1.0 / 3 << 1.0 / 3 << 0.667;
    QTest::newRow("what a sum leaves") << 0.1 << 0.2 << 0.3;
    QTest::newRow("no way keeps every digit") << 1.0 / 3 << 0.0 << 1.0 / 3;
}

void tst_OffsetList::shouldMoveOnInFewDigits()
{
    QFETCH(double, offset);
    QFETCH(double, way);
    QFETCH(double, moved);
    const QVector<NodeOffset> start{{7, {offset, 1000}}, {9, {-500, offset}}};
    const QVector<NodeOffset> now = movedOn(start, {way, way});
    QCOMPARE(now.first().node, QRPC::NodeId(7));
    QVERIFY(now.first().offset.x() == moved); // to the last bit
    QVERIFY(now.last().offset.y() == moved);
}

KX_TEST_MAIN(tst_OffsetList)
#include "tst_OffsetList.moc"
