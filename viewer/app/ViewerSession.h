// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "viewer/app/CommandLine.h"
#include "viewer/app/EditFocus.h"
#include "viewer/app/HostServices.h"
#include "viewer/app/MainWindow.h"
#include "viewer/app/MissingImages.h"
#include "viewer/app/SceneClipboard.h"
#include "viewer/app/SceneDocument.h"
#include "viewer/render/ImageCache.h"
#include "viewer/render/OverlayPainter.h"
#include "viewer/scene/Journal.h"

#include <QObject>
#include <QThreadPool>

#include <memory>

class QSettings;

namespace viewer {

class ScriptActions;
class ViewEditing;

/// One run of the viewer with a window: builds window and services, loads modules, opens scenes and
/// reports what goes wrong, to the user in the window and on standard error. Made by the main
/// program; goes before the application object.
class ViewerSession : public QObject
{
    Q_OBJECT

public:
    /// The window's layout and recent files are kept in `settings`; null for a run that neither reads nor leaves
    /// any. Beside them lies the journal of unsaved work.
    /// `questions` stands in for the dialogs.
    explicit ViewerSession(const CommandLine &line, QSettings *settings,
                           std::unique_ptr<FileQuestions> questions = nullptr);
    ~ViewerSession() override;

    /// Loads the modules, shows the window, opens the scene and tells the modules that all is ready.
    void start();

    /// Opens a scene file in place of the open scene, which stays as it is when the file is bad.
    bool openScene(const QString &file) { return m_document.load(file); }

    /// Runs a script on the open scene; comes back when it is over.
    void runScript(const QString &file);

    SceneDocument *document() { return &m_document; }

    MainWindow *window() const { return m_window.get(); }
    OverlayService *overlays() { return m_services.overlays(); }
    const ImageCache &images() const { return m_images; }

private:
    void showOverlays();
    void fillEditMenu();
    void connectDocument();
    void connectMissingImages();
    void connectRecording();
    void keepJournal();
    void offerLostWork();
    void runGivenScript();
    QString journalFolder() const;
    void loadModules();
    void takePictureAndQuit();
    void report(Severity severity, const QString &text);

    const CommandLine m_line;
    QSettings *m_settings;
    std::unique_ptr<MainWindow> m_window;
    HostServices m_services;
    const std::unique_ptr<FileQuestions> m_questions;
    ViewEditing *m_editing = nullptr;
    EditFocus m_focus;
    SceneClipboard m_clipboard{overlays()};
    SceneDocument m_document{overlays(), m_questions.get(), m_settings};
    MissingImages m_missingImages{overlays()};
    ScriptActions *m_scripts = nullptr;
    QThreadPool m_journalWriter;
    std::unique_ptr<Journal> m_journal; // none without settings
    ImageCache m_images{ImageCache::Reading::InBackground};
    OverlayPainter m_painter{overlays()->scene(), m_images};
};

} // namespace viewer
