// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "viewer/scene/OverlayService.h"

#include <QRandomGenerator>

/// A busy user: random operations of all kinds on random nodes of a service. The seed decides all.
class RandomEdits
{
public:
    RandomEdits(viewer::OverlayService *service, quint32 seed);

    /// One operation, which may change nothing.
    void edit();

private:
    QRPC::NodeList someNodes();
    QRPC::NodeId someNode();
    int below(int limit) { return int(m_random.bounded(limit)); }
    QColor color() { return QColor::fromRgba(m_random.generate()); }
    QPointF point() { return {m_random.generateDouble(), m_random.generateDouble()}; }
    void changeTree();
    void changeValue();

    viewer::OverlayService *m_service;
    QRandomGenerator m_random;
};
