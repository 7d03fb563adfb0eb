// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QRegularExpression>
#include <QStringList>

#include <vector>

namespace conformance {

/// What the user asked for on the command line. A plain value, read once by the main program.
class Options
{
public:
    enum class Outcome { Run, Answer, Fault };

    /// Reads arguments, the program's name first.
    explicit Options(const QStringList &arguments);

    Outcome outcome = Outcome::Run;
    QString text;   ///< the answer or the fault
    QString plugin; ///< module to be checked
    QString host;   ///< or host to be checked
    QString report; ///< empty: no file
    bool list = false;
    bool first = false;                   ///< stop at the first check that fails
    int seconds = 60;                     ///< for one check
    std::vector<QRegularExpression> only; ///< empty: all checks

private:
    void fail(const QString &reason);
};

} // namespace conformance
