// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/HeadlessRun.h"

#include "viewer/app/Backdrop.h"
#include "viewer/app/ModuleLoader.h"
#include "viewer/scene/SceneReader.h"
#include "viewer/scene/SceneWriter.h"

#include <QDir>
#include <QImageWriter>
#include <QPainter>
#include <QSet>

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
    const Part parts[] = {&HeadlessRun::loadModules, &HeadlessRun::openScene, &HeadlessRun::save,
                          &HeadlessRun::exportPicture};
    for (const Part part : parts) {
        const ExitCode code = (this->*part)();
        if (code != Done)
            return code;
    }
    return reportUnreadablePictures();
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

HeadlessRun::ExitCode HeadlessRun::save()
{
    if (m_line.headless.save.isEmpty())
        return Done;
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
    const QImage image = picture();
    QImageWriter writer(file);
    if (!image.isNull() && writer.write(image))
        return Done;
    tell(tr("The picture \"%1\" cannot be written: %2")
             .arg(QDir::toNativeSeparators(file),
                  image.isNull() ? tr("it needs too much memory") : writer.errorString()));
    return NotWritten;
}

HeadlessRun::ExitCode HeadlessRun::reportUnreadablePictures()
{
    QSet<QString> unreadable;
    overlays()->scene().forEach([this, &unreadable](const Node &node) {
        const QString &path = node.overlay.image;
        const bool showsPicture = node.isOverlay() && !node.overlay.isText() && !path.isEmpty();
        if (showsPicture && m_images.image(path).isNull())
            unreadable.insert(path);
    });
    QStringList files = unreadable.values();
    std::sort(files.begin(), files.end());
    for (const QString &file : qAsConst(files))
        tell(tr("Warning: the picture \"%1\" cannot be read; a placeholder stands for it.")
                 .arg(QDir::toNativeSeparators(file)));
    return files.isEmpty() ? Done : PictureMissing;
}

} // namespace viewer
