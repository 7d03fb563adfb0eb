// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/ScriptActions.h"

#include "viewer/app/FileQuestions.h"
#include "viewer/app/MainWindow.h"
#include "viewer/app/ScriptInWindow.h"

#include <QFileInfo>
#include <QMenu>
#include <QStatusBar>

#include <cstdio>

namespace viewer {

namespace {

constexpr int MostLines = 12; // of what a script prints, in the window
constexpr int StatusTime = 5000;

} // namespace

ScriptActions::ScriptActions(OverlayService *service, FileQuestions *questions, MainWindow *window)
    : QObject(window->fileMenu())
    , m_service(service)
    , m_questions(questions)
    , m_window(window)
{
    QMenu *menu = window->fileMenu();
    QAction *last = menu->actions().constLast();
    auto *action = new QAction(tr("R&un Script…"), this);
    action->setObjectName(QStringLiteral("runScript"));
    connect(action, &QAction::triggered, this, &ScriptActions::chooseAndRun);
    menu->insertAction(last, action);
    menu->insertSeparator(last);
}

void ScriptActions::chooseAndRun()
{
    const QString file = m_questions->scriptToRun(m_lastScript);
    if (!file.isEmpty())
        run(file);
}

void ScriptActions::run(const QString &file)
{
    m_lastScript = file;
    m_printed.clear();
    ScriptInWindow script(m_service, m_window, [this](const QString &text) {
        std::fprintf(stdout, "%s\n", qPrintable(text));
        std::fflush(stdout);
        m_printed += text;
        if (m_printed.size() > MostLines)
            m_printed = QStringList(QString(QChar(0x2026))) + m_printed.mid(2);
    });
    show(script.run(file), file);
}

void ScriptActions::show(const ScriptOutcome &outcome, const QString &file)
{
    if (!m_printed.isEmpty())
        m_window->notify(Severity::Info, m_printed.join(QLatin1Char('\n')));
    switch (outcome.end) {
    case ScriptOutcome::End::Done:
        m_window->statusBar()->showMessage(tr("Ran %1").arg(QFileInfo(file).fileName()),
                                           StatusTime);
        break;
    case ScriptOutcome::End::Interrupted:
        m_window->notify(Severity::Info,
                         tr("%1\nThe scene is as it was before.").arg(outcome.text));
        break;
    case ScriptOutcome::End::Failed:
        emit failed(tr("%1\nThe scene is as it was before.").arg(outcome.text));
    }
}

} // namespace viewer
