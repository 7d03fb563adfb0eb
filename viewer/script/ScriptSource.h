// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>
#include <QString>

namespace viewer {

/// What came of reading a text file: the text, or the reason why there is none, as a full sentence.
struct TextReading
{
    QString text;
    QString error;
};

/// Files that scripts are made of or may read. Only regular files of UTF-8 text up to a stated size
/// are read: a pipe could block a run for ever.
class ScriptSource
{
    Q_DECLARE_TR_FUNCTIONS(viewer::ScriptSource)

public:
    static constexpr qint64 LargestFile = 16LL << 20;

    static TextReading read(const QString &path);

    /// Reads a file by its path relative to `folder`, where it must lie, directly or in a folder
    /// below; what links lead to counts.
    static TextReading readBelow(const QString &folder, const QString &path);
};

} // namespace viewer
