// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "conformance/module/moduleChecks.h"

#include <QLineEdit>

#include <thread>

namespace conformance {

namespace {

/// A signal of the service, and how many slots of editor and model are connected to it.
struct Listener
{
    const char *name;
    const char *signal;
    int count;
};

const Listener s_listeners[] = {
    {"nodesAdded", SIGNAL(nodesAdded(QRPC::NodeList)), 1},
    {"nodesCreated", SIGNAL(nodesCreated(QRPC::NodeList)), 1},
    {"nodesRemoved", SIGNAL(nodesRemoved(QRPC::NodeList)), 2},
    {"nodesMoved", SIGNAL(nodesMoved(QRPC::NodeList, QRPC::NodeList, QRPC::NodeList)), 1},
    {"overlayTypeChanged", SIGNAL(overlayTypeChanged(QRPC::NodeList)), 1},
    {"nameChanged", SIGNAL(nameChanged(QRPC::NodeList)), 2},
    {"textChanged", SIGNAL(textChanged(QRPC::NodeList)), 1},
    {"fontChanged", SIGNAL(fontChanged(QRPC::NodeList)), 1},
    {"fontColorChanged", SIGNAL(fontColorChanged(QRPC::NodeList)), 1},
    {"backgroundColorChanged", SIGNAL(backgroundColorChanged(QRPC::NodeList)), 1},
    {"backgroundTransparencyChanged", SIGNAL(backgroundTransparencyChanged(QRPC::NodeList)), 1},
    {"imageChanged", SIGNAL(imageChanged(QRPC::NodeList)), 1},
    {"sizeTypeChanged", SIGNAL(sizeTypeChanged(QRPC::NodeList)), 1},
    {"sizeChanged", SIGNAL(sizeChanged(QRPC::NodeList)), 1},
    {"positionChanged", SIGNAL(positionChanged(QRPC::NodeList)), 1},
    {"offsetChanged", SIGNAL(offsetChanged(QRPC::NodeList)), 1},
    {"enabledStateChanged", SIGNAL(enabledStateChanged(QRPC::NodeList)), 1},
    {"modelReset", SIGNAL(modelReset()), 1},
};

ModuleChecks listenerChecks()
{
    ModuleChecks checks;
    for (const Listener &listener : s_listeners) {
        checks.push_back({QStringLiteral("wiring.%1").arg(listener.name),
                          "Editor and model listen to the signal, each as often as stated.",
                          [listener](ModuleBench &bench) {
                              expectEqual("listeners", bench.service().receivers(listener.signal),
                                          listener.count);
                          }});
    }
    return checks;
}

} // namespace

ModuleChecks wiringChecks()
{
    return joined<ModuleBench>(
        {listenerChecks(),
         ModuleChecks{
             {"wiring.oneRefreshPerSignal", "A signal with many nodes refreshes the panel once.",
              [](ModuleBench &bench) {
                  bench.open("a2 b3 c4");
                  bench.select({2, 3, 4});
                  bench.log().clear();
                  Q_EMIT bench.service().fontColorChanged({2, 3, 4});
                  // One reference, then each node of the selection.
                  expect("each value is read once or twice",
                         bench.log().count("getFontColor") <= 4);
                  expect("each value is read", bench.log().count("getFontColor") >= 3);
                  expectEqual("other values read", bench.log().count("getText"), 0);
              }},
             {"wiring.removedOne", "The slot for one removed node refreshes the panel too.",
              [](ModuleBench &bench) {
                  bench.open("a2 b3");
                  bench.select({2});
                  expect("there is the slot",
                         QMetaObject::invokeMethod(&bench.editor(), "nodeRemovedUpdate",
                                                   Qt::DirectConnection, Q_ARG(QRPC::NodeId, 3)));
                  expectEqual("names read", bench.log().count("getName"), 2);
              }},
             {"wiring.queued", "Signals from another thread arrive through the event loop.",
              [](ModuleBench &bench) {
                  bench.open("a2 b3");
                  bench.select({3});
                  bench.node(3).name = "x3";
                  const QStringList calls = bench.callsOf([&bench] {
                      std::thread([&bench] { Q_EMIT bench.service().nameChanged({3}); }).join();
                  });
                  expectEqual("calls on the other thread", calls, QStringList());
                  expectEqual("tree", bench.shown(), QString("a2 b3"));
                  QCoreApplication::processEvents();
                  bench.expectTree();
                  expectEqual("name", bench.form<QLineEdit>("_overlay_name").text(), QString("x3"));
                  expect("lists of nodes are a type that can be queued",
                         QMetaType::type("QRPC::NodeList") != QMetaType::UnknownType);
                  expect("nodes are a type that can be queued",
                         QMetaType::type("QRPC::NodeId") != QMetaType::UnknownType);
              }},
         }});
}

} // namespace conformance
