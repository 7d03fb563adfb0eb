// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/support/KxTest.h"

#include <QDir>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

/// The viewer as a user starts it: the program itself, with the plug-in from its file.
class tst_viewer_start : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldShowEachExample_data();
    void shouldShowEachExample();
    void shouldRunWithoutTheEditor_data();
    void shouldRunWithoutTheEditor();

private:
    struct Run
    {
        int exitCode;
        QString errors;
        QImage picture;
    };
    static Run run(const QStringList &arguments);
    static Run runOnce(const QStringList &arguments);
};

/// The leak checker may crash on a thread of the graphics driver that is just ending; such a run says
/// nothing of the viewer, and is made again.
tst_viewer_start::Run tst_viewer_start::run(const QStringList &arguments)
{
    Run shown = runOnce(arguments);
    for (int repeats = 0; repeats < 5; ++repeats) {
        if (!shown.errors.contains("LeakSanitizer has encountered a fatal error"))
            break;
        shown = runOnce(arguments);
    }
    return shown;
}

tst_viewer_start::Run tst_viewer_start::runOnce(const QStringList &arguments)
{
    const QTemporaryDir folder;
    const QString picture = folder.filePath("picture.png");
    QProcess viewer;
    viewer.start(VIEWER_PROGRAM, arguments + QStringList{"--screenshot", picture});
    if (!viewer.waitForFinished(120000))
        return {-1, "the viewer does not end: " + viewer.errorString(), {}};
    return {viewer.exitStatus() == QProcess::NormalExit ? viewer.exitCode() : -1,
            QString::fromUtf8(viewer.readAllStandardError()), QImage(picture)};
}

void tst_viewer_start::shouldShowEachExample_data()
{
    QTest::addColumn<QString>("scene");
    const QStringList scenes = QDir(EXAMPLES).entryList({"*.json"});
    QVERIFY(scenes.size() >= 3);
    for (const QString &scene : scenes)
        QTest::newRow(qPrintable(scene)) << QDir(EXAMPLES).filePath(scene);
}

void tst_viewer_start::shouldShowEachExample()
{
    QFETCH(QString, scene);
    const Run shown = run({scene});
    QCOMPARE(shown.errors, QString());
    QCOMPARE(shown.exitCode, 0);
    const Run without = run({scene, "--plugin", "none.so"});
    QVERIFY(!shown.picture.isNull());
    QCOMPARE(without.picture.size(), shown.picture.size());
    // The panel stands at the right, where the view is without it.
    const QRect panel(shown.picture.width() - 300, 100, 200, 300);
    QVERIFY(shown.picture.copy(panel) != without.picture.copy(panel));
}

void tst_viewer_start::shouldRunWithoutTheEditor_data()
{
    QTest::addColumn<QString>("plugin");
    QTest::addColumn<QString>("reason");
    QTest::newRow("missing") << "none.so"
                             << "there is no such file";
    QTest::newRow("no library") << QStringLiteral(EXAMPLES "/title_sheet.json") << "title_sheet";
}

void tst_viewer_start::shouldRunWithoutTheEditor()
{
    QFETCH(QString, plugin);
    QFETCH(QString, reason);
    const Run shown = run({EXAMPLES "/title_sheet.json", "--plugin", plugin});
    QCOMPARE(shown.exitCode, 0);
    QVERIFY2(shown.errors.contains(reason), qPrintable(shown.errors));
    QVERIFY(!shown.picture.isNull());
}

KX_TEST_MAIN(tst_viewer_start)
#include "tst_viewer_start.moc"
