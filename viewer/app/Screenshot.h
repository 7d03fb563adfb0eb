// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

namespace viewer {

class ImageCache;
class MainWindow;

/// Waits until the window has shown a frame and the images in it have been read, saves a picture of
/// it and tells so, once. Made by the session when all is loaded.
class Screenshot : public QObject
{
    Q_OBJECT

public:
    Screenshot(MainWindow *window, const ImageCache &images, const QString &file,
               QObject *parent = nullptr);

Q_SIGNALS:
    /// Done; `fault` says what went wrong, naming the file, and is empty when the picture is there.
    void finished(const QString &fault);

private:
    void take();

    MainWindow *m_window;
    const ImageCache &m_images;
    const QString m_file;
    bool m_isDue = false;
};

} // namespace viewer
