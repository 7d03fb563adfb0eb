// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/overlayeditor/WorkCounter.h"
#include "viewer/scene/OverlayService.h"

/// The viewer's overlay service, which counts each question and command before it answers. It asks
/// nothing of itself, so that the counts are those of the module. Owned by the test, with a counter
/// that outlives it; GUI thread only.
class CountedService : public viewer::OverlayService
{
public:
    explicit CountedService(WorkCounter *counter) : m_counter(counter) {}

    QRPC::NodeId getRootNode() override;
    QRPC::NodeId getParent(QRPC::NodeId node) override;
    int getChildCount(QRPC::NodeId node) override;
    QRPC::NodeId getChild(QRPC::NodeId node, int index) override;
    int getChildIndex(QRPC::NodeId parent, QRPC::NodeId child) override;
    bool isOverlay(QRPC::NodeId node) override;
    bool isSwitch(QRPC::NodeId node) override;
    QString getName(QRPC::NodeId node) override;
    bool isEnabled(QRPC::NodeId node) override;
    bool isActive(QRPC::NodeId node) override;

    int getOverlayType(QRPC::NodeId node) override;
    QString getText(QRPC::NodeId node) override;
    QString getFont(QRPC::NodeId node) override;
    QColor getFontColor(QRPC::NodeId node) override;
    QColor getBackgroundColor(QRPC::NodeId node) override;
    QColor getBackgroundTransparency(QRPC::NodeId node) override;
    QString getImage(QRPC::NodeId node) override;
    int getSizeType(QRPC::NodeId node) override;
    float getSize(QRPC::NodeId node) override;
    QPointF getPosition(QRPC::NodeId node) override;
    QPointF getOffset(QRPC::NodeId node) override;

    void duplicateNodes(const QRPC::NodeList &nodes) override;
    void deleteNodes(const QRPC::NodeList &nodes) override;
    void moveNodes(const QRPC::NodeList &nodes, QRPC::NodeId newParent, int row) override;
    void setName(const QRPC::NodeList &nodes, const QString &name) override;
    void setEnabled(const QRPC::NodeList &nodes, bool enabled) override;
    void setFontColor(const QRPC::NodeList &nodes, const QColor &color) override;

private:
    WorkCounter *m_counter;
};
