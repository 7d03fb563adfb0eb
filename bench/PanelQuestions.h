// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/QRPC.h"
#include "host/kxKernelServiceFactory.h"
#include "host/kxOverlayService.h"

#include <benchmark/benchmark.h>

/// What the property panel has to ask the service, asked bare.
namespace questions {

/// One question to each node, each through the registry as a module asks; `repeats` times.
template<class T>
void ask(T (kxOverlayService::*getter)(QRPC::NodeId), const QRPC::NodeList &nodes, int repeats)
{
    for (int i = 0; i < repeats; ++i) {
        for (const QRPC::NodeId node : nodes) {
            auto *service = kxKernelServiceFactory::the()->getService<kxOverlayService>();
            benchmark::DoNotOptimize((service->*getter)(node));
        }
    }
}

/// The questions of a full refresh for texts that are equal in everything.
void askAll(const QRPC::NodeList &nodes);

/// Those of the refresh of one colour.
void askFontColor(const QRPC::NodeList &nodes);

} // namespace questions
