// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "conformance/service/hostChecks.h"

namespace conformance {

namespace {

/// A getter of one value of an overlay, and its answer where there is none.
struct Getter
{
    const char *name;
    std::function<bool(kxOverlayService &, QRPC::NodeId)> isNone;
};

std::vector<Getter> getters()
{
    using S = kxOverlayService;
    using Id = QRPC::NodeId;
    return {
        {"getOverlayType", [](S &s, Id n) { return s.getOverlayType(n) == 0; }},
        {"getText", [](S &s, Id n) { return s.getText(n).isEmpty(); }},
        {"getFont", [](S &s, Id n) { return s.getFont(n).isEmpty(); }},
        {"getFontColor", [](S &s, Id n) { return !s.getFontColor(n).isValid(); }},
        {"getBackgroundColor", [](S &s, Id n) { return !s.getBackgroundColor(n).isValid(); }},
        {"getBackgroundTransparency",
         [](S &s, Id n) { return !s.getBackgroundTransparency(n).isValid(); }},
        {"getImage", [](S &s, Id n) { return s.getImage(n).isEmpty(); }},
        {"getSizeType", [](S &s, Id n) { return s.getSizeType(n) == 0; }},
        {"getSize", [](S &s, Id n) { return s.getSize(n) == 0.0F; }},
        {"getPosition", [](S &s, Id n) { return s.getPosition(n) == QPointF(); }},
        {"getOffset", [](S &s, Id n) { return s.getOffset(n) == QPointF(); }},
    };
}

HostChecks neutralChecks()
{
    HostChecks checks;
    for (const Getter &getter : getters()) {
        const auto run = [getter](HostBench &bench) {
            bench.build("a g(b) s*(c)");
            for (const char *node : {"0", "?", "root", "g", "s"})
                expect(node, getter.isNone(bench.service(), bench.id(node)));
        };
        checks.push_back({QStringLiteral("nodes.neutral.%1").arg(getter.name),
                          "Where there is no overlay the getter answers its value for none.", run,
                          Stage::Running});
    }
    return checks;
}

// One table, long as it has an entry for each check.
HostChecks treeChecksOfHost() // NOLINT(readability-function-size)
{
    return {
        {"nodes.root", "The root is there, active and enabled, no overlay, no switch, no child.",
         [](HostBench &bench) {
             kxOverlayService &s = bench.service();
             const QRPC::NodeId root = s.getRootNode();
             expect("it has an id", root != 0);
             expectEqual("parent", s.getParent(root), 0U);
             expect("it is enabled", s.isEnabled(root));
             expect("it is active", s.isActive(root));
             expect("it is no overlay", !s.isOverlay(root));
             expect("it is no switch", !s.isSwitch(root));
             expectEqual("root asked again", s.getRootNode(), root);
         }},
        {"nodes.kinds", "Overlays, groups and switches are told apart.",
         [](HostBench &bench) {
             bench.build("a g() s*()");
             kxOverlayService &s = bench.service();
             expect("an overlay is one", s.isOverlay(bench.id("a")));
             expect("a group is no overlay", !s.isOverlay(bench.id("g")));
             expect("a switch is no overlay", !s.isOverlay(bench.id("s")));
             expect("an overlay is no switch", !s.isSwitch(bench.id("a")));
             expect("a group is no switch", !s.isSwitch(bench.id("g")));
             expect("a switch is one", s.isSwitch(bench.id("s")));
         }},
        {"nodes.children", "Children are counted and given in their order.",
         [](HostBench &bench) {
             bench.build("a g(b c) d");
             kxOverlayService &s = bench.service();
             const QRPC::NodeId g = bench.id("g");
             expectEqual("count", s.getChildCount(g), 2);
             expectEqual("first", s.getChild(g, 0), bench.id("b"));
             expectEqual("second", s.getChild(g, 1), bench.id("c"));
             expectEqual("count of an overlay", s.getChildCount(bench.id("a")), 0);
         }},
        {"nodes.childOutside", "A child index that does not exist gives 0.",
         [](HostBench &bench) {
             bench.build("g(b)");
             kxOverlayService &s = bench.service();
             for (const int index : {-1, 1, 1000})
                 expectEqual("child", s.getChild(bench.id("g"), index), 0U);
             expectEqual("child of an overlay", s.getChild(bench.id("b"), 0), 0U);
             expectEqual("child of nothing", s.getChild(0, 0), 0U);
             expectEqual("child of an unknown node", s.getChild(bench.id("?"), 0), 0U);
         }},
        {"nodes.childIndex", "The index of a child is its row; -1 for what is no child.",
         [](HostBench &bench) {
             bench.build("a g(b c) d");
             kxOverlayService &s = bench.service();
             const QRPC::NodeId root = s.getRootNode();
             expectEqual("c in g", s.getChildIndex(bench.id("g"), bench.id("c")), 1);
             expectEqual("d in root", s.getChildIndex(root, bench.id("d")), 2);
             expectEqual("c in root", s.getChildIndex(root, bench.id("c")), -1);
             expectEqual("root in 0", s.getChildIndex(0, root), -1);
             expectEqual("? in g", s.getChildIndex(bench.id("g"), bench.id("?")), -1);
             expectEqual("b in ?", s.getChildIndex(bench.id("?"), bench.id("b")), -1);
         }},
        {"nodes.parents", "Every node knows its parent; unknown ids have none.",
         [](HostBench &bench) {
             bench.build("a g(b s*(c))");
             kxOverlayService &s = bench.service();
             expectEqual("parent of a", s.getParent(bench.id("a")), s.getRootNode());
             expectEqual("parent of c", s.getParent(bench.id("c")), bench.id("s"));
             expectEqual("parent of s", s.getParent(bench.id("s")), bench.id("g"));
             expectEqual("parent of 0", s.getParent(0), 0U);
             expectEqual("parent of an unknown node", s.getParent(bench.id("?")), 0U);
         }},
        {"nodes.unknown",
         "An unknown id is no node: nameless, childless, neither enabled nor active.",
         [](HostBench &bench) {
             kxOverlayService &s = bench.service();
             for (const QRPC::NodeId node : {0U, bench.id("?")}) {
                 expectEqual("children", s.getChildCount(node), 0);
                 expectEqual("name", s.getName(node), QString());
                 expect("no overlay", !s.isOverlay(node));
                 expect("no switch", !s.isSwitch(node));
                 expect("not enabled", !s.isEnabled(node));
                 expect("not active", !s.isActive(node));
             }
         }},
        {"nodes.deleted", "A deleted node is an unknown one.",
         [](HostBench &bench) {
             bench.build("a g(b)");
             kxOverlayService &s = bench.service();
             s.deleteNodes(bench.ids("g"));
             for (const char *name : {"g", "b"}) {
                 const QRPC::NodeId node = bench.id(name);
                 expectEqual("parent", s.getParent(node), 0U);
                 expectEqual("name", s.getName(node), QString());
                 expect("no overlay", !s.isOverlay(node));
                 expect("not active", !s.isActive(node));
             }
         }},
        {"nodes.active", "A node is active when it is enabled and its parent is active.",
         [](HostBench &bench) {
             bench.build("g-(h(a b-)) i(c d-)");
             kxOverlayService &s = bench.service();
             for (const char *name : {"g", "h", "a", "b", "d"})
                 expect(name, !s.isActive(bench.id(name)));
             for (const char *name : {"i", "c"})
                 expect(name, s.isActive(bench.id(name)));
             expect("enabled stays the node's own", s.isEnabled(bench.id("a")));
         }},
        {"nodes.activeFollows", "The active state follows every change above the node.",
         [](HostBench &bench) {
             bench.build("g-(h(a)) i(b)");
             kxOverlayService &s = bench.service();
             s.setEnabled(bench.ids("g"), true);
             expect("enabled above", s.isActive(bench.id("a")));
             s.setEnabled(bench.ids("h"), false);
             expect("disabled above", !s.isActive(bench.id("a")));
             s.moveNodes(bench.ids("a"), bench.id("i"), -1);
             expect("moved below an active group", s.isActive(bench.id("a")));
             s.moveNodes(bench.ids("b"), bench.id("h"), -1);
             expect("moved below an inactive group", !s.isActive(bench.id("b")));
         }},
        {"nodes.idsGrow", "Ids lie above the root's, grow, and are never given twice.",
         [](HostBench &bench) {
             kxOverlayService &s = bench.service();
             QRPC::NodeId last = s.getRootNode();
             for (int i = 0; i < 5; ++i) {
                 const QRPC::NodeId created = s.createGroup(s.getRootNode());
                 expect("each id is above the one before", created > last);
                 last = created;
                 s.deleteNodes({created});
             }
         }},
    };
}

} // namespace

HostChecks nodesChecks()
{
    return joined<HostBench>({treeChecksOfHost(), neutralChecks()});
}

} // namespace conformance
