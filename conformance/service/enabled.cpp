// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "conformance/service/hostChecks.h"

namespace conformance {

namespace {

QStringList changed(const char *nodes)
{
    return {QStringLiteral("enabledStateChanged %1").arg(nodes)};
}

std::vector<SceneCase> enablingCases()
{
    return {
        {"enable.one", "An enabled node is announced.", "a- b", "a", "a b", changed("a")},
        {"enable.parentFirst", "Parents are listed before what lies in them.", "g-(a-)", "a g",
         "g(a)", changed("g a")},
        {"enable.onlyChanged", "Only nodes whose own state changed are announced.", "a- b c-",
         "c b a c", "a b c", changed("a c")},
        {"enable.nothing", "Nothing happens when nothing changes.", "a- b", "b", "a- b", {}},
        {"enable.empty", "An empty list does nothing.", "a-", "", "a-", {}},
        {"enable.skips", "Unknown ids and the root are skipped.", "a-", "root 0 ? a", "a",
         changed("a")},
        {"enable.below", "What lies below keeps its own state.", "g-(a b-)", "g", "g(a b-)",
         changed("g")},
        {"enable.inSwitch", "Enabling a child of a switch disables the one that was shown.",
         "s*(a b- c-)", "c", "s*(a- b- c)", changed("a c")},
        {"enable.inSwitchLastWins", "Of several children of a switch the last in the list wins.",
         "s*(a b- c-)", "c b", "s*(a- b c-)", changed("a b")},
        {"enable.inSwitchSame",
         "Nothing happens when the last is the one that is shown already.",
         "s*(a b- c-)",
         "c b a",
         "s*(a b- c-)",
         {}},
        {"enable.inSwitchOfNone", "A switch that shows none shows the enabled child.", "s*(a- b-)",
         "b", "s*(a- b)", changed("b")},
        {"enable.nestedSwitches", "A switch in a switch follows the same rule.", "s*(t*(a b-) c-)",
         "b c", "s*(t*-(a- b) c)", changed("t a b c")},
    };
}

std::vector<SceneCase> disablingCases()
{
    return {
        {"disable.one", "A disabled node is announced.", "a b", "a", "a- b", changed("a")},
        {"disable.group", "What lies in a disabled group keeps its own state.", "g(a b-)", "g",
         "g-(a b-)", changed("g")},
        {"disable.several",
         "Several nodes are announced with one signal, in the order of the tree.", "g(h(a) b)",
         "a b h g", "g-(h-(a-) b-)", changed("g h a b")},
        {"disable.nothing", "Nothing happens when nothing changes.", "a-", "a", "a-", {}},
        {"disable.empty", "An empty list does nothing.", "a", "", "a", {}},
        {"disable.skips", "Unknown ids and the root are skipped.", "a", "root 0 ? a", "a-",
         changed("a")},
        {"disable.shownInSwitch", "A switch whose shown child is disabled shows none.", "s*(a b-)",
         "a", "s*(a- b-)", changed("a")},
        {"disable.allInSwitch", "Only the shown child of a switch changes.", "s*(a- b)", "a b",
         "s*(a- b-)", changed("b")},
        {"disable.switch", "A disabled switch keeps the child that it shows.", "s*(a b-)", "s",
         "s*-(a b-)", changed("s")},
    };
}

} // namespace

HostChecks enabledChecks()
{
    return joined<HostBench>(
        {sceneChecks(enablingCases(),
                     [](HostBench &bench, const QRPC::NodeList &nodes) {
                         bench.service().setEnabled(nodes, true);
                     }),
         sceneChecks(disablingCases(),
                     [](HostBench &bench, const QRPC::NodeList &nodes) {
                         bench.service().setEnabled(nodes, false);
                     }),
         HostChecks{{"disable.root", "The root cannot be disabled.", [](HostBench &bench) {
                         kxOverlayService &s = bench.service();
                         const QStringList seen =
                             bench.signalsOf([&] { s.setEnabled({s.getRootNode()}, false); });
                         expectEqual("signals", seen, QStringList());
                         expect("it is active", s.isActive(s.getRootNode()));
                     }}}});
}

} // namespace conformance
