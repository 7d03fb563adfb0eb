// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/viewer/scene/ServiceTest.h"

using QRPC::NodeId;
using namespace viewer;

/// Steps that are made of several operations.
class tst_History_groups : public ServiceTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldMakeOneStepOfAGroupOfOperations();
    void shouldAnnounceChangesOfOneKindAsOne();
    void shouldTakeAGroupBack();
    void shouldHaveAHistoryOfItsOwnInAGroup();
    void shouldLeaveNoStepOfAGroupThatEndsWhereItBegan();
    void shouldLeaveNoStepOfAnEmptyGroupOfOperations();
    void shouldMakeOneStepOfALongMove();
    void shouldForgetAnOpenGroupWithItsScene();
};

void tst_History_groups::shouldMakeOneStepOfAGroupOfOperations()
{
    open("g(a) b");
    {
        const StepGroup group(&service(), "Arrange");
        service().moveNodes(ids("a"), Scene::RootId, -1);
        service().undo();
        service().deleteNodes(ids("g"));
        service().moveNodes(ids("a"), service().createGroup(Scene::RootId), 0);
    }
    QCOMPARE(dump(), QString("b Group 1(a)"));
    QCOMPARE(stepNames(), QStringList("Arrange"));
    signalLines();
    service().undo();
    QCOMPARE(dump(), QString("g(a) b"));
    QCOMPARE(signalLines(), QStringList({"nodesMoved a / root / b", "enabledStateChanged a",
                                         "nodesRemoved Group 1", "nodesAdded g",
                                         "nodesMoved a / g / 0", "enabledStateChanged a"}));
    service().redo();
    QCOMPARE(dump(), QString("b Group 1(a)"));
}

void tst_History_groups::shouldAnnounceChangesOfOneKindAsOne()
{
    open("g(a) b");
    {
        const StepGroup group(&service(), "Fill");
        for (const char *name : {"x", "y"}) {
            const NodeId id = service().createOverlay(ids("g").constFirst());
            service().setName({id}, name);
            service().setText({id, ids("a").constFirst()}, name);
        }
    }
    signalLines();
    service().undo();
    QCOMPARE(signalLines(), QStringList({"nodesRemoved x y", "textChanged a"}));
    service().redo();
    QCOMPARE(signalLines(),
             QStringList({"nodesAdded x y", "nameChanged x y", "textChanged a x y"}));
}

void tst_History_groups::shouldTakeAGroupBack()
{
    open("g(a) b");
    service().setName(ids("b"), "c");
    {
        StepGroup group(&service(), "Arrange");
        service().moveNodes(ids("a"), Scene::RootId, -1);
        service().deleteNodes(ids("g"));
        signalLines();
        group.rollBack();
    }
    QCOMPARE(dump(), QString("g(a) c"));
    QCOMPARE(signalLines(),
             QStringList({"nodesAdded g", "nodesMoved a / g / 0", "enabledStateChanged a"}));
    QCOMPARE(stepNames(), QStringList("Rename to \"c\""));
    service().undo();
    QCOMPARE(dump(), QString("g(a) b"));
}

void tst_History_groups::shouldHaveAHistoryOfItsOwnInAGroup()
{
    open("a b");
    service().setName(ids("b"), "before");
    {
        const StepGroup group(&service(), "Script", History::Group::OwnHistory);
        service().undo(); // of what was before the group
        service().setName(ids("a"), "x");
        service().deleteNodes(ids("before"));
        service().undo();
        QCOMPARE(dump(), QString("x before"));
        service().redo();
        QCOMPARE(dump(), QString("x"));
        service().undo();
        service().setText(ids("x"), "t");
        service().redo(); // gone with the new text
        service().history().joinNext();
        service().setSize(ids("x"), 3);
        service().undo();
        QCOMPARE(service().getText(id("x")), QString());
    }
    QCOMPARE(dump(), QString("x before"));
    QCOMPARE(stepNames(), QStringList({"Rename to \"before\"", "Script"}));
    service().undo();
    QCOMPARE(dump(), QString("a before"));
}

void tst_History_groups::shouldLeaveNoStepOfAGroupThatEndsWhereItBegan()
{
    open("a");
    {
        const StepGroup group(&service(), "Nothing");
        service().setSize(ids("a"), 10);
        service().setName(ids("a"), "b");
        service().setSize(ids("b"), 24);
        service().setName(ids("b"), "a");
    }
    QCOMPARE(stack().count(), 0);
}

void tst_History_groups::shouldLeaveNoStepOfAnEmptyGroupOfOperations()
{
    open("a");
    {
        const StepGroup group(&service(), "Nothing");
        service().setName(ids("a"), "a");
    }
    QCOMPARE(stack().count(), 0);
}

void tst_History_groups::shouldMakeOneStepOfALongMove()
{
    open("a b");
    {
        const StepGroup group(&service(), Operation::MoveInView, ids("a b"));
        for (int i = 1; i <= 50; ++i)
            service().setOffsets({{id("a"), QPointF(i, 0)}, {id("b"), QPointF(0, i)}});
    }
    QCOMPARE(stepNames(), QStringList("Move 2 overlays in the view"));
    service().undo();
    QCOMPARE(service().getOffset(id("b")), QPointF());
    service().redo();
    QCOMPARE(service().getOffset(id("a")), QPointF(50, 0));
}

void tst_History_groups::shouldForgetAnOpenGroupWithItsScene()
{
    open("a");
    {
        const StepGroup group(&service(), "Gesture");
        service().setSize(ids("a"), 9);
        service().setScene(scenetext::build("b"));
    }
    QCOMPARE(stack().count(), 0);
}

KX_TEST_MAIN(tst_History_groups)
#include "tst_History_groups.moc"
