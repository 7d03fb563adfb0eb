// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "kit/output.h"

#include <QTemporaryFile>

#include <cstdio>
#include <unistd.h>

namespace {

QByteArray written(std::FILE *stream, const std::function<void()> &action)
{
    QTemporaryFile file;
    if (!file.open())
        return "no file";
    std::fflush(stream);
    const int before = dup(fileno(stream));
    dup2(file.handle(), fileno(stream));
    action();
    std::fflush(stream);
    dup2(before, fileno(stream));
    close(before);
    file.seek(0);
    return file.readAll();
}

} // namespace

QByteArray output::of(const std::function<void()> &action)
{
    return written(stdout, action);
}

QByteArray output::errorsOf(const std::function<void()> &action)
{
    return written(stderr, action);
}
