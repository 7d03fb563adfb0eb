// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/support/KxTest.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

/// The conformance program as its users meet it: options, lines, exit codes and report, also for
/// libraries that crash, hang or are none.
class tst_conformanceProgram : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldSucceedWhenAllChecksHold();
    void shouldFailAndSayWhatWasSeen();
    void shouldTellOfACheckOnOneLine();
    void shouldCheckAModule();
    void shouldFindABrokenModule_data();
    void shouldFindABrokenModule();
    void shouldGoOnBehindACheckThat_data();
    void shouldGoOnBehindACheckThat();
    void shouldStopAtTheFirstFailureOnDemand_data();
    void shouldStopAtTheFirstFailureOnDemand();
    void shouldHelp();
    void shouldListWithoutALibrary();
    void shouldHaveItsSubjectsInTheDocument();
    void shouldRefuse_data();
    void shouldRefuse();
    void shouldReportAsJson();
    void shouldReportAsXml();

private:
    struct Run
    {
        int code = -1;
        QStringList lines;
        QString error;
    };

    /// Runs the program on the host that has this fault.
    static Run run(const QStringList &arguments, const QString &fault = QString());
    static Run runHost(const QStringList &more, const QString &fault);
    static QJsonObject reportIn(const QString &path);

    QTemporaryDir m_folder;
};

tst_conformanceProgram::Run tst_conformanceProgram::run(const QStringList &arguments,
                                                        const QString &fault)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("BROKEN_HOST", fault);
    process.setProcessEnvironment(environment);
    process.start(CONFORMANCE, arguments);
    Run result;
    if (process.waitForFinished(120000))
        result.code = process.exitCode();
    result.lines =
        QString::fromLocal8Bit(process.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts);
    result.error = QString::fromLocal8Bit(process.readAllStandardError());
    return result;
}

tst_conformanceProgram::Run tst_conformanceProgram::runHost(const QStringList &more,
                                                            const QString &fault)
{
    return run(QStringList{"--host", BROKEN_HOST} + more, fault);
}

QJsonObject tst_conformanceProgram::reportIn(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object()
                                          : QJsonObject();
}

void tst_conformanceProgram::shouldSucceedWhenAllChecksHold()
{
    const Run seen = runHost({"--only", "nodes.unknown", "--only", "name.*"}, QString());
    QCOMPARE(seen.code, 0);
    QCOMPARE(seen.lines, (QStringList{"ok   nodes.unknown", "ok   name.everyKind",
                                      "ok   name.asGiven", "ok   name.skips",
                                      QString("host %1: 4 checks, 0 failed").arg(BROKEN_HOST)}));
}

void tst_conformanceProgram::shouldFailAndSayWhatWasSeen()
{
    const Run seen = runHost({"--only", "name.everyKind"}, "reverse:nameChanged");
    QCOMPARE(seen.code, 1);
    QCOMPARE(seen.lines.size(), 2);
    QVERIFY2(seen.lines.first().startsWith(
                 R"(FAIL name.everyKind: signals: expected ("nameChanged a g b s"), )"
                 R"(seen ("nameChanged s b g a") (Overlays, groups and switches)"),
             qPrintable(seen.lines.first()));
    QVERIFY(seen.lines.last().endsWith("1 checks, 1 failed"));
}

/// Also where the library's own words have several.
void tst_conformanceProgram::shouldTellOfACheckOnOneLine()
{
    const Run seen = runHost({"--only", "nodes.unknown"}, "throw:getName");
    QCOMPARE(seen.code, 1);
    QCOMPARE(seen.lines.size(), 2);
    QVERIFY2(seen.lines.first().startsWith("FAIL nodes.unknown: exceptions out of the library: "
                                           "expected none, seen out of\\nplaces ("),
             qPrintable(seen.lines.first()));
}

void tst_conformanceProgram::shouldCheckAModule()
{
    const QString path = m_folder.filePath("module.json");
    const Run seen = run(
        {"--plugin", PLUGIN, "--only", "entry.shortcuts", "--only", "tree.re*", "--report", path});
    QCOMPARE(seen.code, 0);
    QCOMPARE(seen.error, QString());
    QCOMPARE(seen.lines.first(), QString("ok   entry.shortcuts"));
    QVERIFY(seen.lines.contains("ok   tree.renames"));
    const int count = seen.lines.size() - 1;
    QCOMPARE(seen.lines.last(), QString("module %1: %2 checks, 0 failed").arg(PLUGIN).arg(count));
    const QJsonObject report = reportIn(path);
    QCOMPARE(report.value("kind").toString(), QString("module"));
    QCOMPARE(report.value("file").toString(), QString(PLUGIN));
    QCOMPARE(report.value("checked").toInt(), count);
    QCOMPARE(report.value("failed").toInt(), 0);
}

void tst_conformanceProgram::shouldFindABrokenModule_data()
{
    QTest::addColumn<QString>("module");
    QTest::addColumn<QString>("seenLine");
    QTest::newRow("without a window") << MODULE_WITHOUT_WINDOW << "a module window is registered";
    QTest::newRow("an exception") << MODULE_THAT_THROWS
                                  << "exceptions out of the library: expected none, seen no room";
    QTest::newRow("no exception of the library")
        << MODULE_THAT_THROWS_A_NUMBER << "ended by signal 6";
}

void tst_conformanceProgram::shouldFindABrokenModule()
{
    QFETCH(QString, module);
    QFETCH(QString, seenLine);
    const Run seen = run({"--plugin", module, "--only", "entry.registersOneWindow"});
    QCOMPARE(seen.code, 1);
    QCOMPARE(seen.lines.size(), 2);
    QVERIFY2(seen.lines.first().startsWith("FAIL entry.registersOneWindow: ")
                 && seen.lines.first().contains(seenLine),
             qPrintable(seen.lines.first()));
    QCOMPARE(seen.lines.last(), QString("module %1: 1 checks, 1 failed").arg(module));
}

void tst_conformanceProgram::shouldGoOnBehindACheckThat_data()
{
    QTest::addColumn<QString>("fault");
    QTest::addColumn<QString>("seenEnd");
    QTest::newRow("crashes") << "crash:getName"
                             << "ended by signal 6";
    QTest::newRow("hangs") << "hang:getName"
                           << "no answer in time";
}

void tst_conformanceProgram::shouldGoOnBehindACheckThat()
{
    QFETCH(QString, fault);
    QFETCH(QString, seenEnd);
    const Run seen = runHost({"--only", "nodes.kinds", "--only", "nodes.unknown", "--only",
                              "nodes.idsGrow", "--timeout", "2"},
                             fault);
    QCOMPARE(seen.code, 1);
    QCOMPARE(seen.lines.size(), 4);
    QCOMPARE(seen.lines.at(0), QString("ok   nodes.kinds"));
    QVERIFY2(seen.lines.at(1).contains("FAIL nodes.unknown: the process: expected it goes on, seen "
                                       + seenEnd),
             qPrintable(seen.lines.at(1)));
    QCOMPARE(seen.lines.at(2), QString("ok   nodes.idsGrow"));
}

void tst_conformanceProgram::shouldStopAtTheFirstFailureOnDemand_data()
{
    QTest::addColumn<QString>("fault");
    QTest::newRow("fails") << "reverse:nameChanged";
    QTest::newRow("crashes") << "crash:getName";
    QTest::newRow("hangs") << "hang:getName";
}

void tst_conformanceProgram::shouldStopAtTheFirstFailureOnDemand()
{
    QFETCH(QString, fault);
    const Run seen = runHost({"--first", "--only", "n*", "--timeout", "2"}, fault);
    QCOMPARE(seen.code, 1);
    QCOMPARE(seen.lines.filter("FAIL").size(), 1);
    QVERIFY(seen.lines.at(seen.lines.size() - 2).startsWith("FAIL"));
}

void tst_conformanceProgram::shouldHelp()
{
    const Run seen = run({"--help"});
    QCOMPARE(seen.code, 0);
    QCOMPARE(seen.error, QString());
    QVERIFY(seen.lines.first().startsWith("Usage: conformance"));
    QVERIFY2(seen.lines.last().startsWith("Returns 0 when all checks hold"),
             qPrintable(seen.lines.last()));
}

void tst_conformanceProgram::shouldListWithoutALibrary()
{
    const Run seen = run({"--list"});
    QCOMPARE(seen.code, 0);
    QVERIFY(seen.lines.filter(QRegularExpression("^module ")).size() > 300);
    QVERIFY(seen.lines.filter(QRegularExpression("^host ")).size() > 150);
    QStringList names;
    for (const QString &line : seen.lines)
        names.append(line.simplified().section(' ', 0, 1));
    QCOMPARE(names.removeDuplicates(), 0);
}

void tst_conformanceProgram::shouldHaveItsSubjectsInTheDocument()
{
    QFile document(DOCUMENT);
    QVERIFY(document.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(document.readAll());
    const Run seen = run({"--list", "--plugin", "any"});
    QVERIFY(!seen.lines.isEmpty());
    for (const QString &line : seen.lines) {
        const QString subject = line.simplified().section(' ', 1, 1).section('.', 0, 0);
        QVERIFY2(text.contains('`' + subject + '`'), qPrintable(subject));
    }
}

void tst_conformanceProgram::shouldRefuse_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("reason");
    QTest::newRow("nothing to check") << QStringList{} << "either --plugin or --host";
    QTest::newRow("both") << QStringList{"--plugin", "a", "--host", "b"} << "either --plugin";
    QTest::newRow("an unknown option") << QStringList{"--what"} << "what";
    QTest::newRow("a stray word") << QStringList{"what"} << "'what' is no option";
    QTest::newRow("no time") << QStringList{"--host", BROKEN_HOST, "--timeout", "0"} << "timeout";
    QTest::newRow("more than a day")
        << QStringList{"--host", BROKEN_HOST, "--timeout", "86401"} << "timeout";
    QTest::newRow("no such file") << QStringList{"--host", "/no/such.so"}
                                  << "there is no file /no/such.so";
    QTest::newRow("no library") << QStringList{"--host", DOCUMENT} << "CONFORMANCE.md";
    QTest::newRow("no entry") << QStringList{"--plugin", BROKEN_HOST}
                              << "does not export initPlugin";
    QTest::newRow("no such check")
        << QStringList{"--host", BROKEN_HOST, "--only", "nothing"} << "no check has such a name";
    QTest::newRow("no place for the report")
        << QStringList{"--host",      BROKEN_HOST, "--only",
                       "nodes.kinds", "--report",  "/no/such/report.json"}
        << "/no/such/report.json: ";
}

void tst_conformanceProgram::shouldRefuse()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, reason);
    const Run seen = run(arguments);
    QCOMPARE(seen.code, 2);
    QCOMPARE(seen.lines, QStringList());
    QVERIFY2(seen.error.contains(reason), qPrintable(seen.error));
}

void tst_conformanceProgram::shouldReportAsJson()
{
    const QString path = m_folder.filePath("report.json");
    QCOMPARE(runHost({"--only", "name.everyKind", "--only", "nodes.kinds", "--report", path},
                     "reverse:nameChanged")
                 .code,
             1);
    const QJsonObject report = reportIn(path);
    QCOMPARE(report.value("kind").toString(), QString("host"));
    QCOMPARE(report.value("file").toString(), QString(BROKEN_HOST));
    QCOMPARE(report.value("checked").toInt(), 2);
    QCOMPARE(report.value("failed").toInt(), 1);
    const QJsonArray checks = report.value("checks").toArray();
    QCOMPARE(checks.at(0).toObject().value("outcome").toString(), QString("ok"));
    QCOMPARE(checks.at(1).toObject().value("name").toString(), QString("name.everyKind"));
    QCOMPARE(checks.at(1).toObject().value("outcome").toString(), QString("failed"));
    const QJsonObject failed = checks.at(1).toObject();
    QVERIFY(failed.value("rule").toString().startsWith("Overlays, groups and switches"));
    QVERIFY(failed.value("milliseconds").isDouble());
    QCOMPARE(failed.value("what").toString(), QString("signals"));
    QCOMPARE(failed.value("expected").toString(), QString("(\"nameChanged a g b s\")"));
    QCOMPARE(failed.value("seen").toString(), QString("(\"nameChanged s b g a\")"));
}

void tst_conformanceProgram::shouldReportAsXml()
{
    const QString path = m_folder.filePath("report.xml");
    QCOMPARE(runHost({"--only", "name.everyKind", "--report", path}, "reverse:nameChanged").code,
             1);
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray text = file.readAll();
    QVERIFY2(text.contains("tests=\"1\" failures=\"1\""), text);
    QVERIFY2(text.contains("<testcase classname=\"host\" name=\"name.everyKind\""), text);
    QVERIFY2(text.contains("<failure type=\"failed\""), text);
}

KX_TEST_MAIN(tst_conformanceProgram)
#include "tst_conformanceProgram.moc"
