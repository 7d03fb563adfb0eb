// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDebug>
#include <QString>

#include <functional>
#include <vector>

namespace conformance {

/// What a check has found wrong: thrown by the check, written into the report.
struct Failure
{
    QString what; ///< the thing that was looked at
    QString expected;
    QString seen;
};

/// In which process a check runs, and what has happened there before.
enum class Stage {
    Running, ///< the library was entered; shares the process with its neighbours
    Fresh,   ///< a process of its own, in which the library is not entered yet
    Ending   ///< the same, and the process has to come to a regular end afterwards
};

/// One stated behaviour. `name` is what users choose by, `rule` is the statement in one sentence,
/// `run` throws a Failure when it does not hold. Bench is what the check works with.
template<class Bench>
struct Check
{
    QString name;
    QString rule;
    std::function<void(Bench &)> run;
    Stage stage = Stage::Running;
};

template<class Bench>
using Checks = std::vector<Check<Bench>>;

/// A value as reports write it.
template<class T>
QString textOf(const T &value)
{
    QString text;
    QDebug(&text).nospace() << value;
    return text;
}

/// The check fails unless both are equal.
template<class Seen, class Wanted>
void expectEqual(const char *what, const Seen &seen, const Wanted &wanted)
{
    if (!(seen == wanted))
        throw Failure{QString::fromUtf8(what), textOf(wanted), textOf(seen)};
}

/// Puts the checks of several subjects into one list.
template<class Bench>
Checks<Bench> joined(std::initializer_list<Checks<Bench>> parts)
{
    Checks<Bench> all;
    for (const Checks<Bench> &part : parts)
        all.insert(all.end(), part.begin(), part.end());
    return all;
}

/// The check fails unless the statement holds.
inline void expect(const char *statement, bool holds)
{
    if (!holds)
        throw Failure{QString::fromUtf8(statement), QStringLiteral("it holds"),
                      QStringLiteral("it does not")};
}

} // namespace conformance
