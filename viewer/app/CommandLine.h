// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>
#include <QStringList>

namespace viewer {

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
    QString screenshot;  ///< empty: run until the user quits
    bool withoutGl = false;

private:
    void fail(const QString &reason);
};

} // namespace viewer
