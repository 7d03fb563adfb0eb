// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

// How a session keeps its unsaved work safe, and takes up what others have left behind.

#include "viewer/app/ViewerSession.h"

#include "tests/support/FullDisk.h"
#include "tests/support/KxTest.h"

#include <QDir>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>

using namespace viewer;
using Answer = FileQuestions::Answer;
Q_DECLARE_METATYPE(viewer::FileQuestions::Answer)

namespace {

/// Answers as it is told once something else was done meanwhile, and lists what it was asked for.
class Answers : public FileQuestions
{
public:
    Answers(Answer answer, QStringList *asked, std::function<void()> meanwhile)
        : FileQuestions(nullptr)
        , m_answer(answer)
        , m_asked(asked)
        , m_meanwhile(std::move(meanwhile))
    {
    }

    Answer aboutRecovery(const QString &name, const QString &) override
    {
        m_asked->append(name);
        m_meanwhile();
        return m_answer;
    }

private:
    Answer m_answer;
    QStringList *m_asked;
    std::function<void()> m_meanwhile;
};

} // namespace

class tst_LostWork : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void cleanup() override;
    void shouldKeepWorkUnderTheFileOfItsScene();
    void shouldTellThatWorkCannotBeKept();
    void shouldOfferLostWork_data();
    void shouldOfferLostWork();
    void shouldTellOfMissingImagesInWhatWasRecovered();
    void shouldOfferTheLatestFirst_data();
    void shouldOfferTheLatestFirst();
    void shouldOfferNoWorkThatAnotherViewerOffers();
    void shouldTellOfABrokenJournalAndKeepIt();
    void shouldOfferWhatStandsBesideABrokenJournal();
    void shouldKeepWhatWasRecoveredUntilItIsSafe();

private:
    QString unsaved() const { return m_folder->filePath("unsaved"); }
    QStringList journals() const { return QDir(unsaved()).entryList({"*.journal"}); }
    QStringList notices() const { return m_session->window()->viewArea()->notices()->texts(); }
    void leave(const QString &name, const QByteArray &content, int secondsAgo) const;
    void leaveWork(const QString &name, int secondsAgo) const;
    void start(Answer answer, const QString &scene = {});

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<QSettings> m_settings;
    QStringList m_asked;
    std::function<void()> m_meanwhile; // while a question is open
    std::unique_ptr<ViewerSession> m_session;
};

void tst_LostWork::init()
{
    KxTest::init();
    m_folder = std::make_unique<QTemporaryDir>();
    m_settings =
        std::make_unique<QSettings>(m_folder->filePath("settings.ini"), QSettings::IniFormat);
    m_asked.clear();
    m_meanwhile = [] {};
}

void tst_LostWork::cleanup()
{
    m_session.reset();
    m_settings.reset();
    KxTest::cleanup();
}

void tst_LostWork::leave(const QString &name, const QByteArray &content, int secondsAgo) const
{
    QVERIFY(QDir().mkpath(unsaved()));
    QFile file(unsaved() + '/' + name + ".journal");
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.write(content) == content.size() && file.flush());
    const QDateTime time = QDateTime::currentDateTime().addSecs(-secondsAgo);
    QVERIFY(file.setFileTime(time, QFileDevice::FileModificationTime));
}

void tst_LostWork::leaveWork(const QString &name, int secondsAgo) const
{
    leave(name,
          "/scenes/" + name.toUtf8()
              + ".json\n"
                R"({"format": "overlay-scene", "version": 1, "overlays": [)"
                R"({"kind": "group", "name": "lost"}]})",
          secondsAgo);
}

void tst_LostWork::start(Answer answer, const QString &scene)
{
    const CommandLine line({"overlay-viewer", "--no-gl", "--plugin", PLUGIN_JOURNAL, scene});
    m_session = std::make_unique<ViewerSession>(
        line, m_settings.get(), std::make_unique<Answers>(answer, &m_asked, m_meanwhile));
    m_session->start();
}

void tst_LostWork::shouldKeepWorkUnderTheFileOfItsScene()
{
    start(Answer::Cancel);
    OverlayService *overlays = m_session->overlays();
    overlays->createGroup(Scene::RootId);
    const QString scene = m_folder->filePath("a.json");
    m_session->document()->setUnsavedScene(Scene(), scene, QDateTime());
    overlays->createGroup(Scene::RootId);
    QTRY_COMPARE(journals().size(), 1);
    // Without the lock, as after a crash.
    const QString left = m_folder->filePath("left.journal");
    const auto pathOfWork = [&] {
        QFile::remove(left);
        QFile::copy(unsaved() + '/' + journals().value(0), left);
        const QVector<LostWork> lost = Journal::lostWork(m_folder->path());
        return lost.isEmpty() ? QString() : lost.first().path;
    };
    QTRY_COMPARE(pathOfWork(), scene);
}

void tst_LostWork::shouldTellThatWorkCannotBeKept()
{
    QFile file(unsaved());
    QVERIFY(file.open(QIODevice::WriteOnly)); // where the folder should be
    start(Answer::Cancel);
    m_session->overlays()->createGroup(Scene::RootId);
    QTRY_COMPARE(notices().size(), 1);
    QVERIFY2(notices().constFirst().contains(unsaved()), qPrintable(notices().constFirst()));
}

void tst_LostWork::shouldOfferLostWork_data()
{
    QTest::addColumn<FileQuestions::Answer>("answer");
    QTest::addColumn<int>("nodes");
    QTest::addColumn<bool>("staysForLater");
    QTest::newRow("recover") << Answer::Save << 1 << false;
    QTest::newRow("discard") << Answer::Discard << 0 << false;
    QTest::newRow("later") << Answer::Cancel << 0 << true;
}

void tst_LostWork::shouldOfferLostWork()
{
    QFETCH(FileQuestions::Answer, answer);
    QFETCH(int, nodes);
    QFETCH(bool, staysForLater);
    leaveWork("night", 60);
    start(answer);
    QTRY_COMPARE(m_asked, QStringList("/scenes/night.json"));
    QCOMPARE(m_session->overlays()->getChildCount(Scene::RootId), nodes);
    QCOMPARE(m_session->document()->isModified(), nodes > 0);
    QCOMPARE(m_session->document()->path(), QString(nodes > 0 ? "/scenes/night.json" : ""));
    QCOMPARE(journals().contains("night.journal"), staysForLater);
    // What was recovered is still not saved.
    QCOMPARE(journals().size(), staysForLater || nodes > 0 ? 1 : 0);
}

void tst_LostWork::shouldTellOfMissingImagesInWhatWasRecovered()
{
    leave("night",
          "/scenes/night.json\n"
          R"({"format": "overlay-scene", "version": 1, "overlays": [)"
          R"({"kind": "overlay", "type": "image", "image": "gone.png"}]})",
          60);
    start(Answer::Save);
    QTRY_COMPARE(notices().size(), 1);
    QVERIFY2(notices().constFirst().contains("/scenes/gone.png"),
             qPrintable(notices().constFirst()));
}

void tst_LostWork::shouldOfferTheLatestFirst_data()
{
    QTest::addColumn<FileQuestions::Answer>("answer");
    QTest::addColumn<QStringList>("asked");
    QTest::addColumn<QStringList>("stay");
    const QString late = "/scenes/late.json";
    const QString early = "/scenes/early.json";
    QTest::newRow("one is taken up, the other waits")
        << Answer::Save << QStringList(late) << QStringList("early.journal");
    QTest::newRow("each is asked about")
        << Answer::Discard << QStringList({late, early}) << QStringList();
    QTest::newRow("none is wanted now")
        << Answer::Cancel << QStringList(late) << QStringList({"early.journal", "late.journal"});
}

void tst_LostWork::shouldOfferTheLatestFirst()
{
    QFETCH(FileQuestions::Answer, answer);
    QFETCH(QStringList, asked);
    QFETCH(QStringList, stay);
    leaveWork("late", 60);
    leaveWork("early", 120);
    start(answer);
    QTRY_VERIFY(!m_asked.isEmpty());
    QCOMPARE(m_asked, asked);
    QStringList left = journals();
    if (answer == Answer::Save) {
        QCOMPARE(m_session->document()->path(), QString("/scenes/late.json"));
        QCOMPARE(left.size(), 2); // with that of the session
        left = left.filter("early");
    }
    QCOMPARE(left, stay);
}

void tst_LostWork::shouldOfferNoWorkThatAnotherViewerOffers()
{
    leaveWork("late", 60);
    leaveWork("early", 120);
    QVector<int> offeredElsewhere;
    m_meanwhile = [this, &offeredElsewhere] {
        offeredElsewhere.append(Journal::lostWork(unsaved()).size());
    };
    start(Answer::Discard);
    QTRY_COMPARE(offeredElsewhere, QVector<int>({0, 0}));
    QTRY_COMPARE(QDir(unsaved()).entryList(QDir::Files), QStringList());
}

void tst_LostWork::shouldTellOfABrokenJournalAndKeepIt()
{
    const QByteArray content = "/scenes/broken.json\n{";
    leave("broken", content, 60);
    start(Answer::Discard);
    QTRY_COMPARE(notices().size(), 1);
    const QStringList lines = notices().constFirst().split('\n');
    QCOMPARE(lines.size(), 3);
    QCOMPARE(lines.at(0),
             QString("Unsaved changes to \"/scenes/broken.json\" cannot be recovered."));
    QVERIFY2(lines.at(1).startsWith(unsaved() + "/broken.journal: byte 22: expected JSON; line 2,"),
             qPrintable(lines.at(1)));
    QCOMPARE(lines.at(2), QString("The file is kept as %1/broken.broken.").arg(unsaved()));
    QFile kept(unsaved() + "/broken.broken");
    QVERIFY(kept.open(QIODevice::ReadOnly));
    QCOMPARE(kept.readAll(), content);
    QCOMPARE(journals(), QStringList());
    m_session.reset();
    start(Answer::Discard); // it is told once
    bool turned = false;
    QTimer::singleShot(0, m_session.get(), [&turned] { turned = true; });
    QTRY_VERIFY(turned);
    QCOMPARE(notices(), QStringList());
    QCOMPARE(m_asked, QStringList());
}

void tst_LostWork::shouldOfferWhatStandsBesideABrokenJournal()
{
    leaveWork("whole", 120);
    leave("broken", "/scenes/broken.json\n{", 60);
    start(Answer::Save);
    QTRY_COMPARE(m_asked, QStringList("/scenes/whole.json"));
    QCOMPARE(notices().size(), 1);
}

void tst_LostWork::shouldKeepWhatWasRecoveredUntilItIsSafe()
{
    leaveWork("only", 60);
    const FullDisk disk(150); // room for a lock, not for a scene
    start(Answer::Save);
    QTRY_COMPARE(m_session->document()->path(), QString("/scenes/only.json"));
    QCOMPARE(journals(), QStringList("only.journal"));
}

KX_TEST_MAIN(tst_LostWork)
#include "tst_LostWork.moc"
