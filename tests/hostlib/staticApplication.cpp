// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT
//
// A host whose application object is static, and so ends after the icons' memory, which was first
// used later. Passes when it comes to its end.

#include "host/kxIconManager.h"
#include "host/kxIconOptions.h"

#include <QGuiApplication>
#include <QPixmap>

int main(int argc, char **argv)
{
    static const QGuiApplication application(argc, argv);
    return kxIconManager::get("scenegraph/Overlay", kxIconOptions()).isNull() ? 1 : 0;
}
