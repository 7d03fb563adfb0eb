// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>
#include <QString>

class QWidget;

namespace viewer {

/// What the user is asked about files, each question a dialog over the window. A class of its own,
/// so that the document can be tried without anyone there to answer. Owned by the session.
class FileQuestions
{
    Q_DECLARE_TR_FUNCTIONS(viewer::FileQuestions)

public:
    enum class Answer { Save, Discard, Cancel };

    explicit FileQuestions(QWidget *window);
    virtual ~FileQuestions();
    Q_DISABLE_COPY(FileQuestions)

    /// What to do with the changes of a scene that is about to go.
    virtual Answer aboutChanges(const QString &name);

    /// Whether to write over what another program has written into the scene's file meanwhile.
    virtual bool mayOverwrite(const QString &name);

    /// Whether to take up what an earlier run left behind: yes (Save), no and forget it (Discard),
    /// or not now.
    virtual Answer aboutRecovery(const QString &name, const QString &when);

    /// A file to open; empty for none. `current` is where to begin, a file or a folder and a slash.
    virtual QString fileToOpen(const QString &current);

    /// A file to save in; empty for none. `current` as above. The user has agreed to overwrite it.
    virtual QString fileToSave(const QString &current);

    /// A script to run; empty for none. `last` is the one that was run before.
    virtual QString scriptToRun(const QString &last);

private:
    QWidget *m_window;
};

} // namespace viewer
