// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/HeadlessRun.h"

#include "viewer/app/Backdrop.h"
#include "viewer/app/InterruptWatch.h"
#include "viewer/app/ModuleLoader.h"
#include "viewer/app/ProgressReport.h"
#include "viewer/scene/SceneReader.h"
#include "viewer/scene/SceneWriter.h"
#include "viewer/script/ScriptRun.h"

#include <QDir>
#include <QImageReader>
#include <QImageWriter>
#include <QMap>
#include <QPainter>

#include <algorithm>
#include <cstdio>

namespace viewer {

namespace {

void tell(const QString &text)
{
    std::fprintf(stderr, "%s\n", qPrintable(text));
}

void tell(const QStringList &texts)
{
    for (const QString &text : texts)
        tell(text);
}

} // namespace

HeadlessRun::HeadlessRun(const CommandLine &line) : m_line(line) {}

HeadlessRun::ExitCode HeadlessRun::run()
{
    using Part = ExitCode (HeadlessRun::*)();
    const Part parts[] = {&HeadlessRun::loadModules, &HeadlessRun::openScene,
                          &HeadlessRun::runScript, &HeadlessRun::save, &HeadlessRun::exportPicture};
    for (const Part part : parts) {
        const ExitCode code = (this->*part)();
        if (code != Done)
            return code;
    }
    return reportUnreadableImages();
}

QImage HeadlessRun::picture()
{
    const Headless &wanted = m_line.headless;
    QImage image(wanted.size,
                 wanted.isTransparent ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
    if (image.isNull())
        return image;
    image.fill(Qt::transparent);
    QPainter painter(&image);
    if (!wanted.isTransparent)
        Backdrop::paint(&painter, image.rect());
    m_painter.paint(painter, wanted.size, wanted.dpi);
    return image;
}

HeadlessRun::ExitCode HeadlessRun::loadModules()
{
    for (const QString &file : m_line.plugins) {
        const QString fault = ModuleLoader::load(file);
        if (fault.isEmpty())
            continue;
        tell(fault);
        return ModuleFailed;
    }
    return Done;
}

// Modules read the tree when it is announced, and need one that is empty too.
HeadlessRun::ExitCode HeadlessRun::openScene()
{
    Scene scene;
    if (!m_line.scene.isEmpty()) {
        const ProgressReport progress(tr("Still opening \"%1\" after %2 s."), m_line.scene);
        overlays()->setImageFolder(QFileInfo(m_line.scene).absolutePath());
        SceneReading reading = SceneReader::read(m_line.scene);
        if (!reading.scene) {
            tell(reading.error);
            return SceneUnreadable;
        }
        tell(reading.warnings);
        scene = std::move(*reading.scene);
    }
    overlays()->setScene(std::move(scene));
    m_services.announceReady();
    return Done;
}

HeadlessRun::ExitCode HeadlessRun::runScript()
{
    if (m_line.script.isEmpty())
        return Done;
    const ProgressReport progress(tr("Still running \"%1\" after %2 s."), m_line.script);
    const auto print = [](const QString &text) {
        std::fprintf(stdout, "%s\n", qPrintable(text));
        std::fflush(stdout);
    };
    ScriptRun script(
        overlays(), [](const std::function<void()> &work) { work(); }, print);
    const InterruptWatch watch([&script] { script.interrupt(); });
    const ScriptOutcome outcome = script.run(m_line.script);
    if (outcome.end == ScriptOutcome::End::Done)
        return Done;
    tell(outcome.text);
    return outcome.end == ScriptOutcome::End::Interrupted ? Interrupted : ScriptFailed;
}

HeadlessRun::ExitCode HeadlessRun::save()
{
    if (m_line.headless.save.isEmpty())
        return Done;
    const ProgressReport progress(tr("Still saving \"%1\" after %2 s."), m_line.headless.save);
    const SceneWriting writing = SceneWriter::write(overlays()->scene(), m_line.headless.save);
    tell(writing.warnings);
    if (writing.isWritten())
        return Done;
    tell(writing.error);
    return NotWritten;
}

HeadlessRun::ExitCode HeadlessRun::exportPicture()
{
    const QString file = m_line.headless.picture;
    if (file.isEmpty())
        return Done;
    const ProgressReport progress(tr("Still drawing \"%1\" after %2 s."), file);
    const QImage image = picture();
    QImageWriter writer(file);
    if (!image.isNull() && writer.write(image))
        return Done;
    tell(tr("The picture \"%1\" cannot be written: %2")
             .arg(QDir::toNativeSeparators(file),
                  image.isNull() ? tr("it needs too much memory") : writer.errorString()));
    return NotWritten;
}

/// The files that cannot be read, and whether an overlay shows them.
QMap<QString, bool> HeadlessRun::unreadableImages()
{
    const Scene &scene = overlays()->scene();
    QMap<QString, bool> files;
    scene.forEach([this, &scene, &files](const Node &node) {
        const QString &path = node.overlay.image;
        if (!node.isOverlay() || node.overlay.isText() || path.isEmpty())
            return;
        // What is not shown was not read, and need not be for that.
        const bool isShown = scene.isActive(node.id);
        const bool isReadable = isShown ? !m_images.image(path).isNull()
                                        : QFileInfo(path).isFile() && QImageReader(path).canRead();
        if (!isReadable)
            files[path] |= isShown;
    });
    return files;
}

HeadlessRun::ExitCode HeadlessRun::reportUnreadableImages()
{
    const QMap<QString, bool> files = unreadableImages();
    for (auto file = files.begin(); file != files.end(); ++file) {
        const QString shown = QDir::toNativeSeparators(file.key());
        tell(*file ? tr("Warning: the image \"%1\" cannot be read; a placeholder stands for it.")
                         .arg(shown)
                   : tr("Warning: the image \"%1\" cannot be read, but is not shown either.")
                         .arg(shown));
    }
    return std::find(files.begin(), files.end(), true) != files.end() ? ImageMissing : Done;
}

} // namespace viewer
