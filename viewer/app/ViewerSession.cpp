// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/ViewerSession.h"

#include "viewer/app/ClipboardActions.h"
#include "viewer/app/FileActions.h"
#include "viewer/app/HistoryPanel.h"
#include "viewer/app/ModuleLoader.h"
#include "viewer/app/MoveActions.h"
#include "viewer/app/OverlayLayer.h"
#include "viewer/app/Screenshot.h"
#include "viewer/app/ScriptActions.h"
#include "viewer/app/SearchGuide.h"
#include "viewer/app/UndoActions.h"
#include "viewer/app/ViewEditing.h"
#include "viewer/script/RecordedService.h"

#include <QApplication>
#include <QDir>
#include <QLocale>
#include <QSettings>
#include <QStatusBar>
#include <QTimer>

#include <cstdio>

namespace viewer {

namespace {

constexpr int StatusTime = 5000;

/// The service of a session that is recorded; null for any other.
std::unique_ptr<OverlayService> recordedService(const QString &file)
{
    return file.isEmpty() ? nullptr : std::make_unique<RecordedService>(file);
}

} // namespace

ViewerSession::ViewerSession(const CommandLine &line, QSettings *settings,
                             std::unique_ptr<FileQuestions> questions)
    : m_line(line)
    , m_settings(settings)
    , m_window(std::make_unique<MainWindow>(line.withoutGl ? ViewArea::Background::Painted
                                                           : ViewArea::Background::OpenGl))
    , m_services(m_window.get(), recordedService(line.record))
    , m_questions(questions ? std::move(questions)
                            : std::make_unique<FileQuestions>(m_window.get()))
{
    showOverlays();
    fillEditMenu();
    m_window->addHistory(new HistoryPanel(overlays(), m_window.get()));
    connectDocument();
    connectMissingImages();
    connectRecording();
    if (m_settings)
        keepJournal();
    connect(m_window.get(), &MainWindow::closing, this, [this] {
        if (m_settings)
            m_window->saveLayout(m_settings);
    });
}

// The window goes before the services: what modules put into it asks them to the last. The journal
// may have something to report in it.
ViewerSession::~ViewerSession()
{
    m_journal.reset();
    m_window.reset();
}

void ViewerSession::start()
{
    loadModules();
    if (m_settings)
        m_window->restoreLayout(*m_settings);
    else
        m_window->useDefaultLayout();
    // Its first control, a search field, would swallow what is pasted into the scene.
    m_window->viewArea()->background()->setFocus();
    m_window->show();
    // Modules read the tree when it is announced, and need one that is empty too.
    if (m_line.scene.isEmpty() || !openScene(m_line.scene))
        overlays()->setScene(Scene());
    m_services.announceReady();
    m_window->reportKeyClashes();
    if (m_journal)
        QTimer::singleShot(0, this, &ViewerSession::offerLostWork);
    // Behind what is due by then.
    if (!m_line.script.isEmpty())
        QTimer::singleShot(0, this, &ViewerSession::runGivenScript);
    else if (!m_line.screenshot.isEmpty())
        takePictureAndQuit();
}

void ViewerSession::runScript(const QString &file)
{
    m_scripts->run(file);
}

void ViewerSession::runGivenScript()
{
    runScript(m_line.script);
    if (!m_line.screenshot.isEmpty())
        takePictureAndQuit();
}

void ViewerSession::fillEditMenu()
{
    QMenu *menu = m_window->editMenu();
    m_focus.includeArea(m_window->viewArea(), m_editing->selectionOfView());
    new UndoActions(overlays(), menu);
    new ClipboardActions(&m_clipboard, &m_focus, m_editing->selectionOfView(), menu);
    new MoveActions(overlays(), &m_focus, menu);
    connect(&m_clipboard, &SceneClipboard::reported, this, &ViewerSession::report);
}

void ViewerSession::connectDocument()
{
    MainWindow *window = m_window.get();
    new FileActions(&m_document, window->fileMenu());
    m_scripts = new ScriptActions(overlays(), m_questions.get(), window);
    connect(m_scripts, &ScriptActions::failed, this,
            [this](const QString &text) { report(Severity::Error, text); });
    window->setCloseGuard([this] { return m_document.mayGo(); });
    connect(window, &MainWindow::openRequested, &m_document, &SceneDocument::open);
    connect(&m_document, &SceneDocument::editsWanted, window, &MainWindow::finishEdits);
    connect(&m_document, &SceneDocument::dismissed, this,
            [this] { m_window->viewArea()->notices()->clear(); });
    connect(&m_document, &SceneDocument::overcome, window->viewArea()->notices(),
            &NoticeArea::remove);
    connect(&m_document, &SceneDocument::aboutToReplace, this, [this] { m_images.forgetAll(); });
    connect(&m_document, &SceneDocument::pathChanged, window, &MainWindow::setScenePath);
    connect(&m_document, &SceneDocument::opened, this, [this](const QString &path) {
        m_window->statusBar()->showMessage(tr("Opened %1").arg(QDir::toNativeSeparators(path)),
                                           StatusTime);
    });
    connect(&m_document, &SceneDocument::saved, this, [this](const QString &path) {
        m_window->statusBar()->showMessage(tr("Saved %1").arg(QDir::toNativeSeparators(path)),
                                           StatusTime);
    });
    connect(&m_document, &SceneDocument::reported, this, &ViewerSession::report);
    connect(overlays()->history().stack(), &QUndoStack::cleanChanged, window,
            [window](bool clean) { window->setWindowModified(!clean); });
}

void ViewerSession::connectMissingImages()
{
    const NoticeArea *notices = m_window->viewArea()->notices();
    connect(&m_document, &SceneDocument::imagesMissing, &m_missingImages, &MissingImages::report);
    connect(&m_clipboard, &SceneClipboard::imagesMissing, &m_missingImages, &MissingImages::report);
    connect(&m_document, &SceneDocument::aboutToReplace, &m_missingImages,
            &MissingImages::forgetAll);
    connect(&m_missingImages, &MissingImages::reported, this, &ViewerSession::report);
    connect(&m_missingImages, &MissingImages::reduced, notices, &NoticeArea::replace);
    connect(&m_missingImages, &MissingImages::overcome, notices, &NoticeArea::remove);
}

void ViewerSession::connectRecording()
{
    auto *recorded = qobject_cast<RecordedService *>(overlays());
    if (!recorded)
        return;
    connect(&m_document, &SceneDocument::pathChanged, recorded, &RecordedService::setScenePath);
    connect(recorded, &RecordedService::recordingFailed, this,
            [this](const QString &text) { report(Severity::Error, text); });
}

QString ViewerSession::journalFolder() const
{
    return QFileInfo(m_settings->fileName()).absoluteDir().filePath(QStringLiteral("unsaved"));
}

void ViewerSession::keepJournal()
{
    m_journal = std::make_unique<Journal>(overlays(), journalFolder(), &m_journalWriter);
    connect(&m_document, &SceneDocument::pathChanged, m_journal.get(), &Journal::setPath);
    connect(m_journal.get(), &Journal::failed, this,
            [this](const QString &text) { report(Severity::Warning, text); });
    // Whoever closes the window has been asked; whatever ends the run otherwise asks nobody.
    connect(m_window.get(), &MainWindow::closing, m_journal.get(), &Journal::letGo);
}

/// The latest first. Once one is taken up, the others wait for another start.
void ViewerSession::offerLostWork()
{
    QVector<LostWork> lost = Journal::lostWork(journalFolder());
    for (; !lost.isEmpty(); lost.removeLast()) {
        const LostWork &work = lost.constLast();
        const QString name =
            work.path.isEmpty() ? tr("Untitled") : QDir::toNativeSeparators(work.path);
        SceneReading reading = Journal::recover(work);
        if (!reading.scene) {
            const QString kept = QDir::toNativeSeparators(Journal::putAside(work));
            report(Severity::Error, tr("Unsaved changes to \"%1\" cannot be recovered.\n%2\nThe "
                                       "file is kept as %3.")
                                        .arg(name, reading.error, kept));
            continue;
        }
        const FileQuestions::Answer answer =
            m_questions->aboutRecovery(name, QLocale().toString(work.time, QLocale::ShortFormat));
        if (answer == FileQuestions::Answer::Cancel)
            return;
        const bool isWanted = answer == FileQuestions::Answer::Save;
        if (isWanted) {
            m_document.setUnsavedScene(std::move(*reading.scene), work.path, work.time);
            if (!reading.missingImages.isEmpty())
                m_missingImages.report(reading.missingImages);
            if (!m_journal->flush())
                return; // the old journal is the only copy
        }
        Journal::forget(work);
        if (isWanted)
            return;
    }
}

void ViewerSession::showOverlays()
{
    connect(overlays(), &OverlayService::imageFileSet, &m_images, &ImageCache::reload);
    const auto draw = [this](QPainter *painter, const QSize &size, double dpi) {
        m_painter.paint(*painter, size, dpi);
    };
    auto *layer = new OverlayLayer(overlays(), draw);
    m_window->viewArea()->addLayer(layer);
    connect(&m_images, &ImageCache::pictureChanged, layer, qOverload<>(&QWidget::update));
    connect(&m_images, &ImageCache::watchLimited, this, [this] {
        report(Severity::Info, tr("There are more image files than can be watched. When one of the "
                                  "others changes, it is shown within a few seconds."));
    });
    m_editing = new ViewEditing(overlays(), &m_painter, m_window->viewArea());
}

void ViewerSession::loadModules()
{
    for (const QString &file : m_line.plugins) {
        const QString fault = ModuleLoader::load(file);
        if (!fault.isEmpty())
            report(Severity::Error, fault);
    }
    SearchGuide::guideAll(m_window.get());
}

void ViewerSession::takePictureAndQuit()
{
    auto *picture = new Screenshot(m_window.get(), m_images, m_line.screenshot, this);
    connect(picture, &Screenshot::finished, this, [this](const QString &fault) {
        if (!fault.isEmpty())
            report(Severity::Error, fault);
        QApplication::exit(fault.isEmpty() ? 0 : 1);
    });
}

void ViewerSession::report(Severity severity, const QString &text)
{
    std::fprintf(stderr, "%s\n", qPrintable(text));
    m_window->notify(severity, text);
}

} // namespace viewer
