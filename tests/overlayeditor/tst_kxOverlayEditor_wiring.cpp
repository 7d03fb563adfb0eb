// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/overlayeditor/PanelTest.h"

#include <QSignalSpy>

#include <thread>

namespace {

using Signal = PanelProperty::Signal;

/// A signal of the service, and what the editor asks when it refreshes by it: a getter, and how
/// often for one selected overlay.
struct Wire
{
    const char *name;
    Signal signal;
    const char *getter;
    int questions;
};

const Wire s_wires[] = {
    {"overlayTypeChanged", &kxOverlayService::overlayTypeChanged, "getOverlayType", 3},
    {"nameChanged", &kxOverlayService::nameChanged, "getName", 2},
    {"textChanged", &kxOverlayService::textChanged, "getText", 2},
    {"fontChanged", &kxOverlayService::fontChanged, "getFont", 2},
    {"fontColorChanged", &kxOverlayService::fontColorChanged, "getFontColor", 2},
    {"backgroundColorChanged", &kxOverlayService::backgroundColorChanged, "getBackgroundColor", 2},
    {"backgroundTransparencyChanged", &kxOverlayService::backgroundTransparencyChanged,
     "getBackgroundTransparency", 2},
    {"imageChanged", &kxOverlayService::imageChanged, "getImage", 2},
    {"sizeTypeChanged", &kxOverlayService::sizeTypeChanged, "getSizeType", 3},
    {"sizeChanged", &kxOverlayService::sizeChanged, "getSize", 2},
    {"positionChanged", &kxOverlayService::positionChanged, "getPosition", 2},
    {"offsetChanged", &kxOverlayService::offsetChanged, "getOffset", 4},
};

/// Those of the values that the panel shows in a control of its own.
QVector<const char *> valueGetters()
{
    QVector<const char *> getters;
    for (const PanelProperty &shown : PanelProperty::all()) {
        const bool isType = QByteArray(shown.getter).endsWith("Type");
        if (!isType && !getters.contains(shown.getter))
            getters.append(shown.getter);
    }
    return getters;
}

} // namespace

/// How the editor follows the service: every signal reaches the one slot that it is for, once.
class tst_kxOverlayEditor_wiring : public PanelTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldRefreshOncePerSignal_data() { addWires(); }
    void shouldRefreshOncePerSignal();
    void shouldRefreshOnceForASignalOfAnotherThread_data() { addWires(); }
    void shouldRefreshOnceForASignalOfAnotherThread();
    void shouldNotRefreshForAHeadlessHost_data() { addWires(); }
    void shouldNotRefreshForAHeadlessHost();
    void shouldNotRefreshWithoutItsWindow_data() { addWires(); }
    void shouldNotRefreshWithoutItsWindow();
    void shouldRefreshAllWhenNodesAreRemoved();
    void shouldSelectCreatedNodesOnce();
    void shouldSelectNodesCreatedInAnotherThread();
    void shouldIgnoreStatesAndMoves();
    void shouldRefreshOnceForEachCoordinate();
    void shouldConnectEverySignalOfTheService_data();
    void shouldConnectEverySignalOfTheService();

private:
    static void addWires();
    void openWith(QRPC::NodeId selected);
};

void tst_kxOverlayEditor_wiring::addWires()
{
    QTest::addColumn<int>("row");
    for (int row = 0; row < int(std::size(s_wires)); ++row)
        QTest::newRow(s_wires[row].name) << row;
}

/// Of an image when the row is of images. The name has a wire to the model too, which reads the
/// nodes of the list.
void tst_kxOverlayEditor_wiring::openWith(QRPC::NodeId selected)
{
    openEditor("a2 b3 c4");
    if (qstrcmp(QTest::currentDataTag(), "imageChanged") == 0)
        suit(property(7));
    select({selected});
}

void tst_kxOverlayEditor_wiring::shouldRefreshOncePerSignal()
{
    QFETCH(int, row);
    const Wire &wire = s_wires[row];
    openWith(3);
    announce(wire.signal, {});
    QCOMPARE(log().count(wire.getter), wire.questions);
    const QVector<const char *> getters = valueGetters();
    for (const char *getter : getters) {
        const bool isShownWith =
            qstrcmp(getter, "getSize") == 0 && qstrcmp(wire.name, "sizeTypeChanged") == 0;
        if (qstrcmp(getter, wire.getter) != 0 && !isShownWith)
            QVERIFY2(log().count(getter) == 0, getter);
    }
}

void tst_kxOverlayEditor_wiring::shouldRefreshOnceForASignalOfAnotherThread()
{
    QFETCH(int, row);
    const Wire &wire = s_wires[row];
    openWith(3);
    std::thread([&] { announce(wire.signal, {}); }).join();
    QCOMPARE(log().lines(), QStringList());
    QCoreApplication::processEvents();
    QCOMPARE(log().count(wire.getter), wire.questions);
}

void tst_kxOverlayEditor_wiring::shouldNotRefreshForAHeadlessHost()
{
    QFETCH(int, row);
    host().headless = true;
    openEditor("a2 b3");
    announce(s_wires[row].signal, {});
    Q_EMIT service().nodesCreated({});
    Q_EMIT service().nodesRemoved({});
    QCOMPARE(log().lines(), QStringList());
}

void tst_kxOverlayEditor_wiring::shouldNotRefreshWithoutItsWindow()
{
    QFETCH(int, row);
    openWith(3);
    delete &window();
    announce(s_wires[row].signal, {});
    Q_EMIT service().nodesCreated({});
    Q_EMIT service().nodesRemoved({});
    QCOMPARE(log().lines(), QStringList());
    Q_EMIT service().modelReset();
    service().deleteNodes({2, 3});
}

void tst_kxOverlayEditor_wiring::shouldRefreshAllWhenNodesAreRemoved()
{
    openEditor("a2 b3");
    select({2});
    announce(&kxOverlayService::nodesRemoved, {});
    QCOMPARE(log().count("getName"), 2);
    QCOMPARE(log().count("getText"), 2);
    QCOMPARE(log().count("getOffset"), 4);
}

void tst_kxOverlayEditor_wiring::shouldSelectCreatedNodesOnce()
{
    openEditor("a2 b3 c4");
    select({2});
    QSignalSpy changes(tree().selectionModel(), &QItemSelectionModel::selectionChanged);
    announce(&kxOverlayService::nodesCreated, {3, 4});
    QCOMPARE(changes.count(), 1);
    QCOMPARE(selected(), (QRPC::NodeList{3, 4}));
}

void tst_kxOverlayEditor_wiring::shouldSelectNodesCreatedInAnotherThread()
{
    openEditor("a2 b3 c4");
    select({2});
    std::thread([&] { announce(&kxOverlayService::nodesCreated, {3, 4}); }).join();
    QCOMPARE(selected(), QRPC::NodeList{2});
    QCoreApplication::processEvents();
    QCOMPARE(selected(), (QRPC::NodeList{3, 4}));
}

void tst_kxOverlayEditor_wiring::shouldIgnoreStatesAndMoves()
{
    openEditor("a2 b3");
    select({2});
    announce(&kxOverlayService::enabledStateChanged, {});
    Q_EMIT service().nodesMoved({}, {}, {});
    announce(&kxOverlayService::nodesAdded, {});
    const QVector<const char *> getters = valueGetters();
    for (const char *getter : getters)
        QCOMPARE(log().count(getter), 0);
}

void tst_kxOverlayEditor_wiring::shouldRefreshOnceForEachCoordinate()
{
    openEditor("a2 b3");
    select({2, 3});
    service().setOffsetX({2, 3}, 4.0F);
    QCOMPARE(log().count("getOffset"), 6);
    service().setOffsetY({2, 3}, 5.0F);
    QCOMPARE(log().count("getOffset"), 12);
}

void tst_kxOverlayEditor_wiring::shouldConnectEverySignalOfTheService_data()
{
    QTest::addColumn<int>("receivers");
    for (const char *name :
         {"nodesCreated", "overlayTypeChanged", "textChanged", "fontChanged", "fontColorChanged",
          "backgroundColorChanged", "backgroundTransparencyChanged", "imageChanged",
          "sizeTypeChanged", "sizeChanged", "positionChanged", "offsetChanged", "nodesAdded",
          "enabledStateChanged"})
        QTest::newRow(name) << 1;
    // the model's and the editor's
    QTest::newRow("nodesRemoved") << 2;
    QTest::newRow("nameChanged") << 2;
}

void tst_kxOverlayEditor_wiring::shouldConnectEverySignalOfTheService()
{
    QFETCH(int, receivers);
    openEditor();
    const QByteArray signal =
        QByteArray::number(QSIGNAL_CODE) + QTest::currentDataTag() + "(QRPC::NodeList)";
    QCOMPARE(service().receivers(signal.constData()), receivers);
}

KX_TEST_MAIN(tst_kxOverlayEditor_wiring)
#include "tst_kxOverlayEditor_wiring.moc"
