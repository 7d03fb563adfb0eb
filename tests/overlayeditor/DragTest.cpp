// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/overlayeditor/DragTest.h"

#include "host/kxIconManager.h"
#include "host/kxIconOptions.h"
#include "tests/support/RealDrag.h"
#include "tests/support/RealInput.h"

namespace {

QImage pictureFor(RecordingService::Node &node, bool active)
{
    kxIconOptions options;
    options.setOption(2, !active);
    options.setOption(4, false);
    const char *const names[] = {"scenegraph/Overlay", "scenegraph/GroupNode", "scenegraph/Switch"};
    return QIcon(kxIconManager::get(names[int(node.kind)], options)).pixmap(18, 16).toImage();
}

} // namespace

void DragTest::open(const QString &line)
{
    openEditor(line);
    showWindow();
}

QPoint DragTest::placeOf(QRPC::NodeId node, Edge edge)
{
    return DropCase::placeOf(tree(), index(node), edge);
}

void DragTest::selectByMouse(const QRPC::NodeList &nodes)
{
    QStringList held;
    for (const QRPC::NodeId node : nodes) {
        realInput::click(*tree().viewport(), placeOf(node, On), held);
        QTRY_VERIFY(selected().contains(node));
        held = QStringList{"ctrl"};
    }
    QCOMPARE(selectionOrder(), nodes);
    log().clear();
}

bool DragTest::drag(QRPC::NodeId from, QRPC::NodeId to, Edge edge,
                    const std::function<void()> &beforeDrop)
{
    RealDrag drag(tree().viewport(), [=] { return placeOf(to, edge); });
    drag.setBeforeDrop(beforeDrop);
    // By the icon: an open name editor leaves it free, and a press where the row was clicked would
    // make that a double click.
    const QRect row = tree().visualRect(index(from));
    return drag.runFrom(tree().viewport(), QPoint(row.left() + 30, row.center().y()));
}

QStringList DragTest::commands()
{
    QStringList found;
    const QStringList lines = log().lines();
    for (const QString &line : lines) {
        if (!line.startsWith("get") && !line.startsWith("is") && !line.contains('.'))
            found.append(line);
    }
    return found;
}

QString DragTest::difference()
{
    const QString rows = treeDifference(model(), service());
    if (!rows.isEmpty())
        return rows;
    const QRPC::NodeList nodes = service().allIds();
    for (const QRPC::NodeId id : nodes) {
        RecordingService::Node &node = service().node(id);
        const QIcon shownIcon = index(id).data(Qt::DecorationRole).value<QIcon>();
        if (shownIcon.pixmap(18, 16).toImage() != pictureFor(node, service().isActiveNode(node)))
            return QStringLiteral("the icon of %1 is not that of its kind and state").arg(id);
    }
    return QString();
}
