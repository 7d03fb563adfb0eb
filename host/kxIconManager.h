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

    /// The icon `name` at any size, with its disabled look. `variant` names a second drawing that
    /// stands for the icon's "on" state; empty for none. An unknown name gives a null icon and one
    /// warning. Called by modules while they build menus, bars and buttons.
    static QIcon getIcon(const std::string &name, const std::string &variant);

    /// The icon `name` at the size of a tree row, at the scale of the primary screen. A null pixmap
    /// for an unknown name (with one warning) and under an application without a window system.
    /// Called by modules for every row of a tree.
    static QPixmap get(const char *name, const kxIconOptions &options);

    /// How many icons were drawn from their vectors since the program started: what is asked for
    /// again comes from memory. For measuring.
    static int renderingCount();
};
