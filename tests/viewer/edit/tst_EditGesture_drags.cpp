// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/viewer/edit/GestureTest.h"

#include <QKeyEvent>

using namespace viewer;

/// Drags and nudges.
class tst_EditGesture_drags : public GestureTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldMoveWhatIsSelected_data();
    void shouldMoveWhatIsSelected();
    void shouldPickWhatIsDragged();
    void shouldAddWhatIsDraggedWithCtrl();
    void shouldMoveTheOneBelowThatWasPicked();
    void shouldPickTheTopmostAfterADrag();
    void shouldMoveAllOfAGroup();
    void shouldTakeAShortWayForAClick();
    void shouldMakeOneStepOfADrag();
    void shouldPutBackExactlyOnEscape();
    void shouldKeepWhatWasUndoneOnEscape();
    void shouldHoldTheMouseAfterEscape();
    void shouldGoOnWhereTheButtonIsPressedAgain();
    void shouldEndWhereTheMouseWasReleasedElsewhere();
    void shouldLeaveNoStepWhenTheSceneIsReplaced();
    void shouldTakeEveryKeyDuringADrag();

    void shouldSnapToOthers_data();
    void shouldSnapToOthers();
    void shouldSnapAtTheSameDistanceOnEveryDisplay_data();
    void shouldSnapAtTheSameDistanceOnEveryDisplay();
    void shouldNotSnapToWhatMovesAlong();
    void shouldMoveByWholePointsBetweenTheLines();
    void shouldNotSnapWithCtrl();
    void shouldSnapToItsOwnAnchor();
    void shouldMoveStraightWithShift();
    void shouldFollowTheModifiersDuringADrag();

    void shouldNudge_data();
    void shouldNudge();
    void shouldMakeOneStepOfARunOfNudges();
    void shouldKeepDragAndNudgesApart();
    void shouldTellWhichOverlayIsMoved();
};

void tst_EditGesture_drags::shouldMoveWhatIsSelected_data()
{
    QTest::addColumn<double>("ratio");
    for (const double ratio : {1.0, 1.25, 2.0})
        QTest::addRow("%g", ratio) << ratio;
}

void tst_EditGesture_drags::shouldMoveWhatIsSelected()
{
    QFETCH(double, ratio);
    setPixelRatio(ratio);
    select(ids("c d"));
    QVERIFY(press({210, 160}));
    QVERIFY(move({225, 170}));
    QVERIFY(move({237, 92}));
    QVERIFY(release({237, 92}));
    QCOMPARE(placeOf("c"), QPointF(227, 82));
    QCOMPARE(placeOf("d"), QPointF(327, 172));
    QCOMPARE(placeOf("a"), QPointF(20, 20));
    QCOMPARE(selected(), QString("c d"));
}

void tst_EditGesture_drags::shouldPickWhatIsDragged()
{
    select(ids("d"));
    drag({210, 160}, {237, 92});
    QCOMPARE(selected(), QString("c"));
    QCOMPARE(placeOf("c"), QPointF(227, 82));
    QCOMPARE(placeOf("d"), QPointF(300, 240));
}

void tst_EditGesture_drags::shouldAddWhatIsDraggedWithCtrl()
{
    select(ids("d"));
    drag({210, 160}, {237, 92}, Qt::ControlModifier);
    QCOMPARE(selected(), QString("d c"));
    QCOMPARE(placeOf("c"), QPointF(227, 82));
    QCOMPARE(placeOf("d"), QPointF(327, 172));
}

void tst_EditGesture_drags::shouldMoveTheOneBelowThatWasPicked()
{
    click({60, 40});
    click({60, 40});
    drag({60, 40}, {97, 162});
    QCOMPARE(placeOf("a"), QPointF(57, 142));
    QCOMPARE(placeOf("b"), QPointF(50, 30));
    click({97, 162});
    QCOMPARE(selected(), QString("a"));
}

void tst_EditGesture_drags::shouldPickTheTopmostAfterADrag()
{
    click({79, 45});
    drag({79, 45}, {64, 52});
    QCOMPARE(placeOf("b"), QPointF(35, 37));
    click({79, 45});
    QCOMPARE(selected(), QString("b"));
}

void tst_EditGesture_drags::shouldMoveAllOfAGroup()
{
    select(ids("s"));
    drag({310, 250}, {283, 110});
    QCOMPARE(selected(), QString("s"));
    QCOMPARE(placeOf("d"), QPointF(273, 100));
    QCOMPARE(placeOf("e"), QPointF(-7, 60));
}

void tst_EditGesture_drags::shouldTakeAShortWayForAClick()
{
    setPixelRatio(2);
    press({210, 160});
    move({215, 165});
    QCOMPARE(placeOf("c"), QPointF(200, 150));
    release({215, 165});
    QCOMPARE(placeOf("c"), QPointF(200, 150));
    QCOMPARE(selected(), QString("c"));
    press({210, 160});
    move({222, 160});
    QCOMPARE(placeOf("c"), QPointF(212, 150));
    move({210, 160});
    release({210, 160});
    QCOMPARE(steps(), QStringList());
}

void tst_EditGesture_drags::shouldMakeOneStepOfADrag()
{
    select(ids("c d"));
    drag({210, 160}, {237, 92});
    drag({237, 92}, {258, 77});
    QCOMPARE(steps(), (QStringList{"Move 2 overlays in the view", "Move 2 overlays in the view"}));
    service().undo();
    QCOMPARE(placeOf("c"), QPointF(227, 82));
    service().undo();
    QCOMPARE(placeOf("d"), QPointF(300, 240));
    QCOMPARE(placeOf("c"), QPointF(200, 150));
    select(ids("d"));
    drag({310, 250}, {283, 110});
    QCOMPARE(steps(), QStringList("Move \"d\" in the view"));
}

void tst_EditGesture_drags::shouldPutBackExactlyOnEscape()
{
    const QPointF odd(200.123456789, -1.0 / 3);
    service().setOffset(ids("c"), odd);
    service().history().clear();
    select(ids("a c"));
    press({210, 10});
    move({237, 92});
    QVERIFY(placeOf("c") != QPointF(odd.x(), -odd.y()));
    QVERIFY(key(Qt::Key_Escape));
    const QPointF now = service().getOffset(id("c"));
    QVERIFY(now.x() == odd.x() && now.y() == odd.y());
    QCOMPARE(placeOf("a"), QPointF(20, 20));
    release({237, 92});
    QCOMPARE(steps(), QStringList());
    QCOMPARE(selected(), QString("a c"));
}

void tst_EditGesture_drags::shouldKeepWhatWasUndoneOnEscape()
{
    service().setSize(ids("a"), 77);
    service().undo();
    press({210, 160});
    move({237, 92});
    key(Qt::Key_Escape);
    release({237, 92});
    service().redo();
    QCOMPARE(service().getSize(id("a")), 77.0F);
}

void tst_EditGesture_drags::shouldHoldTheMouseAfterEscape()
{
    press({210, 160});
    move({237, 92});
    key(Qt::Key_Escape);
    QVERIFY(move({250, 95}));
    QVERIFY(gesture().guides().isEmpty());
    QVERIFY(release({250, 95}));
    QCOMPARE(placeOf("c"), QPointF(200, 150));
    drag({210, 160}, {237, 92});
    QCOMPARE(placeOf("c"), QPointF(227, 82));
    // Where the release went elsewhere, a new press is one.
    press({230, 90});
    gesture().cancel();
    QVERIFY(press({230, 90}));
    move({210, 97});
    release({210, 97});
    QCOMPARE(placeOf("c"), QPointF(207, 89));
}

/// A pen or another mouse presses, too.
void tst_EditGesture_drags::shouldGoOnWhereTheButtonIsPressedAgain()
{
    press({210, 160});
    move({237, 92});
    QVERIFY(press({60, 40}));
    QCOMPARE(selected(), QString("c"));
    move({258, 77});
    QCOMPARE(placeOf("c"), QPointF(248, 67));
    release({258, 77});
    QCOMPARE(placeOf("b"), QPointF(50, 30));
    QCOMPARE(steps(), QStringList("Move \"c\" in the view"));
}

void tst_EditGesture_drags::shouldEndWhereTheMouseWasReleasedElsewhere()
{
    press({210, 160});
    move({237, 92});
    QVERIFY(!move({300, 200}, {}, Qt::NoButton));
    QCOMPARE(placeOf("c"), QPointF(227, 82));
    QCOMPARE(steps().size(), 1);
    QCOMPARE(gesture().movedNode(), QRPC::NodeId(0));
}

void tst_EditGesture_drags::shouldLeaveNoStepWhenTheSceneIsReplaced()
{
    press({210, 160});
    move({237, 92});
    service().setScene(scenetext::build("x"));
    gesture().abandon();
    select({});
    QVERIFY(!move({250, 92}, {}, Qt::NoButton));
    QCOMPARE(steps(), QStringList());
    QVERIFY(service().history().stack()->isClean());
}

void tst_EditGesture_drags::shouldTakeEveryKeyDuringADrag()
{
    press({210, 160});
    const QKeyEvent undo(QEvent::ShortcutOverride, Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(gesture().claims(undo));
    move({237, 92});
    QVERIFY(gesture().claims(undo));
    QVERIFY(key(Qt::Key_Delete));
    QVERIFY(key(Qt::Key_Left));
    QCOMPARE(placeOf("c"), QPointF(227, 82));
    release({237, 92});
    QVERIFY(!gesture().claims(undo));
}

void tst_EditGesture_drags::shouldSnapToOthers_data()
{
    QTest::addColumn<QPointF>("to");
    QTest::addColumn<QPointF>("place");
    QTest::addColumn<QVector<Qt::Orientation>>("guides");
    const auto row = [](const char *name, const QPointF &to, const QPointF &place,
                        const QVector<Qt::Orientation> &guides) {
        QTest::newRow(name) << to << place << guides;
    };
    row("no line", {228, 103}, {228, 103}, {});
    row("left edges", {305, 103}, {300, 103}, {Qt::Vertical, Qt::Vertical, Qt::Vertical});
    row("the edge of the view", {343, 103}, {340, 103}, {Qt::Vertical});
    row("the middle of the view", {174, 131}, {170, 135}, {Qt::Vertical, Qt::Horizontal});
    row("the bottom of the view", {120, 268}, {120, 270}, {Qt::Horizontal, Qt::Horizontal});
    row("a corner", {-4, 3}, {0, 0}, {Qt::Vertical, Qt::Horizontal, Qt::Horizontal});
}

void tst_EditGesture_drags::shouldSnapToOthers()
{
    QFETCH(QPointF, to);
    press({210, 160});
    move(to + QPointF(10, 10));
    QTEST(placeOf("c"), "place");
    QVector<Qt::Orientation> directions;
    const QVector<Guide> guides = gesture().guides();
    for (const Guide &guide : guides)
        directions.append(guide.orientation);
    QTEST(directions, "guides");
    release(to + QPointF(10, 10));
    QVERIFY(gesture().guides().isEmpty());
}

void tst_EditGesture_drags::shouldSnapAtTheSameDistanceOnEveryDisplay_data()
{
    shouldMoveWhatIsSelected_data();
}

void tst_EditGesture_drags::shouldSnapAtTheSameDistanceOnEveryDisplay()
{
    QFETCH(double, ratio);
    setPixelRatio(ratio);
    press({210, 160});
    move({355, 113});
    QCOMPARE(placeOf("c").x(), 340.0);
    move({356, 113});
    QCOMPARE(placeOf("c").x(), 340.0);
    move({357, 113});
    QCOMPARE(placeOf("c").x(), 347.0);
}

void tst_EditGesture_drags::shouldNotSnapToWhatMovesAlong()
{
    select(ids("c d"));
    press({210, 160});
    move({237, 92});
    QVERIFY(gesture().guides().isEmpty());
    QCOMPARE(placeOf("c"), QPointF(227, 82));
}

void tst_EditGesture_drags::shouldMoveByWholePointsBetweenTheLines()
{
    setPixelRatio(1.25);
    service().setOffset(ids("c"), {200.5, -150});
    press({210, 160});
    move({237.6, 92});
    QCOMPARE(placeOf("c"), QPointF(228.5, 82));
}

void tst_EditGesture_drags::shouldNotSnapWithCtrl()
{
    select(ids("c"));
    press({210, 160});
    move({353.4, 113.2}, Qt::ControlModifier);
    QCOMPARE(placeOf("c"), QPointF(343.4, 103.2));
    QVERIFY(gesture().guides().isEmpty());
    move({310, 113}, Qt::ControlModifier); // on a line, by chance
    QVERIFY(gesture().guides().isEmpty());
}

void tst_EditGesture_drags::shouldSnapToItsOwnAnchor()
{
    service().setPosition(ids("c"), {0.3, 0.6});
    service().setOffsets({{id("c"), {20, 20}}});
    select(ids("c"));
    QPointF middle;
    for (const DrawnOverlay &overlay : drawnOverlays()) {
        if (overlay.node == id("c"))
            middle = overlay.box.center();
    }
    const double point = view().geometry.pixelsPerPoint();
    press(middle);
    move(middle + QPointF(-20 * point + 3, 20 * point + 2));
    QCOMPARE(service().getOffset(id("c")), QPointF(0, 0));
}

void tst_EditGesture_drags::shouldMoveStraightWithShift()
{
    select(ids("c"));
    press({210, 160}, Qt::ShiftModifier);
    move({237, 180}, Qt::ShiftModifier);
    QCOMPARE(placeOf("c"), QPointF(227, 150));
    move({215, 83}, Qt::ShiftModifier);
    QCOMPARE(placeOf("c"), QPointF(200, 73));
    release({215, 83}, Qt::ShiftModifier);
    // Not even to a line that is near.
    place("c", {235, 152});
    place("a", {238, 20});
    place("b", {10, 155});
    drag({240, 160}, {243, 100}, Qt::ShiftModifier);
    QCOMPARE(placeOf("c"), QPointF(235, 92));
    place("c", {235, 152});
    drag({240, 160}, {275, 161}, Qt::ShiftModifier);
    QCOMPARE(placeOf("c"), QPointF(270, 152));
}

void tst_EditGesture_drags::shouldFollowTheModifiersDuringADrag()
{
    press({210, 160});
    move({237, 180});
    QVERIFY(key(Qt::Key_Shift));
    QCOMPARE(placeOf("c"), QPointF(227, 150));
    QVERIFY(keyUp(Qt::Key_Shift, Qt::ShiftModifier));
    QCOMPARE(placeOf("c"), QPointF(227, 170));
    move({353, 113});
    QVERIFY(key(Qt::Key_Control));
    QCOMPARE(placeOf("c"), QPointF(343, 103));
    QVERIFY(keyUp(Qt::Key_Control, Qt::ControlModifier));
    QCOMPARE(placeOf("c"), QPointF(340, 103));
}

void tst_EditGesture_drags::shouldNudge_data()
{
    QTest::addColumn<int>("pressed");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<QPointF>("offset");
    const auto row = [](const char *name, int key, Qt::KeyboardModifiers modifiers,
                        const QPointF &offset) {
        QTest::newRow(name) << key << modifiers << offset;
    };
    row("left", Qt::Key_Left, {}, {-1, 0});
    row("right", Qt::Key_Right, {}, {1, 0});
    row("up", Qt::Key_Up, {}, {0, 1});
    row("down", Qt::Key_Down, {}, {0, -1});
    row("far left", Qt::Key_Left, Qt::ShiftModifier, {-10, 0});
    row("far up", Qt::Key_Up, Qt::ShiftModifier, {0, 10});
    row("keypad", Qt::Key_Down, Qt::KeypadModifier, {0, -1});
}

void tst_EditGesture_drags::shouldNudge()
{
    QFETCH(int, pressed);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    QFETCH(QPointF, offset);
    setPixelRatio(1.25);
    service().setOffset(ids("a e"), {0.3, 0.7});
    select(ids("a s"));
    QVERIFY(key(pressed, modifiers));
    const QPointF expected = QPointF(0.3, 0.7) + offset;
    QCOMPARE(service().getOffset(id("a")), expected);
    QCOMPARE(service().getOffset(id("e")), expected);
    QCOMPARE(service().getOffset(id("d")), QPointF(300, -240) + offset);
    QCOMPARE(placeOf("b"), QPointF(50, 30));
}

void tst_EditGesture_drags::shouldMakeOneStepOfARunOfNudges()
{
    select(ids("a"));
    for (int i = 0; i < 5; ++i)
        key(Qt::Key_Right);
    key(Qt::Key_Down, Qt::ShiftModifier);
    QCOMPARE(placeOf("a"), QPointF(25, 30));
    QCOMPARE(steps(), QStringList("Move \"a\" in the view"));
    service().undo();
    QCOMPARE(placeOf("a"), QPointF(20, 20));
}

void tst_EditGesture_drags::shouldKeepDragAndNudgesApart()
{
    select(ids("c"));
    key(Qt::Key_Right);
    drag({210, 160}, {237, 92});
    key(Qt::Key_Right);
    QCOMPARE(steps().size(), 3);
}

void tst_EditGesture_drags::shouldTellWhichOverlayIsMoved()
{
    select(ids("d c"));
    QCOMPARE(gesture().movedNode(), QRPC::NodeId(0));
    press({210, 160});
    QCOMPARE(gesture().movedNode(), QRPC::NodeId(0));
    move({237, 92});
    QCOMPARE(gesture().movedNode(), id("c"));
    QCOMPARE(gesture().place(), QPointF(237, 92));
    release({237, 92});
    QCOMPARE(gesture().movedNode(), QRPC::NodeId(0));
    select(ids("s"));
    key(Qt::Key_Left);
    QCOMPARE(gesture().movedNode(), id("d"));
    QTRY_COMPARE(gesture().movedNode(), QRPC::NodeId(0));
    select(ids("e"));
    key(Qt::Key_Left);
    QCOMPARE(gesture().movedNode(), QRPC::NodeId(0));
}

KX_TEST_MAIN(tst_EditGesture_drags)
#include "tst_EditGesture_drags.moc"
