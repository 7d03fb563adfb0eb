// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/kxOverlayService.h"

/// Stands for the overlay service while the host has none: it knows no node, does nothing and
/// announces nothing. Calls reach it through kxService() alone, which the registry has reported by
/// then; so a host that takes its service away while a window is open finds that window empty
/// instead of a crash. GUI thread only.
class kxAbsentOverlayService : public kxOverlayService
{
public:
    kxAbsentOverlayService() = default;
    ~kxAbsentOverlayService() override;
    QRPC::NodeId getRootNode() override { return s_noRoot; }
    QRPC::NodeId getParent(QRPC::NodeId) override { return 0; }
    int getChildCount(QRPC::NodeId) override { return 0; }
    QRPC::NodeId getChild(QRPC::NodeId, int) override { return 0; }
    int getChildIndex(QRPC::NodeId, QRPC::NodeId) override { return -1; }
    bool isOverlay(QRPC::NodeId) override { return false; }
    bool isSwitch(QRPC::NodeId) override { return false; }
    QString getName(QRPC::NodeId) override { return {}; }
    bool isEnabled(QRPC::NodeId) override { return false; }
    bool isActive(QRPC::NodeId) override { return false; }

    int getOverlayType(QRPC::NodeId) override { return 0; }
    QString getText(QRPC::NodeId) override { return {}; }
    QString getFont(QRPC::NodeId) override { return {}; }
    QColor getFontColor(QRPC::NodeId) override { return {}; }
    QColor getBackgroundColor(QRPC::NodeId) override { return {}; }
    QColor getBackgroundTransparency(QRPC::NodeId) override { return {}; }
    QString getImage(QRPC::NodeId) override { return {}; }
    int getSizeType(QRPC::NodeId) override { return 0; }
    float getSize(QRPC::NodeId) override { return 0.0F; }
    QPointF getPosition(QRPC::NodeId) override { return {}; }
    QPointF getOffset(QRPC::NodeId) override { return {}; }

    QRPC::NodeId createOverlay(QRPC::NodeId) override { return 0; }
    QRPC::NodeId createGroup(QRPC::NodeId) override { return 0; }
    QRPC::NodeId createSwitch(QRPC::NodeId) override { return 0; }
    void duplicateNodes(const QRPC::NodeList &) override {}
    void deleteNodes(const QRPC::NodeList &) override {}
    void groupNodes(const QRPC::NodeList &) override {}
    void moveNodes(const QRPC::NodeList &, QRPC::NodeId, int) override {}
    void setOverlayType(const QRPC::NodeList &, int) override {}
    void setName(const QRPC::NodeList &, const QString &) override {}
    void setEnabled(const QRPC::NodeList &, bool) override {}
    void setText(const QRPC::NodeList &, const QString &) override {}
    void setFont(const QRPC::NodeList &, const QString &) override {}
    void setFontColor(const QRPC::NodeList &, const QColor &) override {}
    void setBackgroundColor(const QRPC::NodeList &, const QColor &) override {}
    void setBackgroundTransparency(const QRPC::NodeList &, const QColor &) override {}
    void setImage(const QRPC::NodeList &, const QString &) override {}
    void setSizeType(const QRPC::NodeList &, int) override {}
    void setSize(const QRPC::NodeList &, float) override {}
    void setPosition(const QRPC::NodeList &, const QPointF &) override {}
    void setOffset(const QRPC::NodeList &, const QPointF &) override {}
    void setOffsetX(const QRPC::NodeList &, float) override {}
    void setOffsetY(const QRPC::NodeList &, float) override {}

private:
    /// Not 0, which stands for the parent of a node that has none: such nodes would seem to lie in
    /// the root.
    static constexpr QRPC::NodeId s_noRoot = ~QRPC::NodeId(0);
};
