// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/viewer/edit/GestureTest.h"

#include <QKeyEvent>
#include <QSignalSpy>

using namespace viewer;

/// Picks, rubber bands, cursors, and which events are left to the view.
class tst_EditGesture : public GestureTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldPickTheTopmost_data() { addRatios(); }
    void shouldPickTheTopmost();
    void shouldPickTheOneBelowWithAnotherClick();
    void shouldTakeAShakingHandForTheSamePlace();
    void shouldBeginAtTheTopAtAnotherPlace();
    void shouldBeginAtTheTopWhenTheSelectionIsAnother();
    void shouldTakeADoubleClickForTwo();
    void shouldAddWithShift();
    void shouldAddAndTakeAwayWithCtrl();
    void shouldEndTheSelectionOnEmptyGround();
    void shouldLeaveEmptyGroundToTheView();
    void shouldLeaveOtherButtonsToTheView();
    void shouldPickOneOfSeveralWhenTheyAreNotDragged();
    void shouldNotSelectWhatIsSelected();
    void shouldPickForAMenu();

    void shouldPickAllInTheBand_data() { addRatios(); }
    void shouldPickAllInTheBand();
    void shouldAddToTheSelectionWithABandAndCtrl();
    void shouldForgetABandOnEscape();
    void shouldClearTheSelectionWithAnEmptyBand();
    void shouldTakeATinyBandForAClick();

    void shouldLeaveADragOnAShadeToTheView();
    void shouldPickAShadeByAClick();
    void shouldBeginABandOnAShade();

    void shouldTellByTheCursorWhatWillHappen_data();
    void shouldTellByTheCursorWhatWillHappen();
    void shouldTellByTheCursorWhatHappens();
    void shouldEndTheSelectionOnEscape();
    void shouldLeaveOtherKeysAlone();

private:
    static void addRatios();
};

void tst_EditGesture::addRatios()
{
    QTest::addColumn<double>("ratio");
    for (const double ratio : {1.0, 1.25, 2.0})
        QTest::addRow("%g", ratio) << ratio;
}

void tst_EditGesture::shouldPickTheTopmost()
{
    QFETCH(double, ratio);
    setPixelRatio(ratio);
    click({60, 40});
    QCOMPARE(selected(), QString("b"));
    click({30, 25});
    QCOMPARE(selected(), QString("a"));
    click({250, 170});
    QCOMPARE(selected(), QString("c"));
    click({259, 179});
    QCOMPARE(selected(), QString("c"));
    click({261, 181});
    QCOMPARE(selected(), QString());
    QCOMPARE(steps(), QStringList());
}

void tst_EditGesture::shouldPickTheOneBelowWithAnotherClick()
{
    for (const char *name : {"b", "a", "b", "a"}) {
        click({60, 40});
        QCOMPARE(selected(), QString(name));
    }
}

void tst_EditGesture::shouldTakeAShakingHandForTheSamePlace()
{
    click({60, 40});
    press({62, 42});
    move({63, 43});
    release({63, 43});
    QCOMPARE(selected(), QString("a"));
    QCOMPARE(placeOf("b"), QPointF(50, 30));
}

void tst_EditGesture::shouldBeginAtTheTopAtAnotherPlace()
{
    click({55, 35});
    click({75, 45});
    QCOMPARE(selected(), QString("b"));
}

void tst_EditGesture::shouldBeginAtTheTopWhenTheSelectionIsAnother()
{
    click({60, 40});
    select(ids("d"));
    click({60, 40});
    QCOMPARE(selected(), QString("b"));
    select(ids("a"));
    click({60, 40});
    QCOMPARE(selected(), QString("b"));
}

void tst_EditGesture::shouldTakeADoubleClickForTwo()
{
    click({60, 40});
    QVERIFY(pressAgain({60, 40}));
    QVERIFY(release({60, 40}));
    QCOMPARE(selected(), QString("a"));
}

void tst_EditGesture::shouldAddWithShift()
{
    click({250, 170});
    click({60, 40}, Qt::ShiftModifier);
    QCOMPARE(selected(), QString("c b"));
    click({60, 40}, Qt::ShiftModifier);
    QCOMPARE(selected(), QString("c b a"));
    click({60, 40}, Qt::ShiftModifier);
    QCOMPARE(selected(), QString("c b a"));
}

void tst_EditGesture::shouldAddAndTakeAwayWithCtrl()
{
    click({250, 170});
    click({60, 40}, Qt::ControlModifier);
    QCOMPARE(selected(), QString("c b"));
    click({60, 40}, Qt::ControlModifier);
    QCOMPARE(selected(), QString("c"));
    click({250, 170}, Qt::ControlModifier);
    QCOMPARE(selected(), QString());
}

void tst_EditGesture::shouldEndTheSelectionOnEmptyGround()
{
    select(ids("a c"));
    click({150, 250}, Qt::ShiftModifier);
    click({150, 250}, Qt::ControlModifier);
    QCOMPARE(selected(), QString("a c"));
    click({150, 250});
    QCOMPARE(selected(), QString());
}

void tst_EditGesture::shouldLeaveEmptyGroundToTheView()
{
    select(ids("a"));
    QVERIFY(!press({150, 250}));
    QVERIFY(!move({180, 260}));
    QVERIFY(!release({180, 260}));
    QVERIFY(!move({60, 40}, {}, Qt::NoButton));
    QVERIFY(!press({150, 250}, Qt::ControlModifier));
    QVERIFY(!release({150, 250}, Qt::ControlModifier));
    QVERIFY(!pressAgain({150, 250}));
    QVERIFY(!release({150, 250}));
    QCOMPARE(selected(), QString("a"));
    // Over an overlay it is still the view that is dragged.
    QVERIFY(!press({150, 250}));
    QVERIFY(!move({60, 40}));
    QVERIFY(!release({60, 40}));
    QCOMPARE(selected(), QString("a"));
    // A drag that comes back is no click.
    QVERIFY(!press({150, 250}));
    QVERIFY(!move({180, 260}));
    QVERIFY(!move({150, 250}));
    QVERIFY(!release({150, 250}));
    QCOMPARE(selected(), QString("a"));
}

void tst_EditGesture::shouldLeaveOtherButtonsToTheView()
{
    QVERIFY(!press({60, 40}, {}, Qt::MiddleButton));
    QVERIFY(!move({90, 60}, {}, Qt::MiddleButton));
    QVERIFY(!release({90, 60}, {}, Qt::MiddleButton));
    QCOMPARE(selected(), QString());
    QVERIFY(press({60, 40}));
    QVERIFY(press({60, 40}, {}, Qt::RightButton));
    QVERIFY(release({60, 40}, {}, Qt::RightButton));
    QVERIFY(release({60, 40}));
    QCOMPARE(selected(), QString("b"));
}

void tst_EditGesture::shouldPickOneOfSeveralWhenTheyAreNotDragged()
{
    select(ids("a c d"));
    press({30, 25});
    QCOMPARE(selected(), QString("a c d"));
    release({30, 25});
    QCOMPARE(selected(), QString("a"));
}

void tst_EditGesture::shouldNotSelectWhatIsSelected()
{
    click({30, 25});
    click({30, 25});
    click({250, 170});
    QCOMPARE(selections(), 2);
}

void tst_EditGesture::shouldPickForAMenu()
{
    QVERIFY(gesture().pickForMenu({60, 40}));
    QCOMPARE(selected(), QString("b"));
    // What is selected there stays so, with all that is selected elsewhere.
    select({id("a"), id("g")});
    QVERIFY(gesture().pickForMenu({60, 40}));
    QCOMPARE(selected(), QString("a g"));
    QVERIFY(gesture().pickForMenu({250, 170}));
    QVERIFY(gesture().pickForMenu({380, 20}));
    QCOMPARE(selected(), QString("a g"));
    QVERIFY(gesture().pickForMenu({310, 250}));
    QCOMPARE(selected(), QString("d"));
    press({60, 40}, Qt::ShiftModifier);
    QVERIFY(!gesture().pickForMenu({250, 170}));
    QCOMPARE(selected(), QString("d"));
}

void tst_EditGesture::shouldPickAllInTheBand()
{
    QFETCH(double, ratio);
    setPixelRatio(ratio);
    select(ids("d"));
    QVERIFY(press({270, 130}, Qt::ShiftModifier));
    QVERIFY(move({100, 100}, Qt::ShiftModifier));
    QVERIFY(move({70, 40}, Qt::ShiftModifier));
    QCOMPARE(gesture().band(), QRectF(QPointF(70, 40) * ratio, QPointF(270, 130) * ratio));
    QCOMPARE(gesture().bandNodes(), ids("a b"));
    move({70, 170}, Qt::ShiftModifier);
    move({70, 40}, Qt::ShiftModifier);
    QCOMPARE(selected(), QString("d"));
    QVERIFY(release({100, 160}));
    QCOMPARE(selected(), QString("c"));
    QCOMPARE(selections(), 2);
    QVERIFY(gesture().band().isEmpty());
    QVERIFY(gesture().bandNodes().isEmpty());
}

void tst_EditGesture::shouldAddToTheSelectionWithABandAndCtrl()
{
    select(ids("d a"));
    press({10, 90}, Qt::ShiftModifier);
    move({150, 10}, Qt::ShiftModifier);
    QVERIFY(!gesture().bandAdds());
    move({150, 10}, Qt::ShiftModifier | Qt::ControlModifier);
    QVERIFY(gesture().bandAdds());
    release({150, 10}, Qt::ControlModifier);
    QCOMPARE(selected(), QString("d a b"));
}

void tst_EditGesture::shouldForgetABandOnEscape()
{
    select(ids("d"));
    press({270, 130}, Qt::ShiftModifier);
    move({70, 40}, Qt::ShiftModifier);
    QVERIFY(key(Qt::Key_Escape));
    QVERIFY(gesture().band().isEmpty());
    QVERIFY(move({60, 40}));
    QVERIFY(release({60, 40}));
    QCOMPARE(selected(), QString("d"));
}

void tst_EditGesture::shouldClearTheSelectionWithAnEmptyBand()
{
    select(ids("d"));
    drag({100, 280}, {150, 230}, Qt::ShiftModifier);
    QCOMPARE(selected(), QString());
}

void tst_EditGesture::shouldTakeATinyBandForAClick()
{
    select(ids("d"));
    press({100, 280}, Qt::ShiftModifier);
    move({104, 284}, Qt::ShiftModifier);
    QVERIFY(gesture().band().isEmpty());
    release({104, 284}, Qt::ShiftModifier);
    QCOMPARE(selected(), QString("d"));
}

void tst_EditGesture::shouldLeaveADragOnAShadeToTheView()
{
    service().setText(ids("a"), "wide");
    place("a", {0, 200});
    QVERIFY(!press({100, 210}));
    QVERIFY(!move({150, 210}));
    QVERIFY(!release({150, 210}));
    QCOMPARE(selected(), QString());
    QCOMPARE(placeOf("a"), QPointF(0, 200));
    select(ids("a"));
    drag({100, 210}, {100, 240});
    QVERIFY(placeOf("a") != QPointF(0, 200));
}

void tst_EditGesture::shouldPickAShadeByAClick()
{
    service().setText(ids("a"), "wide");
    place("a", {0, 200});
    QVERIFY(!press({100, 210}));
    QVERIFY(!release({100, 210}));
    QCOMPARE(selected(), QString("a"));
}

void tst_EditGesture::shouldBeginABandOnAShade()
{
    service().setText(ids("a"), "wide");
    place("a", {0, 160});
    drag({180, 185}, {220, 140}, Qt::ShiftModifier);
    QCOMPARE(selected(), QString("c"));
}

void tst_EditGesture::shouldTellByTheCursorWhatWillHappen_data()
{
    QTest::addColumn<QString>("selection");
    QTest::addColumn<QPointF>("at");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<int>("shape"); // -1 where it is the view's own
    const auto row = [](const char *name, const char *selection, const QPointF &at,
                        Qt::KeyboardModifiers modifiers, int shape) {
        QTest::newRow(name) << selection << at << modifiers << shape;
    };
    row("turn the model", "a", {150, 250}, {}, -1);
    row("shift the model", "a", {150, 250}, Qt::ControlModifier, -1);
    row("draw a band", "", {150, 250}, Qt::ShiftModifier, Qt::CrossCursor);
    row("pick", "a", {250, 170}, {}, Qt::PointingHandCursor);
    row("move", "c", {250, 170}, {}, Qt::SizeAllCursor);
    row("move with its group", "g", {250, 170}, {}, Qt::SizeAllCursor);
    row("move the one below", "a", {60, 40}, {}, Qt::SizeAllCursor);
    row("add", "a", {250, 170}, Qt::ShiftModifier, Qt::DragCopyCursor);
    row("add, too", "a", {250, 170}, Qt::ControlModifier, Qt::DragCopyCursor);
    row("take away", "c", {250, 170}, Qt::ControlModifier, Qt::PointingHandCursor);
    row("move straight", "c", {250, 170}, Qt::ShiftModifier, Qt::SizeAllCursor);
}

void tst_EditGesture::shouldTellByTheCursorWhatWillHappen()
{
    QFETCH(QString, selection);
    QFETCH(QPointF, at);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    select(ids(selection));
    const std::optional<Qt::CursorShape> shape = gesture().cursor(at, modifiers);
    QTEST(shape ? int(*shape) : -1, "shape");
}

void tst_EditGesture::shouldTellByTheCursorWhatHappens()
{
    press({250, 170});
    move({280, 270});
    QCOMPARE(*gesture().cursor({280, 290}, {}), Qt::SizeAllCursor);
    key(Qt::Key_Escape);
    release({280, 290});
    press({150, 250}, Qt::ShiftModifier);
    move({250, 170});
    QCOMPARE(*gesture().cursor({250, 170}, {}), Qt::CrossCursor);
    key(Qt::Key_Escape);
    release({250, 170});
    press({150, 250});
    QVERIFY(!gesture().cursor({250, 170}, {}));
}

void tst_EditGesture::shouldEndTheSelectionOnEscape()
{
    QVERIFY(!key(Qt::Key_Escape));
    select(ids("a"));
    QVERIFY(key(Qt::Key_Escape));
    QCOMPARE(selected(), QString());
}

void tst_EditGesture::shouldLeaveOtherKeysAlone()
{
    QVERIFY(!key(Qt::Key_Left));
    select(ids("a"));
    const QPointF before = placeOf("a");
    QVERIFY(!key(Qt::Key_Left, Qt::AltModifier));
    QVERIFY(!key(Qt::Key_Left, Qt::ControlModifier));
    QVERIFY(!key(Qt::Key_A));
    QVERIFY(!keyUp(Qt::Key_Left));
    QVERIFY(!gesture().claims({QEvent::ShortcutOverride, Qt::Key_Home, Qt::NoModifier}));
    QVERIFY(gesture().claims({QEvent::ShortcutOverride, Qt::Key_Left, Qt::NoModifier}));
    QVERIFY(gesture().claims({QEvent::ShortcutOverride, Qt::Key_Escape, Qt::NoModifier}));
    QCOMPARE(placeOf("a"), before);
}

KX_TEST_MAIN(tst_EditGesture)
#include "tst_EditGesture.moc"
