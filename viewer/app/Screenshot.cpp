// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/Screenshot.h"

#include "viewer/app/MainWindow.h"
#include "viewer/app/PictureFile.h"
#include "viewer/render/ImageCache.h"

#include <QDir>
#include <QTimer>

namespace viewer {

Screenshot::Screenshot(MainWindow *window, const ImageCache &images, const QString &file,
                       QObject *parent)
    : QObject(parent)
    , m_window(window)
    , m_images(images)
    , m_file(file)
{
    connect(window->viewArea(), &ViewArea::framePainted, this, [this] {
        if (m_isDue)
            return;
        m_isDue = true;
        // What the frame has set off, as a new text in the status bar, comes first.
        QTimer::singleShot(0, this, &Screenshot::take);
    });
}

void Screenshot::take()
{
    const QImage picture = m_window->grab().toImage(); // which asks for the images too
    if (m_images.isLoading()) {
        connect(&m_images, &ImageCache::finished, this, &Screenshot::take, Qt::UniqueConnection);
        return;
    }
    const QString fault = savePicture(picture, m_file);
    emit finished(fault.isEmpty() ? QString()
                                  : tr("The picture \"%1\" cannot be written: %2")
                                        .arg(QDir::toNativeSeparators(m_file), fault));
}

} // namespace viewer
