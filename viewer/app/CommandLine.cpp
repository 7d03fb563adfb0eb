// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/CommandLine.h"

#include "viewer/app/Language.h"
#include "viewer/app/ModuleLoader.h"

#include <QCommandLineParser>
#include <QRect>

namespace viewer {

namespace {

constexpr int LargestSide = 32767; // that the raster engine can draw
constexpr double LargestDpi = 10000;

} // namespace

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
    const QCommandLineOption locale(
        QStringLiteral("locale"),
        tr("Language of texts and numbers, such as de or zh_CN; that of the desktop unless given."),
        tr("name"));
    parser.addOptions({help, plugin, noGl, picture, locale});
    addHeadlessOptions(&parser);
    parser.addPositionalArgument(tr("scene"), tr("Scene file to open."), tr("[scene.json]"));

    if (!parser.parse(arguments)) {
        fail(parser.errorText());
    } else if (parser.isSet(help)) {
        outcome = Outcome::Answer;
        text = parser.helpText() + exitCodes();
    } else if (parser.isSet(version)) {
        outcome = Outcome::Answer;
        text = QStringLiteral("%1 %2\n").arg(QCoreApplication::applicationName(),
                                             QCoreApplication::applicationVersion());
    } else if (parser.positionalArguments().size() > 1) {
        fail(tr("Only one scene can be opened."));
    } else if (parser.isSet(picture) && parser.value(picture).isEmpty()) {
        fail(tr("The option --screenshot needs the name of a file."));
    } else if (parser.isSet(locale) && !Language::isName(parser.value(locale))) {
        fail(
            tr("\"%1\" is not the name of a language: de would be one.").arg(parser.value(locale)));
    }
    scene = parser.positionalArguments().value(0);
    plugins = parser.values(plugin);
    if (plugins.isEmpty())
        plugins.append(ModuleLoader::defaultPlugin());
    screenshot = parser.value(picture);
    withoutGl = parser.isSet(noGl);
    if (outcome == Outcome::Run)
        checkValues(parser);
    if (outcome == Outcome::Run)
        readHeadless(parser);
    if (outcome == Outcome::Run)
        readScripts(parser);
}

// A batch run would go on without what an unset variable was to name, or with the last of two files.
void CommandLine::checkValues(const QCommandLineParser &parser)
{
    if (parser.positionalArguments().contains(QString()))
        fail(tr("The name of the scene is empty."));
    for (const char *option : {"scene", "script", "record", "save", "export", "size", "dpi"}) {
        const QString name = QString::fromLatin1(option);
        const QStringList values = parser.values(name);
        if (values.contains(QString()))
            fail(tr("The option --%1 needs a value.").arg(name));
        else if (values.size() > 1)
            fail(tr("The option --%1 can be given only once.").arg(name));
    }
}

void CommandLine::addHeadlessOptions(QCommandLineParser *parser)
{
    parser->addOptions({
        {QStringLiteral("headless"), tr("Run without window and display; ask nothing.")},
        {QStringLiteral("scene"), tr("Open this scene."), tr("file")},
        {QStringLiteral("script"), tr("Run this script once the scene is open."), tr("file")},
        {QStringLiteral("record"), tr("Record what is done to the scene as a script."), tr("file")},
        {QStringLiteral("save"), tr("Headless: save the scene."), tr("file")},
        {QStringLiteral("export"), tr("Headless: save a picture of the view."), tr("file")},
        {QStringLiteral("size"), tr("Size of the exported picture; 1920x1080 unless given."),
         tr("WIDTHxHEIGHT")},
        {QStringLiteral("dpi"), tr("Dots per inch of the exported picture; 96 unless given."),
         tr("number")},
        {QStringLiteral("transparent"), tr("Export without backdrop.")},
    });
}

QString CommandLine::exitCodes()
{
    return tr("\nA headless run returns:\n"
              "  0  all was done\n"
              "  2  the arguments are wrong\n"
              "  3  done, but an image that is shown cannot be read; a placeholder was drawn\n"
              "  4  the scene cannot be read\n"
              "  5  the scene or the picture cannot be written\n"
              "  6  a module cannot be loaded\n"
              "  7  the script cannot be read, or failed; nothing was written\n"
              "  8  the script was interrupted; nothing was written\n");
}

void CommandLine::readHeadless(const QCommandLineParser &parser)
{
    headless.isOn = parser.isSet(QStringLiteral("headless"));
    headless.save = parser.value(QStringLiteral("save"));
    headless.picture = parser.value(QStringLiteral("export"));
    headless.isTransparent = parser.isSet(QStringLiteral("transparent"));
    for (const char *option : {"save", "export", "size", "dpi", "transparent"}) {
        const QString name = QString::fromLatin1(option);
        if (!headless.isOn && parser.isSet(name))
            fail(tr("The option --%1 needs --headless.").arg(name));
    }
    if (headless.isOn && !screenshot.isEmpty())
        fail(tr("The option --screenshot needs a window: --export saves a picture without one."));
    if (parser.isSet(QStringLiteral("scene"))) {
        if (!scene.isEmpty())
            fail(tr("Only one scene can be opened."));
        scene = parser.value(QStringLiteral("scene"));
    }
    if (parser.isSet(QStringLiteral("size")))
        readSize(parser.value(QStringLiteral("size")));
    if (parser.isSet(QStringLiteral("dpi")))
        readDpi(parser.value(QStringLiteral("dpi")));
}

void CommandLine::readScripts(const QCommandLineParser &parser)
{
    script = parser.value(QStringLiteral("script"));
    record = parser.value(QStringLiteral("record"));
    if (headless.isOn && !record.isEmpty())
        fail(tr("The option --record needs a window: a run without one has nobody to record."));
}

void CommandLine::readSize(const QString &given)
{
    const QStringList sides = given.split(QLatin1Char('x'));
    headless.size = QSize(sides.value(0).toInt(), sides.value(1).toInt());
    const QRect possible(1, 1, LargestSide, LargestSide);
    if (sides.size() != 2 || !possible.contains(headless.size.width(), headless.size.height()))
        fail(tr("The size \"%1\" is none: 3840x2160 would be one, up to %2 in each direction.")
                 .arg(given)
                 .arg(LargestSide));
}

void CommandLine::readDpi(const QString &given)
{
    headless.dpi = given.toDouble();
    // Written so that a value which is no number fails too.
    if (!(headless.dpi >= 1 && headless.dpi <= LargestDpi))
        fail(tr("The dots per inch must be a number from 1 to %1, and \"%2\" is none.")
                 .arg(LargestDpi)
                 .arg(given));
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

// The first fault is told: others may follow from it.
void CommandLine::fail(const QString &reason)
{
    if (outcome == Outcome::Fault)
        return;
    outcome = Outcome::Fault;
    text =
        QStringLiteral("%1: %2\n%3\n")
            .arg(QCoreApplication::applicationName(), reason,
                 tr("\"%1 --help\" lists all options.").arg(QCoreApplication::applicationName()));
}

} // namespace viewer
