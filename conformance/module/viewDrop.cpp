// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "conformance/module/viewDrop.h"

#include <QCoreApplication>
#include <QDropEvent>
#include <QTreeView>

namespace conformance {

void dropOnView(const QTreeView &view, const QPoint &place, const QMimeData &data,
                Qt::DropAction action)
{
    QDragEnterEvent enter(place, action, &data, Qt::LeftButton, Qt::NoModifier);
    QDragMoveEvent move(place, action, &data, Qt::LeftButton, Qt::NoModifier);
    QDropEvent drop(place, action, &data, Qt::LeftButton, Qt::NoModifier);
    for (QDropEvent *event :
         {static_cast<QDropEvent *>(&enter), static_cast<QDropEvent *>(&move), &drop})
        QCoreApplication::sendEvent(view.viewport(), event);
}

} // namespace conformance
