// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDateTime>
#include <QElapsedTimer>
#include <QFileSystemWatcher>
#include <QHash>
#include <QObject>
#include <QSet>
#include <QThreadPool>
#include <QTimer>
#include <QVector>

namespace viewer {

/// What tells one state of a file from another; empty for one that is not there.
struct FileStamp
{
    QDateTime modified;
    QDateTime changed; // also when another file takes the name
    qint64 size = -1;

    static FileStamp of(const QString &path);

    bool operator==(const FileStamp &other) const
    {
        return modified == other.modified && changed == other.changed && size == other.size;
    }
};

/// Tells when files change, go and come: written in place, replaced by another one, removed with
/// their folders and made again. The system's notices are gathered until they pause, so that a burst
/// is one change; and since the system gives notice of so many files and folders only, and of none
/// on some network drives, all files are looked at from time to time too. Owned by the image cache;
/// GUI thread, the looking itself in a thread of its own.
class FileWatch : public QObject
{
    Q_OBJECT

public:
    struct Limits
    {
        int notices = 1000;  ///< files and folders that the system is asked to tell about
        int pause = 100;     ///< in milliseconds, without notices, that ends a burst
        int longest = 1000;  ///< in milliseconds; from then on a burst is several changes
        int interval = 2000; ///< in milliseconds, between two looks at all files; 0 for none
    };

    explicit FileWatch(const Limits &limits, QObject *parent = nullptr);
    ~FileWatch() override;

    /// Watches a file, there or not. Nothing happens when it is watched already.
    void add(const QString &path);

    /// The state of a watched file that its reader has seen. Until there is one, only a notice of
    /// the system counts as a change.
    void setSeen(const QString &path, const FileStamp &stamp);

    void remove(const QString &path);
    void clear();

Q_SIGNALS:
    void changed(const QString &path);

    /// There are more files than the system gives notice of; sent once until clear(), never from
    /// inside a call. Changes of those in excess are found by looking.
    void limitReached();

private:
    struct File
    {
        FileStamp seen;
        QString folder; // the nearest one that exists
        bool isSeen = false;
        bool isAsked = false; // the system gives notice of it
    };

    using Stamps = QVector<QPair<QString, FileStamp>>;

    void noticeFile(const QString &path);
    void noticeFolder(const QString &folder);
    void awaitPause();
    void endBurst();
    void ask(const QString &path);
    void askAnew(const QString &path);
    void leaveFolder(const QString &path);
    bool askSystem(const QString &path);
    void lookAt(const QStringList &paths);
    void compare(const Stamps &found);

    const Limits m_limits;
    QFileSystemWatcher m_system;
    QHash<QString, File> m_files;
    QHash<QString, QSet<QString>> m_folders; // the files that each tells about
    QSet<QString> m_suspects;                // where something may have changed
    QSet<QString> m_touched;                 // of them, those that the system named
    QTimer m_pause;
    QTimer m_interval;
    QElapsedTimer m_burst;
    bool m_isLooking = false;
    bool m_limitIsTold = false;
    QThreadPool m_pool;
};

} // namespace viewer
