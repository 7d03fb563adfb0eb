// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "conformance/service/hostChecks.h"

#include <QCoreApplication>

namespace conformance {

namespace {

/// One call of moveNodes(), the scene afterwards, and the lists of both signals; none where `moved`
/// is empty.
struct MoveCase
{
    const char *name;
    const char *rule;
    const char *before;
    const char *nodes;
    const char *parent;
    int row;
    const char *after;
    const char *moved;
    const char *enabled;
};

// One table, long as it has a row for each case.
const MoveCase s_cases[] = {
    {"onto", "A row of -1 means behind the last child.", "a g(b)", "a", "g", -1, "g(b a)",
     "a / g / b", "a"},
    {"belowZero", "So does any other row below 0.", "a g(b)", "a", "g", -7, "g(b a)", "a / g / b",
     "a"},
    {"up", "A node moves before the child at the row.", "a b c", "c", "root", 0, "c a b",
     "c / root / 0", "c"},
    {"down", "The row counts before anything is taken out.", "a b c d", "a", "root", 3, "b c a d",
     "a / root / c", "a"},
    {"beyond", "A row beyond the last child means behind it.", "a b g(c)", "a", "g", 7, "b g(c a)",
     "a / g / c", "a"},
    {"aboveItself", "A move to where the node is does nothing.", "a b c", "b", "root", 1, "a b c",
     "", ""},
    {"belowItself", "A move directly behind itself does nothing.", "a b c", "b", "root", 2, "a b c",
     "", ""},
    {"toTheEndWhereItIs", "A move of the last child to the end does nothing.", "a b c", "c", "root",
     -1, "a b c", "", ""},
    {"rowOrder", "Nodes of one parent are ordered by row, not by list.", "a b c d e", "e b d",
     "root", 0, "b d e a c", "b d e / root root root / 0 b d", "b d e"},
    {"anchor", "The place is before the first child from the row on that stays.", "a b c d e",
     "b c e", "root", 1, "a b c e d", "b c e / root root root / a b c", "b c e"},
    {"severalParents", "Nodes of several parents are ordered by the rows that they come from.",
     "a g(b c) h(d e f)", "f c a", "g", 0, "g(a c f b) h(d e)", "a c f / g g g / 0 a c", "a c f"},
    {"equalRows", "Of several nodes with one row the first counts, the others follow as listed.",
     "g(a b) h(c d) i()", "c b a d", "i", -1, "g() h() i(c b a d)", "c b a d / i i i i / 0 c b a",
     "c b a d"},
    {"withChild", "A node that lies in another one of the list travels in it.", "g(a) b h()", "a g",
     "h", -1, "b h(g(a))", "g / h / 0", "g"},
    {"intoItself", "The new parent stays where it is.", "g(a) b", "g b", "g", 0, "g(b a)",
     "b / g / 0", "b"},
    {"intoItsContent", "What holds the new parent stays where it is.", "g(h(a)) b", "g", "h", -1,
     "g(h(a)) b", "", ""},
    {"belowWhatStays", "A node that lies in a listed one which cannot move stays with it.",
     "g(a h()) b", "g a b", "h", -1, "g(a h(b))", "b / h / 0", "b"},
    {"skips", "Repeated, unknown ids and the root are skipped.", "a b", "? 0 root b b", "root", 0,
     "b a", "b / root / 0", "b"},
    {"nothing", "An empty list does nothing.", "a g()", "", "g", 0, "a g()", "", ""},
    {"intoOverlay", "An overlay takes nothing in.", "a b", "a", "b", -1, "a b", "", ""},
    {"intoUnknown", "An unknown parent takes nothing in.", "a b", "a", "?", -1, "a b", "", ""},
    {"intoNone", "No node takes nothing in.", "a b", "a", "0", -1, "a b", "", ""},
    {"belowDisabled", "Below a disabled group the group is announced in place of the node.",
     "a g-(h(b))", "a", "h", -1, "g-(h(b a))", "a / h / b", "g"},
    {"outOfDisabled", "Out of a disabled group the node is announced.", "g-(a)", "a", "root", 0,
     "a g-()", "a / root / 0", "a"},
    {"disabledNode", "A disabled node stays disabled and is announced.", "a- g()", "a", "g", -1,
     "g(a-)", "a / g / 0", "a"},
    {"intoShowingSwitch", "A node enters a switch that shows a child disabled.", "a s*(b c-)", "a",
     "s", 0, "s*(a- b c-)", "a / s / 0", "a"},
    {"intoDisabledSwitch",
     "What a disabled switch disables is announced beside the switch, which stands for what moved.",
     "a s*-(b c-)", "a", "s", 0, "s*-(a- b c-)", "a / s / 0", "s a"},
    {"intoSwitchThatShowsNone", "Of nodes that enter a switch which shows none, one stays enabled.",
     "a b s*(c-)", "a b", "s", 1, "s*(c- a b-)", "a b / s s / c a", "a b"},
    {"withinSwitch", "A move within a switch changes no state.", "s*(a b- c-)", "a", "s", 3,
     "s*(b- c- a)", "a / s / c", "a"},
    {"outOfSwitch", "The shown child may leave its switch, which then shows none.", "s*(a b-)", "a",
     "root", -1, "s*(b-) a", "a / root / s", "a"},
    {"content", "All that lies in a node moves with it.", "g(a h(b s*(c))) i()", "g", "i", 0,
     "i(g(a h(b s*(c))))", "g / i / 0", "g"},
};

QStringList announcedBy(const MoveCase &wanted)
{
    if (!*wanted.moved)
        return {};
    return {QStringLiteral("nodesMoved ") + wanted.moved,
            QStringLiteral("enabledStateChanged ") + wanted.enabled};
}

HostChecks ruleChecks()
{
    HostChecks checks;
    for (const MoveCase &wanted : s_cases) {
        const auto run = [wanted](HostBench &bench) {
            const auto act = [&bench, wanted] {
                bench.service().moveNodes(bench.ids(wanted.nodes), bench.id(wanted.parent),
                                          wanted.row);
            };
            bench.build(wanted.before);
            expectEqual("signals", bench.signalsOf(act), announcedBy(wanted));
            expectEqual("scene", bench.dump(), QString(wanted.after));
            bench.build(wanted.before);
            expectEqual("faults in the announcements", bench.faultsOf(act), QStringList());
        };
        checks.push_back({QStringLiteral("move.") + wanted.name, wanted.rule, run, Stage::Running});
    }
    return checks;
}

/// Runs `act` from a slot of nodesMoved() and tells which structural signals came before moveNodes()
/// had returned. Returns what came afterwards.
QStringList expectQueued(HostBench &bench, const std::function<void()> &act)
{
    bench.build("a b g()");
    const QObject context;
    bool done = false;
    QObject::connect(&bench.service(), &kxOverlayService::nodesMoved, &context, [&done, act] {
        if (!std::exchange(done, true))
            act();
    });
    const QStringList inside =
        bench.signalsOf([&bench] { bench.service().moveNodes(bench.ids("a"), bench.id("g"), 0); });
    for (const QString &line : inside) {
        for (const char *signal : {"nodesAdded", "nodesCreated", "nodesRemoved", "modelReset"})
            expect(signal, !line.startsWith(QLatin1String(signal)));
        expect("no signal names a node before it is announced", !line.contains('+'));
    }
    const QStringList later = bench.signalsOf([] { QCoreApplication::processEvents(); });
    expect("it is announced once the move has returned", !later.isEmpty());
    return later;
}

HostChecks queueChecks()
{
    return {
        {"move.queuesCreation", "Nodes created while a move is announced are announced after it.",
         [](HostBench &bench) {
             expectQueued(bench, [&bench] { bench.service().createOverlay(bench.id("g")); });
         }},
        {"move.queuesRemoval", "Nodes deleted while a move is announced are announced after it.",
         [](HostBench &bench) {
             expectQueued(bench, [&bench] { bench.service().deleteNodes(bench.ids("b")); });
         }},
        {"move.queuesCopies", "Nodes copied while a move is announced are announced after it.",
         [](HostBench &bench) {
             expectQueued(bench, [&bench] { bench.service().duplicateNodes(bench.ids("b")); });
         }},
        {"move.queuesWhatFollows",
         "What happens to a node whose creation waits to be announced is announced after it.",
         [](HostBench &bench) {
             const QStringList later = expectQueued(bench, [&bench] {
                 kxOverlayService &s = bench.service();
                 const QRPC::NodeId node = s.createOverlay(bench.id("g"));
                 s.setName({node}, "x");
                 s.moveNodes({node}, s.getRootNode(), 0);
             });
             expectEqual("first signal", later.first(), QString("nodesAdded +1"));
             expect("the move is announced", later.contains("nodesMoved +1 / root / 0"));
         }},
    };
}

} // namespace

HostChecks moveChecks()
{
    return joined<HostBench>({ruleChecks(), queueChecks()});
}

} // namespace conformance
