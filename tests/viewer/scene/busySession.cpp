// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT
//
// A session that never rests: busySession <journal folder> <scene file> <seed> [<edits>]. Numbers its
// edits in the name of one node, saves after so many of them on the average, and tells each edit with its
// time in a line.

#include "tests/viewer/scene/RandomEdits.h"
#include "viewer/scene/Journal.h"
#include "viewer/scene/SceneWriter.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QThreadPool>
#include <QTimer>

#include <cstdio>

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    viewer::OverlayService service;
    QThreadPool writer;
    viewer::Journal journal(&service, arguments.at(1), &writer);
    journal.setPath(arguments.at(2));
    RandomEdits user(&service, arguments.at(3).toUInt());
    QRandomGenerator random(arguments.at(3).toUInt());
    const int editsPerSave = arguments.value(4).toInt();

    int edits = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &service, [&] {
        for (int i = 0; i < 20; ++i)
            user.edit();
        // The first row carries the number, whoever has been deleted or moved meanwhile.
        if (service.getChildCount(viewer::Scene::RootId) == 0)
            service.createGroup(viewer::Scene::RootId);
        service.setName({service.getChild(viewer::Scene::RootId, 0)},
                        QStringLiteral("edit %1").arg(++edits));
        std::printf("%d %lld\n", edits,
                    static_cast<long long>(QDateTime::currentMSecsSinceEpoch()));
        std::fflush(stdout);
        if (editsPerSave > 0 && random.bounded(editsPerSave) == 0
            && viewer::SceneWriter::write(service.scene(), arguments.at(2)).isWritten())
            service.history().setSaved();
    });
    timer.start(1);
    return QCoreApplication::exec();
}
