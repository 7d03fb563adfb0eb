// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "viewer/script/ScriptCall.h"

#include <QMutex>

namespace viewer {

/// How a script ended. The text is a full sentence for the user.
struct ScriptOutcome
{
    enum class End { Done, Failed, Interrupted };

    End end = End::Done;
    QString text; ///< "file:line: reason" of a failure; empty when done
};

/// Runs one script: JavaScript with the overlay service as `overlays`, the steps of the script as
/// `history`, print() and readText(). All that a script does to the scene becomes one step of its
/// history, named by the script; a script that fails or is interrupted leaves the scene as it was.
///
/// The script runs on the thread that calls run(). Where that is not the service's own, `invoke`
/// takes each operation there and waits for it. Announcements reach the script's handlers when the
/// operation that caused them is over. Made for one run, by whoever asked for it.
class ScriptRun
{
    Q_DECLARE_TR_FUNCTIONS(viewer::ScriptRun)

public:
    using Print = std::function<void(const QString &)>;

    ScriptRun(OverlayService *service, ScriptCall::Invoke invoke, Print print);

    /// Runs the script in a file.
    ScriptOutcome run(const QString &file);

    /// Ends the script as soon as its next piece of JavaScript is reached, also before it has begun.
    /// May be called on any thread.
    void interrupt();

    /// What is told of a script that was interrupted.
    static QString interruptedText(const QString &file);

private:
    class Interruptible;

    ScriptOutcome execute(const QString &file, const QString &text, ScriptSteps *steps);
    ScriptOutcome outcomeOf(const QJSEngine &engine, const QString &file,
                            const QJSValue &thrown) const;

    OverlayService *m_service;
    const ScriptCall::Invoke m_invoke;
    const Print m_print;
    QMutex m_mutex; // guards the two below
    QJSEngine *m_engine = nullptr;
    bool m_isInterrupted = false;
};

} // namespace viewer
