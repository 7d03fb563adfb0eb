// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/script/ScriptRun.h"

#include "viewer/script/ScriptBridge.h"
#include "viewer/script/ScriptSource.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

// A library's resources are only there once they are asked for; the macro must stand outside of
// namespaces.
static void loadPrelude()
{
    Q_INIT_RESOURCE(script);
}

namespace viewer {

namespace {

// Under this name the engine knows the script; its frames are told from those of the prelude by it.
QString engineName()
{
    return QStringLiteral("script");
}

QString preludeText()
{
    loadPrelude();
    QFile file(QStringLiteral(":/viewer/script/prelude.js"));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// The innermost line of the script that was being executed; 0 where that is not known.
int lineOf(const QJSValue &error)
{
    static const QRegularExpression frame(QStringLiteral("@file:script:([1-9][0-9]*)(?:\n|$)"));
    const QRegularExpressionMatch match =
        frame.match(error.property(QStringLiteral("stack")).toString());
    return match.hasMatch() ? match.captured(1).toInt() : 0;
}

} // namespace

/// Keeps an engine where interrupt() finds it.
class ScriptRun::Interruptible
{
public:
    Interruptible(ScriptRun *run, QJSEngine *engine) : m_run(run)
    {
        const QMutexLocker locker(&m_run->m_mutex);
        m_run->m_engine = engine;
        engine->setInterrupted(m_run->m_isInterrupted);
    }
    ~Interruptible()
    {
        const QMutexLocker locker(&m_run->m_mutex);
        m_run->m_engine = nullptr;
    }
    Q_DISABLE_COPY(Interruptible)

private:
    ScriptRun *m_run;
};

ScriptRun::ScriptRun(OverlayService *service, ScriptCall::Invoke invoke, Print print)
    : m_service(service)
    , m_invoke(std::move(invoke))
    , m_print(std::move(print))
{
}

void ScriptRun::interrupt()
{
    const QMutexLocker locker(&m_mutex);
    m_isInterrupted = true;
    if (m_engine)
        m_engine->setInterrupted(true);
}

QString ScriptRun::interruptedText(const QString &file)
{
    return tr("The script \"%1\" was interrupted.").arg(QDir::toNativeSeparators(file));
}

ScriptOutcome ScriptRun::run(const QString &file)
{
    const TextReading source = ScriptSource::read(file);
    if (!source.error.isEmpty())
        return {ScriptOutcome::End::Failed, source.error};
    std::optional<ScriptSteps> steps;
    m_invoke([&] { steps.emplace(m_service, tr("Run %1").arg(QFileInfo(file).fileName())); });
    const ScriptOutcome outcome = execute(file, source.text, &*steps);
    m_invoke([&] {
        if (outcome.end != ScriptOutcome::End::Done)
            steps->rollBack();
        steps.reset();
    });
    return outcome;
}

ScriptOutcome ScriptRun::execute(const QString &file, const QString &text, ScriptSteps *steps)
{
    QJSEngine engine;
    const Interruptible interruptible(this, &engine);
    ScriptBridge bridge(&engine, steps, m_invoke, m_print, QFileInfo(file).absolutePath());
    const QJSValue prepare = engine.evaluate(preludeText(), QStringLiteral("prelude"));
    const QJSValue start = QJSValue(prepare).call({bridge.value()});
    // In a function of its own, so that what it throws can be told from what it comes to.
    const QJSValue script = engine.evaluate(
        QLatin1String("(function () {") + text + QLatin1String("\n})"), engineName());
    if (script.isError())
        return outcomeOf(engine, file, script);
    const QJSValue thrown = QJSValue(start).call({script});
    if (engine.isInterrupted() || thrown.isArray())
        return outcomeOf(engine, file, thrown.property(0));
    return {};
}

ScriptOutcome ScriptRun::outcomeOf(const QJSEngine &engine, const QString &file,
                                   const QJSValue &thrown) const
{
    const QString shown = QDir::toNativeSeparators(file);
    if (engine.isInterrupted())
        return {ScriptOutcome::End::Interrupted, interruptedText(file)};
    const int line = lineOf(thrown);
    const QString place = line > 0 ? QStringLiteral("%1:%2").arg(shown).arg(line) : shown;
    return {ScriptOutcome::End::Failed, QStringLiteral("%1: %2").arg(place, thrown.toString())};
}

} // namespace viewer
