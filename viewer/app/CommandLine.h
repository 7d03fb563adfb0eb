// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>
#include <QSize>
#include <QStringList>

class QCommandLineParser;

namespace viewer {

/// What a run without window writes. A plain value; part of the command line.
struct Headless
{
    bool isOn = false;
    QString save;    ///< scene file; empty: none
    QString picture; ///< empty: none
    QSize size{1920, 1080};
    double dpi = 96; ///< dots per inch, by which points become pixels
    bool isTransparent = false;
};

/// What the user asked for on the command line. A plain value; read once, by the main program.
class CommandLine
{
    Q_DECLARE_TR_FUNCTIONS(viewer::CommandLine)

public:
    /// What to do with the arguments: run, print `text` and succeed, or print it and fail.
    enum class Outcome { Run, Answer, Fault };

    /// Reads arguments, the program's name first.
    explicit CommandLine(const QStringList &arguments);

    /// Takes `--plugin` and its values out of the program's arguments and returns them. The toolkit
    /// has an option of that name too and would swallow them; so this comes before the application
    /// object, and what it returns is added to the application's arguments.
    static QStringList takePlugins(int *count, char **arguments);

    Outcome outcome = Outcome::Run;
    QString text;
    QString scene;       ///< empty: start without a scene
    QStringList plugins; ///< in the order of loading, at least one
    QString script;      ///< to run once the scene is open; empty: none
    QString record;      ///< file to record a session in; empty: not recorded
    QString screenshot;  ///< empty: run until the user quits
    bool withoutGl = false;
    Headless headless;

private:
    static void addHeadlessOptions(QCommandLineParser *parser);
    static QString exitCodes();
    void checkValues(const QCommandLineParser &parser);
    void readHeadless(const QCommandLineParser &parser);
    void readScripts(const QCommandLineParser &parser);
    void readSize(const QString &given);
    void readDpi(const QString &given);
    void fail(const QString &reason);
};

} // namespace viewer
