// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "viewer/app/NoticeArea.h"
#include "viewer/render/FileWatch.h"
#include "viewer/scene/SceneReader.h"

#include <QObject>
#include <QSet>
#include <QTimer>

#include <vector>

namespace viewer {

class OverlayService;

/// Tells of image files that were missing when overlays were read, and takes back what is no trouble any
/// more: a file that has come, or that no overlay uses. Owned by the session; GUI thread only.
class MissingImages : public QObject
{
    Q_OBJECT

public:
    explicit MissingImages(const OverlayService *service);

    /// Tells of these files, in one message.
    void report(const QVector<MissingImage> &images);

    /// Takes all messages back; for another scene.
    void forgetAll();

Q_SIGNALS:
    void reported(viewer::Severity severity, const QString &text);

    /// Of what was reported as `text`, `rest` is left.
    void reduced(const QString &text, const QString &rest);

    /// Nothing is left of it.
    void overcome(const QString &text);

private:
    struct Message
    {
        QString text;
        QVector<MissingImage> images;
    };

    void await();
    void noteChange(const QString &path);
    void settle();
    void settle(Message *message, const QSet<QString> &used);

    const OverlayService *m_service;
    FileWatch m_watch{FileWatch::Limits()};
    std::vector<Message> m_messages;
    QSet<QString> m_found; // since they were told of
    QTimer m_due;          // one settling for all that happens in a moment
};

} // namespace viewer
