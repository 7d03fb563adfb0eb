// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/HeadlessRun.h"

#include "viewer/app/Backdrop.h"
#include "viewer/app/InterruptWatch.h"
#include "viewer/app/ModuleLoader.h"
#include "viewer/app/OverlayLayer.h"
#include "viewer/app/PictureFile.h"
#include "viewer/app/ProgressReport.h"
#include "viewer/scene/NodeLists.h"
#include "viewer/scene/SceneReader.h"
#include "viewer/scene/SceneWriter.h"
#include "viewer/script/ScriptRun.h"

#include <QBuffer>
#include <QDir>
#include <QImageReader>
#include <QImageWriter>
#include <QPainter>

#include <cstdio>
#include <cstdlib>

namespace viewer {

namespace {

constexpr double MetersPerInch = 0.0254;

void tell(const QString &text)
{
    std::fprintf(stderr, "%s\n", qPrintable(text));
}

void tell(const QStringList &texts)
{
    for (const QString &text : texts)
        tell(text);
}

/// Whether a picture that is written in a format comes back with what it lets through.
bool keepsTransparency(const QByteArray &format)
{
    QImage dot(1, 1, QImage::Format_ARGB32);
    dot.fill(Qt::transparent);
    QBuffer file;
    return QImageWriter(&file, format).write(dot)
           && QImage::fromData(file.data(), format.constData()).hasAlphaChannel();
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
    const auto draw = [this](QPainter *painter, const QSize &size, double dpi) {
        m_painter.paint(*painter, size, dpi);
    };
    const QImage overlayPicture = OverlayLayer::picture({wanted.size, wanted.dpi}, draw);
    if (wanted.isTransparent || overlayPicture.isNull())
        return overlayPicture;
    QImage view = Backdrop::picture(wanted.size);
    if (!view.isNull())
        QPainter(&view).drawImage(0, 0, overlayPicture);
    return view;
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
    // JavaScript may be in the midst of something that cannot be cut short. Nothing is written yet.
    const auto giveUp = [this] {
        tell(ScriptRun::interruptedText(m_line.script));
        std::_Exit(Interrupted);
    };
    const InterruptWatch watch([&script] { script.interrupt(); }, giveUp);
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
    const QString fault = writePicture(file);
    if (fault.isEmpty())
        return Done;
    tell(tr("The picture \"%1\" cannot be written: %2").arg(QDir::toNativeSeparators(file), fault));
    return NotWritten;
}

QString HeadlessRun::writePicture(const QString &file)
{
    const QByteArray format = QFileInfo(file).suffix().toLower().toLatin1();
    const bool isKnown = QImageWriter::supportedImageFormats().contains(format);
    if (m_line.headless.isTransparent && isKnown && !keepsTransparency(format))
        return tr("its format knows no transparency, as PNG does");
    QImage image = picture();
    if (image.isNull())
        return tr("it needs too much memory");
    // So that it is printed in the size that its points tell.
    const int dotsPerMeter = qRound(m_line.headless.dpi / MetersPerInch);
    image.setDotsPerMeterX(dotsPerMeter);
    image.setDotsPerMeterY(dotsPerMeter);
    return savePicture(image, file);
}

/// The files that cannot be read, and which overlays have them.
QMap<QString, HeadlessRun::UnreadableImage> HeadlessRun::unreadableImages()
{
    const Scene &scene = overlays()->scene();
    QMap<QString, UnreadableImage> files;
    scene.forEach([this, &scene, &files](const Node &node) {
        const QString &path = node.overlay.image;
        if (!node.isOverlay() || node.overlay.isText() || path.isEmpty())
            return;
        // What is not shown was not read, and need not be for that.
        const bool isShown = scene.isActive(node.id);
        const bool isReadable = isShown ? !m_images.image(path).isNull()
                                        : QFileInfo(path).isFile() && QImageReader(path).canRead();
        if (!isReadable)
            (isShown ? files[path].shownBy : files[path].keptBy).append(node.id);
    });
    return files;
}

HeadlessRun::ExitCode HeadlessRun::reportUnreadableImages()
{
    const ProgressReport progress(tr("Still reading the images of \"%1\" after %2 s."),
                                  m_line.scene);
    const QMap<QString, UnreadableImage> files = unreadableImages();
    ExitCode code = Done;
    for (auto file = files.begin(); file != files.end(); ++file) {
        const QString shown = QDir::toNativeSeparators(file.key());
        if (!file->shownBy.isEmpty())
            code = ImageMissing;
        tell(
            file->shownBy.isEmpty()
                ? tr("Warning: the image \"%1\" of %2 cannot be read, but is not shown either.")
                      .arg(shown, listed(file->keptBy))
                : tr("Warning: the image \"%1\" of %2 cannot be read; a placeholder stands for it.")
                      .arg(shown, listed(file->shownBy)));
    }
    return code;
}

/// The names of overlays on one line, the first ones of many.
QString HeadlessRun::listed(const QRPC::NodeList &nodes)
{
    constexpr int most = 4;
    const QRPC::NodeList ordered = inTreeOrder(overlays()->scene(), nodes);
    const QRPC::NodeList first = ordered.mid(0, most);
    QStringList names;
    for (const QRPC::NodeId node : first)
        names += tr("\"%1\"", "the name of an overlay").arg(overlays()->getName(node).simplified());
    if (ordered.size() > most)
        names += QString(QChar(0x2026));
    return names.join(tr(", ", "between names"));
}

} // namespace viewer
