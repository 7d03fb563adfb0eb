// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "viewer/app/NoticeArea.h"
#include "viewer/scene/OverlayService.h"
#include "viewer/scene/SceneReader.h"

#include <QObject>

namespace viewer {

/// Copies nodes with all that lies in them to the clipboard and pastes them from there, as the text
/// of a scene file with absolute image paths, so that they can be read, sent and pasted into another
/// viewer. Made by the session for the edit menu; GUI thread only.
class SceneClipboard : public QObject
{
    Q_OBJECT

public:
    /// Where new nodes go: before the child of `parent` at `row`, or to its end where that is -1.
    struct Place
    {
        QRPC::NodeId parent;
        int row;
    };

    explicit SceneClipboard(OverlayService *service, QObject *parent = nullptr);

    /// Whether there is a text that may be a scene.
    static bool canPaste();

    /// False when there are no such nodes or, with a report, when they cannot be written; the
    /// clipboard is as it was then.
    bool copy(const QRPC::NodeList &nodes);

    /// Copies and deletes, in one step.
    void cut(const QRPC::NodeList &nodes);

    /// Puts the nodes of the clipboard where a user expects them who has `selected` before him: into
    /// a single group or switch, unless that is what was copied, else behind the last one; to the
    /// end of the scene where nothing is selected. What is no scene is reported, and nothing changes.
    void paste(const QRPC::NodeList &selected);

Q_SIGNALS:
    void reported(viewer::Severity severity, const QString &text);

    /// Overlays were pasted, but not all their image files are there.
    void imagesMissing(const QVector<viewer::MissingImage> &images);

private:
    QByteArray textOf(const QRPC::NodeList &nodes, QStringList *warnings) const;
    SceneReading read(const QByteArray &text) const;
    Place placeFor(const QRPC::NodeList &selected, const QByteArray &text) const;

    OverlayService *m_service;
};

} // namespace viewer
