// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/kxKernelServiceFactory.h"

class kxOverlayService;

/// The service T, fetched afresh: the host may exchange a service between two uses. Null when it is
/// missing, which is a misuse of the host that the registry has reported.
template<class T>
T *kxService()
{
    return kxKernelServiceFactory::the()->getService<T>();
}

/// Never null: the overlay service is used for as long as the window is open, and a host that takes
/// it away meanwhile must not bring the application down. A stand-in takes its place.
template<>
kxOverlayService *kxService<kxOverlayService>();
