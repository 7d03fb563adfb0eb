// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/CommandLine.h"

#include "tests/support/KxTest.h"
#include "viewer/app/ModuleLoader.h"

using viewer::CommandLine;

class tst_CommandLine : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void shouldStartWithoutArguments();
    void shouldTakeASceneAndOptionsInAnyOrder();
    void shouldKeepTheOrderOfPlugins();
    void shouldTakePluginsBeforeTheToolkitDoes();
    void shouldAnswerHelpAndVersion();
    void shouldRefuseWhatItDoesNotKnow_data();
    void shouldRefuseWhatItDoesNotKnow();
};

namespace {

CommandLine read(const QStringList &arguments)
{
    return CommandLine(QStringList("overlay-viewer") + arguments);
}

} // namespace

void tst_CommandLine::initTestCase()
{
    QCoreApplication::setApplicationName("overlay-viewer");
    QCoreApplication::setApplicationVersion("1.2.3");
}

void tst_CommandLine::shouldStartWithoutArguments()
{
    const CommandLine line = read({});
    QCOMPARE(line.outcome, CommandLine::Outcome::Run);
    QCOMPARE(line.scene, QString());
    QCOMPARE(line.screenshot, QString());
    QVERIFY(!line.withoutGl);
    QCOMPARE(line.plugins, QStringList(viewer::ModuleLoader::defaultPlugin()));
}

void tst_CommandLine::shouldTakeASceneAndOptionsInAnyOrder()
{
    const CommandLine line = read({"--no-gl", "a.json", "--screenshot", "b.png"});
    QCOMPARE(line.outcome, CommandLine::Outcome::Run);
    QCOMPARE(line.scene, QString("a.json"));
    QCOMPARE(line.screenshot, QString("b.png"));
    QVERIFY(line.withoutGl);
}

void tst_CommandLine::shouldKeepTheOrderOfPlugins()
{
    const CommandLine line = read({"--plugin", "b.so", "--plugin=a.so"});
    QCOMPARE(line.plugins, QStringList({"b.so", "a.so"}));
}

void tst_CommandLine::shouldTakePluginsBeforeTheToolkitDoes()
{
    QList<QByteArray> texts{"viewer",    "--plugin", "a.so",          "scene.json",
                            "-platform", "minimal",  "--plugin=b.so", "--plugin"};
    QVector<char *> arguments;
    for (QByteArray &text : texts)
        arguments.append(text.data());
    arguments.append(nullptr);
    int count = texts.size();

    QCOMPARE(CommandLine::takePlugins(&count, arguments.data()),
             QStringList({"--plugin", "a.so", "--plugin=b.so"}));

    QStringList left;
    for (int i = 0; i < count; ++i)
        left.append(arguments.at(i));
    // An option without its value stays, to be refused.
    QCOMPARE(left, QStringList({"viewer", "scene.json", "-platform", "minimal", "--plugin"}));
    QCOMPARE(arguments.at(count), nullptr);
}

void tst_CommandLine::shouldAnswerHelpAndVersion()
{
    const CommandLine help = read({"--help"});
    QCOMPARE(help.outcome, CommandLine::Outcome::Answer);
    for (const char *option : {"--plugin", "--no-gl", "--screenshot", "--version", "scene"})
        QVERIFY2(help.text.contains(option), option);
    const CommandLine version = read({"--version"});
    QCOMPARE(version.outcome, CommandLine::Outcome::Answer);
    QCOMPARE(version.text, QString("overlay-viewer 1.2.3\n"));
}

void tst_CommandLine::shouldRefuseWhatItDoesNotKnow_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("reason");
    QTest::newRow("unknown") << QStringList{"--frobnicate"} << "frobnicate";
    QTest::newRow("no value") << QStringList{"--plugin"} << "plugin";
    QTest::newRow("empty file") << QStringList{"--screenshot", ""} << "--screenshot";
    QTest::newRow("two scenes") << QStringList{"a.json", "b.json"} << "Only one scene";
}

void tst_CommandLine::shouldRefuseWhatItDoesNotKnow()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, reason);
    const CommandLine line = read(arguments);
    QCOMPARE(line.outcome, CommandLine::Outcome::Fault);
    QVERIFY2(line.text.startsWith("overlay-viewer: "), qPrintable(line.text));
    QVERIFY2(line.text.contains(reason), qPrintable(line.text));
    QVERIFY2(line.text.contains("--help"), qPrintable(line.text));
}

KX_TEST_MAIN(tst_CommandLine)
#include "tst_CommandLine.moc"
