// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "viewer/scene/Scene.h"

#include <QCoreApplication>
#include <QStringList>
#include <QVector>

#include <optional>

namespace viewer {

/// An image file that is not there.
struct MissingImage
{
    QString path; ///< absolute
    QString text; ///< the warning
};

/// What came of reading a scene file: either a scene and perhaps warnings, or the error. All texts
/// are sentences for the user that name the file and the place.
struct SceneReading
{
    std::optional<Scene> scene;
    QString error;
    QStringList warnings;
    QVector<MissingImage> missingImages; ///< each once
};

/// Reads scene files. It holds nothing and touches no open scene: the caller hands the scene on to
/// the service when there is one, and shows the texts.
///
/// A fault anywhere refuses the whole file, with the place as a path of keys and rows
/// ("/overlays/3/size") or, where the text is no JSON, as a byte offset. Warned of, and read all the
/// same: image files that are not there, and switches with several enabled children, of which the
/// first is kept.
class SceneReader
{
    Q_DECLARE_TR_FUNCTIONS(viewer::SceneReader)

public:
    static SceneReading read(const QString &path);

    /// Reads the content of a file. `path` serves relative image paths, and messages unless they are
    /// to call it by another name.
    static SceneReading parse(const QByteArray &content, const QString &path,
                              const QString &name = QString());
};

} // namespace viewer
