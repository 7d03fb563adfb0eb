// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "conformance/service/hostChecks.h"

#include <QHash>

namespace conformance {

namespace {

QStringList created(const char *nodes)
{
    return {QStringLiteral("nodesAdded %1").arg(nodes),
            QStringLiteral("nodesCreated %1").arg(nodes)};
}

QStringList grouped(const char *moved, const char *enabled)
{
    return {"nodesAdded +1", QStringLiteral("nodesMoved %1").arg(moved),
            QStringLiteral("enabledStateChanged %1").arg(enabled), "nodesCreated +1"};
}

/// Lists that name nothing that a command could take.
std::vector<SceneCase> emptyCases(const char *command)
{
    static const char *const lists[][2] = {{"empty", ""}, {"root", "root"}, {"unknown", "? 0 ?"}};
    std::vector<SceneCase> cases;
    for (const auto &[name, nodes] : lists) {
        cases.push_back({QStringLiteral("%1.nothing.%2").arg(command, name),
                         "A list without a node that counts does nothing.", "a g(b) s*(c d-)",
                         nodes, "a g(b) s*(c d-)", QStringList()});
    }
    return cases;
}

void duplicate(HostBench &bench, const QRPC::NodeList &nodes)
{
    bench.service().duplicateNodes(nodes);
}

void remove(HostBench &bench, const QRPC::NodeList &nodes)
{
    bench.service().deleteNodes(nodes);
}

void group(HostBench &bench, const QRPC::NodeList &nodes)
{
    bench.service().groupNodes(nodes);
}

HostChecks copiedValueChecks()
{
    return {
        {"duplicate.values", "A copy has the values of its original, and its own from then on.",
         [](HostBench &bench) {
             bench.build("g(a)");
             kxOverlayService &s = bench.service();
             const QRPC::NodeList original = bench.ids("a");
             s.setText(original, "one");
             s.setFont(original, "No Such Family");
             s.setFontColor(original, QColor(1, 2, 3));
             s.setBackgroundColor(original, QColor(4, 5, 6));
             s.setBackgroundTransparency(original, QColor(7, 8, 9));
             s.setImage(original, "/no/such/x.png");
             s.setOverlayType(original, 1);
             s.setSizeType(original, 1);
             s.setSize(original, 7.5F);
             s.setPosition(original, QPointF(0.125, 1));
             s.setOffset(original, QPointF(1, -2));
             s.duplicateNodes(bench.ids("g"));
             const QRPC::NodeId copy = s.getChild(s.getChild(s.getRootNode(), 1), 0);
             expectEqual("values", bench.valuesOf(copy), bench.valuesOf(original.first()));
             s.setText({copy}, "two");
             expectEqual("text of the original", s.getText(bench.id("a")), QString("one"));
         }},
    };
}

} // namespace

HostChecks copyChecks()
{
    return joined<HostBench>(
        {sceneChecks(
             {
                 {"duplicate.one", "A copy stands directly behind its original.", "a b", "a",
                  "a +1 b", created("+1")},
                 {"duplicate.neighbours",
                  "The copies of neighbours stand together behind the last of them, in their "
                  "order.",
                  "a b c d e", "b e a d", "a b +1 +2 c d e +3 +4", created("+1 +2 +3 +4")},
                 {"duplicate.apart",
                  "Copies of nodes that are no neighbours stand each on its own.", "a b c", "c a",
                  "a +1 b c +2", created("+1 +2")},
                 {"duplicate.content", "A copy has copies of all that lies in its original.",
                  "g(a h-(b)) c", "g", "g(a h-(b)) +1(+2 +3-(+4)) c", created("+1")},
                 {"duplicate.child",
                  "A node that lies in another one of the list is copied with it.", "g(a b)",
                  "a g b", "g(a b) +1(+2 +3)", created("+1")},
                 {"duplicate.severalParents", "Copies are announced in the order of the tree.",
                  "g(a h(b)) c", "c b a", "g(a +1 h(b +2)) c +3", created("+1 +2 +3")},
                 {"duplicate.shownInSwitch", "A copy of the child that a switch shows is disabled.",
                  "s*(a b-)", "a", "s*(a +1- b-)", created("+1")},
                 {"duplicate.switch", "A copy of a switch shows the copy of the shown child.",
                  "s*(a- b)", "s", "s*(a- b) +1*(+2- +3)", created("+1")},
                 {"duplicate.disabled", "A copy of a disabled node is disabled.", "a-", "a",
                  "a- +1-", created("+1")},
                 {"duplicate.repeated", "Repeated, unknown ids and the root are skipped.", "a",
                  "a root ? 0 a", "a +1", created("+1")},
             },
             duplicate),
         sceneChecks(emptyCases("duplicate"), duplicate), copiedValueChecks()});
}

HostChecks removalChecks()
{
    return joined<HostBench>(
        {sceneChecks(
             {
                 {"delete.one",
                  "A deleted node is gone when it is announced.",
                  "a b c",
                  "b",
                  "a c",
                  {"nodesRemoved b"}},
                 {"delete.content",
                  "What lies in a deleted node goes with it.",
                  "g(a h(b)) c",
                  "g",
                  "c",
                  {"nodesRemoved g"}},
                 {"delete.shownInSwitch",
                  "A switch whose shown child is deleted shows none.",
                  "s*(a b-)",
                  "a",
                  "s*(b-)",
                  {"nodesRemoved a"}},
                 {"delete.repeated",
                  "Repeated, unknown ids and the root are skipped.",
                  "a b",
                  "root 0 ? a a",
                  "b",
                  {"nodesRemoved a"}},
                 {"delete.several",
                  "Several nodes are removed with one signal, in the order of the tree.",
                  "g(a b) h(c)",
                  "c a",
                  "g(b) h()",
                  {"nodesRemoved a c"}},
             },
             remove),
         sceneChecks(emptyCases("delete"), remove),
         HostChecks{{"delete.nodeAndChild", "The list may hold a node and what lies in it.",
                     [](HostBench &bench) {
                         bench.build("g(a) b");
                         const QStringList seen = bench.signalsOf(
                             [&] { bench.service().deleteNodes(bench.ids("a g")); });
                         expectEqual("signals", seen.size(), 1);
                         expect("the top is announced", seen.first().split(' ').contains("g"));
                         expectEqual("scene", bench.dump(), QString("b"));
                     }}}});
}

HostChecks groupingChecks()
{
    return joined<HostBench>(
        {sceneChecks(
             {
                 {"group.one", "A node is put into a new group at its place.", "a b c", "b",
                  "a +1(b) c", grouped("b / +1 / 0", "b")},
                 {"group.rowOrder",
                  "Grouped nodes keep the order of their rows, whatever the list's.", "a b c d",
                  "d b", "a +1(b d) c", grouped("b d / +1 +1 / 0 b", "b d")},
                 {"group.severalParents", "The group stands where the topmost of its nodes stood.",
                  "a g(b c d)", "d a", "+1(a d) g(b c)", grouped("a d / +1 +1 / 0 a", "a d")},
                 {"group.child", "What lies in a grouped node stays in it.", "g(a) b", "a g",
                  "+1(g(a)) b", grouped("g / +1 / 0", "g")},
                 {"group.inDisabled",
                  "In a disabled group the group is announced as what is disabled.", "g-(a b)",
                  "a b", "g-(+1(a b))", grouped("a b / +1 +1 / 0 a", "g")},
                 {"group.repeated", "Repeated, unknown ids and the root are skipped.", "a b",
                  "? 0 root b b", "a +1(b)", grouped("b / +1 / 0", "b")},
             },
             group, true),
         sceneChecks(emptyCases("group"), group),
         HostChecks{
             {"group.inSwitch", "Grouping in a switch leaves it with one shown child at most.",
              [](HostBench &bench) {
                  bench.build("s*(a b- c-)");
                  bench.service().groupNodes(bench.ids("b c"));
                  const QRPC::NodeId s = bench.id("s");
                  int shown = 0;
                  for (int row = 0; row < bench.service().getChildCount(s); ++row)
                      shown += int(bench.service().isEnabled(bench.service().getChild(s, row)));
                  expect("at most one is shown", shown <= 1);
              }},
             {"group.statesInSwitch", "What grouping in a switch does to states is announced.",
              [](HostBench &bench) {
                  bench.build("s*(a b- c-)");
                  kxOverlayService &s = bench.service();
                  QHash<QRPC::NodeId, bool> told;
                  const QObject listener;
                  const auto note = [&s, states = &told](const QRPC::NodeList &nodes) {
                      for (const QRPC::NodeId node : nodes)
                          states->insert(node, s.isEnabled(node));
                  };
                  QObject::connect(&s, &kxOverlayService::nodesAdded, &listener, note);
                  QObject::connect(&s, &kxOverlayService::enabledStateChanged, &listener, note);
                  s.groupNodes(bench.ids("a b"));
                  for (auto node = told.cbegin(); node != told.cend(); ++node)
                      expectEqual("state", s.isEnabled(node.key()), node.value());
              }}}});
}

} // namespace conformance
