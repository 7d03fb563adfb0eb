// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/initHost.h"
#include "viewer/app/HostServices.h"
#include "viewer/app/MainWindow.h"

/// The viewer's services without its program, for the conformance checks. What it makes lives until
/// the process ends.
void initHost()
{
    static auto *window = new viewer::MainWindow(viewer::ViewArea::Background::Painted);
    static auto *services = new viewer::HostServices(window);
    Q_UNUSED(services)
}
