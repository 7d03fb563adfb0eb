// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/HeadlessRun.h"

#include "tests/support/KxTest.h"
#include "viewer/app/OverlayLayer.h"
#include "viewer/app/ViewArea.h"

#include <QProcess>
#include <QTemporaryDir>

using viewer::HeadlessRun;

/// Runs without window: the built program for what it returns and writes, the class for pixels.
class tst_HeadlessRun : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldWriteSceneAndPictureWithoutADisplay();
    void shouldWriteThePictureAndWarnWhenAnImageIsMissing();
    void shouldLeaveTheBackdropOutWhenTransparent();
    void shouldReturnTheDocumentedCode_data();
    void shouldReturnTheDocumentedCode();
    void shouldExportThePixelsOfTheView();

private:
    QString path(const char *name) const { return m_folder.filePath(QLatin1String(name)); }
    void writeScene(const QByteArray &overlays);
    int run(const QStringList &arguments);

    QTemporaryDir m_folder;
    QString m_errors;
};

void tst_HeadlessRun::writeScene(const QByteArray &overlays)
{
    QFile file(path("a.json"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(R"({"format": "overlay-scene", "version": 1, "overlays": [)" + overlays + "]}");
}

int tst_HeadlessRun::run(const QStringList &arguments)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_QPA_PLATFORM", "xcb");
    environment.remove("DISPLAY");
    QProcess program;
    program.setProcessEnvironment(environment);
    program.start(PROGRAM, QStringList("--headless") + arguments);
    const bool ended = program.waitForFinished(60000);
    m_errors = QString::fromUtf8(program.readAllStandardError());
    return ended && program.exitStatus() == QProcess::NormalExit ? program.exitCode() : -1;
}

void tst_HeadlessRun::shouldWriteSceneAndPictureWithoutADisplay()
{
    writeScene("");
    const int code = run({"--scene", path("a.json"), "--save", path("b.json"), "--export",
                          path("o.png"), "--size", "640x360", "--dpi", "96"});
    QVERIFY2(code == 0, qPrintable(m_errors));
    QCOMPARE(m_errors, QString());
    QCOMPARE(QImage(path("o.png")).size(), QSize(640, 360));
    QVERIFY(!QImage(path("o.png")).hasAlphaChannel());
    QVERIFY(QFile::exists(path("b.json")));
}

void tst_HeadlessRun::shouldWriteThePictureAndWarnWhenAnImageIsMissing()
{
    writeScene(R"({"kind": "overlay", "name": "Logo", "type": "image", "image": "gone.png"})");
    QCOMPARE(run({path("a.json"), "--export", path("missing.png")}), 3);
    QVERIFY2(m_errors.contains("gone.png"), qPrintable(m_errors));
    QCOMPARE(QImage(path("missing.png")).size(), QSize(1920, 1080));
}

void tst_HeadlessRun::shouldLeaveTheBackdropOutWhenTransparent()
{
    writeScene("");
    QCOMPARE(run({path("a.json"), "--export", path("clear.png"), "--transparent"}), 0);
    QCOMPARE(QImage(path("clear.png")).pixelColor(5, 5).alpha(), 0);
}

void tst_HeadlessRun::shouldReturnTheDocumentedCode_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("code");
    const QString nowhere = m_folder.filePath("none/x");
    QTest::newRow("size") << QStringList{"--size", "0x5"} << 2;
    QTest::newRow("dpi") << QStringList{"--dpi", "nan"} << 2;
    QTest::newRow("scene") << QStringList{nowhere} << 4;
    QTest::newRow("save") << QStringList{"--save", nowhere} << 5;
    QTest::newRow("export") << QStringList{"--export", nowhere + ".png"} << 5;
    QTest::newRow("module") << QStringList{"--plugin", nowhere} << 6;
}

void tst_HeadlessRun::shouldReturnTheDocumentedCode()
{
    QFETCH(QStringList, arguments);
    QTEST(run(arguments), "code");
    QVERIFY(!m_errors.isEmpty());
}

void tst_HeadlessRun::shouldExportThePixelsOfTheView()
{
    viewer::CommandLine line({"overlay-viewer", "--headless", "--size", "900x500"});
    HeadlessRun headless(line);
    viewer::OverlayService *overlays = headless.overlays();
    overlays->setText({overlays->createOverlay(overlays->getRootNode())}, "Exactly\nas seen");
    viewer::ImageCache images;
    viewer::OverlayPainter painter(overlays->scene(), images);
    viewer::ViewArea view(viewer::ViewArea::Background::Painted);
    view.setOverlayLayer(new viewer::OverlayLayer(
        overlays, [&painter](QPainter *device, const QSize &size, double dpi) {
            painter.paint(*device, size, dpi);
        }));
    view.resize(line.headless.size);
    const QImage seen = view.grab().toImage().convertToFormat(QImage::Format_RGB32);
    QCOMPARE(headless.picture(), seen);
}

KX_TEST_MAIN(tst_HeadlessRun)
#include "tst_HeadlessRun.moc"
