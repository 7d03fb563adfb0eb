// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/support/KxTest.h"

#include <QDir>
#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <csignal>

/// The built program, run as a user runs it.
class tst_program : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldTellItsVersionWithoutADisplay();
    void shouldTellItsOptionsWithoutADisplay();
    void shouldRefuseAnUnknownOption();
    void shouldRefuseAHeadlessRunWithoutADisplay();
    void shouldSpeakTheLanguageOfTheDesktop_data();
    void shouldSpeakTheLanguageOfTheDesktop();
    void shouldSpeakTheLanguageThatIsAskedFor();
    void shouldRefuseALanguageThatIsNone();
    void shouldLeaveAPictureOfAScene();
    void shouldRunOnWhenModuleAndSceneAreBad();
    void shouldLeaveItsWorkToTheNextRunWhenItIsEnded_data();
    void shouldLeaveItsWorkToTheNextRunWhenItIsEnded();
    void shouldOutliveItsTerminalWhereItIsToldTo();

private:
    void startEditing(QProcess *program, const QString &settings);
    QString pictureFile() const { return m_folder.filePath("picture.png"); }

    QTemporaryDir m_folder;
};

namespace {

/// What a run of the program came to.
struct Run
{
    int code = -1;
    QString output;
    QString errors;
};

QProcessEnvironment environmentFor(const QString &platform, const QString &languages)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_QPA_PLATFORM", platform);
    environment.insert("LANGUAGE", languages);
    environment.remove("DISPLAY");
    return environment;
}

Run run(const QStringList &arguments, const QString &platform = QStringLiteral("offscreen"),
        const QString &languages = QStringLiteral("en"))
{
    QProcess program;
    program.setProcessEnvironment(environmentFor(platform, languages));
    program.start(PROGRAM, arguments);
    if (!program.waitForFinished(60000) || program.exitStatus() != QProcess::NormalExit)
        return {};
    return {program.exitCode(), QString::fromUtf8(program.readAllStandardOutput()),
            QString::fromUtf8(program.readAllStandardError())};
}

} // namespace

void tst_program::shouldTellItsVersionWithoutADisplay()
{
    const Run answer = run({"--version"}, "xcb");
    QCOMPARE(answer.code, 0);
    QCOMPARE(answer.output, QString("overlay-viewer " PROGRAM_VERSION "\n"));
}

void tst_program::shouldTellItsOptionsWithoutADisplay()
{
    const Run answer = run({"-h"}, "xcb");
    QCOMPARE(answer.code, 0);
    QVERIFY(answer.output.contains("--screenshot"));
}

void tst_program::shouldRefuseAnUnknownOption()
{
    const Run refusal = run({"--frobnicate"});
    QCOMPARE(refusal.code, 2);
    QCOMPARE(refusal.output, QString());
    QVERIFY2(refusal.errors.contains("frobnicate"), qPrintable(refusal.errors));
}

void tst_program::shouldRefuseAHeadlessRunWithoutADisplay()
{
    QCOMPARE(run({"--headless", "--frobnicate"}, "xcb").code, 2);
    QCOMPARE(run({"--headless=yes"}, "xcb").code, 2);
}

void tst_program::shouldSpeakTheLanguageOfTheDesktop_data()
{
    QTest::addColumn<QString>("languages");
    QTest::addColumn<QString>("word");
    QTest::newRow("German") << "de_AT"
                            << "Diese Hilfe";
    QTest::newRow("the first that there is") << "fr_FR:zh_CN:de"
                                             << "显示此帮助";
    QTest::newRow("English first") << "en_US:de"
                                   << "Show this help";
    QTest::newRow("none that there is") << "fr_FR"
                                        << "Show this help";
}

void tst_program::shouldSpeakTheLanguageOfTheDesktop()
{
    QFETCH(QString, languages);
    QFETCH(QString, word);
    const Run answer = run({"--help"}, "xcb", languages);
    QCOMPARE(answer.code, 0);
    QVERIFY2(answer.output.contains(word), qPrintable(answer.output));
}

void tst_program::shouldSpeakTheLanguageThatIsAskedFor()
{
    const Run answer = run({"--help", "--locale", "de"}, "xcb", "zh_CN");
    QVERIFY2(answer.output.contains("Diese Hilfe"), qPrintable(answer.output));
    // Without a window too; the platform's own text follows.
    const Run failed = run({"--headless", "--locale=de", "--scene", "/no/scene.json"});
    QCOMPARE(failed.code, 4);
    QVERIFY2(failed.errors.contains("es gibt keine solche Datei"), qPrintable(failed.errors));
}

void tst_program::shouldRefuseALanguageThatIsNone()
{
    const Run refusal = run({"--locale", "a.json"});
    QCOMPARE(refusal.code, 2);
    QVERIFY2(refusal.errors.contains("\"a.json\" is not the name of a language"),
             qPrintable(refusal.errors));
}

void tst_program::shouldLeaveAPictureOfAScene()
{
    QFile scene(m_folder.filePath("scene.json"));
    QVERIFY(scene.open(QIODevice::WriteOnly));
    scene.write(R"({"format": "overlay-scene", "version": 1, "overlays": []})");
    scene.close();
    const Run shown =
        run({"--plugin", PLUGIN_JOURNAL, scene.fileName(), "--screenshot", pictureFile()});
    QCOMPARE(shown.code, 0);
    QVERIFY2(!shown.errors.contains("module"), qPrintable(shown.errors));
    QVERIFY2(!shown.errors.contains("scene.json"), qPrintable(shown.errors));
    QCOMPARE(QImage(pictureFile()).size(), QSize(1600, 1000));
}

void tst_program::shouldRunOnWhenModuleAndSceneAreBad()
{
    const Run shown =
        run({"--plugin", "/no/module.so", "/no/scene.json", "--screenshot", pictureFile()});
    QCOMPARE(shown.code, 0);
    QVERIFY2(shown.errors.contains("The module \"/no/module.so\" is missing"),
             qPrintable(shown.errors));
    QVERIFY2(shown.errors.contains("/no/scene.json"), qPrintable(shown.errors));
}

/// Starts a session that does some work, and returns when it has done it.
void tst_program::startEditing(QProcess *program, const QString &settings)
{
    QFile script(m_folder.filePath("edit.js"));
    QVERIFY(script.open(QIODevice::WriteOnly));
    script.write("overlays.createGroup(overlays.getRootNode()); print('done');");
    script.close();
    QProcessEnvironment environment = environmentFor("offscreen", "en");
    environment.insert("XDG_CONFIG_HOME", settings);
    program->setProcessEnvironment(environment);
    program->start(PROGRAM, {"--no-gl", "--script", script.fileName()});
    while (!program->readAllStandardOutput().contains("done") && program->waitForReadyRead(60000)) {
    }
}

void tst_program::shouldLeaveItsWorkToTheNextRunWhenItIsEnded_data()
{
    QTest::addColumn<int>("signal");
    QTest::newRow("by the system") << SIGTERM;
    QTest::newRow("by key") << SIGINT;
    QTest::newRow("with its terminal") << SIGHUP;
}

void tst_program::shouldLeaveItsWorkToTheNextRunWhenItIsEnded()
{
    QFETCH(int, signal);
    std::signal(signal, SIG_DFL); // whoever started the test may have it ignored
    const QTemporaryDir settings;
    QProcess program;
    startEditing(&program, settings.path());
    QCOMPARE(program.state(), QProcess::Running); // to signal process 0 would end this one
    QCOMPARE(::kill(pid_t(program.processId()), signal), 0);
    QVERIFY(program.waitForFinished(60000));
    QCOMPARE(program.exitStatus(), QProcess::NormalExit);
    QCOMPARE(program.exitCode(), 1); // the run did not come to its end
    const QDir unsaved(settings.filePath("overlay-editor/unsaved"));
    const QStringList left = unsaved.entryList(QDir::Files);
    QCOMPARE(left.size(), 1); // without a lock
    QVERIFY2(left.constFirst().endsWith(".journal"), qPrintable(left.constFirst()));
}

void tst_program::shouldOutliveItsTerminalWhereItIsToldTo()
{
    const auto before = std::signal(SIGHUP, SIG_IGN); // as nohup does
    const QTemporaryDir settings;
    QProcess program;
    startEditing(&program, settings.path());
    std::signal(SIGHUP, before);
    QCOMPARE(program.state(), QProcess::Running);
    QFile status(QString("/proc/%1/status").arg(program.processId()));
    QVERIFY(status.open(QIODevice::ReadOnly));
    static const QRegularExpression mask("SigIgn:\\s*([0-9a-f]+)");
    const QRegularExpressionMatch ignored = mask.match(status.readAll());
    const quint64 hangup = 1ULL << (SIGHUP - 1);
    QCOMPARE(ignored.captured(1).toULongLong(nullptr, 16) & hangup, hangup);
    program.terminate();
    QVERIFY(program.waitForFinished(60000));
}

KX_TEST_MAIN(tst_program)
#include "tst_program.moc"
