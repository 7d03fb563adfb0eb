// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/initHost.h"
#include "host/kxKernelServiceFactory.h"
#include "tests/conformance/BrokenService.h"

/// A host for the tests of the conformance program: its fault is what the environment variable
/// BROKEN_HOST says.
void initHost()
{
    static auto *service = new BrokenService(qgetenv("BROKEN_HOST"));
    kxKernelServiceFactory::the()->registerService<kxOverlayService>(service);
}
