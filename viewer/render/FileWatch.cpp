// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/render/FileWatch.h"

#include <QDir>
#include <QFileInfo>

namespace viewer {

namespace {

QString nearestFolder(const QString &path)
{
    QString folder = QFileInfo(path).absolutePath();
    while (!QFileInfo(folder).isDir() && !QDir(folder).isRoot())
        folder = QFileInfo(folder).absolutePath();
    return folder;
}

} // namespace

FileStamp FileStamp::of(const QString &path)
{
    const QFileInfo info(path);
    return info.isFile() ? FileStamp{info.lastModified(), info.metadataChangeTime(), info.size()}
                         : FileStamp();
}

FileWatch::FileWatch(const Limits &limits, QObject *parent) : QObject(parent), m_limits(limits)
{
    m_pool.setMaxThreadCount(1);
    m_pause.setSingleShot(true);
    m_pause.setInterval(limits.pause);
    m_interval.setInterval(limits.interval);
    connect(&m_system, &QFileSystemWatcher::fileChanged, this, &FileWatch::noticeFile);
    connect(&m_system, &QFileSystemWatcher::directoryChanged, this, &FileWatch::noticeFolder);
    connect(&m_pause, &QTimer::timeout, this, &FileWatch::endBurst);
    connect(&m_interval, &QTimer::timeout, this, [this] {
        if (!m_isLooking)
            lookAt(m_files.keys());
    });
}

// What is still being looked at would call back.
FileWatch::~FileWatch()
{
    m_pool.waitForDone();
}

void FileWatch::add(const QString &path)
{
    const bool isBuiltIn = path.startsWith(QLatin1Char(':'));
    if (isBuiltIn || m_files.contains(path))
        return;
    m_files.insert(path, {});
    ask(path);
    if (m_limits.interval > 0 && !m_interval.isActive())
        m_interval.start();
}

void FileWatch::setSeen(const QString &path, const FileStamp &stamp)
{
    const auto file = m_files.find(path);
    if (file == m_files.end())
        return;
    file->seen = stamp;
    file->isSeen = true;
}

void FileWatch::remove(const QString &path)
{
    if (!m_files.contains(path))
        return;
    if (m_files.value(path).isAsked)
        m_system.removePath(path);
    leaveFolder(path);
    m_files.remove(path);
    m_touched.remove(path);
}

void FileWatch::clear()
{
    const QStringList asked = m_system.files() + m_system.directories();
    if (!asked.isEmpty())
        m_system.removePaths(asked);
    m_files.clear();
    m_folders.clear();
    m_suspects.clear();
    m_touched.clear();
    m_interval.stop();
    m_limitIsTold = false;
}

/// Asks for notices of a file and of the folder in which it stands or would stand, as far as there
/// are none yet.
void FileWatch::ask(const QString &path)
{
    File &file = m_files[path];
    if (!m_folders.value(file.folder).contains(path)) {
        file.folder = nearestFolder(path);
        m_folders[file.folder].insert(path);
    }
    const bool folderTells = m_system.directories().contains(file.folder) || askSystem(file.folder);
    const bool wantsNotice = !file.isAsked && QFileInfo(path).isReadable();
    if (wantsNotice)
        file.isAsked = askSystem(path);
    const bool fileTells = file.isAsked || !wantsNotice;
    if ((folderTells && fileTells) || m_limitIsTold)
        return;
    m_limitIsTold = true;
    QMetaObject::invokeMethod(this, &FileWatch::limitReached, Qt::QueuedConnection);
}

/// For a file that has become another one: the system may still follow the old one, or the folder
/// that had the name of the present one.
void FileWatch::askAnew(const QString &path)
{
    File &file = m_files[path];
    m_system.removePath(path);
    m_system.removePath(file.folder);
    file.isAsked = false;
    ask(path);
}

void FileWatch::leaveFolder(const QString &path)
{
    const auto told = m_folders.find(m_files.value(path).folder);
    if (told == m_folders.end())
        return;
    told->remove(path);
    if (!told->isEmpty())
        return;
    m_system.removePath(told.key());
    m_folders.erase(told);
}

bool FileWatch::askSystem(const QString &path)
{
    const int asked = m_system.files().size() + m_system.directories().size();
    return asked < m_limits.notices && m_system.addPath(path);
}

void FileWatch::noticeFile(const QString &path)
{
    if (!m_files.contains(path))
        return;
    m_touched.insert(path);
    m_suspects.insert(path);
    awaitPause();
}

/// A folder that was removed, or in which a nearer one has been made, tells nothing more.
void FileWatch::noticeFolder(const QString &folder)
{
    const QSet<QString> files = m_folders.value(folder);
    m_suspects.unite(files);
    const bool isThere = QFileInfo(folder).isDir();
    for (const QString &path : files) {
        if (!isThere || QFileInfo(path).absolutePath() != folder)
            leaveFolder(path);
    }
    awaitPause();
}

void FileWatch::awaitPause()
{
    if (!m_burst.isValid())
        m_burst.start();
    if (!m_pause.isActive() || m_burst.elapsed() < m_limits.longest)
        m_pause.start();
}

// Asks first and looks then: what happens in between is noticed.
void FileWatch::endBurst()
{
    if (m_isLooking) {
        m_pause.start();
        return;
    }
    m_burst.invalidate();
    const QStringList suspects = m_suspects.values();
    m_suspects.clear();
    for (const QString &path : suspects) {
        if (m_touched.contains(path))
            askAnew(path);
        else if (m_files.contains(path))
            ask(path);
    }
    lookAt(suspects);
}

/// Files on a drive that sleeps, or far away, keep whoever looks at them waiting.
void FileWatch::lookAt(const QStringList &paths)
{
    m_isLooking = true;
    m_pool.start([this, paths] {
        Stamps found;
        for (const QString &path : paths)
            found.append({path, FileStamp::of(path)});
        QMetaObject::invokeMethod(
            this, [this, found] { compare(found); }, Qt::QueuedConnection);
    });
}

void FileWatch::compare(const Stamps &found)
{
    m_isLooking = false;
    QStringList different;
    for (const auto &[path, stamp] : found) {
        const auto file = m_files.find(path);
        if (file == m_files.end())
            continue;
        const bool isTouched = m_touched.remove(path);
        if (!isTouched && (!file->isSeen || file->seen == stamp))
            continue;
        file->seen = stamp;
        different.append(path);
        if (!isTouched)
            askAnew(path);
    }
    for (const QString &path : qAsConst(different))
        emit changed(path);
}

} // namespace viewer
