// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/HeadlessRun.h"

#include "tests/support/KxTest.h"

#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <csignal>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

/// Runs without window: what the built program returns, writes and tells.
class tst_HeadlessRun : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldWriteSceneAndPictureWithoutADisplay();
    void shouldWriteThePictureAndWarnOnceOfAMissingImage();
    void shouldNameTheFirstOverlaysOfAMissingImage();
    void shouldNotFailForAnImageThatIsNotShown_data();
    void shouldNotFailForAnImageThatIsNotShown();
    void shouldLoadTheEditorInItsHeadlessMode();
    void shouldRunAScriptBetweenOpeningAndSaving();
    void shouldTakeImagesFromTheFolderOfTheScene();
    void shouldWriteNothingWhenTheScriptFails();
    void shouldEndAnEndlessScriptWhenAsked_data();
    void shouldEndAnEndlessScriptWhenAsked();
    void shouldEndAtOnceByASecondSignal();
    void shouldTellThatLongWorkGoesOn_data();
    void shouldTellThatLongWorkGoesOn();
    void shouldLeaveTheBackdropOutWhenTransparent();
    void shouldRefuseAFormatWithoutTransparency();
    void shouldDocumentTheSameCodesEverywhere();
    void shouldReturnTheDocumentedCode_data();
    void shouldReturnTheDocumentedCode();

private:
    QString path(const char *name) const { return m_folder.filePath(QLatin1String(name)); }
    void writeScene(const QByteArray &overlays);
    void write(const char *name, const QByteArray &content);
    QByteArray contentOf(const char *name) const;
    int run(const QStringList &arguments);
    static void start(QProcess *program, const QStringList &arguments,
                      QProcessEnvironment environment = QProcessEnvironment::systemEnvironment());
    int finish(QProcess *program);

    QTemporaryDir m_folder;
    QString m_output;
    QString m_errors; // without that work goes on, as any may on a slow machine
};

namespace {

/// A single call of the engine's own that does not end for years. What is signalled once it has begun
/// comes too late for the last piece of JavaScript, where an interruption would be seen.
constexpr char OneCall[] = "Array.prototype.includes.call({get 0() { print('begun'); },"
                           "                               length: Number.MAX_SAFE_INTEGER}, 1)";

/// A disk that keeps a program waiting where it opens a file, or brings one to the disk, until it is
/// told to go on.
class SlowDisk
{
public:
    SlowDisk(const QString &gate, const QString &slowFile)
        : m_gate(QFile::encodeName(gate))
        , m_slowFile(slowFile)
    {
        ::mkfifo(m_gate.constData(), 0600);
    }
    ~SlowDisk() { ::unlink(m_gate.constData()); }
    Q_DISABLE_COPY(SlowDisk)

    QProcessEnvironment environment() const
    {
        QProcessEnvironment all = QProcessEnvironment::systemEnvironment();
        all.insert("LD_PRELOAD", SLOW_DISK);
        all.insert("ASAN_OPTIONS", all.value("ASAN_OPTIONS") + ":verify_asan_link_order=0");
        all.insert("KX_SLOW_GATE", QFile::decodeName(m_gate));
        all.insert("KX_SLOW_FILE", m_slowFile);
        return all;
    }

    /// False while nobody waits.
    bool goOn() const
    {
        const int gate = ::open(m_gate.constData(), O_WRONLY | O_NONBLOCK | O_CLOEXEC);
        return gate >= 0 && ::close(gate) == 0;
    }

private:
    QByteArray m_gate;
    QString m_slowFile;
};

} // namespace

void tst_HeadlessRun::writeScene(const QByteArray &overlays)
{
    QFile file(path("a.json"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(R"({"format": "overlay-scene", "version": 1, "overlays": [)" + overlays + "]}");
}

void tst_HeadlessRun::write(const char *name, const QByteArray &content)
{
    QFile file(path(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
}

QByteArray tst_HeadlessRun::contentOf(const char *name) const
{
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void tst_HeadlessRun::start(QProcess *program, const QStringList &arguments,
                            QProcessEnvironment environment)
{
    environment.insert("QT_QPA_PLATFORM", "xcb");
    environment.remove("DISPLAY");
    environment.remove("XDG_RUNTIME_DIR"); // as in a job that no session started
    program->setProcessEnvironment(environment);
    program->start(PROGRAM, QStringList("--headless") + arguments);
}

int tst_HeadlessRun::finish(QProcess *program)
{
    const bool ended = program->waitForFinished(60000);
    m_errors.clear();
    const QStringList lines =
        QString::fromUtf8(program->readAllStandardError()).split('\n', Qt::SkipEmptyParts);
    for (const QString &line : lines)
        m_errors += line.startsWith("Still ") ? QString() : line + '\n';
    m_output += QString::fromUtf8(program->readAllStandardOutput());
    return ended && program->exitStatus() == QProcess::NormalExit ? program->exitCode() : -1;
}

int tst_HeadlessRun::run(const QStringList &arguments)
{
    QProcess program;
    m_output.clear();
    start(&program, arguments);
    return finish(&program);
}

void tst_HeadlessRun::shouldWriteSceneAndPictureWithoutADisplay()
{
    writeScene("");
    const int code = run({"--scene", path("a.json"), "--save", path("b.json"), "--export",
                          path("o.png"), "--size", "640x360", "--dpi", "300"});
    QVERIFY2(code == 0, qPrintable(m_errors));
    QCOMPARE(m_errors, QString());
    QCOMPARE(QImage(path("o.png")).size(), QSize(640, 360));
    QVERIFY(!QImage(path("o.png")).hasAlphaChannel());
    QCOMPARE(QImage(path("o.png")).dotsPerMeterX(), 11811);
    QVERIFY(QFile::exists(path("b.json")));
}

void tst_HeadlessRun::shouldWriteThePictureAndWarnOnceOfAMissingImage()
{
    write("bytes.png", "no picture");
    writeScene(R"({"kind": "overlay", "name": "Logo", "type": "image", "image": "gone.png"},)"
               R"({"kind": "overlay", "enabled": false, "type": "image", "image": "gone.png"},)"
               R"({"kind": "overlay", "name": "Two\nlines", "type": "image", "image": "gone.png"},)"
               R"({"kind": "overlay", "name": "Mark", "type": "image", "image": "bytes.png"})");
    QCOMPARE(run({path("a.json"), "--export", path("missing.png")}), 3);
    const QString warning =
        "Warning: the image \"%1\" of %2 cannot be read; a placeholder stands for it.\n";
    QCOMPARE(m_errors, warning.arg(path("bytes.png"), "\"Mark\"")
                           + warning.arg(path("gone.png"), "\"Logo\", \"Two lines\""));
    QCOMPARE(QImage(path("missing.png")).size(), QSize(1920, 1080));
}

void tst_HeadlessRun::shouldNameTheFirstOverlaysOfAMissingImage()
{
    QByteArrayList overlays;
    for (int i = 0; i < 5; ++i)
        overlays += R"({"kind": "overlay", "type": "image", "image": "gone.png", "name": ")"
                    + QByteArray::number(i) + "\"}";
    writeScene(overlays.join(','));
    write("s.js", "overlays.moveNodes([overlays.getChild(1, 4)], 1, 0)");
    QCOMPARE(run({path("a.json"), "--script", path("s.js")}), 3);
    QVERIFY2(m_errors.contains(R"(gone.png" of "4", "0", "1", "2", … cannot)"),
             qPrintable(m_errors));
}

void tst_HeadlessRun::shouldNotFailForAnImageThatIsNotShown_data()
{
    QTest::addColumn<QByteArray>("overlays");
    QTest::newRow("switched off") << QByteArray(
        R"({"kind": "overlay", "name": "x", "enabled": false, "type": "image", "image": "gone.png"})");
    QTest::newRow("in a group that is switched off") << QByteArray(
        R"({"kind": "group", "enabled": false, "children": [)"
        R"({"kind": "overlay", "name": "x", "type": "image", "image": "gone.png"}]})");
}

void tst_HeadlessRun::shouldNotFailForAnImageThatIsNotShown()
{
    QFETCH(QByteArray, overlays);
    writeScene(overlays);
    QCOMPARE(run({path("a.json")}), 0);
    QCOMPARE(
        m_errors,
        QString("Warning: the image \"%1\" of \"x\" cannot be read, but is not shown either.\n")
            .arg(path("gone.png")));
}

void tst_HeadlessRun::shouldLoadTheEditorInItsHeadlessMode()
{
    writeScene("");
    QCOMPARE(run({path("a.json"), "--plugin", PLUGIN_PROBE}), 0);
    QCOMPARE(m_errors, QString("headless 1, trees 0, windows 0\n"));
    QCOMPARE(run({path("a.json"), "--plugin", PLUGIN_EDITOR, "--plugin", PLUGIN_PROBE}), 0);
    QCOMPARE(m_errors, QString("headless 1, trees 1, windows 0\n"));
}

void tst_HeadlessRun::shouldRunAScriptBetweenOpeningAndSaving()
{
    writeScene(R"({"kind": "overlay", "name": "Title", "type": "text", "text": "old"})");
    write("s.js", "print('was', overlays.getText(2)); overlays.setText([2], 'new text')");
    QCOMPARE(run({path("a.json"), "--script", path("s.js"), "--save", path("b.json")}), 0);
    QCOMPARE(m_output, QString("was old\n"));
    QCOMPARE(m_errors, QString());
    QVERIFY(contentOf("b.json").contains("new text"));
    QVERIFY(contentOf("a.json").contains("old"));
}

void tst_HeadlessRun::shouldTakeImagesFromTheFolderOfTheScene()
{
    writeScene(R"({"kind": "overlay", "name": "Logo", "type": "image"})");
    QImage logo(4, 4, QImage::Format_RGB32);
    logo.fill(Qt::red);
    QVERIFY(logo.save(path("logo.png")));
    write("s.js", "overlays.setImage([2], 'logo.png')");
    QCOMPARE(run({path("a.json"), "--script", path("s.js"), "--save", path("b.json")}), 0);
    QVERIFY(contentOf("b.json").contains("\"image\": \"logo.png\""));
}

void tst_HeadlessRun::shouldWriteNothingWhenTheScriptFails()
{
    writeScene("");
    write("s.js", "overlays.createOverlay(1);\nnonsense()");
    QCOMPARE(run({path("a.json"), "--script", path("s.js"), "--save", path("c.json"), "--export",
                  path("c.png")}),
             7);
    QCOMPARE(m_errors, path("s.js") + ":2: ReferenceError: nonsense is not defined\n");
    QVERIFY(!QFile::exists(path("c.json")));
    QVERIFY(!QFile::exists(path("c.png")));
}

void tst_HeadlessRun::shouldEndAnEndlessScriptWhenAsked_data()
{
    QTest::addColumn<int>("signal");
    QTest::addColumn<QByteArray>("endless");
    QTest::newRow("Ctrl+C") << SIGINT << QByteArray("print('begun'); while (true);");
    QTest::newRow("kill") << SIGTERM << QByteArray("print('begun'); while (true);");
    QTest::newRow("recursion")
        << SIGINT
        << QByteArray("print('begun'); (function f() { try { f(); } finally { f(); } })()");
    QTest::newRow("one call") << SIGINT << QByteArray(OneCall);
}

void tst_HeadlessRun::shouldEndAnEndlessScriptWhenAsked()
{
    QFETCH(int, signal);
    QFETCH(QByteArray, endless);
    writeScene("");
    write("s.js", endless);
    QProcess program;
    m_output.clear();
    start(&program, {path("a.json"), "--script", path("s.js"), "--save", path("d.json")});
    while (!m_output.contains("begun") && program.waitForReadyRead(60000))
        m_output += QString::fromUtf8(program.readAllStandardOutput());
    QVERIFY(m_output.contains("begun"));
    QCOMPARE(::kill(pid_t(program.processId()), signal), 0);
    QCOMPARE(finish(&program), 8);
    QCOMPARE(m_errors, QString("The script \"%1\" was interrupted.\n").arg(path("s.js")));
    QVERIFY(!QFile::exists(path("d.json")));
}

void tst_HeadlessRun::shouldEndAtOnceByASecondSignal()
{
    writeScene("");
    write("s.js", OneCall);
    QProcess program;
    start(&program, {path("a.json"), "--script", path("s.js")});
    QVERIFY(program.waitForReadyRead(60000));
    ::kill(pid_t(program.processId()), SIGINT);
    ::kill(pid_t(program.processId()), SIGTERM);
    QCOMPARE(finish(&program), 8);
}

void tst_HeadlessRun::shouldTellThatLongWorkGoesOn_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("slowFile"); // to open; else every file is slow to write
    QTest::addColumn<QString>("line");
    const QString scene = path("a.json");
    const auto add = [&scene](const char *work, const QStringList &arguments,
                              const QString &slowFile, const QString &file) {
        QTest::newRow(work) << QStringList(scene) + arguments << slowFile
                            << QString("Still %1 \"%2\" after 2 s.\n").arg(work, file);
    };
    add("opening", {}, scene, scene);
    add("running", {"--script", path("s.js")}, path("s.js"), path("s.js"));
    add("saving", {"--save", path("b.json")}, "", path("b.json"));
    add("drawing", {"--export", path("o.png")}, "", path("o.png"));
    add("reading the images of", {}, path("logo.png"), scene);
}

void tst_HeadlessRun::shouldTellThatLongWorkGoesOn()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, slowFile);
    QFETCH(QString, line);
    QImage logo(4, 4, QImage::Format_RGB32);
    logo.fill(Qt::red);
    QVERIFY(logo.save(path("logo.png")));
    writeScene(R"({"kind": "overlay", "name": "Logo", "type": "image", "image": "logo.png"})");
    write("s.js", "");
    SlowDisk disk(path("gate"), slowFile);
    QProcess program;
    start(&program, arguments, disk.environment());
    program.setReadChannel(QProcess::StandardError);
    QString told;
    while (!told.contains(line) && program.waitForReadyRead(60000))
        told += QString::fromUtf8(program.readAllStandardError());
    QVERIFY2(told.contains(line), qPrintable(told));
    QVERIFY(QTest::qWaitFor([&disk] { return disk.goOn(); }));
    QCOMPARE(finish(&program), 0);
    QCOMPARE(m_errors, QString());
}

void tst_HeadlessRun::shouldLeaveTheBackdropOutWhenTransparent()
{
    writeScene("");
    QCOMPARE(run({path("a.json"), "--export", path("clear.png"), "--transparent"}), 0);
    QCOMPARE(QImage(path("clear.png")).pixelColor(5, 5).alpha(), 0);
}

void tst_HeadlessRun::shouldRefuseAFormatWithoutTransparency()
{
    writeScene("");
    for (const char *name : {"clear.jpg", "clear.bmp", "clear.PPM"}) {
        QCOMPARE(run({path("a.json"), "--export", path(name), "--transparent"}), 5);
        QCOMPARE(m_errors, QString("The picture \"%1\" cannot be written: its format knows no "
                                   "transparency, as PNG does\n")
                               .arg(path(name)));
        QVERIFY(!QFile::exists(path(name)));
        QCOMPARE(run({path("a.json"), "--export", path(name)}), 0);
    }
}

void tst_HeadlessRun::shouldDocumentTheSameCodesEverywhere()
{
    const auto codes = [](const QString &text, const char *line) {
        QStringList found;
        const QRegularExpression pattern(line, QRegularExpression::MultilineOption);
        QRegularExpressionMatchIterator it = pattern.globalMatch(text);
        while (it.hasNext())
            found += it.next().captured(1);
        return found;
    };
    QFile document(HEADLESS_DOCUMENT);
    QVERIFY(document.open(QIODevice::ReadOnly));
    const QStringList documented = codes(document.readAll(), "^\\| ([0-9]+) \\|");
    QCOMPARE(documented, QStringList({"0", "2", "3", "4", "5", "6", "7", "8"}));
    QCOMPARE(run({"--help"}), 0);
    QCOMPARE(codes(m_output, "^  ([0-9]+)  "), documented);
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
    QTest::newRow("format") << QStringList{"--export", path("o.none")} << 5;
    QTest::newRow("no transparency")
        << QStringList{"--transparent", "--export", path("o.jpg")} << 5;
    QTest::newRow("module") << QStringList{"--plugin", nowhere} << 6;
    QTest::newRow("script") << QStringList{"--script", nowhere} << 7;
    QTest::newRow("record") << QStringList{"--record", path("r.js")} << 2;
}

void tst_HeadlessRun::shouldReturnTheDocumentedCode()
{
    QFETCH(QStringList, arguments);
    QTEST(run(arguments), "code");
    QVERIFY(!m_errors.isEmpty());
}

KX_TEST_MAIN(tst_HeadlessRun)
#include "tst_HeadlessRun.moc"
