// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "conformance/Options.h"

#include <QCommandLineParser>
#include <QCoreApplication>

namespace conformance {

namespace {

const char s_exitCodes[] = "\nReturns 0 when all checks hold, 1 when some do not, 2 when the "
                           "arguments are wrong, the library cannot be checked or the report "
                           "cannot be written.\n";
const int s_mostSeconds = 24 * 60 * 60;

/// The parser asks an application, of which there is none yet, for the name of the program.
QString helpOf(const QCommandLineParser &parser)
{
    char name[] = "conformance";
    char *arguments[] = {name, nullptr};
    int count = 1;
    const QCoreApplication application(count, arguments);
    return parser.helpText();
}

} // namespace

Options::Options(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription("Checks whether a module or a host keeps the stated rules.");
    parser.addOptions({
        {{"h", "help"}, "Show this help."},
        {"plugin", "Check this module in the program's own host.", "file"},
        {"host", "Check the services of this host library.", "library"},
        {"only", "Run the checks whose names match, * standing for any text; may be repeated.",
         "pattern"},
        {"report",
         "Write all results into this file: as JUnit's XML when it ends in .xml, else "
         "as JSON.",
         "file"},
        {"timeout", "End a check that takes longer than this; 60 unless given.", "seconds"},
        {"first", "Stop at the first check that fails."},
        {"list", "List the checks and what they state, and run none."},
    });
    if (!parser.parse(arguments)) {
        fail(parser.errorText());
        return;
    }
    plugin = parser.value("plugin");
    host = parser.value("host");
    report = parser.value("report");
    list = parser.isSet("list");
    first = parser.isSet("first");
    const QStringList patterns = parser.values("only");
    for (const QString &pattern : patterns)
        only.emplace_back(QRegularExpression::wildcardToRegularExpression(pattern));
    if (parser.isSet("timeout"))
        seconds = parser.value("timeout").toInt();
    if (parser.isSet("help")) {
        outcome = Outcome::Answer;
        text = helpOf(parser) + s_exitCodes;
    } else if (!parser.positionalArguments().isEmpty()) {
        fail(QStringLiteral("'%1' is no option").arg(parser.positionalArguments().constFirst()));
    } else if (seconds < 1 || seconds > s_mostSeconds) {
        fail("the timeout has to be a number of seconds, a day at most");
    } else if (!list && plugin.isEmpty() == host.isEmpty()) {
        fail("give either --plugin or --host");
    }
}

void Options::fail(const QString &reason)
{
    outcome = Outcome::Fault;
    text = QStringLiteral("conformance: %1; --help lists the options\n").arg(reason);
}

} // namespace conformance
