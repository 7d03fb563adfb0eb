// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "viewer/script/ScriptRun.h"

#include <QProgressDialog>

#include <condition_variable>
#include <memory>
#include <mutex>

namespace viewer {

/// Runs a script while a window is open. The script has a thread of its own, so that it can be
/// cancelled whatever it does; its operations are carried out here, on the GUI thread, which waits
/// for them. After half a second a dialog appears, which keeps the user from editing meanwhile and
/// ends the script by its button or Escape. Made by the session for one run.
class ScriptInWindow
{
    Q_DECLARE_TR_FUNCTIONS(viewer::ScriptInWindow)

public:
    /// `print` is called on the GUI thread.
    ScriptInWindow(OverlayService *service, QWidget *window, ScriptRun::Print print);
    ~ScriptInWindow();
    Q_DISABLE_COPY(ScriptInWindow)

    /// Comes back when the script is over.
    ScriptOutcome run(const QString &file);

private:
    void askFor(const std::function<void()> &work);
    bool serveFor(int milliseconds);
    void showDialog(const QString &file);
    void cancel();

    QWidget *m_window;
    ScriptRun m_script;
    std::unique_ptr<QProgressDialog> m_dialog;

    std::mutex m_mutex; // guards the rest
    std::condition_variable m_asked;
    std::condition_variable m_answered;
    const std::function<void()> *m_work = nullptr; // what the script waits for
    bool m_isOver = false;
};

} // namespace viewer
