// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/conformance/BrokenService.h"
#include "tests/support/KxTest.h"

#include <QProcess>

/// The proof of the checks of hosts: each of many hosts, every one with another fault, fails a check.
class tst_brokenHosts : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldFindTheFault_data();
    void shouldFindTheFault();
};

void tst_brokenHosts::shouldFindTheFault_data()
{
    QTest::addColumn<QByteArray>("fault");
    QTest::newRow("none") << QByteArray();
    const QList<QByteArray> faults = BrokenService::faults();
    for (const QByteArray &fault : faults)
        QTest::newRow(fault) << fault;
}

void tst_brokenHosts::shouldFindTheFault()
{
    QFETCH(QByteArray, fault);
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("BROKEN_HOST", QString::fromLatin1(fault));
    process.setProcessEnvironment(environment);
    // The rest of a host is not what is broken here, nor even there.
    process.start(CONFORMANCE, {"--host", BROKEN_HOST, "--first", "--only", "[!s]*"});
    QVERIFY(process.waitForFinished(300000));
    const QByteArray lines = process.readAllStandardOutput();
    QVERIFY2(process.exitCode() == (fault.isEmpty() ? 0 : 1), lines);
}

KX_TEST_MAIN(tst_brokenHosts)
#include "tst_brokenHosts.moc"
