// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "conformance/Check.h"
#include "kit/MessageGuard.h"

#include <QRegularExpression>

#include <memory>

namespace conformance {

/// Checks of one side, ready to be run on one library. The runner lists them in its own process and
/// calls the rest in child processes, one thread each.
class Suite
{
public:
    /// A check without what it does.
    struct Info
    {
        QString name;
        QString rule;
        Stage stage = Stage::Running;
    };

    Suite() = default;
    virtual ~Suite() = default;
    Q_DISABLE_COPY(Suite)

    const std::vector<Info> &infos() const { return m_infos; }

    /// Loads the library. Throws std::runtime_error when it is none that can be checked.
    virtual void load() = 0;

    /// Runs one check; throws its Failure.
    virtual void run(int index) = 0;

    /// Takes down what load() has built, in the order of an application.
    virtual void end() = 0;

protected:
    std::vector<Info> m_infos;
};

/// The suite of one kind of bench, which is made of a file name and has the functions enter() and
/// reset().
template<class Bench>
class BenchSuite : public Suite
{
public:
    /// Takes the checks whose names match one of the patterns; all when there is none.
    BenchSuite(const QString &file, const Checks<Bench> &all,
               const std::vector<QRegularExpression> &patterns)
        : m_file(file)
    {
        for (const Check<Bench> &check : all) {
            const auto matches = [&check](const QRegularExpression &pattern) {
                return pattern.match(check.name).hasMatch();
            };
            if (!patterns.empty() && std::none_of(patterns.begin(), patterns.end(), matches))
                continue;
            m_checks.push_back(check);
            m_infos.push_back({check.name, check.rule, check.stage});
        }
    }

    void load() override { m_bench = std::make_unique<Bench>(m_file); }

    void run(int index) override
    {
        const Check<Bench> &check = m_checks.at(size_t(index));
        const MessageGuard guard;
        if (check.stage == Stage::Running) {
            m_bench->enter();
            m_bench->reset();
        }
        check.run(*m_bench);
        expectEqual("messages of the toolkit", guard.faults(), QStringList());
    }

    void end() override { m_bench.reset(); }

private:
    QString m_file;
    Checks<Bench> m_checks;
    std::unique_ptr<Bench> m_bench;
};

} // namespace conformance
