// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "viewer/script/ScriptRun.h"

#include <QObject>
#include <QStringList>

class QMenu;

namespace viewer {

class FileQuestions;
class MainWindow;

/// Run Script in the file menu, before its last entry, and what comes of it: what the script prints
/// goes to standard output and with the end of the script, or the reason why it failed, into the
/// window. Owned by the menu.
class ScriptActions : public QObject
{
    Q_OBJECT

public:
    ScriptActions(OverlayService *service, FileQuestions *questions, MainWindow *window);

    /// Runs a script; comes back when it is over.
    void run(const QString &file);

Q_SIGNALS:
    /// A script failed; `text` names the place.
    void failed(const QString &text);

private:
    void chooseAndRun();
    void show(const ScriptOutcome &outcome, const QString &file);

    OverlayService *m_service;
    FileQuestions *m_questions;
    MainWindow *m_window;
    QString m_lastScript;
    QStringList m_printed; // the last lines of it
};

} // namespace viewer
