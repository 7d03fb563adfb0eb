// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

#include <functional>
#include <thread>

namespace viewer {

/// Turns the first SIGINT or SIGTERM that the process gets into a call; the next one ends the process
/// as ever, for what does not heed the call. One at a time, in runs without window.
class InterruptWatch
{
public:
    /// `interrupt` is called on a thread of the watch's own.
    explicit InterruptWatch(std::function<void()> interrupt);
    ~InterruptWatch();
    Q_DISABLE_COPY(InterruptWatch)

private:
    void watch(int pipe) const;

    const std::function<void()> m_interrupt;
    std::thread m_thread;
};

} // namespace viewer
