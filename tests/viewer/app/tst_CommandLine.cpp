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
    void shouldTakeWhatARunWithoutWindowIsToDo();
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

void tst_CommandLine::shouldTakeWhatARunWithoutWindowIsToDo()
{
    const CommandLine line =
        read({"--headless", "--scene", "a.json", "--script", "s.js", "--save", "b.json", "--export",
              "o.png", "--size", "32767x1", "--dpi", "299.5", "--transparent"});
    QVERIFY2(line.outcome == CommandLine::Outcome::Run, qPrintable(line.text));
    QVERIFY(line.headless.isOn);
    QVERIFY(line.headless.isTransparent);
    QCOMPARE(QStringList({line.scene, line.script, line.headless.save, line.headless.picture}),
             QStringList({"a.json", "s.js", "b.json", "o.png"}));
    QCOMPARE(line.headless.size, QSize(32767, 1));
    QCOMPARE(line.headless.dpi, 299.5);
    const CommandLine plain = read({"--headless"});
    QVERIFY(!plain.headless.isTransparent);
    QCOMPARE(plain.headless.size, QSize(1920, 1080));
    QCOMPARE(plain.headless.dpi, 96.0);
}

void tst_CommandLine::shouldRefuseWhatItDoesNotKnow_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("reason");
    QTest::newRow("unknown") << QStringList{"--frobnicate"} << "frobnicate";
    QTest::newRow("no value") << QStringList{"--plugin"} << "plugin";
    QTest::newRow("empty file") << QStringList{"--screenshot", ""} << "--screenshot";
    QTest::newRow("two scenes") << QStringList{"a.json", "b.json"} << "Only one scene";
    QTest::newRow("two scenes, one by option")
        << QStringList{"a.json", "--scene", "b.json"} << "Only one scene";
    QTest::newRow("scene without a name") << QStringList{""} << "The name of the scene is empty";
    for (const char *option : {"scene", "script", "record", "save", "export", "size", "dpi"}) {
        const QString name = QString("--%1").arg(option);
        QTest::addRow("%s without a value", option)
            << QStringList{"--headless", name, ""} << name + " needs a value";
        QTest::addRow("%s twice", option)
            << QStringList{"--headless", name, "7", name, "8"} << name + " can be given only once";
    }
    for (const char *option : {"--save", "--export", "--size", "--dpi"})
        QTest::newRow(option) << QStringList{option, "5"} << "needs --headless";
    QTest::newRow("--transparent") << QStringList{"--transparent"} << "needs --headless";
    QTest::newRow("window") << QStringList{"--headless", "--screenshot", "a.png"}
                            << "--screenshot needs a window";
    QTest::newRow("recording") << QStringList{"--headless", "--record", "a.js"}
                               << "--record needs a window";
    for (const char *size :
         {"0x5", "5x0", "-1x5", "5", "5x5x5", "x", "5.5x5", "32768x1", "1x32768", "100000x100000"})
        QTest::newRow(size) << QStringList{"--headless", "--size", size}
                            << QString("The size \"%1\" is none").arg(size);
    for (const char *dpi : {"0", "0.9", "-96", "10001", "nan", "inf", "many"})
        QTest::addRow("dpi %s", dpi) << QStringList{"--headless", "--dpi", dpi}
                                     << QString("from 1 to 10000, and \"%1\" is none").arg(dpi);
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
