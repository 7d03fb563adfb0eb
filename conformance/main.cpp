// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "conformance/Options.h"
#include "conformance/Report.h"
#include "conformance/module/moduleChecks.h"
#include "conformance/service/hostChecks.h"

#include <cstdio>
#include <exception>
#include <memory>

using namespace conformance;

namespace {

void list(const char *kind, const Suite &suite)
{
    for (const Suite::Info &info : suite.infos())
        std::printf("%-6s %-36s %s\n", kind, qPrintable(info.name), qPrintable(info.rule));
}

int listAll(const Options &options)
{
    if (options.host.isEmpty())
        list("module", BenchSuite<ModuleBench>(QString(), moduleChecks(), options.only));
    if (options.plugin.isEmpty())
        list("host", BenchSuite<HostBench>(QString(), hostChecks(), options.only));
    return 0;
}

std::unique_ptr<Suite> suiteOf(const Options &options)
{
    if (options.plugin.isEmpty())
        return std::make_unique<BenchSuite<HostBench>>(options.host, hostChecks(), options.only);
    return std::make_unique<BenchSuite<ModuleBench>>(options.plugin, moduleChecks(), options.only);
}

int fault(const QString &text)
{
    std::fprintf(stderr, "conformance: %s\n", qPrintable(text));
    return 2;
}

/// The checks of a module drag with a mouse of their own, for which one platform alone has room.
void choosePlatform(bool isModule)
{
    if (isModule)
        qputenv("QT_QPA_PLATFORM", "minimal:enable_fonts");
    else if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
}

int runAll(const Options &options)
{
    const bool isModule = !options.plugin.isEmpty();
    choosePlatform(isModule);
    const std::unique_ptr<Suite> suite = suiteOf(options);
    if (suite->infos().empty())
        return fault("no check has such a name");
    const bool hasFile = !options.report.isEmpty();
    const QString obstacle = hasFile ? Report::obstacleAt(options.report) : QString();
    if (!obstacle.isEmpty())
        return fault(QStringLiteral("%1: %2").arg(options.report, obstacle));
    Report report(isModule ? "module" : "host", isModule ? options.plugin : options.host);
    try {
        Runner(suite.get(), options.seconds, options.first).run([&report](const Result &result) {
            report.add(result);
        });
    } catch (const std::exception &problem) {
        return fault(QString::fromLocal8Bit(problem.what()));
    }
    report.close();
    const QString problem = hasFile ? report.write(options.report) : QString();
    if (!problem.isEmpty())
        return fault(QStringLiteral("%1: %2").arg(options.report, problem));
    return report.isGood() ? 0 : 1;
}

} // namespace

/// Runs no application itself: the checks do, each in a process of its own.
int main(int argc, char **argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    const Options options(arguments);
    if (options.outcome != Options::Outcome::Run) {
        const bool isFault = options.outcome == Options::Outcome::Fault;
        std::fputs(qPrintable(options.text), isFault ? stderr : stdout);
        return isFault ? 2 : 0;
    }
    return options.list ? listAll(options) : runAll(options);
}
