// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/initPlugin.h"

#include "overlayeditor/kxOverlayEditor.h"

void initPlugin()
{
    static kxOverlayEditor editor;
}
