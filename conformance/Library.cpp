// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "conformance/Library.h"

#include <QFileInfo>
#include <QLibrary>

#include <stdexcept>

namespace conformance {

QFunctionPointer entryOf(const QString &file, const char *function)
{
    // A bare name would be looked up among the system's libraries.
    const QString path = QFileInfo(file).absoluteFilePath();
    if (!QFileInfo(path).isFile()) // which the toolkit would look for under other names too
        throw std::runtime_error(QStringLiteral("there is no file %1").arg(path).toStdString());
    QLibrary library(path);
    library.setLoadHints(QLibrary::ResolveAllSymbolsHint);
    if (!library.load())
        throw std::runtime_error(library.errorString().toStdString());
    const QFunctionPointer entry = library.resolve(function);
    if (!entry)
        throw std::runtime_error(
            QStringLiteral("%1 does not export %2").arg(path, function).toStdString());
    return entry;
}

} // namespace conformance
