// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/support/KxTest.h"
#include "viewer/scene/SceneReader.h"
#include "viewer/scene/SceneWriter.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

using viewer::Node;
using viewer::SceneReader;
using viewer::SceneReading;
using viewer::SceneWriter;

namespace {

QString example(const QString &name)
{
    return QStringLiteral(KX_EXAMPLES "/") + name;
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

/// The scenes that the project ships: they open without a complaint and show what they are for.
class tst_Examples : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldOpenWithoutWarnings_data();
    void shouldOpenWithoutWarnings();
    void shouldBeAsTheViewerWritesThem_data();
    void shouldBeAsTheViewerWritesThem();
    void shouldMakeTheSameStressSceneWithEveryRun();
};

void tst_Examples::shouldOpenWithoutWarnings_data()
{
    QTest::addColumn<QString>("name");
    const QStringList names = QDir(example(QString())).entryList({"*.json"});
    QVERIFY(names.size() >= 3);
    for (const QString &name : names)
        QTest::newRow(qPrintable(name)) << name;
}

void tst_Examples::shouldOpenWithoutWarnings()
{
    QFETCH(QString, name);
    const SceneReading reading = SceneReader::read(example(name));
    QCOMPARE(reading.error, QString());
    QCOMPARE(reading.warnings, QStringList());
    QVERIFY(reading.scene->nodeCount() > 1);
}

void tst_Examples::shouldBeAsTheViewerWritesThem_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("title sheet") << "title_sheet.json";
    QTest::newRow("variants") << "variants.json";
}

void tst_Examples::shouldBeAsTheViewerWritesThem()
{
    QFETCH(QString, name);
    const QString path = example(name);
    const SceneReading reading = SceneReader::read(path);
    QVERIFY2(reading.scene.has_value(), qPrintable(reading.error));
    QCOMPARE(SceneWriter::content(*reading.scene, path, nullptr), contentOf(path));
}

void tst_Examples::shouldMakeTheSameStressSceneWithEveryRun()
{
    QTemporaryDir folder;
    const QString made = folder.filePath("made.json");
    QProcess script;
    script.start("python3", {example("make_stress_scene.py"), "25", "40", made});
    QVERIFY(script.waitForFinished());
    QCOMPARE(script.exitCode(), 0);
    QCOMPARE(contentOf(made), contentOf(example("stress_1000.json")));
    const SceneReading reading = SceneReader::read(example("stress_1000.json"));
    int overlays = 0;
    reading.scene->forEach([&overlays](const Node &node) { overlays += node.isOverlay() ? 1 : 0; });
    QCOMPARE(overlays, 1000);
}

KX_TEST_MAIN(tst_Examples)
#include "tst_Examples.moc"
