// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "viewer/app/CommandLine.h"
#include "viewer/app/HostServices.h"
#include "viewer/render/ImageCache.h"
#include "viewer/render/OverlayPainter.h"

#include <QMap>

namespace viewer {

/// One run of the viewer without window: loads modules and a scene, writes what the command line
/// asks for, and tells everything on standard error. Made by the main program; goes before the
/// application object. It asks nothing and waits for nobody.
class HeadlessRun
{
    Q_DECLARE_TR_FUNCTIONS(viewer::HeadlessRun)

public:
    /// What the program returns; CommandLine explains them to the user.
    enum ExitCode {
        Done = 0,
        BadArguments = 2,
        ImageMissing = 3,
        SceneUnreadable = 4,
        NotWritten = 5,
        ModuleFailed = 6,
        ScriptFailed = 7,
        Interrupted = 8,
    };

    explicit HeadlessRun(const CommandLine &line);

    /// Does all that was asked for. The first failure ends it, but for images that cannot be read: the
    /// output is written with placeholders.
    ExitCode run();

    /// The view in the size and density of the command line: the painted backdrop, or nothing, and
    /// the overlays above it.
    QImage picture();

    OverlayService *overlays() { return m_services.overlays(); }

private:
    /// The overlays that have a file which cannot be read.
    struct UnreadableImage
    {
        QRPC::NodeList shownBy;
        QRPC::NodeList keptBy; ///< those that are not shown
    };

    ExitCode loadModules();
    ExitCode openScene();
    ExitCode runScript();
    ExitCode save();
    ExitCode exportPicture();
    QString writePicture(const QString &file);
    ExitCode reportUnreadableImages();
    QMap<QString, UnreadableImage> unreadableImages();
    QString listed(const QRPC::NodeList &nodes);

    const CommandLine m_line;
    HostServices m_services{nullptr};
    ImageCache m_images;
    OverlayPainter m_painter{m_services.overlays()->scene(), m_images};
};

} // namespace viewer
