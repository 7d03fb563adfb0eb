// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/QRPC.h"
#include "viewer/scene/OverlayService.h"

#include <QTreeView>

#include <memory>

enum class Shape { Flat, Groups, Deep, OneSwitch };

/// What one measurement works on: a scene of a shape and size in the viewer's service, registered
/// for the module. One lives at a time.
class TreeCase
{
public:
    TreeCase(Shape shape, int nodeCount);
    ~TreeCase();
    Q_DISABLE_COPY(TreeCase)

    viewer::OverlayService *service() { return &m_service; }

    /// The children of the root, and all nodes with parents before children.
    const QRPC::NodeList &topNodes() const { return m_topNodes; }
    const QRPC::NodeList &allNodes() const { return m_allNodes; }

private:
    viewer::OverlayService m_service;
    QRPC::NodeList m_topNodes;
    QRPC::NodeList m_allNodes;
};

/// A shown view as the editor sets it up, or none.
std::unique_ptr<QTreeView> makeView(bool wanted, QAbstractItemModel *model);

const char *nameOf(Shape shape);
