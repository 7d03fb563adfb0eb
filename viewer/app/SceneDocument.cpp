// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/SceneDocument.h"

#include "viewer/scene/SceneWriter.h"

#include <QFileInfo>
#include <QSettings>

#include <utility>

namespace viewer {

namespace {

constexpr int MostLines = 6;
constexpr int MostRecent = 8;

QString recentKey()
{
    return QStringLiteral("recentFiles");
}

} // namespace

SceneDocument::SceneDocument(OverlayService *service, FileQuestions *questions, QSettings *settings)
    : m_service(service)
    , m_questions(questions)
    , m_settings(settings)
{
}

QString SceneDocument::name() const
{
    return m_path.isEmpty() ? tr("Untitled") : QFileInfo(m_path).fileName();
}

bool SceneDocument::isModified() const
{
    return !m_service->history().stack()->isClean();
}

bool SceneDocument::mayGo()
{
    emit editsWanted();
    if (!isModified())
        return true;
    const FileQuestions::Answer answer = m_questions->aboutChanges(name());
    return answer == FileQuestions::Answer::Discard
           || (answer == FileQuestions::Answer::Save && save());
}

QString SceneDocument::summary(const QStringList &warnings)
{
    QString text = warnings.mid(0, MostLines).join(QLatin1Char('\n'));
    const int more = warnings.size() - MostLines;
    if (more > 0)
        text += QLatin1Char('\n') + tr("... and %n more", nullptr, more);
    return text;
}

void SceneDocument::startNew()
{
    if (!mayGo())
        return;
    emit dismissed();
    emit aboutToReplace();
    m_service->setScene(Scene());
    setPath(QString());
}

void SceneDocument::chooseAndOpen()
{
    const QString file = m_questions->fileToOpen(lastPlace());
    if (!file.isEmpty())
        open(file);
}

void SceneDocument::open(const QString &file)
{
    if (!mayGo())
        return;
    emit dismissed();
    load(file);
}

bool SceneDocument::load(const QString &file)
{
    const FileState state = stateOf(file); // before what is read
    SceneReading reading = SceneReader::read(file);
    if (!reading.scene) {
        emit reported(Severity::Error,
                      tr("The scene was not opened.") + QLatin1Char('\n') + reading.error);
        return false;
    }
    emit aboutToReplace();
    m_service->setScene(std::move(*reading.scene));
    const QString path = QFileInfo(file).absoluteFilePath();
    setPath(path);
    m_state = state;
    remember(path);
    emit opened(path);
    if (!reading.warnings.isEmpty())
        emit reported(Severity::Warning, summary(reading.warnings));
    if (!reading.missingImages.isEmpty())
        emit imagesMissing(reading.missingImages);
    return true;
}

void SceneDocument::setUnsavedScene(Scene scene, const QString &path, const QDateTime &time)
{
    emit aboutToReplace();
    m_service->setScene(std::move(scene));
    m_service->history().setUnsaved();
    setPath(path);
    m_state = stateOf(path);
    if (m_state.time > time)
        m_state = {};
}

bool SceneDocument::save()
{
    if (m_path.isEmpty())
        return saveAs();
    emit editsWanted();
    return mayWrite() && write(m_path);
}

bool SceneDocument::saveAs()
{
    emit editsWanted();
    const QString file = m_questions->fileToSave(lastPlace());
    return !file.isEmpty() && write(QFileInfo(file).absoluteFilePath());
}

SceneDocument::FileState SceneDocument::stateOf(const QString &file)
{
    const QFileInfo info(file);
    return info.exists() ? FileState{info.lastModified(), info.size()} : FileState();
}

/// Whether the file still holds what was read from it or written into it, or may lose what it holds
/// instead. One that is gone has nothing to lose.
bool SceneDocument::mayWrite()
{
    const FileState now = stateOf(m_path);
    const bool isKnown = now.time == m_state.time && now.size == m_state.size;
    return isKnown || !now.time.isValid() || m_questions->mayOverwrite(name());
}

bool SceneDocument::write(const QString &file)
{
    const SceneWriting writing = SceneWriter::write(m_service->scene(), file);
    const QString fault = std::exchange(m_fault, writing.error);
    if (!fault.isEmpty() && fault != m_fault)
        emit overcome(fault);
    if (!writing.isWritten()) {
        emit reported(Severity::Error, m_fault);
        return false;
    }
    m_service->history().setSaved();
    setPath(file);
    m_state = stateOf(file);
    remember(file);
    emit saved(file);
    if (!writing.warnings.isEmpty())
        emit reported(Severity::Warning, summary(writing.warnings));
    return true;
}

void SceneDocument::setPath(const QString &path)
{
    m_path = path;
    m_service->setImageFolder(path.isEmpty() ? QString() : QFileInfo(path).absolutePath());
    emit pathChanged(path);
}

/// Where a dialog for files begins: at the scene's file or, without one, in the folder of the scene that
/// was open last.
QString SceneDocument::lastPlace() const
{
    const QString last = recentFiles().value(0);
    if (!m_path.isEmpty() || last.isEmpty())
        return m_path;
    return QFileInfo(last).absolutePath() + QLatin1Char('/');
}

QStringList SceneDocument::recentFiles() const
{
    return m_settings ? m_settings->value(recentKey()).toStringList() : QStringList();
}

void SceneDocument::forgetRecentFiles()
{
    if (m_settings)
        m_settings->remove(recentKey());
}

void SceneDocument::remember(const QString &file)
{
    if (!m_settings)
        return;
    QStringList files = recentFiles();
    files.removeAll(file);
    files.prepend(file);
    m_settings->setValue(recentKey(), QStringList(files.mid(0, MostRecent)));
}

} // namespace viewer
