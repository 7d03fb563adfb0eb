// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "conformance/service/hostChecks.h"

#include <cmath>
#include <limits>

namespace conformance {

namespace {

using S = kxOverlayService;
using Nodes = QRPC::NodeList;

/// One property write: how to make it, how to see it, what it announces.
struct Write
{
    const char *name;
    std::function<void(S &, const Nodes &)> set;
    std::function<bool(S &, QRPC::NodeId)> isSet;
    QStringList announced;
};

std::vector<Write> writes()
{
    using Id = QRPC::NodeId;
    return {
        {"setText",
         [](S &s, const Nodes &n) { s.setText(n, "line\n line "); },
         [](S &s, Id n) { return s.getText(n) == "line\n line "; },
         {"textChanged"}},
        {"setFont",
         [](S &s, const Nodes &n) { s.setFont(n, "No Such Family"); },
         [](S &s, Id n) { return s.getFont(n) == "No Such Family"; },
         {"fontChanged"}},
        {"setFontColor",
         [](S &s, const Nodes &n) { s.setFontColor(n, QColor(1, 2, 3)); },
         [](S &s, Id n) { return s.getFontColor(n) == QColor(1, 2, 3); },
         {"fontColorChanged"}},
        {"setBackgroundColor",
         [](S &s, const Nodes &n) { s.setBackgroundColor(n, QColor(4, 5, 6)); },
         [](S &s, Id n) { return s.getBackgroundColor(n) == QColor(4, 5, 6); },
         {"backgroundColorChanged"}},
        {"setBackgroundTransparency",
         [](S &s, const Nodes &n) { s.setBackgroundTransparency(n, QColor(7, 8, 9)); },
         [](S &s, Id n) { return s.getBackgroundTransparency(n) == QColor(7, 8, 9); },
         {"backgroundTransparencyChanged"}},
        {"setSizeType",
         [](S &s, const Nodes &n) { s.setSizeType(n, 1); },
         [](S &s, Id n) { return s.getSizeType(n) == 1; },
         {"sizeTypeChanged"}},
        {"setSize",
         [](S &s, const Nodes &n) { s.setSize(n, 33.25F); },
         [](S &s, Id n) { return s.getSize(n) == 33.25F; },
         {"sizeChanged"}},
        {"setPosition",
         [](S &s, const Nodes &n) { s.setPosition(n, QPointF(0.125, 1)); },
         [](S &s, Id n) { return s.getPosition(n) == QPointF(0.125, 1); },
         {"positionChanged"}},
        {"setOffset",
         [](S &s, const Nodes &n) { s.setOffset(n, QPointF(1.25, -2)); },
         [](S &s, Id n) { return s.getOffset(n) == QPointF(1.25, -2); },
         {"offsetChanged"}},
        {"setOffsetX",
         [](S &s, const Nodes &n) { s.setOffsetX(n, 12.5F); },
         [](S &s, Id n) { return s.getOffset(n) == QPointF(12.5, 0); },
         {"offsetChanged"}},
        {"setOffsetY",
         [](S &s, const Nodes &n) { s.setOffsetY(n, -1.5F); },
         [](S &s, Id n) { return s.getOffset(n) == QPointF(0, -1.5); },
         {"offsetChanged"}},
        {"setOverlayType",
         [](S &s, const Nodes &n) { s.setOverlayType(n, 1); },
         [](S &s, Id n) { return s.getOverlayType(n) == 1; },
         {"overlayTypeChanged", "textChanged", "fontChanged", "fontColorChanged",
          "backgroundColorChanged", "backgroundTransparencyChanged", "imageChanged"}},
        {"setImage",
         [](S &s, const Nodes &n) { s.setImage(n, "/no/such/x.png"); },
         [](S &s, Id n) { return s.getImage(n) == "/no/such/x.png"; },
         {"imageChanged"}},
    };
}

QStringList linesOf(const Write &write, const QString &nodes)
{
    QStringList lines;
    for (const QString &signal : write.announced)
        lines.append(signal + ' ' + nodes);
    return lines;
}

void reachesTheListedOverlays(HostBench &bench, const Write &write)
{
    bench.build("a g(b) s*(c) d");
    const QStringList seen =
        bench.signalsOf([&] { write.set(bench.service(), bench.ids("a b c")); });
    expectEqual("signals", seen, linesOf(write, "a b c"));
    for (const char *node : {"a", "b", "c"})
        expect(node, write.isSet(bench.service(), bench.id(node)));
    expect("an overlay that is not listed keeps its value",
           !write.isSet(bench.service(), bench.id("d")));
}

void skipsTheRest(HostBench &bench, const Write &write)
{
    bench.build("a g(b) s*(c)");
    const QStringList seen =
        bench.signalsOf([&] { write.set(bench.service(), bench.ids("c root a g 0 ? a s b")); });
    expectEqual("signals", seen, linesOf(write, "a b c"));
    bench.build("a g(b)");
    expectEqual("signals of a list without overlays",
                bench.signalsOf([&] { write.set(bench.service(), bench.ids("root g 0 ?")); }),
                QStringList());
}

void doesNothingWithoutChange(HostBench &bench, const Write &write)
{
    bench.build("a b");
    expectEqual("signals of an empty list",
                bench.signalsOf([&] { write.set(bench.service(), {}); }), QStringList());
    write.set(bench.service(), bench.ids("a"));
    const QStringList again = bench.signalsOf([&] { write.set(bench.service(), bench.ids("a")); });
    const bool readsAnew = qstrcmp(write.name, "setImage") == 0;
    expectEqual("signals of the same value", again,
                readsAnew ? linesOf(write, "a") : QStringList());
    expectEqual("signals where one changes",
                bench.signalsOf([&] { write.set(bench.service(), bench.ids("a b")); }),
                linesOf(write, readsAnew ? "a b" : "b"));
}

void announcesWhenComplete(HostBench &bench, const Write &write)
{
    bench.build("a g(b)");
    expectEqual("faults in the announcements",
                bench.faultsOf([&] { write.set(bench.service(), bench.ids("a b")); }),
                QStringList());
}

HostChecks writeChecks()
{
    HostChecks checks;
    const auto add = [&checks](const Write &write, const char *name, const char *rule,
                               void (*run)(HostBench &, const Write &)) {
        checks.push_back({QStringLiteral("write.%1.%2").arg(name, write.name), rule,
                          [write, run](HostBench &bench) { run(bench, write); }, Stage::Running});
    };
    for (const Write &write : writes()) {
        add(write, "reaches", "A write reaches every listed overlay and is announced once.",
            reachesTheListedOverlays);
        add(write, "skips", "Groups, the root, unknown and repeated ids are skipped.",
            skipsTheRest);
        add(write, "unchanged", "What changes nothing is not announced, but for an image's path.",
            doesNothingWithoutChange);
        add(write, "whenComplete", "All overlays have the value when it is announced.",
            announcesWhenComplete);
    }
    return checks;
}

// One table, long as it has an entry for each check.
HostChecks oddValueChecks() // NOLINT(readability-function-size)
{
    return {
        {"write.asGiven", "Values outside of their range are stored as given.",
         [](HostBench &bench) {
             bench.build("a");
             S &s = bench.service();
             s.setSize(bench.ids("a"), -3.5F);
             expectEqual("size", s.getSize(bench.id("a")), -3.5F);
             s.setSize(bench.ids("a"), 5000.0F);
             expectEqual("size", s.getSize(bench.id("a")), 5000.0F);
             s.setPosition(bench.ids("a"), QPointF(-1, 7));
             expectEqual("position", s.getPosition(bench.id("a")), QPointF(-1, 7));
             s.setOverlayType(bench.ids("a"), 5);
             expectEqual("type", s.getOverlayType(bench.id("a")), 5);
         }},
        {"write.notANumber", "A size that is no number is stored once.",
         [](HostBench &bench) {
             bench.build("a");
             S &s = bench.service();
             const float none = std::numeric_limits<float>::quiet_NaN();
             s.setSize(bench.ids("a"), none);
             expect("the size is no number", std::isnan(s.getSize(bench.id("a"))));
             expectEqual("signals of the second write",
                         bench.signalsOf([&] { s.setSize(bench.ids("a"), none); }), QStringList());
         }},
        {"write.offsetKeepsX", "Writing one coordinate of the offset keeps the other.",
         [](HostBench &bench) {
             bench.build("a");
             S &s = bench.service();
             s.setOffset(bench.ids("a"), QPointF(3, 4));
             s.setOffsetX(bench.ids("a"), 5);
             expectEqual("offset", s.getOffset(bench.id("a")), QPointF(5, 4));
             s.setOffsetY(bench.ids("a"), 6);
             expectEqual("offset", s.getOffset(bench.id("a")), QPointF(5, 6));
         }},
        {"write.clearsImage", "An empty path clears the image, once.",
         [](HostBench &bench) {
             bench.build("a");
             S &s = bench.service();
             s.setImage(bench.ids("a"), "/no/such/x.png");
             expectEqual("signals", bench.signalsOf([&] { s.setImage(bench.ids("a"), QString()); }),
                         QStringList("imageChanged a"));
             expectEqual("image", s.getImage(bench.id("a")), QString());
             expectEqual("signals of the second time",
                         bench.signalsOf([&] { s.setImage(bench.ids("a"), QString()); }),
                         QStringList());
         }},
        {"write.imageUnchanged", "The path that an overlay has already is announced again.",
         [](HostBench &bench) {
             bench.build("a b");
             S &s = bench.service();
             s.setImage(bench.ids("a b"), "/no/such/x.png");
             expectEqual("signals",
                         bench.signalsOf([&] { s.setImage(bench.ids("b"), "/no/such/x.png"); }),
                         QStringList("imageChanged b"));
         }},
        {"write.emptyTexts", "Texts and families may be empty.",
         [](HostBench &bench) {
             bench.build("a");
             S &s = bench.service();
             s.setText(bench.ids("a"), "x");
             s.setText(bench.ids("a"), QString());
             expectEqual("text", s.getText(bench.id("a")), QString());
             s.setFont(bench.ids("a"), "x");
             s.setFont(bench.ids("a"), QString());
             expectEqual("family", s.getFont(bench.id("a")), QString());
         }},
        {"name.everyKind",
         "Overlays, groups and switches can be renamed; one signal names them all.",
         [](HostBench &bench) {
             bench.build("a g(b) s*()");
             const QStringList seen =
                 bench.signalsOf([&] { bench.service().setName(bench.ids("s b g a"), "x"); });
             expectEqual("signals", seen, QStringList("nameChanged a g b s"));
             for (const char *node : {"a", "g", "b", "s"})
                 expectEqual(node, bench.service().getName(bench.id(node)), QString("x"));
         }},
        {"name.asGiven", "Names are stored exactly as given.",
         [](HostBench &bench) {
             bench.build("a");
             for (const QString &name :
                  {QString::fromUtf8(" \xc3\xa9 \n\t"), QString(), QString(5000, 'x')}) {
                 bench.service().setName(bench.ids("a"), name);
                 expectEqual("name", bench.service().getName(bench.id("a")), name);
             }
         }},
        {"name.skips", "Unknown ids, repetitions, the root and unchanged names are skipped.",
         [](HostBench &bench) {
             bench.build("a b");
             S &s = bench.service();
             expectEqual("signals",
                         bench.signalsOf([&] { s.setName(bench.ids("? a root 0 a b"), "a"); }),
                         QStringList("nameChanged b"));
             expectEqual("signals of an empty list", bench.signalsOf([&] { s.setName({}, "y"); }),
                         QStringList());
             expectEqual("signals for the root",
                         bench.signalsOf([&] { s.setName({s.getRootNode()}, "y"); }),
                         QStringList());
         }},
    };
}

} // namespace

HostChecks valueChecks()
{
    return joined<HostBench>({writeChecks(), oddValueChecks()});
}

} // namespace conformance
