// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "kit/output.h"

#include <QTemporaryFile>

#include <cstdio>
#include <unistd.h>

QByteArray output::of(const std::function<void()> &action)
{
    QTemporaryFile file;
    if (!file.open())
        return "no file";
    std::fflush(stdout);
    const int before = dup(STDOUT_FILENO);
    dup2(file.handle(), STDOUT_FILENO);
    action();
    std::fflush(stdout);
    dup2(before, STDOUT_FILENO);
    close(before);
    file.seek(0);
    return file.readAll();
}
