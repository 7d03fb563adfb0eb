// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "hostlib/ImageSummary.h"

#include <QFileInfo>
#include <QImageReader>
#include <QLocale>

static constexpr qint64 MostPixels = 256LL << 20; // 1 GB

static qint64 bytesOf(const QFileInfo &file)
{
    return file.isFile() ? file.size() : -1;
}

hostlib::ImageSummary::ImageSummary(const QString &path, const QSize &bounds) : m_path(path)
{
    if (path.isEmpty())
        return;
    const QFileInfo file(path);
    m_bytes = bytesOf(file);
    m_changed = file.lastModified();
    m_state = Missing;
    if (m_bytes >= 0)
        read(bounds);
}

void hostlib::ImageSummary::read(const QSize &bounds)
{
    QImageReader reader(m_path);
    reader.setAutoTransform(true);
    reader.setDecideFormatFromContent(true);
    m_pixels = reader.size();
    // Many formats can leave pixels out while they read, which is faster than scaling afterwards.
    if (m_pixels.width() > bounds.width() || m_pixels.height() > bounds.height())
        reader.setScaledSize(m_pixels.scaled(bounds, Qt::KeepAspectRatio).expandedTo({1, 1}));
    // A small file can claim more pixels than there is memory, which some formats read whole.
    const bool isReadWhole = !reader.supportsOption(QImageIOHandler::ScaledSize);
    if (!isReadWhole || qint64(m_pixels.width()) * m_pixels.height() <= MostPixels)
        m_picture = reader.read();
    m_state = m_picture.isNull() ? Unreadable : Readable;
    if (m_state == Unreadable)
        m_pixels = {};
    else if (reader.transformation() & QImageIOHandler::TransformationRotate90)
        m_pixels.transpose();
}

QString hostlib::ImageSummary::text() const
{
    switch (m_state) {
    case None:
        break;
    case Missing:
        return tr("The file does not exist.");
    case Unreadable:
        return tr("The file cannot be read as an image.");
    case Readable:
        return tr("%1 × %2 pixels, %3")
            .arg(m_pixels.width())
            .arg(m_pixels.height())
            .arg(QLocale().formattedDataSize(m_bytes));
    }
    return {};
}

bool hostlib::ImageSummary::isCurrent() const
{
    const QFileInfo file(m_path);
    return m_path.isEmpty() || (bytesOf(file) == m_bytes && file.lastModified() == m_changed);
}

bool hostlib::isImageName(const QString &path)
{
    const QByteArray suffix = QFileInfo(path).suffix().toLower().toLatin1();
    return !suffix.isEmpty() && QImageReader::supportedImageFormats().contains(suffix);
}
