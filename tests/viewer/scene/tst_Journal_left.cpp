// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

// What becomes of the journals that viewers have left behind.

#include "viewer/scene/Journal.h"

#include "tests/support/KxTest.h"
#include "viewer/scene/OverlayService.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QThreadPool>

using namespace viewer;

class tst_Journal_left : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void shouldNotOfferTheWorkOfARunningViewer();
    void shouldNotOfferTheWorkOfAViewerThatHasRunForADay();
    void shouldOfferWorkToOneViewerAtATime();
    void shouldPassByWorkThatIsDone();
    void shouldLeaveWhatBelongsToWorkThatIsTakenUp();
    void shouldListTheOldestFirst();
    void shouldTakeTheRemainsOfKilledViewersAway();
    void shouldSayWhatIsWrongWithABrokenJournal_data();
    void shouldSayWhatIsWrongWithABrokenJournal();
    void shouldPutABrokenJournalAside();

private:
    QString folder() const { return m_folder->filePath("journals"); }
    QStringList files() const;

    /// Puts a file beside the journals.
    bool leave(const QString &name, const QByteArray &content) const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

namespace {

/// Has written what it has not saved.
class RunningViewer
{
public:
    explicit RunningViewer(const QString &folder) : m_journal(&m_service, folder, &m_writer)
    {
        m_service.createOverlay(Scene::RootId);
        m_journal.flush();
    }

private:
    OverlayService m_service;
    QThreadPool m_writer;
    Journal m_journal;
};

} // namespace

void tst_Journal_left::init()
{
    KxTest::init();
    m_folder = std::make_unique<QTemporaryDir>();
}

QStringList tst_Journal_left::files() const
{
    QStringList names = QDir(folder()).entryList(QDir::Files);
    names.sort();
    return names;
}

bool tst_Journal_left::leave(const QString &name, const QByteArray &content) const
{
    QFile file(folder() + '/' + name);
    return QDir().mkpath(folder()) && file.open(QIODevice::WriteOnly)
           && file.write(content) == content.size();
}

void tst_Journal_left::shouldNotOfferTheWorkOfARunningViewer()
{
    const RunningViewer viewer(folder());
    QCOMPARE(files().size(), 2);
    QCOMPARE(Journal::lostWork(folder()).size(), 0);
}

void tst_Journal_left::shouldNotOfferTheWorkOfAViewerThatHasRunForADay()
{
    const RunningViewer viewer(folder());
    QFile lock(folder() + '/' + files().filter(".lock").value(0));
    QVERIFY(lock.open(QIODevice::ReadWrite));
    QVERIFY(lock.setFileTime(QDateTime::currentDateTime().addDays(-1),
                             QFileDevice::FileModificationTime));
    QCOMPARE(Journal::lostWork(folder()).size(), 0);
}

void tst_Journal_left::shouldOfferWorkToOneViewerAtATime()
{
    QVERIFY(leave("x.journal", "/a.json\n"));
    QVector<LostWork> first = Journal::lostWork(folder());
    QCOMPARE(first.size(), 1);
    QCOMPARE(Journal::lostWork(folder()).size(), 0);
    first.clear(); // its user said: later
    QCOMPARE(Journal::lostWork(folder()).size(), 1);
}

/// What was listed when another viewer had it, and has been saved or discarded there since.
void tst_Journal_left::shouldPassByWorkThatIsDone()
{
    QVERIFY(leave("x.journal", "/a.json\n"));
    const QString journal = folder() + "/x.journal";
    std::optional<LostWork> work = Journal::claim(journal);
    QVERIFY(work);
    QVERIFY(!Journal::claim(journal));
    Journal::forget(*work);
    work.reset();
    QVERIFY(!Journal::claim(journal));
    QCOMPARE(files(), QStringList()); // nor a lock
}

void tst_Journal_left::shouldLeaveWhatBelongsToWorkThatIsTakenUp()
{
    QVERIFY(leave("x.journal", "/a.json\n"));
    const QVector<LostWork> lost = Journal::lostWork(folder());
    QCOMPARE(lost.size(), 1);
    QVERIFY(leave("x.journal.Ab12Cd", {}));
    QVERIFY(Journal::lostWork(folder()).isEmpty());
    QCOMPARE(files(), QStringList({"x.journal", "x.journal.Ab12Cd", "x.journal.lock"}));
}

void tst_Journal_left::shouldListTheOldestFirst()
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

/// A lock of a process that is no more, and what it was about to rename.
void tst_Journal_left::shouldTakeTheRemainsOfKilledViewersAway()
{
    QProcess session;
    session.start(BUSY_SESSION, {folder(), m_folder->filePath("scene.json"), "1"});
    const auto lock = [this] { return files().filter(".journal.lock").value(0); };
    // It is made before it is written, and an empty one may be of a viewer that just begins.
    QTRY_VERIFY(!lock().isEmpty() && QFileInfo(folder() + '/' + lock()).size() > 0);
    session.kill();
    QVERIFY(session.waitForFinished());
    const QString journal = lock().section('.', 0, 1);
    QFile::remove(folder() + '/' + journal); // which the session may have written, or not yet
    for (const QString &name : {journal + ".Ab12Cd", QString("other.broken"), QString("note.txt")})
        QVERIFY(leave(name, {}));
    const RunningViewer viewer(folder());
    const QString own = QDir(folder()).entryList({"*.journal"}).value(0);
    QVERIFY(leave(own + ".Ef34Gh", {})); // which this viewer is writing
    QVERIFY(Journal::lostWork(folder()).isEmpty());
    QStringList left{own, own + ".lock", own + ".Ef34Gh", "other.broken", "note.txt"};
    left.sort();
    QCOMPARE(files(), left);
}

void tst_Journal_left::shouldSayWhatIsWrongWithABrokenJournal_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("fault");
    QTest::newRow("empty") << QByteArray() << ""
                           << ": byte 2: expected JSON; line 2, ";
    QTest::newRow("no scene") << QByteArray("/a.json\n") << "/a.json"
                              << ": byte 9: expected JSON; line 2, ";
    QTest::newRow("cut short") << QByteArray("/a.json\n{\n \"format\": \"ov") << "/a.json"
                               << ": byte 25: expected JSON; line 3, ";
    QTest::newRow("foreign") << QByteArray("/a.json\n{\"format\": \"mail\"}") << "/a.json"
                             << ": /format: expected \"overlay-scene\", found mail";
}

/// In words that name the journal, not the file of the scene.
void tst_Journal_left::shouldSayWhatIsWrongWithABrokenJournal()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, fault);
    QVERIFY(leave("x.journal", content));
    const LostWork work = Journal::lostWork(folder()).value(0);
    QTEST(work.path, "path");
    const SceneReading reading = Journal::recover(work);
    QVERIFY(!reading.scene);
    QVERIFY2(reading.error.startsWith(folder() + "/x.journal" + fault), qPrintable(reading.error));
    QVERIFY(QFile::remove(work.journal));
    QVERIFY2(Journal::recover(work).error.startsWith(work.journal + ": the file cannot be read: "),
             qPrintable(Journal::recover(work).error));
}

void tst_Journal_left::shouldPutABrokenJournalAside()
{
    QVERIFY(leave("x.y.journal", "/a.json\n{"));
    LostWork work = Journal::lostWork(folder()).value(0);
    const QString aside = Journal::putAside(work);
    QCOMPARE(aside, folder() + "/x.y.broken");
    QVERIFY(Journal::lostWork(folder()).isEmpty());
    QVERIFY(leave("x.y.journal", "/b.json\n{"));
    QCOMPARE(Journal::putAside(work), work.journal); // the name is taken, and nothing goes for it
    work.claim.reset();
    QCOMPARE(files(), QStringList({"x.y.broken", "x.y.journal"}));
}

KX_TEST_MAIN(tst_Journal_left)
#include "tst_Journal_left.moc"
