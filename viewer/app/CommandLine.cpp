// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/CommandLine.h"

#include "viewer/app/ModuleLoader.h"

#include <QCommandLineParser>

namespace viewer {

CommandLine::CommandLine(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(tr("Shows a scene and its overlays, and hosts modules."));
    // Qt's own option would come with a second one that lists options of Qt.
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")},
                                  tr("Show this help."));
    const QCommandLineOption version = parser.addVersionOption();
    const QCommandLineOption plugin(QStringLiteral("plugin"),
                                    tr("Load this module instead of the editor; may be repeated."),
                                    tr("file"));
    const QCommandLineOption noGl(QStringLiteral("no-gl"),
                                  tr("Paint a backdrop instead of the 3D view."));
    const QCommandLineOption picture(
        QStringLiteral("screenshot"),
        tr("Save a picture of the window once all is shown, and quit."), tr("file"));
    parser.addOptions({help, plugin, noGl, picture});
    parser.addPositionalArgument(tr("scene"), tr("Scene file to open."), tr("[scene.json]"));

    if (!parser.parse(arguments)) {
        fail(parser.errorText());
    } else if (parser.isSet(help)) {
        outcome = Outcome::Answer;
        text = parser.helpText();
    } else if (parser.isSet(version)) {
        outcome = Outcome::Answer;
        text = QStringLiteral("%1 %2\n").arg(QCoreApplication::applicationName(),
                                             QCoreApplication::applicationVersion());
    } else if (parser.positionalArguments().size() > 1) {
        fail(tr("Only one scene can be opened."));
    } else if (parser.isSet(picture) && parser.value(picture).isEmpty()) {
        fail(tr("The option --screenshot needs the name of a file."));
    }
    scene = parser.positionalArguments().value(0);
    plugins = parser.values(plugin);
    if (plugins.isEmpty())
        plugins.append(ModuleLoader::defaultPlugin());
    screenshot = parser.value(picture);
    withoutGl = parser.isSet(noGl);
}

QStringList CommandLine::takePlugins(int *count, char **arguments)
{
    QStringList taken;
    int kept = 0;
    for (int i = 0; i < *count; ++i) {
        const QString argument = QString::fromLocal8Bit(arguments[i]);
        const bool hasValueBehind = argument == QLatin1String("--plugin") && i + 1 < *count;
        if (!hasValueBehind && !argument.startsWith(QLatin1String("--plugin="))) {
            arguments[kept++] = arguments[i];
            continue;
        }
        taken.append(argument);
        if (hasValueBehind)
            taken.append(QString::fromLocal8Bit(arguments[++i]));
    }
    arguments[kept] = nullptr;
    *count = kept;
    return taken;
}

void CommandLine::fail(const QString &reason)
{
    outcome = Outcome::Fault;
    text =
        QStringLiteral("%1: %2\n%3\n")
            .arg(QCoreApplication::applicationName(), reason,
                 tr("\"%1 --help\" lists all options.").arg(QCoreApplication::applicationName()));
}

} // namespace viewer
