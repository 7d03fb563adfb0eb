// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/scene/Journal.h"

#include "tests/support/FullDisk.h"
#include "tests/support/KxTest.h"
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
    void shouldGoWhenTheSceneIsSaved();
    void shouldGoWithTheRun();
    void shouldNotOfferTheWorkOfARunningViewer();
    void shouldNotOfferTheWorkOfAViewerThatHasRunForADay();
    void shouldListTheOldestFirst();
    void shouldKeepAnyPath_data();
    void shouldKeepAnyPath();
    void shouldFollowThePath();
    void shouldKeepPathsOfImages();
    void shouldLeaveABrokenJournalAlone();
    void shouldSayOnceThatItCannotWrite();
    void shouldSaySoAgainAfterItCould();
    void shouldLoseNoMoreThanTheLastMoment_data();
    void shouldLoseNoMoreThanTheLastMoment();

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
    const std::optional<Scene> scene = Journal::recover(lost.first());
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

void tst_Journal::shouldNotWaitForASlowDisk()
{
    QSemaphore disk;
    QtConcurrent::run(&m_writer, [&disk] { disk.acquire(); });
    const auto atTheEnd = qScopeGuard([&disk] { disk.release(); });
    edit();
    int moments = 0; // in which the user can go on working
    QTimer clock;
    connect(&clock, &QTimer::timeout, this, [&moments] { ++moments; });
    clock.start(100);
    QTRY_VERIFY(moments > 15); // three times as long as a step may wait
    edit();
    QCOMPARE(journals(), QStringList());
    disk.release();
    const auto kept = [this] {
        const QVector<LostWork> lost = afterACrash();
        return lost.isEmpty() ? 0 : Journal::recover(lost.first()).value_or(Scene()).nodeCount();
    };
    QTRY_COMPARE(kept(), m_service->scene().nodeCount());
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

void tst_Journal::shouldGoWithTheRun()
{
    edit();
    m_journal->flush();
    m_journal.reset();
    QCOMPARE(QDir(folder()).entryList(QDir::Files), QStringList());
}

void tst_Journal::shouldNotOfferTheWorkOfARunningViewer()
{
    edit();
    m_journal->flush();
    QCOMPARE(Journal::lostWork(folder()).size(), 0);
}

void tst_Journal::shouldNotOfferTheWorkOfAViewerThatHasRunForADay()
{
    edit();
    m_journal->flush();
    QFile lock(folder() + '/' + journals().value(0) + ".lock");
    QVERIFY(lock.open(QIODevice::ReadWrite));
    QVERIFY(lock.setFileTime(QDateTime::currentDateTime().addDays(-1),
                             QFileDevice::FileModificationTime));
    QCOMPARE(Journal::lostWork(folder()).size(), 0);
}

void tst_Journal::shouldListTheOldestFirst()
{
    QVERIFY(QDir().mkpath(folder()));
    for (const int age : {2, 3, 1}) {
        QFile file(folder() + QStringLiteral("/%1.journal").arg(age));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(file.setFileTime(QDateTime::currentDateTime().addDays(-age),
                                 QFileDevice::FileModificationTime));
    }
    QStringList names;
    const QVector<LostWork> lost = Journal::lostWork(folder());
    for (const LostWork &work : lost)
        names.append(QFileInfo(work.journal).baseName());
    QCOMPARE(names, QStringList({"3", "2", "1"}));
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
    QVERIFY(Journal::recover(lost.first()));
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
        const std::optional<Scene> scene = Journal::recover(afterACrash().value(0));
        QVERIFY(scene);
        QCOMPARE(scene->find(scene->root().children.front())->overlay.image,
                 QString("/pictures/a.png"));
    }
}

void tst_Journal::shouldLeaveABrokenJournalAlone()
{
    QDir().mkpath(folder());
    QFile file(folder() + "/x.journal");
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("/a.json\n{");
    file.close();
    const QVector<LostWork> lost = Journal::lostWork(folder());
    QCOMPARE(lost.size(), 1);
    QVERIFY(!Journal::recover(lost.first()));
    QVERIFY(file.exists());
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

void tst_Journal::shouldLoseNoMoreThanTheLastMoment_data()
{
    QTest::addColumn<quint32>("seed");
    const bool isLong = qEnvironmentVariableIsSet("KX_LONG_TESTS");
    for (quint32 seed = 1; seed <= (isLong ? 200U : 5U); ++seed)
        QTest::addRow("seed %u", seed) << seed;
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

void tst_Journal::shouldLoseNoMoreThanTheLastMoment()
{
    QFETCH(quint32, seed);
    const QString sceneFile = m_folder->filePath("scene.json");
    QProcess session;
    session.start(BUSY_SESSION, {folder(), sceneFile, QString::number(seed)});
    QVERIFY(session.waitForReadyRead());
    const int moment = int(QRandomGenerator(seed).bounded(1200, 3500));
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
        if (words.size() == 2 && words.at(1).toLongLong() < killed - 1000)
            due = words.at(0).toInt();
    }
    QVERIFY(due > 0);
    const SceneReading saved = SceneReader::read(sceneFile);
    QVERIFY2(saved.scene || !QFile::exists(sceneFile), qPrintable(saved.error));
    int found = editIn(saved.scene);
    const QVector<LostWork> lost = Journal::lostWork(folder());
    for (const LostWork &work : lost) {
        const std::optional<Scene> scene = Journal::recover(work);
        QVERIFY(scene);
        found = qMax(found, editIn(scene));
    }
    QVERIFY2(found >= due, qPrintable(QStringLiteral("%1 of %2").arg(found).arg(due)));
}

KX_TEST_MAIN(tst_Journal)
#include "tst_Journal.moc"
