// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/kxHostExport.h"

#include <string>

class QIcon;
class QPixmap;
class kxIconOptions;

/// The host's icon set. Icons are drawn from vectors, each once per name, options and scale.
/// GUI thread only. Names are those of the set, with folders: "scenegraph/Overlay".
class KXHOST_EXPORT kxIconManager
{
public:
    kxIconManager() = delete;

    /// An icon at any size, with its disabled look. Called by modules while they build menus, bars and
    /// buttons.
    /// @param name    of the set; an empty one is unknown
    /// @param variant a second drawing, for the icon's "on" state; empty for none, as which an
    ///                unknown one counts, with one warning
    /// @return a null icon for an unknown name, with one warning
    static QIcon getIcon(const std::string &name, const std::string &variant);

    /// An icon at the size of a tree row, at the scale of the primary screen. Called by modules for
    /// every row of a tree.
    /// @param name    of the set; null is no name of it
    /// @param options which variant; unknown bits are ignored
    /// @return a null pixmap for an unknown name, with one warning, and under an application without
    ///         a window system
    static QPixmap get(const char *name, const kxIconOptions &options);

    /// How often icons were drawn from their vectors. What is asked for again comes from memory. For
    /// measuring.
    /// @return number of drawings since the program started
    static int renderingCount();
};
