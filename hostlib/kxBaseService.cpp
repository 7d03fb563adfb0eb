// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

// The out-of-line destructors of all service classes: they put each class's type name into this
// library, once, which is what the registry's keys rest on.

#include "host/kxBaseService.h"
#include "host/kxControllerService.h"
#include "host/kxFileIOService.h"
#include "host/kxMainWindowService.h"
#include "host/kxOverlayService.h"
#include "host/kxPlatformService.h"

kxBaseService::kxBaseService(QObject *parent) : QObject(parent) {}

kxBaseService::~kxBaseService() = default;
kxControllerService::~kxControllerService() = default;
kxFileIOService::~kxFileIOService() = default;
kxMainWindowService::~kxMainWindowService() = default;
kxOverlayService::~kxOverlayService() = default;
kxPlatformService::~kxPlatformService() = default;
