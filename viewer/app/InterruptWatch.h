// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

#include <functional>
#include <thread>

namespace viewer {

/// Turns the first SIGINT, SIGTERM or SIGHUP that the process gets into a call, and into another one
/// where the work goes on all the same. A second signal of the same kind ends the process as ever, one of
/// another kind makes the second call at once. Under nohup, SIGHUP stays ignored. One at a time; made by
/// the main program for its window, and by runs without one.
class InterruptWatch
{
public:
    using Call = std::function<void()>;

    /// Both are called on a thread of the watch's own: `interrupt` at once, `giveUp` when the watch is
    /// still there two seconds later. The latter does not come back.
    InterruptWatch(Call interrupt, Call giveUp);
    ~InterruptWatch();
    Q_DISABLE_COPY(InterruptWatch)

private:
    void watch(int pipe) const;

    const Call m_interrupt;
    const Call m_giveUp;
    std::thread m_thread;
};

} // namespace viewer
