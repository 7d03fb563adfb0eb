// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/render/FileWatch.h"

#include "tests/support/KxTest.h"

#include <QAbstractEventDispatcher>
#include <QSignalSpy>
#include <QTemporaryDir>

using viewer::FileStamp;
using viewer::FileWatch;

class tst_FileWatch : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void cleanup() override;
    void shouldTellOfEachChange_data();
    void shouldTellOfEachChange();
    void shouldGoOnTellingAfterAFileWasReplaced();
    void shouldTellOfAFileWhoseFoldersAreMadeLater();
    void shouldTellOfAFolderThatGoesAndComesBack();
    void shouldTellOfABurstOnce();
    void shouldRestAfterABurst();
    void shouldTellOfALongBurstBeforeItsEnd();
    void shouldTellWhatChangedSinceTheFileWasSeen();
    void shouldBeSilentWhereNothingChanged();
    void shouldBeSilentAboutFilesThatWereRemovedOrCleared_data();
    void shouldBeSilentAboutFilesThatWereRemovedOrCleared();
    void shouldAskTheSystemForNoMoreThanTheLimit();
    void shouldFindChangesByLooking_data();
    void shouldFindChangesByLooking();

private:
    using Limits = FileWatch::Limits;

    void start(const Limits &limits);
    QString path(const QString &name) const { return m_folder->filePath(name); }
    void write(const QString &name, const QByteArray &content) const;
    void watch(const QString &name);

    /// Waits for the next change and gives the names of the files that are told of until then.
    QStringList told();

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<FileWatch> m_watch;
    std::unique_ptr<QSignalSpy> m_changes;
};

namespace {

constexpr int Patience = 30000;

/// Notices alone; what looking would find must not hide that they fail.
FileWatch::Limits noticesAlone()
{
    FileWatch::Limits limits;
    limits.pause = 20;
    limits.interval = 0;
    return limits;
}

/// Looking alone.
FileWatch::Limits lookingAlone()
{
    FileWatch::Limits limits;
    limits.notices = 0;
    limits.interval = 20;
    return limits;
}

} // namespace

void tst_FileWatch::init()
{
    KxTest::init();
    m_folder = std::make_unique<QTemporaryDir>();
    start(noticesAlone());
}

void tst_FileWatch::cleanup()
{
    m_changes.reset();
    m_watch.reset();
    KxTest::cleanup();
}

void tst_FileWatch::start(const Limits &limits)
{
    m_watch = std::make_unique<FileWatch>(limits);
    m_changes = std::make_unique<QSignalSpy>(m_watch.get(), &FileWatch::changed);
}

void tst_FileWatch::write(const QString &name, const QByteArray &content) const
{
    QFile file(path(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), qint64(content.size()));
}

void tst_FileWatch::watch(const QString &name)
{
    m_watch->add(path(name));
    m_watch->setSeen(path(name), FileStamp::of(path(name)));
}

QStringList tst_FileWatch::told()
{
    if (m_changes->isEmpty() && !m_changes->wait(Patience))
        return {};
    QStringList names;
    for (const QList<QVariant> &change : qAsConst(*m_changes))
        names.append(QDir(m_folder->path()).relativeFilePath(change.constFirst().toString()));
    m_changes->clear();
    names.sort();
    return names;
}

void tst_FileWatch::shouldTellOfEachChange_data()
{
    QTest::addColumn<QString>("what");
    for (const char *what : {"write", "append", "replace", "remove", "rename", "come"})
        QTest::newRow(what) << what;
}

void tst_FileWatch::shouldTellOfEachChange()
{
    QFETCH(QString, what);
    if (what != "come")
        write("a.png", "one");
    write("other.png", "two");
    watch("a.png");
    watch("other.png");
    if (what == "write" || what == "come") {
        write("a.png", "another");
    } else if (what == "append") {
        QFile file(path("a.png"));
        QVERIFY(file.open(QIODevice::Append));
        file.write("more");
    } else if (what == "replace") {
        write("new", "another");
        QCOMPARE(rename(qPrintable(path("new")), qPrintable(path("a.png"))), 0);
    } else if (what == "remove") {
        QVERIFY(QFile::remove(path("a.png")));
    } else if (what == "rename") {
        QVERIFY(QFile::rename(path("a.png"), path("b.png")));
    }
    QCOMPARE(told(), QStringList("a.png"));
}

void tst_FileWatch::shouldGoOnTellingAfterAFileWasReplaced()
{
    write("a.png", "one");
    watch("a.png");
    for (int round = 0; round < 3; ++round) {
        write("new", "two");
        QCOMPARE(rename(qPrintable(path("new")), qPrintable(path("a.png"))), 0);
        QCOMPARE(told(), QStringList("a.png"));
        write("a.png", "three"); // in place: the folder tells nothing of that
        QCOMPARE(told(), QStringList("a.png"));
        QVERIFY(QFile::remove(path("a.png")));
        QCOMPARE(told(), QStringList("a.png"));
    }
}

void tst_FileWatch::shouldTellOfAFileWhoseFoldersAreMadeLater()
{
    watch("one/two/a.png");
    QVERIFY(QDir(m_folder->path()).mkpath("one/two"));
    write("one/two/a.png", "one");
    QCOMPARE(told(), QStringList("one/two/a.png"));
    write("one/two/a.png", "two");
    QCOMPARE(told(), QStringList("one/two/a.png"));
}

void tst_FileWatch::shouldTellOfAFolderThatGoesAndComesBack()
{
    QVERIFY(QDir(m_folder->path()).mkpath("one"));
    write("one/a.png", "one");
    write("one/b.png", "one");
    watch("one/a.png");
    watch("one/b.png");
    QVERIFY(QDir(path("one")).removeRecursively());
    QCOMPARE(told(), QStringList({"one/a.png", "one/b.png"}));
    QVERIFY(QDir(m_folder->path()).mkpath("one"));
    write("one/b.png", "two");
    QCOMPARE(told(), QStringList("one/b.png"));
    write("one/a.png", "two");
    QCOMPARE(told(), QStringList("one/a.png"));
}

void tst_FileWatch::shouldTellOfABurstOnce()
{
    write("a.png", "");
    watch("a.png");
    for (int i = 0; i < 200; ++i) {
        write("a.png", QByteArray(i, 'x'));
        QCoreApplication::processEvents();
    }
    QCOMPARE(told(), QStringList("a.png"));
}

void tst_FileWatch::shouldRestAfterABurst()
{
    write("a.png", "one");
    watch("a.png");
    write("a.png", "another");
    QCOMPARE(told(), QStringList("a.png"));
    const QSignalSpy wakes(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::awake);
    QEventLoop loop;
    QTimer::singleShot(20 * noticesAlone().pause, &loop, &QEventLoop::quit);
    loop.exec();
    QVERIFY2(wakes.size() < 10, qPrintable(QString::number(wakes.size())));
}

void tst_FileWatch::shouldTellOfALongBurstBeforeItsEnd()
{
    Limits limits = noticesAlone();
    limits.pause = 500; // which the writing below never makes
    limits.longest = 0;
    start(limits);
    write("a.png", "");
    watch("a.png");
    QTimer writing;
    connect(&writing, &QTimer::timeout, this, [this] { write("a.png", "again"); });
    writing.start(1);
    QCOMPARE(told(), QStringList("a.png"));
}

void tst_FileWatch::shouldTellWhatChangedSinceTheFileWasSeen()
{
    write("a.png", "one");
    const FileStamp before = FileStamp::of(path("a.png"));
    write("a.png", "changed while it was being read");
    m_watch->add(path("a.png"));
    m_watch->setSeen(path("a.png"), before);
    write("other", "wakes the folder's notice");
    QCOMPARE(told(), QStringList("a.png"));
}

void tst_FileWatch::shouldBeSilentWhereNothingChanged()
{
    const QSignalSpy limits(m_watch.get(), &FileWatch::limitReached);
    write("a.png", "one");
    write("b.png", "one");
    watch("a.png");
    watch("b.png");
    m_watch->add(path("a.png"));
    m_watch->add(":/built/in.png");
    write("unknown.png", "two");
    write("b.png", "two");
    QCOMPARE(told(), QStringList("b.png"));
    QVERIFY(QFile::remove(path("unknown.png")));
    QVERIFY(QFile::remove(path("b.png")));
    QCOMPARE(told(), QStringList("b.png"));
    QCOMPARE(limits.size(), 0); // what is watched already is not asked for again
}

void tst_FileWatch::shouldBeSilentAboutFilesThatWereRemovedOrCleared_data()
{
    QTest::addColumn<bool>("looks");
    QTest::newRow("by notice") << false;
    QTest::newRow("by looking") << true;
}

void tst_FileWatch::shouldBeSilentAboutFilesThatWereRemovedOrCleared()
{
    QFETCH(bool, looks);
    start(looks ? lookingAlone() : noticesAlone());
    for (const char *name : {"a.png", "b.png", "c.png"}) {
        write(name, "one");
        watch(name);
    }
    m_watch->remove(path("a.png"));
    write("a.png", "another");
    write("b.png", "another");
    QCOMPARE(told(), QStringList("b.png"));
    m_watch->clear();
    watch("c.png");
    write("b.png", "yet another");
    write("c.png", "another");
    QCOMPARE(told(), QStringList("c.png"));
}

void tst_FileWatch::shouldAskTheSystemForNoMoreThanTheLimit()
{
    Limits limits = noticesAlone();
    limits.notices = 3; // the folder and two files
    start(limits);
    QSignalSpy reached(m_watch.get(), &FileWatch::limitReached);
    for (const char *name : {"a.png", "b.png", "c.png", "d.png"})
        write(name, "one");
    watch("a.png");
    watch("b.png");
    QCoreApplication::processEvents();
    QCOMPARE(reached.size(), 0);
    watch("c.png");
    watch("d.png");
    QCOMPARE(reached.size(), 0); // not from inside a call
    QCoreApplication::processEvents();
    QCOMPARE(reached.size(), 1);
    write("c.png", "written in place, which only a file's own notice tells");
    write("b.png", "two");
    QCOMPARE(told(), QStringList("b.png"));
}

void tst_FileWatch::shouldFindChangesByLooking_data()
{
    shouldTellOfEachChange_data();
}

void tst_FileWatch::shouldFindChangesByLooking()
{
    start(lookingAlone());
    shouldTellOfEachChange();
}

KX_TEST_MAIN(tst_FileWatch)
#include "tst_FileWatch.moc"
