// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT
//
// Any bytes dropped on the tree as a drag of an editor, at any place. No node is lost, and the tree
// equals the service.

#include "kit/HostFixture.h"
#include "kit/TreeDump.h"
#include "overlayeditor/kxOverlayTreeView.h"
#include "overlayeditor/model/kxOverlayQtModel.h"

#include <QApplication>
#include <QDropEvent>
#include <QMimeData>

namespace {

const char *const Tree = "g2(h3(a4) b5) c6 s7*(d8 e9-) k10()";

/// One host with the tree for all inputs; building it anew would take most of the time.
struct Stage
{
    Stage()
    {
        view.setModel(&model);
        view.setSelectionMode(QAbstractItemView::ExtendedSelection);
        view.setDragDropMode(QAbstractItemView::DragDrop);
        view.resize(300, 400);
        view.show();
    }

    void fill()
    {
        host.service().build(QString::fromLatin1(Tree));
        Q_EMIT host.service().modelReset();
        view.expandAll();
    }

    HostFixture host;
    kxOverlayQtModel model;
    kxOverlayTreeView view;
};

/// The first bytes say what is dropped where, the rest is what the drag carries.
void dropOn(Stage *stage, const QByteArray &input)
{
    const auto choice = [&input](int i) { return int(uchar(input.at(i))); };
    QMimeData data;
    const QByteArray bytes = input.mid(4);
    if (choice(0) & 1)
        data.setData(QStringLiteral("application/pimo-overlaytree-items"), bytes);
    if (choice(0) & 2)
        data.setData(QStringLiteral("application/pimo-overlay-items"), bytes);
    if (choice(0) & 4) {
        const QModelIndex row = stage->model.index(choice(3) % 4, 0);
        const QString format = stage->model.mimeTypes().constFirst();
        const std::unique_ptr<QMimeData> rows(stage->model.mimeData({row}));
        data.setData(format, rows->data(format));
    }
    const QPoint place(choice(1), choice(2));
    QWidget *viewport = stage->view.viewport();
    QDragEnterEvent enter(place, Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    QDragMoveEvent move(place, Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    QDropEvent drop(place, Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    for (QDropEvent *event :
         {static_cast<QDropEvent *>(&enter), static_cast<QDropEvent *>(&move), &drop}) {
        event->setDropAction(Qt::MoveAction);
        QCoreApplication::sendEvent(viewport, event);
    }
    QCoreApplication::processEvents();
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static QApplication application(*argc, *argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size < 4)
        return -1;
    static Stage stage;
    stage.fill();
    const int nodes = stage.host.service().allIds().size();
    dropOn(&stage, QByteArray(reinterpret_cast<const char *>(data), int(size)));
    stage.host.log().clear();
    if (stage.host.service().allIds().size() != nodes)
        qFatal("a node is lost");
    const QString difference = treeDifference(stage.model, stage.host.service());
    if (!difference.isEmpty())
        qFatal("%s", qPrintable(difference));
    return 0;
}
