// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/script/ScriptSource.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTextCodec>

namespace viewer {

TextReading ScriptSource::read(const QString &path)
{
    const QString shown = QDir::toNativeSeparators(path);
    const QFileInfo info(path);
    if (!info.isFile())
        return {{}, tr("There is no file \"%1\".").arg(shown)};
    if (info.size() > LargestFile)
        return {{}, tr("The file \"%1\" is too large: 16 MB can be read.").arg(shown)};
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {{}, tr("The file \"%1\" cannot be read: %2.").arg(shown, file.errorString())};
    const QByteArray content = file.readAll();
    QTextCodec::ConverterState state;
    const QString text =
        QTextCodec::codecForName("UTF-8")->toUnicode(content.constData(), content.size(), &state);
    if (state.invalidChars > 0 || state.remainingChars > 0)
        return {{}, tr("The file \"%1\" is no text in UTF-8.").arg(shown)};
    return {text, {}};
}

TextReading ScriptSource::readBelow(const QString &folder, const QString &path)
{
    const QString root = QFileInfo(folder).canonicalFilePath();
    const QString file = QFileInfo(QDir(folder), path).canonicalFilePath();
    if (!file.isEmpty() && !file.startsWith(root + QLatin1Char('/')))
        return {{}, tr("The file \"%1\" does not lie in the script's folder.").arg(path)};
    return read(file.isEmpty() ? path : file);
}

} // namespace viewer
