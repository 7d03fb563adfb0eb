// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/SharedFiles.h"

#include <QCoreApplication>
#include <QDir>

namespace viewer {

QStringList sharedfiles::folders(const QString &name)
{
    const QDir program(QCoreApplication::applicationDirPath());
    return {program.filePath(name),
            QDir::cleanPath(program.filePath(QStringLiteral(OVERLAY_VIEWER_DATADIR "/") + name))};
}

QString sharedfiles::find(const QString &folder, const QString &file)
{
    const QStringList places = folders(folder);
    for (const QString &place : places) {
        const QString path = QDir(place).filePath(file);
        if (QFileInfo(path).isFile())
            return path;
    }
    return {};
}

} // namespace viewer
