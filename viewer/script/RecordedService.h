// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "viewer/scene/OverlayService.h"

#include <QFile>

namespace viewer {

/// An overlay service that writes what is done to its scene into a script, which does the same again
/// on the same scene: every operation that changes something, with its arguments, whoever calls it,
/// and which of them make one step, are taken back and done again. In place of a plain service in a
/// run that is recorded; GUI thread only.
///
/// A script belongs to one scene: with the next one that is opened, a script of its own begins beside
/// the first, which is numbered. Each line is in the file as soon as it is done. Colours and
/// pasted scenes are taken as precisely as scripts and files write them, so that a replay finds the
/// same ones.
class RecordedService : public OverlayService
{
    Q_OBJECT

public:
    /// Records into `file`.
    explicit RecordedService(const QString &file);
    ~RecordedService() override;

    /// The scene file that the next script is of; empty for none.
    void setScenePath(const QString &path) { m_scenePath = path; }

    QRPC::NodeList insertScene(const Scene &scene, QRPC::NodeId parent, int row) override;

    QRPC::NodeId createOverlay(QRPC::NodeId parent) override;
    QRPC::NodeId createGroup(QRPC::NodeId parent) override;
    QRPC::NodeId createSwitch(QRPC::NodeId parent) override;
    void duplicateNodes(const QRPC::NodeList &nodes) override;
    void deleteNodes(const QRPC::NodeList &nodes) override;
    void groupNodes(const QRPC::NodeList &nodes) override;
    void moveNodes(const QRPC::NodeList &nodes, QRPC::NodeId newParent, int row) override;

    void setOverlayType(const QRPC::NodeList &nodes, int type) override;
    void setName(const QRPC::NodeList &nodes, const QString &name) override;
    void setEnabled(const QRPC::NodeList &nodes, bool enabled) override;
    void setText(const QRPC::NodeList &nodes, const QString &text) override;
    void setFont(const QRPC::NodeList &nodes, const QString &family) override;
    void setFontColor(const QRPC::NodeList &nodes, const QColor &color) override;
    void setBackgroundColor(const QRPC::NodeList &nodes, const QColor &color) override;
    void setBackgroundTransparency(const QRPC::NodeList &nodes, const QColor &color) override;
    void setImage(const QRPC::NodeList &nodes, const QString &path) override;
    void setSizeType(const QRPC::NodeList &nodes, int sizeType) override;
    void setSize(const QRPC::NodeList &nodes, float size) override;
    void setPosition(const QRPC::NodeList &nodes, const QPointF &position) override;
    void setOffset(const QRPC::NodeList &nodes, const QPointF &offset) override;
    void setOffsetX(const QRPC::NodeList &nodes, float x) override;
    void setOffsetY(const QRPC::NodeList &nodes, float y) override;
    void setOffsets(const QVector<NodeOffset> &offsets) override;

Q_SIGNALS:
    /// The script cannot be written; sent once.
    void recordingFailed(const QString &text);

private:
    class Call;

    void followHistory();
    void noteRecord(bool joined);
    void noteGroup(const char *end);
    void write(const QString &lines);
    QString head() const;

    const QString m_file;
    QString m_scenePath;
    QFile m_script;
    int m_scenes = 0;          // that something was recorded of
    QRPC::NodeId m_nextId = 0; // when the first operation of a script was called
    QStringList m_calls;       // that are under way, one inside the other; empty when noted
    int m_pendingGroups = 0;   // that were opened and have nothing in them yet
    bool m_hasFailed = false;
};

} // namespace viewer
