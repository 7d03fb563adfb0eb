// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/QRPC.h"

#include <QByteArray>
#include <QColor>
#include <QPair>
#include <QPointF>
#include <QString>
#include <QVector>

#include <vector>

namespace viewer {

enum class NodeKind { Root, Group, Switch, Overlay };

/// The properties of one overlay, with the values that a new text overlay starts with. Values are
/// kept exactly as they were given; whoever draws or writes them copes with what makes no sense.
struct Overlay
{
    int type = 0;
    QString text;
    QString font = QStringLiteral("DejaVu Sans");
    QColor fontColor = QColor(255, 255, 255);
    QColor backgroundColor = QColor(0, 0, 0);
    QColor backgroundTransparency = QColor(128, 128, 128);
    QString image;
    int sizeType = 0;
    float size = 24.0F;
    QPointF position = QPointF(0.5, 0.5);
    QPointF offset;

    bool isText() const { return type == 0; }
    bool isAbsolute() const { return sizeType == 0; }
};

/// Keys of a scene file that this version does not know, as JSON texts (name, value) in file order.
/// They travel with their node, so that a file of a newer minor dialect is not impoverished by
/// being opened and saved.
using UnknownKeys = QVector<QPair<QByteArray, QByteArray>>;

/// One node of a scene: a plain record. The links (`parent`, `children`, `row`, `shown`) are
/// written by Scene alone, which keeps them consistent; every other member is content.
struct Node
{
    QRPC::NodeId id = 0;
    NodeKind kind = NodeKind::Group;
    QString name;
    bool enabled = true;
    Overlay overlay;
    UnknownKeys unknownKeys;

    QRPC::NodeId parent = 0;
    std::vector<QRPC::NodeId> children;
    int row = -1;
    QRPC::NodeId shown = 0; ///< of a switch: its enabled child, or 0

    bool isOverlay() const { return kind == NodeKind::Overlay; }
    bool isSwitch() const { return kind == NodeKind::Switch; }
    bool canHoldNodes() const { return kind != NodeKind::Overlay; }
};

} // namespace viewer
