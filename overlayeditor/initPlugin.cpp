// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "overlayeditor/kxOverlayEditor.h"

/// The module's only export: called by the host after it has loaded the plug-in and registered its
/// services. Builds the one editor, which is destroyed when the process exits; later calls do
/// nothing. After an exception the next call tries again.
extern "C" Q_DECL_EXPORT void initPlugin()
{
    static const kxOverlayEditor editor;
}
