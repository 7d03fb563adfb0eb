// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/kxKernelServiceFactory.h"

/// The service T, fetched afresh: the host may exchange a service between two uses. Null when it is
/// missing, which is a misuse of the host that the registry has reported.
template<class T>
T *kxService()
{
    return kxKernelServiceFactory::the()->getService<T>();
}
