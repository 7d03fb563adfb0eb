// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <condition_variable>
#include <mutex>
#include <thread>

namespace viewer {

/// Tells on standard error, while it lives, that a piece of work goes on: a line after two seconds
/// and then ever more rarely, at least one a minute. Work that is done by then is not told of. For
/// runs without window.
class ProgressReport
{
public:
    /// `sentence` has the places %1 for the file that is worked on and %2 for the seconds so far.
    ProgressReport(const QString &sentence, const QString &file);
    ~ProgressReport();
    Q_DISABLE_COPY(ProgressReport)

private:
    void report();

    const QString m_sentence;
    const QString m_file;
    std::mutex m_mutex;
    std::condition_variable m_end;
    bool m_isOver = false;
    std::thread m_thread; // the last one, since it uses the others
};

} // namespace viewer
