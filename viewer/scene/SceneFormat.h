// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLatin1String>

/// Names and limits of the scene file, shared by its reader and its writer. docs/SCENE_FORMAT.md
/// describes the format for people; a change here is a change there.
namespace viewer::sceneformat {

/// A text whose length is known to every compiler at compile time.
template<int Size>
constexpr QLatin1String latin1(const char (&text)[Size])
{
    return QLatin1String(text, Size - 1);
}

constexpr QLatin1String Name = latin1("overlay-scene");
constexpr int Version = 1;

constexpr qint64 MaxBytes = 256LL * 1024 * 1024;
constexpr int MaxLevels = 10000;      // what an open tree view can lay out safely
constexpr int MaxUnknownLevels = 100; // inside the value of a key that this version does not know
constexpr int MaxNesting = 4 * MaxLevels; // of brackets in the text, whatever they mean
constexpr int MaxValues = 5000000;
constexpr int MaxKeys = 1000;     // of one object
constexpr double MaxNumber = 1e9; // of either sign; far beyond any view, within a float

constexpr QLatin1String Group = latin1("group");
constexpr QLatin1String Switch = latin1("switch");
constexpr QLatin1String Overlay = latin1("overlay");
constexpr QLatin1String Text = latin1("text");
constexpr QLatin1String Image = latin1("image");
constexpr QLatin1String Absolute = latin1("absolute");
constexpr QLatin1String Relative = latin1("relative");

} // namespace viewer::sceneformat
