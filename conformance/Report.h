// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "conformance/Runner.h"

namespace conformance {

/// All results of one run, for people line by line, for programs as a file. Made by the main program.
class Report
{
public:
    /// `kind` is "module" or "host", `file` the library that is checked.
    Report(const QString &kind, const QString &file) : m_kind(kind), m_file(file) {}

    /// Notes a result and prints its line.
    void add(const Result &result);

    /// Prints the closing count.
    void close() const;

    /// What keeps a file from being written there; empty for nothing. Asked before the checks, which
    /// take minutes.
    static QString obstacleAt(const QString &path);

    /// Writes the results: JUnit's XML when the name ends in ".xml", else JSON. Returns what went
    /// wrong; empty for nothing.
    QString write(const QString &path) const;

    bool isGood() const { return failed() == 0; }

private:
    int failed() const;
    QByteArray json() const;
    QByteArray xml() const;

    QString m_kind;
    QString m_file;
    std::vector<Result> m_results;
};

} // namespace conformance
