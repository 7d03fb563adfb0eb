// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/scene/Journal.h"

#include "viewer/scene/OverlayService.h"
#include "viewer/scene/SceneWriter.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QUuid>
#include <QtConcurrent>

namespace viewer {

namespace {

constexpr int Delay = 500;

QString journalEnding()
{
    return QStringLiteral(".journal");
}

QString lockOf(const QString &journal)
{
    return journal + QLatin1String(".lock");
}

/// The lock of a journal. It holds as long as the process that took it, whatever its age.
std::unique_ptr<QLockFile> makeLock(const QString &journal)
{
    auto lock = std::make_unique<QLockFile>(lockOf(journal));
    lock->setStaleLockTime(0);
    return lock;
}

/// On a thread of the writer. `scene` is null for one that no file holds.
bool writeJournal(const QString &path, const QByteArray &head, const QByteArray &scene)
{
    QSaveFile file(path);
    return !scene.isNull() && file.open(QIODevice::WriteOnly) && file.write(head) == head.size()
           && file.write(scene) == scene.size() && file.flush() && file.commit();
}

/// Under the lock of each journal: whoever takes one up meanwhile keeps what belongs to it. A lock that
/// nobody holds goes with the one that is taken in its place; by its name it may be another viewer's.
void removeRemains(const QString &folder)
{
    const QDir dir(folder);
    const QString ending = journalEnding();
    const QStringList names =
        dir.entryList({QLatin1Char('*') + ending + QLatin1String(".*")}, QDir::Files);
    for (const QString &name : names) {
        const QString journal = name.left(name.indexOf(ending) + ending.size());
        const auto lock = makeLock(dir.filePath(journal));
        if (lock->tryLock(0) && name != lockOf(journal))
            QFile::remove(dir.filePath(name));
    }
}

} // namespace

// A journal is the path of the scene file in a line, then the scene as in a file at that path.

Journal::Journal(OverlayService *service, const QString &folder, QThreadPool *writer)
    : m_service(service)
    , m_writer(writer)
    , m_folder(folder)
    , m_file(QDir(folder).filePath(QUuid::createUuid().toString(QUuid::WithoutBraces)
                                   + journalEnding()))
{
    m_due.setSingleShot(true);
    m_due.setInterval(Delay);
    connect(&m_due, &QTimer::timeout, this, &Journal::writeWhenFree);
    connect(&m_writing, &QFutureWatcher<bool>::finished, this, &Journal::finishWriting);
    const QUndoStack *stack = service->history().stack();
    connect(stack, &QUndoStack::indexChanged, this, &Journal::follow);
    connect(stack, &QUndoStack::cleanChanged, this, &Journal::follow);
}

Journal::~Journal()
{
    flush();
}

void Journal::letGo()
{
    m_isLetGo = true;
    flush();
}

bool Journal::isNeeded() const
{
    return !m_isLetGo && !m_service->history().stack()->isClean();
}

void Journal::setPath(const QString &path)
{
    m_path = path;
    follow();
}

void Journal::follow()
{
    if (!isNeeded()) {
        flush(); // a journal older than the saved file must never be offered
        return;
    }
    // Counted from the first change that is not written: steps without end must not put it off.
    if (!m_due.isActive())
        m_due.start();
}

/// Texts do not queue up behind a slow disk: the next one is that of the moment it is free.
void Journal::writeWhenFree()
{
    if (m_writing.isRunning())
        m_due.start();
    else
        startWriting();
}

bool Journal::flush()
{
    m_due.stop();
    m_writing.waitForFinished();
    if (!isNeeded()) {
        QFile::remove(m_file);
        return true;
    }
    startWriting();
    return finishWriting();
}

void Journal::startWriting()
{
    if (!m_lock && QDir().mkpath(m_folder)) {
        m_lock = makeLock(m_file);
        m_lock->tryLock(0);
    }
    const QString scenePath = m_path.isEmpty() ? m_file : m_path;
    const QByteArray scene = SceneWriter::content(m_service->scene(), scenePath, nullptr);
    const QByteArray head = m_path.toUtf8().toPercentEncoding() + '\n';
    m_writing.setFuture(QtConcurrent::run(m_writer, writeJournal, m_file, head, scene));
}

/// Waits for the text on its way and says what came of it.
bool Journal::finishWriting()
{
    const bool isWritten = m_writing.result();
    if (!isWritten && !m_hasFailed)
        emit failed(
            tr("Unsaved work cannot be kept safe in %1.").arg(QDir::toNativeSeparators(m_folder)));
    m_hasFailed = !isWritten;
    return isWritten;
}

QVector<LostWork> Journal::lostWork(const QString &folder)
{
    removeRemains(folder);
    QVector<LostWork> found;
    const QFileInfoList files = QDir(folder).entryInfoList(
        {QLatin1Char('*') + journalEnding()}, QDir::Files, QDir::Time | QDir::Reversed);
    for (const QFileInfo &info : files) {
        const std::optional<LostWork> work = claim(info.filePath());
        if (work)
            found.append(*work);
    }
    return found;
}

std::optional<LostWork> Journal::claim(const QString &journal)
{
    std::shared_ptr<QLockFile> lock = makeLock(journal);
    // Seen before it was locked, it may have been another viewer's until then.
    if (!lock->tryLock(0) || !QFile::exists(journal))
        return {};
    QFile file(journal);
    const QByteArray head = file.open(QIODevice::ReadOnly) ? file.readLine() : QByteArray();
    const QByteArray path = QByteArray::fromPercentEncoding(head.trimmed());
    return LostWork{journal, QString::fromUtf8(path), QFileInfo(journal).lastModified(),
                    std::move(lock)};
}

SceneReading Journal::recover(const LostWork &work)
{
    QFile file(work.journal);
    if (!file.open(QIODevice::ReadOnly)) {
        SceneReading reading;
        reading.error = tr("%1: the file cannot be read: %2")
                            .arg(QDir::toNativeSeparators(work.journal), file.errorString());
        return reading;
    }
    // Blanks in place of the head, so that faults are told at their place in the file.
    const QByteArray head = file.readLine().replace('\n', "");
    const QString path = work.path.isEmpty() ? work.journal : work.path;
    return SceneReader::parse(QByteArray(head.size(), ' ') + '\n' + file.readAll(), path,
                              work.journal);
}

QString Journal::putAside(const LostWork &work)
{
    const QFileInfo info(work.journal);
    const QString aside =
        info.absoluteDir().filePath(info.completeBaseName() + QLatin1String(".broken"));
    return QFile::rename(work.journal, aside) ? aside : work.journal;
}

void Journal::forget(const LostWork &work)
{
    QFile::remove(work.journal);
}

} // namespace viewer
