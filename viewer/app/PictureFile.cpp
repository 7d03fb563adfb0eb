// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/PictureFile.h"

#include <QFileInfo>
#include <QImageWriter>
#include <QSaveFile>

namespace viewer {

QString savePicture(const QImage &picture, const QString &path)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return file.errorString();
    QImageWriter writer(&file, QFileInfo(path).suffix().toLatin1());
    if (!writer.write(picture))
        return writer.errorString();
    // What is flushed by the commit alone may fail without a word.
    return file.flush() && file.commit() ? QString() : file.errorString();
}

} // namespace viewer
