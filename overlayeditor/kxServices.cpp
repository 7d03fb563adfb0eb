// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "overlayeditor/kxServices.h"

#include "overlayeditor/kxAbsentOverlayService.h"

template<>
kxOverlayService *kxService<kxOverlayService>()
{
    if (auto *service = kxKernelServiceFactory::the()->getService<kxOverlayService>())
        return service;
    static kxAbsentOverlayService absent;
    return &absent;
}
