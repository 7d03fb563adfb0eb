// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/MoveSteps.h"

#include "kit/RecordingService.h"
#include "kit/TreeDump.h"
#include "tests/support/KxTest.h"

using namespace viewer;

/// Where the selected nodes go with one step. Each case makes the planned moves and looks at the
/// tree.
class tst_MoveSteps : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldMoveOneStep_data();
    void shouldMoveOneStep();
    void shouldLeaveOutWhatTravelsInside();
};

void tst_MoveSteps::shouldMoveOneStep_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QRPC::NodeList>("nodes");
    QTest::addColumn<int>("step");
    QTest::addColumn<QString>("after");
    const auto row = [](const char *name, const char *before, const QRPC::NodeList &nodes,
                        MoveStep step, const char *after) {
        QTest::newRow(name) << QString(before) << nodes << int(step) << QString(after);
    };
    row("up", "a2 b3 c4", {4}, MoveStep::Up, "a2 c4 b3");
    row("up from the top", "a2 b3 c4", {2}, MoveStep::Up, "a2 b3 c4");
    row("up as a block", "a2 b3 c4 d5", {5, 4}, MoveStep::Up, "a2 c4 d5 b3");
    row("up with a gap", "a2 b3 c4 d5", {3, 5}, MoveStep::Up, "b3 d5 a2 c4");
    row("up with a gap, from the top", "a2 b3 c4", {2, 4}, MoveStep::Up, "a2 c4 b3");
    row("down", "a2 b3 c4", {2}, MoveStep::Down, "b3 a2 c4");
    row("down from the bottom", "a2 b3 c4", {4}, MoveStep::Down, "a2 b3 c4");
    row("down to the bottom", "a2 b3 c4", {3}, MoveStep::Down, "a2 c4 b3");
    row("down as a block", "a2 b3 c4 d5", {3, 2}, MoveStep::Down, "c4 a2 b3 d5");
    row("down with a gap", "a2 b3 c4 d5", {2, 4}, MoveStep::Down, "b3 d5 a2 c4");
    row("past a group, not into it", "a2 g3(b4) c5", {2}, MoveStep::Down, "g3(b4) a2 c5");
    row("in each group for itself", "g2(a3 b4) h5(c6 d7)", {4, 7}, MoveStep::Up,
        "g2(b4 a3) h5(d7 c6)");
    row("into the group above", "g2(a3) b4 h5(c6)", {4}, MoveStep::In, "g2(a3 b4) h5(c6)");
    row("into the group below", "b4 h5(c6)", {4}, MoveStep::In, "h5(b4 c6)");
    row("into the switch above", "s2*() b4-", {4}, MoveStep::In, "s2(b4-)");
    row("into no overlay", "a2 b3 c4", {3}, MoveStep::In, "a2 b3 c4");
    row("a block into the group above", "g2(a3) b4 c5", {5, 4}, MoveStep::In, "g2(a3 b4 c5)");
    row("out", "a2 g3(b4 c5) d6", {4}, MoveStep::Out, "a2 g3(c5) b4 d6");
    row("out of the inner group only", "g2(h3(a4) b5)", {4}, MoveStep::Out, "g2(h3() a4 b5)");
    row("out of the scene", "a2 b3", {2}, MoveStep::Out, "a2 b3");
    row("out of two groups", "g2(a3) h4(b5) c6", {3, 5}, MoveStep::Out, "g2() a3 h4() b5 c6");
    row("nothing", "a2 b3", {}, MoveStep::Down, "a2 b3");
    row("what is not there", "a2 b3", {0, 77, 1}, MoveStep::Down, "a2 b3");
}

void tst_MoveSteps::shouldMoveOneStep()
{
    QFETCH(QString, before);
    QFETCH(QRPC::NodeList, nodes);
    QFETCH(int, step);
    QFETCH(QString, after);
    CallLog log;
    RecordingService service(&log);
    service.build(before);
    const QVector<QRPC::NodeList> groups = siblingsOf(&service, nodes);
    for (const QRPC::NodeList &siblings : groups) {
        if (const auto to = planStep(&service, siblings, MoveStep(step)))
            service.moveNodes(siblings, to->parent, to->row);
    }
    QCOMPARE(dumpTree(service), after);
}

void tst_MoveSteps::shouldLeaveOutWhatTravelsInside()
{
    CallLog log;
    RecordingService service(&log);
    service.build("g2(h3(a4) b5) c6");
    QCOMPARE(siblingsOf(&service, {4, 6, 2, 5}), QVector<QRPC::NodeList>({{6, 2}}));
    QCOMPARE(siblingsOf(&service, {5, 4, 3}), QVector<QRPC::NodeList>({{5, 3}}));
}

KX_TEST_MAIN(tst_MoveSteps)
#include "tst_MoveSteps.moc"
