// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/scene/Journal.h"

#include "tests/support/FullDisk.h"
#include "tests/support/KxTest.h"
#include "tests/support/Seeds.h"
#include "viewer/scene/OverlayService.h"
#include "viewer/scene/SceneReader.h"
#include "viewer/scene/SceneWriter.h"

#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QRandomGenerator>
#include <QScopeGuard>
#include <QSemaphore>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QThreadPool>
#include <QTimer>
#include <QtConcurrent>

#include <memory>

using namespace viewer;

class tst_Journal : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void cleanup() override;
    void shouldWriteWithoutBeingAsked();
    void shouldNotBePutOffByFurtherSteps();
    void shouldNotWaitForASlowDisk();
    void shouldHaveOneTextOnItsWayAtATime();
    void shouldRestWhenNothingChanges();
    void shouldGoWhenTheSceneIsSaved();
    void shouldGoWhenTheSceneIsLetGo();
    void shouldNotComeBackOnceItHasGone();
    void shouldStayWhenTheRunEndsOtherwise();
    void shouldKeepAnyPath_data();
    void shouldKeepAnyPath();
    void shouldFollowThePath();
    void shouldKeepPathsOfImages();
    void shouldSayOnceThatItCannotWrite();
    void shouldSaySoAgainAfterItCould();
    void shouldLoseNoMoreThanTwoSeconds_data();
    void shouldLoseNoMoreThanTwoSeconds();

private:
    QString folder() const { return m_folder->filePath("journals"); }
    QStringList journals() const { return QDir(folder()).entryList({"*.journal"}); }
    void edit() { m_service->createOverlay(Scene::RootId); }

    /// What a crash would leave: the journal without the lock of its viewer.
    QVector<LostWork> afterACrash() const;

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<OverlayService> m_service;
    QThreadPool m_writer;
    std::unique_ptr<Journal> m_journal;
};

void tst_Journal::init()
{
    KxTest::init();
    m_folder = std::make_unique<QTemporaryDir>();
    m_service = std::make_unique<OverlayService>();
    m_writer.setMaxThreadCount(1);
    m_journal = std::make_unique<Journal>(m_service.get(), folder(), &m_writer);
}

void tst_Journal::cleanup()
{
    m_journal.reset();
    m_service.reset();
    KxTest::cleanup();
}

QVector<LostWork> tst_Journal::afterACrash() const
{
    const QString left = m_folder->filePath("left");
    QDir(left).removeRecursively();
    QDir().mkpath(left);
    const QStringList files = journals();
    for (const QString &file : files)
        QFile::copy(folder() + '/' + file, left + '/' + file);
    return Journal::lostWork(left);
}

void tst_Journal::shouldWriteWithoutBeingAsked()
{
    m_journal->setPath("/some where/\u00e4.json");
    edit();
    QTRY_COMPARE(journals().size(), 1);
    const QVector<LostWork> lost = afterACrash();
    QCOMPARE(lost.size(), 1);
    QCOMPARE(lost.first().path, QString("/some where/\u00e4.json"));
    const std::optional<Scene> scene = Journal::recover(lost.first()).scene;
    QVERIFY(scene);
    QCOMPARE(SceneWriter::content(*scene, "/a.json", nullptr),
             SceneWriter::content(m_service->scene(), "/a.json", nullptr));
    Journal::forget(lost.first());
    QVERIFY(Journal::lostWork(m_folder->filePath("left")).isEmpty());
}

void tst_Journal::shouldNotBePutOffByFurtherSteps()
{
    QElapsedTimer time;
    time.start();
    QVERIFY(QTest::qWaitFor([this] {
        edit();
        return !journals().isEmpty();
    }));
    QVERIFY(time.elapsed() < 2000);
}

namespace {

int keptNodes(const LostWork &work)
{
    return Journal::recover(work).scene.value_or(Scene()).nodeCount();
}

/// For longer than a step may wait for its writing. False when the user could not work meanwhile.
bool goOnWorking()
{
    int moments = 0;
    QTimer clock;
    QObject::connect(&clock, &QTimer::timeout, &clock, [&moments] { ++moments; });
    clock.start(100);
    return QTest::qWaitFor([&moments] { return moments > 8; });
}

} // namespace

void tst_Journal::shouldNotWaitForASlowDisk()
{
    QSemaphore disk;
    QtConcurrent::run(&m_writer, [&disk] { disk.acquire(); });
    const auto atTheEnd = qScopeGuard([&disk] { disk.release(); });
    edit();
    QVERIFY(goOnWorking());
    edit();
    QCOMPARE(journals(), QStringList());
    disk.release();
    const auto kept = [this] {
        const QVector<LostWork> lost = afterACrash();
        return lost.isEmpty() ? 0 : keptNodes(lost.first());
    };
    QTRY_COMPARE(kept(), m_service->scene().nodeCount());
}

void tst_Journal::shouldHaveOneTextOnItsWayAtATime()
{
    QSemaphore disk;
    QtConcurrent::run(&m_writer, [&disk] { disk.acquire(); });
    const auto atTheEnd = qScopeGuard([&disk] { disk.release(); });
    edit();
    const int first = m_service->scene().nodeCount();
    QVERIFY(goOnWorking());
    edit();
    QVERIFY(goOnWorking());
    // Behind all that waits for the disk.
    QFuture<int> written = QtConcurrent::run(&m_writer, [this] {
        return keptNodes({folder() + '/' + journals().value(0), {}, {}});
    });
    disk.release();
    m_writer.waitForDone();
    QCOMPARE(written.result(), first);
}

void tst_Journal::shouldRestWhenNothingChanges()
{
    edit();
    QTRY_COMPARE(journals().size(), 1);
    QVERIFY(QFile::remove(folder() + '/' + journals().constFirst()));
    QVERIFY(goOnWorking());
    QCOMPARE(journals().size(), 0); // else it would have come back
}

void tst_Journal::shouldGoWhenTheSceneIsSaved()
{
    edit();
    m_journal->flush();
    QCOMPARE(journals().size(), 1);
    m_service->history().setSaved();
    QCOMPARE(journals().size(), 0); // at once: it is older than the file now
    m_service->undo();
    m_journal->flush();
    QCOMPARE(journals().size(), 1);
}

void tst_Journal::shouldGoWhenTheSceneIsLetGo()
{
    edit();
    m_journal->flush();
    m_journal->letGo();
    QCOMPARE(journals().size(), 0);
    edit();
    m_journal->flush();
    m_journal.reset();
    QCOMPARE(QDir(folder()).entryList(QDir::Files), QStringList());
}

void tst_Journal::shouldNotComeBackOnceItHasGone()
{
    QSemaphore disk;
    QSemaphore gone;
    QtConcurrent::run(&m_writer, [&disk] { disk.acquire(); });
    edit();
    QVERIFY(goOnWorking()); // a text is on its way
    QFuture<void> slowDisk = QtConcurrent::run([&] {
        gone.tryAcquire(1, 300);
        disk.release();
    });
    m_journal->letGo();
    gone.release();
    slowDisk.waitForFinished();
    m_writer.waitForDone();
    QCOMPARE(journals().size(), 0);
}

void tst_Journal::shouldStayWhenTheRunEndsOtherwise()
{
    edit();
    const int nodes = m_service->scene().nodeCount();
    m_journal.reset();
    QVector<LostWork> lost = Journal::lostWork(folder());
    QCOMPARE(lost.size(), 1);
    QCOMPARE(keptNodes(lost.constFirst()), nodes);
    lost.clear();
    QCOMPARE(QDir(folder()).entryList(QDir::Files), journals()); // without a lock
}

void tst_Journal::shouldKeepAnyPath_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("two lines") << "/a\nb.json";
    QTest::newRow("a per cent sign") << "/100%20.json";
    QTest::newRow("blanks at the end") << "/a.json  ";
}

void tst_Journal::shouldKeepAnyPath()
{
    QFETCH(QString, path);
    m_journal->setPath(path);
    edit();
    m_journal->flush();
    const QVector<LostWork> lost = afterACrash();
    QCOMPARE(lost.size(), 1);
    QCOMPARE(lost.first().path, path);
    QVERIFY(Journal::recover(lost.first()).scene);
}

void tst_Journal::shouldFollowThePath()
{
    m_journal->setPath("/a.json");
    edit();
    m_journal->flush();
    m_journal->setPath("/b.json");
    const auto path = [this] { return afterACrash().value(0).path; };
    QTRY_COMPARE(path(), QString("/b.json"));
}

void tst_Journal::shouldKeepPathsOfImages()
{
    for (const char *path : {"", "/scenes/a.json"}) {
        m_journal->setPath(path);
        edit();
        m_service->setImage({m_service->getChild(Scene::RootId, 0)}, "/pictures/a.png");
        m_journal->flush();
        const std::optional<Scene> scene = Journal::recover(afterACrash().value(0)).scene;
        QVERIFY(scene);
        QCOMPARE(scene->find(scene->root().children.front())->overlay.image,
                 QString("/pictures/a.png"));
    }
}

void tst_Journal::shouldSayOnceThatItCannotWrite()
{
    QFile file(folder());
    QVERIFY(file.open(QIODevice::WriteOnly)); // where the folder should be
    QSignalSpy failures(m_journal.get(), &Journal::failed);
    edit();
    m_journal->flush();
    m_journal->flush();
    QCOMPARE(failures.count(), 1);
}

void tst_Journal::shouldSaySoAgainAfterItCould()
{
    QSignalSpy failures(m_journal.get(), &Journal::failed);
    edit();
    for (int times = 1; times <= 2; ++times) {
        {
            const FullDisk disk(10);
            QVERIFY(!m_journal->flush());
        }
        QCOMPARE(failures.count(), times);
        QVERIFY(m_journal->flush());
    }
}

void tst_Journal::shouldLoseNoMoreThanTwoSeconds_data()
{
    seeds::addRows(5, 200);
}

namespace {

/// The number of the last edit that is in a scene; 0 for none.
int editIn(const std::optional<Scene> &scene)
{
    if (!scene || scene->root().children.empty())
        return 0;
    return scene->find(scene->root().children.front())->name.section(' ', 1).toInt();
}

} // namespace

void tst_Journal::shouldLoseNoMoreThanTwoSeconds()
{
    QFETCH(quint32, seed);
    const QString sceneFile = m_folder->filePath("scene.json");
    // What is saved in time is not missed in the journal: half of the users never save.
    const bool saves = seed % 2 == 0;
    QProcess session;
    session.start(BUSY_SESSION,
                  {folder(), sceneFile, QString::number(seed), QString(saves ? "250" : "0")});
    QVERIFY(session.waitForReadyRead());
    const int moment = int(QRandomGenerator(seed).bounded(2200, 4500));
    QElapsedTimer time;
    time.start();
    while (time.elapsed() < moment)
        session.waitForReadyRead(int(moment - time.elapsed()));
    session.kill();
    const qint64 killed = QDateTime::currentMSecsSinceEpoch();
    QVERIFY(session.waitForFinished());

    int due = 0; // the last edit that must not be missing
    const QList<QByteArray> lines = session.readAllStandardOutput().split('\n');
    for (const QByteArray &line : lines) {
        const QList<QByteArray> words = line.split(' ');
        if (words.size() == 2 && words.at(1).toLongLong() < killed - 2000)
            due = words.at(0).toInt();
    }
    QVERIFY(due > 0);
    const SceneReading saved = SceneReader::read(sceneFile);
    QVERIFY2(saved.scene || !QFile::exists(sceneFile), qPrintable(saved.error));
    int found = editIn(saved.scene);
    const QVector<LostWork> lost = Journal::lostWork(folder());
    QVERIFY(saves || !lost.isEmpty());
    for (const LostWork &work : lost) {
        const std::optional<Scene> scene = Journal::recover(work).scene;
        QVERIFY(scene);
        found = qMax(found, editIn(scene));
    }
    QVERIFY2(found >= due, qPrintable(QStringLiteral("%1 of %2").arg(found).arg(due)));
}

KX_TEST_MAIN(tst_Journal)
#include "tst_Journal.moc"
