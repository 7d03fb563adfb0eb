// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/scene/Journal.h"

#include "viewer/scene/OverlayService.h"
#include "viewer/scene/SceneReader.h"
#include "viewer/scene/SceneWriter.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QUuid>
#include <QtConcurrent>

namespace viewer {

namespace {

constexpr int Delay = 500;

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

bool isHeld(const QString &journal)
{
    return !makeLock(journal)->tryLock(0);
}

} // namespace

// A journal is the path of the scene file in a line, then the scene as in a file at that path.

Journal::Journal(OverlayService *service, const QString &folder, QThreadPool *writer)
    : m_service(service)
    , m_writer(writer)
    , m_folder(folder)
    , m_file(QDir(folder).filePath(QUuid::createUuid().toString(QUuid::WithoutBraces)
                                   + QLatin1String(".journal")))
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
    removeFile();
}

void Journal::setPath(const QString &path)
{
    m_path = path;
    follow();
}

void Journal::follow()
{
    if (m_service->history().stack()->isClean()) {
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
    if (m_service->history().stack()->isClean()) {
        removeFile();
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

void Journal::removeFile()
{
    m_writing.waitForFinished(); // or it would come back
    QFile::remove(m_file);
}

QVector<LostWork> Journal::lostWork(const QString &folder)
{
    QVector<LostWork> found;
    const QFileInfoList files = QDir(folder).entryInfoList(
        {QStringLiteral("*.journal")}, QDir::Files, QDir::Time | QDir::Reversed);
    for (const QFileInfo &info : files) {
        QFile file(info.filePath());
        if (isHeld(info.filePath()) || !file.open(QIODevice::ReadOnly))
            continue;
        const QByteArray path = QByteArray::fromPercentEncoding(file.readLine().trimmed());
        found.append({info.filePath(), QString::fromUtf8(path), info.lastModified()});
    }
    return found;
}

std::optional<Scene> Journal::recover(const LostWork &work)
{
    QFile file(work.journal);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    file.readLine();
    const QString path = work.path.isEmpty() ? work.journal : work.path;
    return SceneReader::parse(file.readAll(), path).scene;
}

void Journal::forget(const LostWork &work)
{
    QFile::remove(work.journal);
}

} // namespace viewer
