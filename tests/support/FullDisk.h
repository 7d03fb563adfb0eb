// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <csignal>
#include <sys/resource.h>

/// As long as it lives, files of this process do not grow beyond a number of bytes: what a disk that
/// fills up in the midst of a file looks like to a program, for every user. GUI thread only.
class FullDisk
{
public:
    explicit FullDisk(rlim_t bytes) : m_signal(std::signal(SIGXFSZ, SIG_IGN))
    {
        ::getrlimit(RLIMIT_FSIZE, &m_limit);
        const rlimit full{bytes, m_limit.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &full);
    }

    ~FullDisk()
    {
        ::setrlimit(RLIMIT_FSIZE, &m_limit);
        std::signal(SIGXFSZ, m_signal);
    }

    FullDisk(const FullDisk &) = delete;
    FullDisk &operator=(const FullDisk &) = delete;

private:
    rlimit m_limit{};
    void (*m_signal)(int);
};
