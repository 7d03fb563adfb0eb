// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/InterruptWatch.h"

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <iterator>
#include <poll.h>
#include <unistd.h>

namespace viewer {

namespace {

constexpr char Signalled = 's';
constexpr char Over = 'o';
constexpr int Patience = 2000;
constexpr int Signals[] = {SIGINT, SIGTERM, SIGHUP};

// A handler may do next to nothing, so it wakes a thread through a pipe.
int s_pipe[2] = {-1, -1};
struct sigaction s_before[std::size(Signals)];

void wake(char what)
{
    while (::write(s_pipe[1], &what, 1) < 0 && errno == EINTR) {
    }
}

/// Waits for what comes through the pipe.
char readFrom(int pipe)
{
    char what = Over;
    while (::read(pipe, &what, 1) < 0 && errno == EINTR) {
    }
    return what;
}

extern "C" void handleSignal(int)
{
    const int error = errno;
    wake(Signalled);
    errno = error;
}

} // namespace

InterruptWatch::InterruptWatch(Call interrupt, Call giveUp)
    : m_interrupt(std::move(interrupt))
    , m_giveUp(std::move(giveUp))
{
    if (::pipe2(s_pipe, O_CLOEXEC) != 0)
        return; // signals end the process then
    m_thread = std::thread([this, pipe = s_pipe[0]] { watch(pipe); });
    struct sigaction action = {};
    action.sa_handler = handleSignal;
    action.sa_flags = int(SA_RESETHAND | SA_RESTART);
    for (std::size_t i = 0; i < std::size(Signals); ++i) {
        ::sigaction(Signals[i], nullptr, &s_before[i]);
        const bool outlivesTerminal = Signals[i] == SIGHUP && s_before[i].sa_handler == SIG_IGN;
        if (!outlivesTerminal)
            ::sigaction(Signals[i], &action, nullptr);
    }
}

InterruptWatch::~InterruptWatch()
{
    if (!m_thread.joinable())
        return;
    for (std::size_t i = 0; i < std::size(Signals); ++i)
        ::sigaction(Signals[i], &s_before[i], nullptr);
    wake(Over);
    m_thread.join();
    ::close(s_pipe[0]);
    ::close(s_pipe[1]);
}

void InterruptWatch::watch(int pipe) const
{
    if (readFrom(pipe) == Over)
        return;
    m_interrupt();
    pollfd next = {pipe, POLLIN, 0};
    // The same signal is not handled any more, but the others are.
    if (::poll(&next, 1, Patience) != 1 || readFrom(pipe) != Over)
        m_giveUp();
}

} // namespace viewer
