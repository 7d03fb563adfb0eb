// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "overlayeditor/kxCommonValue.h"
#include "tests/support/KxTest.h"

#include <cmath>
#include <limits>

class tst_kxCommonValue : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldFindTheValueThatAllShare_data();
    void shouldFindTheValueThatAllShare();
    void shouldStopAskingAtTheFirstDifference();
    void shouldUseTheGivenEquality();
};

void tst_kxCommonValue::shouldFindTheValueThatAllShare_data()
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    QTest::addColumn<QVector<double>>("values");
    QTest::addColumn<bool>("common");
    QTest::newRow("one node") << QVector<double>{1.5} << true;
    QTest::newRow("equal") << QVector<double>{1.5, 1.5, 1.5} << true;
    QTest::newRow("last differs") << QVector<double>{1.5, 1.5, 2.5} << false;
    QTest::newRow("first differs") << QVector<double>{2.5, 1.5, 1.5} << false;
    QTest::newRow("almost equal") << QVector<double>{1.5, 1.5 + 1e-13} << false;
    QTest::newRow("zeros of both signs") << QVector<double>{0.0, -0.0} << true;
    QTest::newRow("one node without a number") << QVector<double>{nan} << false;
    QTest::newRow("none is a number") << QVector<double>{nan, nan} << false;
    QTest::newRow("second is no number") << QVector<double>{1.5, nan} << false;
}

void tst_kxCommonValue::shouldFindTheValueThatAllShare()
{
    QFETCH(QVector<double>, values);
    QFETCH(bool, common);
    QRPC::NodeList nodes;
    for (int i = 0; i < values.size(); ++i)
        nodes.append(QRPC::NodeId(i));
    const auto value =
        kxCommonValue<double>(nodes, [&](QRPC::NodeId node) { return values.at(int(node)); });
    QCOMPARE(value.has_value(), common);
    if (common)
        QCOMPARE(*value, values.first());
}

void tst_kxCommonValue::shouldStopAskingAtTheFirstDifference()
{
    QRPC::NodeList asked;
    const auto getter = [&](QRPC::NodeId node) {
        asked.append(node);
        return node == 7;
    };
    QVERIFY(!kxCommonValue<bool>({5, 6, 7, 8}, getter));
    QCOMPARE(asked, (QRPC::NodeList{5, 5, 6, 7}));
}

void tst_kxCommonValue::shouldUseTheGivenEquality()
{
    const auto isNear = [](double a, double b) { return std::abs(a - b) <= 0.5; };
    const auto getter = [](QRPC::NodeId node) { return node * 0.25; };
    const auto value = kxCommonValue<double>({2, 3, 4}, getter, isNear);
    QVERIFY(value);
    QCOMPARE(*value, 0.5);
    QVERIFY(!kxCommonValue<double>({2, 5}, getter, isNear));
}

KX_TEST_MAIN(tst_kxCommonValue)
#include "tst_kxCommonValue.moc"
