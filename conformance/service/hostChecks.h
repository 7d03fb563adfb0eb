// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "conformance/Check.h"
#include "conformance/service/HostBench.h"

namespace conformance {

using HostChecks = Checks<HostBench>;

/// Every check of a host, in the order in which they are run.
HostChecks hostChecks();

/// The checks of one subject each.
HostChecks servicesChecks();
HostChecks nodesChecks();
HostChecks creationChecks();
HostChecks copyChecks();
HostChecks removalChecks();
HostChecks groupingChecks();
HostChecks moveChecks();
HostChecks valueChecks();
HostChecks enabledChecks();

/// A check of what one action does to a scene: the scene afterwards and the signals, in order.
struct SceneCase
{
    QString name;
    QString rule;
    QString before;
    QString nodes; ///< what the action is given
    QString after;
    QStringList announced;
};

/// The checks of such cases; `act` does the action to the named nodes. Each case also checks that
/// places and state are final when they are announced, unless `inSteps` says that the action is made
/// of several operations.
HostChecks sceneChecks(const std::vector<SceneCase> &cases,
                       const std::function<void(HostBench &, const QRPC::NodeList &)> &act,
                       bool inSteps = false);

} // namespace conformance
