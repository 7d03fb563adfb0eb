// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/support/KxTest.h"
#include "tests/viewer/scene/RandomEdits.h"
#include "tests/viewer/scene/SceneText.h"
#include "viewer/scene/SceneReader.h"
#include "viewer/scene/SceneWriter.h"

#include <QElapsedTimer>

#include <sys/resource.h>

using namespace viewer;

/// Files that nobody meant to be scenes, or that somebody meant to do harm.
class tst_SceneReader_fuzz : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldSurviveDamagedFiles_data();
    void shouldSurviveDamagedFiles();
    void shouldRefuseATextThatEndsInABackslash();
    void shouldRefuseBombsSoonAndInLittleMemory_data();
    void shouldRefuseBombsSoonAndInLittleMemory();

private:
    qint64 m_floor = 0; // nanoseconds
};

namespace {

QByteArray someFile(quint32 seed)
{
    OverlayService service;
    RandomEdits user(&service, seed);
    for (int i = 0; i < 60; ++i)
        user.edit();
    return scenetext::fileOf(service);
}

/// Damages a file in one of the ways in which files are damaged, and in some that need a mind.
void damage(QByteArray *file, QRandomGenerator *random)
{
    static const char *const tokens[] = {"[",     "]",    "{",      "}",        ",",    ":",
                                         "\"",    "null", "1e999",  "-0",       "\\u",  "\\ud800",
                                         "false", "\xff", "\"id\"", "\"kind\"", "1e-9", "children"};
    const auto place = [&] { return int(random->bounded(file->size() + 1)); };
    switch (random->bounded(6)) {
    case 0:
        file->truncate(place());
        break;
    case 1:
        file->remove(place(), int(random->bounded(50)));
        break;
    case 2:
        file->insert(place(), tokens[random->bounded(int(std::size(tokens)))]);
        break;
    case 3:
        file->insert(place(), file->mid(place(), int(random->bounded(300))));
        break;
    case 4:
        for (int i = 0; i < 5 && !file->isEmpty(); ++i)
            (*file)[int(random->bounded(file->size()))] = char(random->bounded(256));
        break;
    default:
        file->replace(tokens[random->bounded(int(std::size(tokens)))],
                      tokens[random->bounded(int(std::size(tokens)))]);
    }
}

template<class Work>
qint64 nanosecondsOf(const Work &work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    return timer.nsecsElapsed();
}

/// The most memory that this process has had, in megabytes.
long peakMemory()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss / 1024;
}

} // namespace

void tst_SceneReader_fuzz::shouldSurviveDamagedFiles_data()
{
    QTest::addColumn<quint32>("seed");
    const bool isLong = qEnvironmentVariableIsSet("KX_LONG_TESTS");
    for (quint32 seed = 1; seed <= (isLong ? 400U : 10U); ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

void tst_SceneReader_fuzz::shouldSurviveDamagedFiles()
{
    QFETCH(quint32, seed);
    const QString path = QStringLiteral("/tmp/x.json");
    const QByteArray good = someFile(seed);
    QVERIFY(SceneReader::parse(good, path).scene);
    QRandomGenerator random(seed);
    for (int i = 0; i < 200; ++i) {
        QByteArray file = good;
        for (auto damages = random.bounded(1, 4); damages > 0; --damages)
            damage(&file, &random);
        const SceneReading reading = SceneReader::parse(file, path);
        QCOMPARE(reading.scene.has_value(), reading.error.isEmpty());
        if (!reading.scene) {
            QVERIFY2(reading.error.startsWith(path + ": "), qPrintable(reading.error));
            continue;
        }
        // What was read can be written, and read again as the same.
        const QByteArray written = SceneWriter::content(*reading.scene, path, nullptr);
        const SceneReading again = SceneReader::parse(written, path);
        QVERIFY2(again.scene, qPrintable(again.error));
        QCOMPARE(SceneWriter::content(*again.scene, path, nullptr), written);
    }
}

void tst_SceneReader_fuzz::shouldRefuseBombsSoonAndInLittleMemory_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("part");
    constexpr int size = 60 * 1024 * 1024;
    // As much harmless text, read by the same parser.
    const QByteArray text = '"' + QByteArray(size, 'a') + '"';
    m_floor = nanosecondsOf([&text] { SceneReader::parse(text, QStringLiteral("x.json")); });
    QTest::newRow("brackets") << QByteArray(size, '[') << "levels of nesting";
    QTest::newRow("objects") << QByteArray("{\"a\":").repeated(size / 5) << "levels of nesting";
    QTest::newRow("empty lists") << "[" + QByteArray("[],").repeated(size / 3) << "values";
    QTest::newRow("zeros") << "[" + QByteArray("0,").repeated(size / 2) << "values";
    QTest::newRow("keys") << "{" + QByteArray("\"a\":0,").repeated(size / 6) << "keys";
    QTest::newRow("brackets in a text") << '"' + QByteArray(size, '[') + '"' << "overlay scene";
}

void tst_SceneReader_fuzz::shouldRefuseATextThatEndsInABackslash()
{
    const SceneReading reading = SceneReader::parse("\"\\", QStringLiteral("x.json"));
    QVERIFY2(reading.error.contains("byte"), qPrintable(reading.error));
}

void tst_SceneReader_fuzz::shouldRefuseBombsSoonAndInLittleMemory()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, part);
    const long before = peakMemory();
    SceneReading reading;
    const qint64 time =
        nanosecondsOf([&] { reading = SceneReader::parse(content, QStringLiteral("x.json")); });
    QVERIFY(!reading.scene);
    QVERIFY2(reading.error.contains(part), qPrintable(reading.error.left(300)));
    QVERIFY2(time < 3 * m_floor, qPrintable(QString::number(double(time) / double(m_floor))));
    QVERIFY2(peakMemory() - before < 400, qPrintable(QString::number(peakMemory() - before)));
}

KX_TEST_MAIN(tst_SceneReader_fuzz)
#include "tst_SceneReader_fuzz.moc"
