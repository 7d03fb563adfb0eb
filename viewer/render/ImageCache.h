// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QImage>
#include <QString>
#include <QVector>

namespace viewer {

/// Reads image files and keeps the pictures: each file is read once, whether it can be read or not,
/// until it is forgotten. Owned by the application, which connects forget() to the service's
/// imageFileSet(). GUI thread only.
class ImageCache
{
public:
    /// The picture; a null image when the file is missing, cannot be read or is larger than memory
    /// and painter can bear. A picture of more than 8192 pixels in a direction is read smaller.
    /// The reference holds until the file is forgotten.
    const QImage &image(const QString &path);

    /// The picture in exactly this size. The last few sizes of each file are kept; the
    /// reference holds until the next call.
    const QImage &scaledImage(const QString &path, const QSize &size);

    /// Makes the next call read the file anew.
    void forget(const QString &path);

    /// Makes every file be read anew; for another scene, which need not use the same ones.
    void forgetAll();

    /// How often a file was read.
    int readCount() const { return m_readCount; }

private:
    struct Entry
    {
        QImage image;
        QVector<QImage> scaled; // the oldest first
    };

    Entry &entry(const QString &path);

    QHash<QString, Entry> m_entries;
    int m_readCount = 0;
};

} // namespace viewer
