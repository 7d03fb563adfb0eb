// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

// Preloaded into a program: a disk that keeps it waiting, once. The program waits where it first opens
// the file named in KX_SLOW_FILE, or brings a file to the disk, until somebody opens the pipe named in
// KX_SLOW_GATE for writing.

#include <atomic>
#include <cstdarg>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace {

void wait()
{
    static std::atomic_bool hasWaited{false};
    if (!hasWaited.exchange(true))
        ::close(::openat(AT_FDCWD, std::getenv("KX_SLOW_GATE"), O_RDONLY | O_CLOEXEC));
}

} // namespace

// What they stand for would be found behind them only; so they call what does the same.

extern "C" __attribute__((visibility("default"))) int open64(const char *path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const auto mode = va_arg(arguments, mode_t); // the toolkit gives it always
    va_end(arguments);
    if (std::strcmp(path, std::getenv("KX_SLOW_FILE")) == 0)
        wait();
    return ::openat(AT_FDCWD, path, flags, mode);
}

extern "C" __attribute__((visibility("default"))) int fdatasync(int file)
{
    wait();
    return ::fsync(file);
}
