// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLatin1String>

/// Names and limits of the scene file, shared by its reader and its writer. docs/SCENE_FORMAT.md
/// describes the format for people; a change here is a change there.
namespace viewer::sceneformat {

constexpr QLatin1String Name("overlay-scene");
constexpr int Version = 1;

constexpr qint64 MaxBytes = 256LL * 1024 * 1024;
constexpr int MaxLevels = 10000;      // what an open tree view can lay out safely
constexpr int MaxUnknownLevels = 100; // inside the value of a key that this version does not know
constexpr double MaxNumber = 1e9;     // of either sign; far beyond any view, within a float

constexpr QLatin1String Group("group");
constexpr QLatin1String Switch("switch");
constexpr QLatin1String Overlay("overlay");
constexpr QLatin1String Text("text");
constexpr QLatin1String Image("image");
constexpr QLatin1String Absolute("absolute");
constexpr QLatin1String Relative("relative");

} // namespace viewer::sceneformat
