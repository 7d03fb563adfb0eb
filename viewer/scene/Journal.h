// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "viewer/scene/SceneReader.h"

#include <QDateTime>
#include <QFutureWatcher>
#include <QLockFile>
#include <QObject>
#include <QTimer>

#include <memory>
#include <optional>

class QThreadPool;

namespace viewer {

class OverlayService;

/// Work that a run left behind when it did not end properly.
struct LostWork
{
    QString journal; ///< the file that holds it
    QString path;    ///< the scene file that was open; empty for none
    QDateTime time;  ///< of the last change in it

    /// Keeps other viewers off the journal; goes with the last copy.
    std::shared_ptr<QLockFile> claim = nullptr;
};

/// Keeps what is not saved yet in a file of its own, so that a crash loses no more than the last
/// moment of work. Every step starts the writing of the whole scene, at most half a second later
/// and never twice in that time; each writing replaces the file as a whole. The file goes when the
/// scene is saved or let go, and stays when the run ends otherwise. One for each running viewer,
/// guarded by a lock that ends with the process; owned by the session.
///
/// Lives on the GUI thread and puts the text together there; a thread of `writer` brings it to the
/// disk, which may be slow, one text at a time.
class Journal : public QObject
{
    Q_OBJECT

public:
    /// Journals in `folder`, which is made when it is needed.
    Journal(OverlayService *service, const QString &folder, QThreadPool *writer);
    /// Writes what is due: a run that is ended from outside leaves its work to the next one.
    ~Journal() override;

    /// The scene file that the work belongs to from now on; empty for none.
    void setPath(const QString &path);

    /// Writes now what is due and waits for it. False when that failed.
    bool flush();

    /// The user does not want what is not saved. Nothing of the scene is kept any more.
    void letGo();

    /// Claims the journals in `folder` that no running viewer holds, oldest first. What else killed
    /// viewers left there, such as a text that was not whole yet, goes.
    static QVector<LostWork> lostWork(const QString &folder);

    /// Takes up a single journal; none when another viewer holds it or has been done with it.
    static std::optional<LostWork> claim(const QString &journal);

    /// The scene in a journal; none, with an error that names file and place, when it is broken.
    static SceneReading recover(const LostWork &work);

    /// Gives a broken journal a name under which it is no journal any more, and returns that; its own
    /// where it has to keep it.
    static QString putAside(const LostWork &work);

    static void forget(const LostWork &work);

Q_SIGNALS:
    /// Writing failed; not sent again before it has succeeded.
    void failed(const QString &text);

private:
    bool isNeeded() const;
    void follow();
    void writeWhenFree();
    void startWriting();
    bool finishWriting();

    OverlayService *m_service;
    QThreadPool *m_writer;
    QString m_folder;
    QString m_file;
    QString m_path;
    std::unique_ptr<QLockFile> m_lock;
    QTimer m_due;
    QFutureWatcher<bool> m_writing;
    bool m_hasFailed = false;
    bool m_isLetGo = false;
};

} // namespace viewer
