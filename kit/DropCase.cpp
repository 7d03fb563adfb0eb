// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "kit/DropCase.h"

#include <QTreeView>

namespace {

const char s_several[] = "g2(a3 b4) h5(c6 d7) k8(e9) m10()";

DropCase row(const char *name, const char *before, const QRPC::NodeList &picked,
             QRPC::NodeId target, DropCase::Edge edge, const char *call, const char *after)
{
    return {name, before, picked, target, edge, call, after};
}

} // namespace

const QVector<DropCase> &DropCase::all()
{
    static const QVector<DropCase> cases{
        row("onto a group", "a2 g3(b4) c5", {2}, 3, On, "[2] 3 -1", "g3(b4 a2) c5"),
        row("onto an empty group", "a2 g3() c5", {2}, 3, On, "[2] 3 -1", "g3(a2) c5"),
        row("two onto an empty group", "a2 g3() c5", {5, 2}, 3, On, "[5,2] 3 -1", "g3(a2 c5)"),
        row("onto empty space", "g2(a3 b4) c5", {3}, 0, On, "[3] 1 -1", "g2(b4) c5 a3"),
        row("two onto empty space", "g2(a3 b4) c5", {4, 3}, 0, On, "[4,3] 1 -1", "g2() c5 a3 b4"),
        row("up", "a2 b3 c4 d5", {5}, 3, Above, "[5] 1 1", "a2 d5 b3 c4"),
        row("up to the top", "a2 b3 c4 d5", {4}, 2, Above, "[4] 1 0", "c4 a2 b3 d5"),
        row("down", "a2 b3 c4 d5", {2}, 4, Below, "[2] 1 3", "b3 c4 a2 d5"),
        row("down to the end", "a2 b3 c4 d5", {3}, 5, Below, "[3] 1 4", "a2 c4 d5 b3"),
        row("to where it stands, from above", "a2 b3 c4", {3}, 2, Below, "[3] 1 1", "a2 b3 c4"),
        row("to where it stands, from below", "a2 b3 c4", {3}, 4, Above, "[3] 1 2", "a2 b3 c4"),
        row("between the children of a group", "g2(a3 b4) c5", {5}, 4, Above, "[5] 2 1",
            "g2(a3 c5 b4)"),
        row("behind the last child of a group", "g2(a3 b4) c5", {5}, 4, Below, "[5] 2 2",
            "g2(a3 b4 c5)"),
        row("below an open group", "g2(a3 b4) c5 d6", {6}, 2, Below, "[6] 1 1", "g2(a3 b4) d6 c5"),
        row("onto an overlay", "a2 g3(b4 c5)", {2}, 4, On, "[2] 3 1", "g3(b4 a2 c5)"),
        row("the only row", "a2", {2}, 0, On, "[2] 1 -1", "a2"),
        row("all rows", "a2 g3(b4) c5", {5, 2, 3}, 0, On, "[5,2,3] 1 -1", "a2 g3(b4) c5"),
        row("out of its group", "a2 g3(b4 c5)", {5}, 2, Below, "[5] 1 1", "a2 c5 g3(b4)"),
        row("clicked in another order", "a2 b3 c4 d5 g6()", {5, 2, 4}, 6, On, "[5,2,4] 6 -1",
            "b3 g6(a2 c4 d5)"),
        row("clicked in another order, between", "a2 b3 c4 d5 e6 f7", {6, 2, 4}, 5, Above,
            "[6,2,4] 1 3", "b3 a2 c4 e6 d5 f7"),
        row("of several parents", s_several, {7, 3}, 10, On, "[7,3] 10 -1",
            "g2(b4) h5(c6) k8(e9) m10(a3 d7)"),
        row("of several parents, with equal row numbers", s_several, {9, 6, 3, 7, 4}, 10, On,
            "[9,6,3,7,4] 10 -1", "g2() h5() k8() m10(e9 d7 c6 a3 b4)"),
        row("of several parents, between rows", s_several, {4, 9, 3}, 7, Above, "[4,9,3] 5 1",
            "g2() h5(c6 e9 b4 a3 d7) k8() m10()"),
        row("a group and its child", "g2(a3 b4) h5()", {2, 3}, 5, On, "[2,3] 5 -1",
            "h5(g2(a3 b4))"),
        row("a child and its group", "g2(a3 b4) h5()", {3, 2}, 5, On, "[3,2] 5 -1",
            "h5(g2(a3 b4))"),
        row("into a disabled group", "g2(h3(a4)) k5-()", {3}, 5, On, "[3] 5 -1",
            "g2() k5-(h3~(a4~))"),
        row("out of a disabled group", "g2-(h3(a4)) k5()", {3}, 5, On, "[3] 5 -1",
            "g2-() k5(h3(a4))"),
        row("into a switch that shows a child", "s2*(a3) g4(b5)", {4}, 2, On, "[4] 2 -1",
            "s2(a3 g4-(b5~))"),
        row("two into an empty switch", "s2*() a3 b4", {4, 3}, 2, On, "[4,3] 2 -1", "s2(a3 b4-)"),
        row("within a switch", "s2*(a3- b4 c5-)", {4}, 3, Above, "[4] 2 0", "s2(b4 a3- c5-)"),
        row("out of a switch that shows it", "s2*(a3 b4-) g5()", {3}, 5, On, "[3] 5 -1",
            "s2(b4-) g5(a3)"),
        row("out of a switch that hides it", "s2*(a3 g4-(b5)) g6()", {4}, 6, On, "[4] 6 -1",
            "s2(a3) g6(g4-(b5~))"),
        row("into a switch that shows none", "s2*(a3-) g4(b5)", {4}, 2, On, "[4] 2 -1",
            "s2(a3- g4(b5))"),
    };
    return cases;
}

QPoint DropCase::placeOf(const QTreeView &tree, const QModelIndex &row, Edge edge)
{
    const QRect viewport = tree.viewport()->rect();
    const QRect place = tree.visualRect(row);
    if (place.isEmpty())
        return QPoint(viewport.center().x(), viewport.bottom() - 40);
    const int y[] = {place.top() + 1, place.center().y(), place.bottom() - 1};
    return QPoint(place.center().x(), y[edge]);
}
