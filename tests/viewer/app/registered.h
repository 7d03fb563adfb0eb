// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/kxKernelServiceFactory.h"

/// The service T of the host that a test's module was loaded by; null for none.
template<class T>
T *registered()
{
    return kxKernelServiceFactory::the()->getService<T>();
}
