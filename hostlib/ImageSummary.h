// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>
#include <QDateTime>
#include <QImage>
#include <QString>

namespace hostlib {

/// What can be told and shown of an image file. A plain value; made for thumbnails and previews.
class ImageSummary
{
    Q_DECLARE_TR_FUNCTIONS(hostlib::ImageSummary)

public:
    enum State {
        None,       ///< no path
        Missing,    ///< no such file
        Unreadable, ///< not an image, or one that is damaged
        Readable,
    };

    ImageSummary() = default;

    /// Reads the file at `path`, its picture no larger than `bounds` and never enlarged.
    ImageSummary(const QString &path, const QSize &bounds);

    State state() const { return m_state; }
    QString path() const { return m_path; }
    const QImage &picture() const { return m_picture; }

    /// Width and height of the image itself; invalid when it could not be read.
    QSize pixels() const { return m_pixels; }

    /// One line: size in pixels and bytes, or what is wrong with the file. Empty without a path.
    QString text() const;

    /// True while the file is as it was when it was read.
    bool isCurrent() const;

private:
    void read(const QSize &bounds);

    QString m_path;
    QDateTime m_changed;
    qint64 m_bytes = -1;
    State m_state = None;
    QSize m_pixels;
    QImage m_picture;
};

/// True when the name of the file at `path` ends like those of images that can be read.
bool isImageName(const QString &path);

} // namespace hostlib
