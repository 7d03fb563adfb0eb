// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "viewer/app/FileQuestions.h"
#include "viewer/app/NoticeArea.h"
#include "viewer/scene/OverlayService.h"
#include "viewer/scene/SceneReader.h"

#include <QDateTime>
#include <QObject>

class QSettings;

namespace viewer {

/// The open scene as a file: where it is saved, whether it is, and what has to be asked before it
/// goes. Made and owned by the session; windows and menus call it. A file that cannot be read or
/// written leaves scene, history and file as they are.
class SceneDocument : public QObject
{
    Q_OBJECT

public:
    /// Remembers recent files in `settings`; null for a run that leaves nothing behind.
    SceneDocument(OverlayService *service, FileQuestions *questions, QSettings *settings);

    /// The file of the open scene; empty when it has none yet.
    QString path() const { return m_path; }

    /// The file's name for the user.
    QString name() const;

    bool isModified() const;

    /// Files that were opened or saved, the last one first.
    QStringList recentFiles() const;
    void forgetRecentFiles();

    /// True when the open scene may go: it is saved, or the user does not want it.
    bool mayGo();

    /// Opens a file without asking. False, with a report, when it is bad.
    bool load(const QString &file);

    /// Puts up a scene that no file holds in this state. What the file at `path` has held since
    /// `time` is the work of others.
    void setUnsavedScene(Scene scene, const QString &path, const QDateTime &time);

    /// Warnings for the user, shortened: a scene with a thousand missing images must not bury the
    /// view.
    static QString summary(const QStringList &warnings);

public Q_SLOTS:
    /// Asks for unsaved changes, then starts an empty scene.
    void startNew();

    /// Asks for a file, and for unsaved changes.
    void chooseAndOpen();

    /// Asks for unsaved changes, then opens a file.
    void open(const QString &file);

    /// False when nothing was written.
    bool save();
    bool saveAs();

Q_SIGNALS:
    /// The scene is about to be saved, or to be asked about: whoever holds an edit back, such as a
    /// field that is being typed in, hands it over now.
    void editsWanted();

    /// Another file or scene; the title of the window follows.
    void pathChanged(const QString &path);

    /// The open scene was read from a file or written into one.
    void opened(const QString &path);
    void saved(const QString &path);

    /// The user has let the open scene go; old messages are of no use any more.
    void dismissed();

    /// A scene is about to be replaced by another one.
    void aboutToReplace();

    void reported(viewer::Severity severity, const QString &text);

    /// A scene was read, but not all its image files are there.
    void imagesMissing(const QVector<viewer::MissingImage> &images);

    /// What was reported with this text is over.
    void overcome(const QString &text);

private:
    /// What tells whether a file has been written by others.
    struct FileState
    {
        QDateTime time; // invalid for no file, or an unknown one
        qint64 size = 0;
    };

    static FileState stateOf(const QString &file);
    bool mayWrite();
    bool write(const QString &file);
    void setPath(const QString &path);
    QString lastPlace() const;
    void remember(const QString &file);

    OverlayService *m_service;
    FileQuestions *m_questions;
    QSettings *m_settings;
    QString m_path;
    FileState m_state; // of the file when it was read or written here
    QString m_fault;   // for which the scene could not be saved last; empty once it could
};

} // namespace viewer
