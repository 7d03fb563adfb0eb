// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/FileIOService.h"

#include <QImageReader>

namespace viewer {

QString FileIOService::getImageFileFilter()
{
    QStringList patterns;
    const QList<QByteArray> formats = QImageReader::supportedImageFormats();
    for (const QByteArray &format : formats)
        patterns.append(QStringLiteral("*.") + QString::fromLatin1(format));
    return tr("Images (%1)").arg(patterns.join(QLatin1Char(' '))) + QStringLiteral(";;")
           + tr("All files (*)");
}

} // namespace viewer
