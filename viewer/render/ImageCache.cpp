// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/render/ImageCache.h"

#include <QFileInfo>
#include <QImageReader>

namespace viewer {

namespace {

constexpr int ScalableHeight = 1024; // drawings without pixels are read this high
constexpr int LargestWidth = 8192;
constexpr int LargestSide = 32767;         // of a picture that the raster engine can draw
constexpr qint64 MostPixels = 256LL << 20; // 1 GB, for formats that are read whole
constexpr int KeptSizes = 8;

bool hasNoPixels(const QImageReader &reader)
{
    return reader.format().startsWith("svg");
}

// A small file can claim more pixels than there is memory.
bool isTooLarge(const QImageReader &reader)
{
    const QSize size = reader.size();
    const bool isReadWhole = !reader.supportsOption(QImageIOHandler::ScaledSize);
    return size.width() > LargestSide || size.height() > LargestSide
           || (isReadWhole && qint64(size.width()) * size.height() > MostPixels);
}

bool isLarge(const QSize &size)
{
    return size.width() > LargestWidth || size.height() > LargestWidth;
}

QImage readImage(const QString &path)
{
    // To open a pipe or a device may take forever.
    if (!QFileInfo(path).isFile())
        return {};
    QImageReader reader(path);
    reader.setAutoTransform(true);
    const QSize size = reader.size();
    if (hasNoPixels(reader) && !size.isEmpty())
        reader.setScaledSize(size.scaled(LargestWidth, ScalableHeight, Qt::KeepAspectRatio));
    else if (isTooLarge(reader))
        return {};
    else if (isLarge(size))
        reader.setScaledSize(size.scaled(LargestWidth, LargestWidth, Qt::KeepAspectRatio));
    return reader.read().convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

} // namespace

ImageCache::Entry &ImageCache::entry(const QString &path)
{
    auto it = m_entries.find(path);
    if (it == m_entries.end()) {
        ++m_readCount;
        it = m_entries.insert(path, {readImage(path), {}});
    }
    return *it;
}

const QImage &ImageCache::image(const QString &path)
{
    return entry(path).image;
}

const QImage &ImageCache::scaledImage(const QString &path, const QSize &size)
{
    Entry &found = entry(path);
    if (found.image.isNull())
        return found.image;
    for (const QImage &scaled : qAsConst(found.scaled)) {
        if (scaled.size() == size)
            return scaled;
    }
    if (found.scaled.size() == KeptSizes)
        found.scaled.removeFirst();
    found.scaled.append(found.image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    return found.scaled.constLast();
}

void ImageCache::forget(const QString &path)
{
    m_entries.remove(path);
}

void ImageCache::forgetAll()
{
    m_entries.clear();
}

} // namespace viewer
