// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "conformance/service/hostChecks.h"

namespace conformance {

namespace {

void runCase(HostBench &bench, const SceneCase &wanted, const std::function<void()> &act,
             bool inSteps)
{
    expectEqual("signals", bench.signalsOf(act), wanted.announced);
    expectEqual("scene", bench.dump(), wanted.after);
    if (inSteps)
        return;
    bench.build(wanted.before);
    expectEqual("faults in the announcements", bench.faultsOf(act), QStringList());
}

} // namespace

HostChecks sceneChecks(const std::vector<SceneCase> &cases,
                       const std::function<void(HostBench &, const QRPC::NodeList &)> &act,
                       bool inSteps)
{
    HostChecks checks;
    for (const SceneCase &wanted : cases) {
        const auto run = [wanted, act, inSteps](HostBench &bench) {
            bench.build(wanted.before);
            runCase(
                bench, wanted, [&] { act(bench, bench.ids(wanted.nodes)); }, inSteps);
        };
        checks.push_back({wanted.name, wanted.rule, run, Stage::Running});
    }
    return checks;
}

HostChecks hostChecks()
{
    return joined<HostBench>({servicesChecks(), nodesChecks(), creationChecks(), copyChecks(),
                              removalChecks(), groupingChecks(), moveChecks(), valueChecks(),
                              enabledChecks()});
}

} // namespace conformance
