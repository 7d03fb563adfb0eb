// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "conformance/Suite.h"

#include <functional>

class QJsonObject;

namespace conformance {

/// How a check ended.
struct Result
{
    enum class Outcome { Passed, Failed, Crashed, Hung };

    Suite::Info check;
    Outcome outcome = Outcome::Passed;
    Failure failure;      ///< of all but a passed one
    int milliseconds = 0; ///< of a passed or failed one
};

/// Runs the checks of a suite in child processes, so that a library which crashes or hangs fails one
/// check and not the run. Neighbours share a process as long as all goes well; after a failure the
/// next check starts with a new one. Used by the main program, which must not have an application
/// object or threads: children are forks.
class Runner
{
public:
    Runner(Suite *suite, int secondsForACheck, bool stopsAtAFailure)
        : m_suite(suite)
        , m_seconds(secondsForACheck)
        , m_stops(stopsAtAFailure)
    {
    }

    /// Runs all checks in order and hands on each result as it comes. Throws std::runtime_error when
    /// the library cannot be checked at all.
    void run(const std::function<void(const Result &)> &take);

private:
    /// What one child has told, and how it ended.
    struct Told
    {
        int results = 0;
        QString cannotLoad;  ///< why; empty when it could
        bool isDone = false; ///< it ended because it was to
        bool hasFailure = false;
        bool hung = false;
        int status = 0;
    };
    using Take = std::function<void(const Result &)>;

    Told runChild(int first, const Take &take);
    void read(int pipe, Told *told, const Take &take) const;
    void takeLine(const QByteArray &line, Told *told, const Take &take) const;

    // in the child
    [[noreturn]] void child(int first, int pipe);
    bool runCheck(int index, int pipe);
    [[noreturn]] void end(int pipe, const QJsonObject &told);

    Suite *m_suite;
    int m_seconds;
    bool m_stops;
};

} // namespace conformance
