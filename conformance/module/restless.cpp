// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "conformance/module/moduleChecks.h"
#include "host/kxKernelServiceFactory.h"
#include "kit/RestlessHost.h"
#include "kit/output.h"

namespace conformance {

namespace {

void startOver(ModuleBench &bench)
{
    bench.open(HostDeed::scene());
    bench.select({2, 4, 5, 10, 13});
}

/// At each moment of the work in turn, until the work is over before.
void expectFollowed(ModuleBench &bench, const HostDeed &work, const HostDeed &deed)
{
    RestlessHost host(&bench.service(), &bench.tree());
    startOver(bench);
    int moment = 1;
    for (; host.run([&] { work.run(bench.service()); }, [&] { deed.run(bench.service()); }, moment);
         ++moment) {
        bench.expectSettled();
        const QRPC::NodeList nodes = bench.selected();
        for (const QRPC::NodeId node : nodes)
            expect("what is selected is there", bench.service().has(node));
        startOver(bench);
    }
    expect("the work has a moment for the change", moment > 1);
}

/// Commands, a refresh and announcements, while there is nobody to ask.
void goOnWithoutTheService(ModuleBench &bench)
{
    bench.open("g2(a3) b4");
    bench.select({3, 4});
    auto *registry = kxKernelServiceFactory::the();
    registry->unregisterService<kxOverlayService>();
    bench.log().clear();
    const QByteArray errors = output::errorsOf([&bench] {
        for (const char *command : {"selectAll", "toggle", "duplicateOverlays", "createOverlay",
                                    "deleteOverlays", "renameOverlay"})
            bench.call(command);
        bench.model().setData(bench.index(4), "typed", Qt::EditRole);
        Q_EMIT bench.service().nameChanged({2, 3});
        Q_EMIT bench.service().nodesAdded({5});
        Q_EMIT bench.service().nodesMoved({3}, {1}, {0});
    });
    registry->registerService<kxOverlayService>(&bench.service());
    expect("the look-ups are reported", errors.contains("couldn't find class"));
    expectEqual("calls", bench.log().lines(), QStringList());
    Q_EMIT bench.service().modelReset();
    bench.expectSettled();
    bench.service().setName({3}, "new");
    bench.expectTree();
}

ModuleChecks workChecks()
{
    ModuleChecks checks;
    for (const HostDeed &work : HostDeed::announced()) {
        for (const HostDeed &deed : HostDeed::meanwhile()) {
            const QString name = QStringLiteral("restless.%1.%2").arg(work.name, deed.name);
            checks.push_back(
                {QString(name).replace(' ', '_'),
                 QStringLiteral("What the service changes while the module follows a change before "
                                "shows afterwards."),
                 [work, deed](ModuleBench &bench) { expectFollowed(bench, work, deed); },
                 Stage::Running});
        }
    }
    return checks;
}

ModuleChecks otherChecks()
{
    return {
        {"restless.eachAnswer", "A service that resets at each question lets its caller go on.",
         [](ModuleBench &bench) {
             bench.open("g2(a3 b4) c5");
             int resets = 0;
             bench.service().setCallHook([&bench, &resets](const QString &line) {
                 if (line.startsWith("getName") && ++resets < 500)
                     Q_EMIT bench.service().modelReset();
             });
             Q_EMIT bench.service().modelReset();
             const int atOnce = resets;
             for (int turns = 0; turns < 1000 && resets < 500; ++turns)
                 QCoreApplication::processEvents();
             bench.service().setCallHook({});
             expect("it comes back soon", atOnce < 100);
             expect("it follows all resets", resets >= 500);
             bench.expectSettled();
         }},
        {"restless.resetBeforeRename",
         "A row that is made anew before its name is written shows it.",
         [](ModuleBench &bench) {
             bench.open("a2 b3");
             bench.beforeNext("setName", [&bench] { Q_EMIT bench.service().modelReset(); });
             bench.model().setData(bench.index(2), "new", Qt::EditRole);
             expectEqual("name", bench.service().node(2).name, QString("new"));
             bench.expectTree();
         }},
        {"restless.staysOpen", "What a change meanwhile does not touch stays open and selected.",
         [](ModuleBench &bench) {
             bench.open("g2(a3) c4");
             bench.select({3});
             bench.beforeNext("getName", [&bench] { bench.service().deleteNodes({4}); });
             bench.service().setName({2}, "new");
             bench.expectSettled();
             expect("the group is open", bench.tree().isExpanded(bench.index(2)));
             expectEqual("selection", bench.selected(), QRPC::NodeList({3}));
         }},
        {"restless.withoutService",
         "Where the service is gone all goes on, and follows it when it is back.",
         goOnWithoutTheService},
        {"restless.twoInOneMoment", "All that is announced in one moment shows.",
         [](ModuleBench &bench) {
             bench.open("g2(a3 b4) c5");
             bench.beforeNext({}, [&bench] {
                 bench.service().moveNodes({3}, 1, 0);
                 bench.service().deleteNodes({3});
             });
             bench.service().setEnabled({4}, false);
             bench.expectTree();
         }},
    };
}

} // namespace

ModuleChecks restlessChecks()
{
    return joined<ModuleBench>({workChecks(), otherChecks()});
}

} // namespace conformance
