// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/initHost.h"
#include "kit/HostFixture.h"

/// The host in which modules are checked, to be checked itself: a module cannot be judged by a host
/// that breaks the rules.
void initHost()
{
    static auto *host = new HostFixture;
    Q_UNUSED(host)
}
