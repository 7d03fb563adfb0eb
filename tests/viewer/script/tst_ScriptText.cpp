// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/script/ScriptText.h"

#include "tests/support/KxTest.h"

#include <QJSEngine>

#include <cmath>
#include <limits>

using namespace viewer;

/// Values that are written for scripts, read back by the engine.
class tst_ScriptText : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldReadTheNumberThatWasWritten();
    void shouldReadTheTextThatWasWritten();
    void shouldWriteWhatIsEasyToRead();
};

void tst_ScriptText::shouldReadTheNumberThatWasWritten()
{
    QJSEngine engine;
    using Limits = std::numeric_limits<float>;
    for (const float number : {0.0F, -0.0F, 0.1F, 1.0F / 3, 1e-30F, Limits::max(), Limits::min(),
                               Limits::denorm_min(), Limits::infinity(), -Limits::infinity()}) {
        const double read = engine.evaluate(scripttext::write(number)).toNumber();
        QCOMPARE(float(read), number);
        QCOMPARE(std::signbit(read), std::signbit(number));
    }
    for (const double number : {0.1, 1.0 / 3, 1e300, 5e-324})
        QVERIFY(engine.evaluate(scripttext::write(number)).toNumber() == number);
    QVERIFY(std::isnan(engine.evaluate(scripttext::write(Limits::quiet_NaN())).toNumber()));
}

void tst_ScriptText::shouldReadTheTextThatWasWritten()
{
    QJSEngine engine;
    QString all;
    for (uint code = 0; code < 0x10000; ++code)
        all += QChar(code);
    const QString written = scripttext::write(all);
    QCOMPARE(engine.evaluate(written).toString(), all);
    // As a file would hold it.
    QCOMPARE(QString::fromUtf8(written.toUtf8()), written);
    QCOMPARE(written.count('\n') + written.count(QChar::LineSeparator), 0);
}

void tst_ScriptText::shouldWriteWhatIsEasyToRead()
{
    QCOMPARE(scripttext::write(QString("Ä \"x\"\n中")), QString("\"Ä \\\"x\\\"\\n中\""));
    QCOMPARE(scripttext::write(QRPC::NodeList{3, 4294967295}), QString("[3, 4294967295]"));
    QCOMPARE(scripttext::write(QColor(255, 128, 0)), QString("\"#ff8000\""));
    QCOMPARE(scripttext::write(QColor(255, 128, 0, 16)), QString("\"#10ff8000\""));
    QCOMPARE(scripttext::write(QColor()), QString("null"));
    QCOMPARE(scripttext::write(QPointF(0.5, -1)), QString("{x: 0.5, y: -1}"));
    QCOMPARE(scripttext::write(true) + scripttext::write(-1), QString("true-1"));
}

KX_TEST_MAIN(tst_ScriptText)
#include "tst_ScriptText.moc"
