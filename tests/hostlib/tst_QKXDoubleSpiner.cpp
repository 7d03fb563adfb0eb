// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/QKXDoubleSpiner.h"
#include "tests/hostlib/widgetInput.h"
#include "tests/support/KxTest.h"

#include <QLineEdit>
#include <QVBoxLayout>

#include <memory>

using widgetinput::showActive;
using widgetinput::turnWheel;
using widgetinput::typeAtFocus;

/// One field in a window with a neighbour that can take the focus, and a host that answers each
/// value at once with the float it has stored.
class tst_QKXDoubleSpiner : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void cleanup() override;
    void shouldSendTypedNumbersExactly_data();
    void shouldSendTypedNumbersExactly();
    void shouldSendOnceWhenTheFocusLeaves();
    void shouldSendEachStepAtOnce();
    void shouldStepFromTheTypedNumber();
    void shouldShowAsManyDecimalsAsNeeded_data();
    void shouldShowAsManyDecimalsAsNeeded();
    void shouldKeepFixedDecimalsWhenNotExact();
    void shouldNotSendAValueThatWasLeftAsItIs();
    void shouldHoldTheWholeRange();
    void shouldRefuseNumbersBeyondTheRange();
    void shouldTakePointAndCommaInAGermanField_data();
    void shouldTakePointAndCommaInAGermanField();
    void shouldLeaveTheWheelToThePanelWithoutFocus();
    void shouldSendAnUnchangedNumberOnlyWhileMixed();

private:
    void echo(double value);

    std::unique_ptr<QWidget> m_window;
    QKXDoubleSpiner *m_spin = nullptr;
    QLineEdit *m_neighbour = nullptr;
    QVector<double> m_sent;
};

void tst_QKXDoubleSpiner::init()
{
    KxTest::init();
    m_window = std::make_unique<QWidget>();
    auto *layout = new QVBoxLayout(m_window.get());
    m_spin = new QKXDoubleSpiner(m_window.get());
    m_neighbour = new QLineEdit(m_window.get());
    layout->addWidget(m_spin);
    layout->addWidget(m_neighbour);
    m_spin->setRange(-2147483647.0, 2147483647.0);
    m_sent.clear();
    connect(m_spin, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
            &tst_QKXDoubleSpiner::echo);
    QVERIFY(showActive(m_window.get()));
    m_spin->setFocus();
    m_spin->selectAll();
}

void tst_QKXDoubleSpiner::cleanup()
{
    m_window.reset();
    KxTest::cleanup();
}

void tst_QKXDoubleSpiner::echo(double value)
{
    m_sent.append(value);
    const QSignalBlocker blocker(m_spin);
    m_spin->setValue(double(float(value)));
}

void tst_QKXDoubleSpiner::shouldSendTypedNumbersExactly_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<double>("value");
    for (const char *text : {"1.5", "-12.75", "0.333", "12.7", "100000.1", "7"})
        QTest::newRow(text) << QString::fromLatin1(text) << QByteArray(text).toDouble();
}

void tst_QKXDoubleSpiner::shouldSendTypedNumbersExactly()
{
    QFETCH(QString, typed);
    QFETCH(double, value);
    typeAtFocus(typed);
    QCOMPARE(m_sent, QVector<double>());
    QTest::keyClick(m_spin, Qt::Key_Return);
    QCOMPARE(m_sent.size(), 1);
    QVERIFY(m_sent.first() == value);
    QCOMPARE(m_spin->text(), typed);
}

void tst_QKXDoubleSpiner::shouldSendOnceWhenTheFocusLeaves()
{
    typeAtFocus(QStringLiteral("12.7"));
    QTest::keyClick(m_spin, Qt::Key_Tab);
    QVERIFY(m_neighbour->hasFocus());
    QCOMPARE(m_sent, QVector<double>({12.7}));
    m_spin->setFocus();
    m_neighbour->setFocus();
    QCOMPARE(m_sent.size(), 1);
}

void tst_QKXDoubleSpiner::shouldSendEachStepAtOnce()
{
    QTest::keyClick(m_spin, Qt::Key_Up);
    QTest::keyClick(m_spin, Qt::Key_Up);
    QTest::keyClick(m_spin, Qt::Key_Down);
    QCOMPARE(m_sent, QVector<double>({1.0, 2.0, 1.0}));
}

void tst_QKXDoubleSpiner::shouldStepFromTheTypedNumber()
{
    typeAtFocus(QStringLiteral("5"));
    QTest::keyClick(m_spin, Qt::Key_Up);
    QCOMPARE(m_sent.last(), 6.0);
}

void tst_QKXDoubleSpiner::shouldShowAsManyDecimalsAsNeeded_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("whole") << 200.0 << QStringLiteral("200");
    QTest::newRow("zero") << 0.0 << QStringLiteral("0");
    QTest::newRow("negative zero") << -0.0 << QStringLiteral("0");
    QTest::newRow("float noise") << double(12.7f) << QStringLiteral("12.7");
    QTest::newRow("negative float noise") << double(-0.333f) << QStringLiteral("-0.333");
    QTest::newRow("large float") << double(100000.1f) << QStringLiteral("100000.1");
    QTest::newRow("double noise") << 0.1 + 0.2 << QStringLiteral("0.3");
    QTest::newRow("no more than six") << 1.0 / 3.0 << QStringLiteral("0.333333");
    QTest::newRow("rounds to nothing") << -0.00000001 << QStringLiteral("0");
    QTest::newRow("no separators of thousands") << 1234567.5 << QStringLiteral("1234567.5");
}

void tst_QKXDoubleSpiner::shouldShowAsManyDecimalsAsNeeded()
{
    QFETCH(double, value);
    const QSignalBlocker noEcho(m_spin);
    m_spin->setLocale(QLocale(QLocale::English));
    m_spin->setValue(1.0);
    m_spin->setValue(value);
    QTEST(m_spin->text(), "text");
    QVERIFY(std::abs(m_spin->value() - value) < 1e-14);
}

void tst_QKXDoubleSpiner::shouldKeepFixedDecimalsWhenNotExact()
{
    m_spin->setUseExactDisplayDecimals(false);
    QVERIFY(!m_spin->useExactDisplayDecimals());
    m_spin->setValue(1.255);
    QCOMPARE(m_spin->decimals(), 2);
    QCOMPARE(m_spin->cleanText(), m_spin->locale().toString(1.25, 'f', 2));
    m_spin->setUseExactDisplayDecimals(true);
    QCOMPARE(m_spin->text(), QStringLiteral("1.25"));
}

void tst_QKXDoubleSpiner::shouldNotSendAValueThatWasLeftAsItIs()
{
    m_spin->setSuffix(QStringLiteral("px"));
    m_spin->setValue(double(12.7f));
    m_sent.clear();
    QTest::keyClick(m_spin, Qt::Key_Return);
    m_neighbour->setFocus();
    QCOMPARE(m_sent, QVector<double>());
    QVERIFY(m_spin->value() == double(12.7f));
}

void tst_QKXDoubleSpiner::shouldHoldTheWholeRange()
{
    QCOMPARE(m_spin->minimum(), -2147483647.0);
    QCOMPARE(m_spin->maximum(), 2147483647.0);
    typeAtFocus(QStringLiteral("-2147483647"));
    QTest::keyClick(m_spin, Qt::Key_Return);
    QCOMPARE(m_sent, QVector<double>({-2147483647.0}));
}

void tst_QKXDoubleSpiner::shouldRefuseNumbersBeyondTheRange()
{
    typeAtFocus(QStringLiteral("-2147483648"));
    QTest::keyClick(m_spin, Qt::Key_Return);
    QCOMPARE(m_sent, QVector<double>({-214748364.0}));
}

void tst_QKXDoubleSpiner::shouldTakePointAndCommaInAGermanField_data()
{
    QTest::addColumn<QString>("typed");
    QTest::newRow("comma") << QStringLiteral("-1234,5");
    QTest::newRow("point") << QStringLiteral("-1234.5");
}

void tst_QKXDoubleSpiner::shouldTakePointAndCommaInAGermanField()
{
    QFETCH(QString, typed);
    m_spin->setLocale(QLocale(QLocale::German, QLocale::Germany));
    m_spin->setSuffix(QStringLiteral(" u.")); // its point is no decimal separator
    m_spin->selectAll();
    typeAtFocus(typed);
    QTest::keyClick(m_spin, Qt::Key_Return);
    QCOMPARE(m_sent, QVector<double>({-1234.5}));
    QCOMPARE(m_spin->text(), QStringLiteral("-1234,5 u."));
}

void tst_QKXDoubleSpiner::shouldLeaveTheWheelToThePanelWithoutFocus()
{
    m_neighbour->setFocus();
    QVERIFY(!turnWheel(m_spin));
    QVERIFY(!m_spin->hasFocus());
    QCOMPARE(m_spin->value(), 0.0);
    m_spin->setFocus();
    QVERIFY(turnWheel(m_spin));
    QCOMPARE(m_spin->value(), 1.0);
}

void tst_QKXDoubleSpiner::shouldSendAnUnchangedNumberOnlyWhileMixed()
{
    typeAtFocus(QStringLiteral("0"));
    QTest::keyClick(m_spin, Qt::Key_Return);
    QCOMPARE(m_sent, QVector<double>());

    m_spin->setProperty("multiselect", true);
    m_spin->selectAll();
    typeAtFocus(QStringLiteral("0"));
    QTest::keyClick(m_spin, Qt::Key_Return);
    QCOMPARE(m_sent, QVector<double>({0.0}));
    m_neighbour->setFocus();
    QCOMPARE(m_sent.size(), 1);
}

KX_TEST_MAIN(tst_QKXDoubleSpiner)
#include "tst_QKXDoubleSpiner.moc"
