// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/overlayeditor/EditorTest.h"
#include "tests/support/RealInput.h"

#include <QTimer>

/// Rows dragged in the tree with the mouse of an X server: whatever the toolkit does to the rows,
/// the tree shows the service's order, names and states once the drag is over.
class tst_kxOverlayEditor_drag : public EditorTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void shouldShowTheServicesTreeAfterADrop_data();
    void shouldShowTheServicesTreeAfterADrop();
    void shouldKeepRowsThatAreSelectedAndHidden();
    void shouldShowWhatChangedDuringTheDrag_data();
    void shouldShowWhatChangedDuringTheDrag();
    void shouldMoveNothingIntoItself();

private:
    enum Place { Above, Onto, Below };

    QPoint placeOf(QRPC::NodeId node, Place place);
    void drag(QRPC::NodeId node, QRPC::NodeId target, Place place);
    void waitForTheDrop();
};

void tst_kxOverlayEditor_drag::initTestCase()
{
    QCOMPARE(QGuiApplication::platformName(), QString("xcb"));
}

QPoint tst_kxOverlayEditor_drag::placeOf(QRPC::NodeId node, Place place)
{
    const QRect row = tree().visualRect(index(node));
    const int y = place == Above ? row.top() : place == Below ? row.bottom() : row.center().y();
    return {row.center().x(), y};
}

void tst_kxOverlayEditor_drag::drag(QRPC::NodeId node, QRPC::NodeId target, Place place)
{
    log().clear();
    realInput::startDrag(*tree().viewport(), placeOf(node, Onto), placeOf(target, place));
}

void tst_kxOverlayEditor_drag::waitForTheDrop()
{
    // the drag's loop has ended when this loop goes on
    QTRY_COMPARE(log().count("moveNodes"), 1);
    QTRY_COMPARE(QApplication::mouseButtons(), Qt::NoButton);
}

void tst_kxOverlayEditor_drag::shouldShowTheServicesTreeAfterADrop_data()
{
    QTest::addColumn<QRPC::NodeList>("nodes");
    QTest::addColumn<QRPC::NodeId>("target");
    QTest::addColumn<int>("place");
    const auto add = [](const char *title, const QRPC::NodeList &nodes, QRPC::NodeId target,
                        Place place) { QTest::newRow(title) << nodes << target << int(place); };
    add("onto a group", {8}, 2, Onto);
    add("up", {9}, 5, Above);
    add("down", {5}, 9, Below);
    add("clicked out of order", {9, 5, 8}, 2, Above);
    add("from several parents, equal rows", {3, 7}, 9, Below);
    add("from several parents", {4, 7, 9}, 5, Above);
    add("a group with its child", {2, 3}, 6, Onto);
    add("into a disabled group", {3, 8}, 10, Onto);
    add("out of a disabled group", {11}, 2, Above);
    add("into a switch that shows a child", {8, 9}, 12, Onto);
    add("out of a switch", {13}, 5, Above);
}

void tst_kxOverlayEditor_drag::shouldShowTheServicesTreeAfterADrop()
{
    QFETCH(QRPC::NodeList, nodes);
    QFETCH(QRPC::NodeId, target);
    QFETCH(int, place);
    openEditor("g2(a3 b4) c5 h6(d7) e8 f9 k10-(m11) s12*(n13 o14-)");
    showWindow();
    select(nodes);
    drag(nodes.first(), target, Place(place));
    waitForTheDrop();
    KX_COMPARE_TREE(model(), service());
}

void tst_kxOverlayEditor_drag::shouldKeepRowsThatAreSelectedAndHidden()
{
    openEditor("g2() a3 b4 c5");
    showWindow();
    select({3, 4});
    QVERIFY(QMetaObject::invokeMethod(&searchBox(), "searchChanged", Q_ARG(QString, "[gbc]")));
    const QPersistentModelIndex hidden(index(3));
    drag(4, 2, Onto);
    waitForTheDrop();
    QCOMPARE(log().linesOf({"moveNodes"}).first().left(13), QString("moveNodes [4]"));
    KX_COMPARE_TREE(model(), service());
    QVERIFY(hidden.isValid()); // the row itself, not a new one in its place
    QCOMPARE(hidden, index(3));
}

void tst_kxOverlayEditor_drag::shouldShowWhatChangedDuringTheDrag_data()
{
    QTest::addColumn<QString>("change");
    for (const char *change : {"rename", "disable", "remove another", "create in the dragged group",
                               "remove the dragged node", "reset"})
        QTest::newRow(change) << change;
}

void tst_kxOverlayEditor_drag::shouldShowWhatChangedDuringTheDrag()
{
    QFETCH(QString, change);
    openEditor("g2(a3 b4) c5 h6(d7) e8");
    showWindow();
    select({2});
    QTimer poll;
    connect(&poll, &QTimer::timeout, this, [&] {
        // the payload asks for the node when the drag begins
        if (log().count("isOverlay") == 0)
            return;
        poll.stop();
        if (change == "rename")
            service().setName({2, 3}, "x");
        else if (change == "disable")
            service().setEnabled({2}, false);
        else if (change == "remove another")
            service().deleteNodes({5});
        else if (change == "create in the dragged group")
            service().createOverlay(2);
        else if (change == "remove the dragged node")
            service().deleteNodes({2});
        else
            Q_EMIT service().modelReset();
    });
    drag(2, 6, Onto);
    poll.start(1);
    waitForTheDrop();
    QVERIFY(!poll.isActive());
    KX_COMPARE_TREE(model(), service());
}

void tst_kxOverlayEditor_drag::shouldMoveNothingIntoItself()
{
    openEditor("g2(h3(a4)) b5");
    showWindow();
    select({2});
    drag(2, 3, Onto);
    QTRY_VERIFY(log().count("isOverlay") > 0);
    QTRY_COMPARE(QApplication::mouseButtons(), Qt::NoButton);
    QCOMPARE(log().count("moveNodes"), 0);
    KX_COMPARE_TREE(model(), service());
}

KX_TEST_MAIN(tst_kxOverlayEditor_drag)
#include "tst_kxOverlayEditor_drag.moc"
