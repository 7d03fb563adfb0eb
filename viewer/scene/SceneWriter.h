// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "viewer/scene/Scene.h"

#include <QCoreApplication>
#include <QStringList>

namespace viewer {

/// What came of writing a scene file: the error when it failed, and what could not be written as it
/// is. All texts are sentences for the user.
struct SceneWriting
{
    QString error;
    QStringList warnings;

    bool isWritten() const { return error.isEmpty(); }
};

/// Writes scene files, each as a whole or not at all: a failure leaves the file that was there.
/// Order and formatting depend on the scene alone, so that writing what was read from a written file
/// gives the same bytes.
///
/// Numbers that the format does not know (not finite, or beyond its range) are written as the
/// nearest one that it knows, with a warning.
class SceneWriter
{
    Q_DECLARE_TR_FUNCTIONS(viewer::SceneWriter)

public:
    static SceneWriting write(const Scene &scene, const QString &path);

    /// The content of the file; null when the scene nests deeper than a file may. `path` is what
    /// image paths are made relative to; they stay as they are where it is empty.
    static QByteArray content(const Scene &scene, const QString &path, QStringList *warnings);
};

} // namespace viewer
