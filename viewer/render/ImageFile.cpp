// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/render/ImageFile.h"

#include "viewer/render/WholePicture.h"

#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QMutex>

#include <cmath>

namespace viewer {

namespace {

constexpr int ScalableHeight = 1024; // drawings without pixels are read this high
constexpr int LargestWidth = 8192;
constexpr int LargestSide = 32767;         // of a picture that the raster engine can draw
constexpr qint64 MostPixels = 256LL << 20; // 1 GB, for formats that are read whole
constexpr qint64 BytesPerPixel = 4;

bool hasNoPixels(const QImageReader &reader)
{
    return reader.format().startsWith("svg");
}

bool isReadWhole(const QImageReader &reader)
{
    return !reader.supportsOption(QImageIOHandler::ScaledSize);
}

qint64 pixelsOf(const QSize &size)
{
    return qint64(size.width()) * size.height();
}

// A small file can claim more pixels than there is memory.
bool isTooLarge(const QImageReader &reader)
{
    const QSize size = reader.size();
    return size.width() > LargestSide || size.height() > LargestSide
           || (isReadWhole(reader) && pixelsOf(size) > MostPixels);
}

/// The size to read a picture in.
QSize boundedSize(QSize size, qint64 mostBytes)
{
    if (size.width() > LargestWidth || size.height() > LargestWidth)
        size.scale(LargestWidth, LargestWidth, Qt::KeepAspectRatio);
    const double excess = double(pixelsOf(size) * BytesPerPixel) / double(mostBytes);
    if (excess > 1.0)
        size /= std::sqrt(excess);
    return size.expandedTo(QSize(1, 1));
}

bool isWhole(const QString &path, const QByteArray &format)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && isWholePicture(&file, format);
}

QImage decode(QImageReader *reader, qint64 mostBytes)
{
    // Those that need all their pixels at once come one after another: together they could take
    // more memory than there is.
    static QMutex alone;
    const bool isHeavy =
        isReadWhole(*reader) && pixelsOf(reader->size()) * BytesPerPixel > mostBytes;
    const QMutexLocker lock(isHeavy ? &alone : nullptr);
    return reader->read().convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

} // namespace

QImage readImageFile(const QString &path, qint64 mostBytes)
{
    // To open a pipe or a device may take forever.
    if (!QFileInfo(path).isFile())
        return {};
    QImageReader reader(path);
    reader.setAutoTransform(true);
    const QByteArray format = reader.format();
    if (!isWhole(path, format))
        return {};
    const QSize size = reader.size();
    if (hasNoPixels(reader) && !size.isEmpty())
        reader.setScaledSize(
            boundedSize(size.scaled(LargestWidth, ScalableHeight, Qt::KeepAspectRatio), mostBytes));
    else if (isTooLarge(reader))
        return {};
    else if (!size.isEmpty() && boundedSize(size, mostBytes) != size)
        reader.setScaledSize(boundedSize(size, mostBytes));
    return decode(&reader, mostBytes);
}

} // namespace viewer
