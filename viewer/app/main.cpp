// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/kxIconManager.h"
#include "host/kxStyle.h"
#include "viewer/app/CommandLine.h"
#include "viewer/app/HeadlessRun.h"
#include "viewer/app/InterruptWatch.h"
#include "viewer/app/Language.h"
#include "viewer/app/ViewerSession.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QSettings>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

constexpr int EndedFromOutside = 1;

void nameApplication()
{
    QCoreApplication::setOrganizationName(QStringLiteral("overlay-editor"));
    QCoreApplication::setApplicationName(QStringLiteral("overlay-viewer"));
    QCoreApplication::setApplicationVersion(QStringLiteral(OVERLAY_VIEWER_VERSION));
}

// Questions are answered where there is no display too.
bool isQuestion(const char *argument)
{
    static const char *const questions[] = {"-h", "--help", "-v", "--version"};
    return std::any_of(std::begin(questions), std::end(questions),
                       [argument](const char *known) { return std::strcmp(argument, known) == 0; });
}

int answer(const viewer::CommandLine &line)
{
    const bool fault = line.outcome == viewer::CommandLine::Outcome::Fault;
    std::fputs(qPrintable(line.text), fault ? stderr : stdout);
    return fault ? 2 : 0;
}

// With a value too, so that it is refused where there is no display.
bool isHeadless(const char *argument)
{
    constexpr char option[] = "--headless";
    return std::strncmp(argument, option, sizeof option - 1) == 0;
}

QtMessageHandler s_formerHandler = nullptr;

// The toolkit tells of each batch job that it belongs to no session, which is nothing to be told of.
void tellAllButOfTheSession(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (!text.startsWith(QLatin1String("QStandardPaths: XDG_RUNTIME_DIR not set")))
        s_formerHandler(type, context, text);
}

// Pixmaps and fonts need a GUI application, and a batch run has no display for one.
void doWithoutDisplay()
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    s_formerHandler = qInstallMessageHandler(tellAllButOfTheSession);
}

viewer::Language chooseLanguage()
{
    return viewer::Language(viewer::Language::wantedBy(QCoreApplication::arguments()),
                            viewer::Language::standardFolders());
}

/// Without a question; what is not saved waits in the journal.
void endRun()
{
    QMetaObject::invokeMethod(
        qApp, [] { QCoreApplication::exit(EndedFromOutside); }, Qt::QueuedConnection);
}

int run(const viewer::CommandLine &line)
{
    if (line.headless.isOn)
        return viewer::HeadlessRun(line).run();
    QApplication::setApplicationDisplayName(
        QCoreApplication::translate("viewer", "Overlay Viewer"));
    QApplication::setStyle(new kxStyle);
    QApplication::setWindowIcon(kxIconManager::getIcon("Application", ""));
    QSettings settings;
    // Pictures look alike wherever they are taken.
    viewer::ViewerSession session(line, line.screenshot.isEmpty() ? &settings : nullptr);
    const viewer::InterruptWatch watch(endRun, [] { std::_Exit(EndedFromOutside); });
    session.start();
    return QApplication::exec();
}

} // namespace

int main(int argc, char **argv)
{
    nameApplication();
    if (std::any_of(argv + 1, argv + argc, isQuestion)) {
        const QCoreApplication application(argc, argv);
        const viewer::Language language = chooseLanguage();
        return answer(viewer::CommandLine(QCoreApplication::arguments()));
    }
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    if (std::any_of(argv + 1, argv + argc, isHeadless))
        doWithoutDisplay();
    const QStringList plugins = viewer::CommandLine::takePlugins(&argc, argv);
    const QApplication application(argc, argv);
    viewer::Language language = chooseLanguage();
    const viewer::CommandLine line(QCoreApplication::arguments() + plugins);
    for (const QString &plugin : line.plugins)
        language.addFolder(
            QFileInfo(plugin).absoluteDir().filePath(QStringLiteral("translations")));
    return line.outcome == viewer::CommandLine::Outcome::Run ? run(line) : answer(line);
}
