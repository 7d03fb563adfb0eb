// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

//! [initHost]
#include "host/initHost.h"

#include "Services.h"

void initHost()
{
    static auto *services = new minimal::Services; // to the end of the process
    Q_UNUSED(services)
}
//! [initHost]
