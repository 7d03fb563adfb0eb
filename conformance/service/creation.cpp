// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "conformance/service/hostChecks.h"

namespace conformance {

namespace {

using Create = QRPC::NodeId (kxOverlayService::*)(QRPC::NodeId);

struct Command
{
    const char *name;
    Create create;
    const char *kind; ///< what the notation writes behind the name of an empty one
};

const Command s_commands[] = {
    {"createOverlay", &kxOverlayService::createOverlay, ""},
    {"createGroup", &kxOverlayService::createGroup, "()"},
    {"createSwitch", &kxOverlayService::createSwitch, "*()"},
};

void appendsAndAnnounces(HostBench &bench, const Command &command)
{
    for (const char *parent : {"root", "g", "s"}) {
        bench.build("a g(b) s*(c-)");
        QRPC::NodeId created = 0;
        const QStringList seen =
            bench.signalsOf([&] { created = (bench.service().*command.create)(bench.id(parent)); });
        expectEqual("signals", seen, QStringList({"nodesAdded +1", "nodesCreated +1"}));
        expect("the id that was returned is that of the signals", bench.nameOf(created) == "+1");
        const QString node = QStringLiteral("+1") + command.kind;
        QString wanted = "a g(b) s*(c-) " + node;
        if (qstrcmp(parent, "g") == 0)
            wanted = "a g(b " + node + ") s*(c-)";
        if (qstrcmp(parent, "s") == 0)
            wanted = "a g(b) s*(c- " + node + ")";
        expectEqual("scene", bench.dump(), wanted);
    }
}

void refusesWhatHoldsNothing(HostBench &bench, const Command &command)
{
    bench.build("a");
    for (const char *parent : {"a", "0", "?"}) {
        QRPC::NodeId created = 1;
        const QStringList seen =
            bench.signalsOf([&] { created = (bench.service().*command.create)(bench.id(parent)); });
        expectEqual("id", created, 0U);
        expectEqual("signals", seen, QStringList());
        expectEqual("scene", bench.dump(), QString("a"));
    }
}

void entersDisabled(HostBench &bench, const Command &command)
{
    bench.build("s*(a)");
    const QStringList seen =
        bench.signalsOf([&] { (bench.service().*command.create)(bench.id("s")); });
    expectEqual("signals", seen, QStringList({"nodesAdded +1", "nodesCreated +1"}));
    expectEqual("scene", bench.dump(),
                QString("s*(a +1%1)")
                    .arg(QString(command.kind).replace("()", "-()") + (*command.kind ? "" : "-")));
}

void announcesWhenComplete(HostBench &bench, const Command &command)
{
    bench.build("g()");
    expectEqual("faults in the announcements",
                bench.faultsOf([&] { (bench.service().*command.create)(bench.id("g")); }),
                QStringList());
}

} // namespace

HostChecks creationChecks()
{
    HostChecks checks;
    const auto add = [&checks](const Command &command, const char *name, const char *rule,
                               void (*run)(HostBench &, const Command &)) {
        checks.push_back(
            {QStringLiteral("create.%1.%2").arg(name, command.name), QString::fromUtf8(rule),
             [command, run](HostBench &bench) { run(bench, command); }, Stage::Running});
    };
    for (const Command &command : s_commands) {
        add(command, "appends", "A new node becomes the last child, is added, then created.",
            appendsAndAnnounces);
        add(command, "refuses", "Nothing is created in an overlay or in no node.",
            refusesWhatHoldsNothing);
        add(command, "entersDisabled",
            "A new node enters a switch that shows a child disabled, without a signal of its own.",
            entersDisabled);
        add(command, "whenComplete", "A new node is announced when it is in its place.",
            announcesWhenComplete);
    }
    checks.push_back(
        {"create.text", "A new overlay is an enabled text overlay.", [](HostBench &bench) {
             kxOverlayService &s = bench.service();
             const QRPC::NodeId node = s.createOverlay(s.getRootNode());
             expectEqual("type", s.getOverlayType(node), 0);
             expect("it is enabled", s.isEnabled(node));
             expect("it is active", s.isActive(node));
         }});
    checks.push_back({"create.inactive",
                      "A new node in a disabled group is enabled and not active.",
                      [](HostBench &bench) {
                          bench.build("g-()");
                          kxOverlayService &s = bench.service();
                          const QRPC::NodeId node = s.createGroup(bench.id("g"));
                          expect("it is enabled", s.isEnabled(node));
                          expect("it is not active", !s.isActive(node));
                      }});
    return checks;
}

} // namespace conformance
