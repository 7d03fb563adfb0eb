// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/ModuleLoader.h"

#include <QDir>
#include <QFileInfo>
#include <QLibrary>

#include <exception>

namespace viewer {

QString ModuleLoader::defaultPlugin()
{
    const QDir folder(QCoreApplication::applicationDirPath());
    const QString beside = folder.filePath(QStringLiteral("overlayeditor.so"));
    const QString installed = QDir::cleanPath(
        folder.filePath(QStringLiteral(OVERLAY_VIEWER_PLUGINDIR "/overlayeditor.so")));
    return QFileInfo(beside).isFile() ? beside : installed;
}

QString ModuleLoader::load(const QString &file)
{
    // A bare name would be looked up among the system's libraries.
    const QString path = QFileInfo(file).absoluteFilePath();
    const QString shown = QDir::toNativeSeparators(path);
    if (!QFileInfo(path).isFile())
        return tr("The module \"%1\" is missing: there is no such file.").arg(shown);
    // Local binding is the default; without an owner the library is never unloaded.
    QLibrary library(path);
    // A function that this host lacks is found now, and not by a crash when it is called.
    library.setLoadHints(QLibrary::ResolveAllSymbolsHint);
    if (!library.load())
        return tr("The module \"%1\" cannot be loaded: %2").arg(shown, library.errorString());
    const auto entry = library.resolve("initPlugin");
    if (!entry)
        return tr(R"("%1" is not a module: it has no entry "initPlugin".)").arg(shown);
    try {
        entry();
    } catch (const std::exception &problem) {
        return tr("The module \"%1\" failed to start: %2")
            .arg(shown, QString::fromLocal8Bit(problem.what()));
    } catch (...) {
        return tr("The module \"%1\" failed to start.").arg(shown);
    }
    return QString();
}

} // namespace viewer
