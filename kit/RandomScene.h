// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/kxOverlayService.h"

#include <functional>
#include <random>
#include <utility>

/// A service's scene as the material of random scripts: any of its nodes, any change of it. The same
/// seed gives the same answers for the same scene. Owned by whoever runs the script.
class RandomScene
{
public:
    /// `allNodes` tells all nodes but the root.
    RandomScene(kxOverlayService *service, std::function<QRPC::NodeList()> allNodes, quint32 seed)
        : m_service(service)
        , m_allNodes(std::move(allNodes))
        , m_random(seed)
    {
    }

    int below(int limit) { return int(m_random() % quint32(limit)); }

    /// 0 when there is no node.
    QRPC::NodeId anyNode();

    /// A group, a switch or the root.
    QRPC::NodeId anyContainer();

    /// Up to four, with repetitions.
    QRPC::NodeList anyNodes();

    /// A slot of the editor that takes no arguments and changes the scene or the selection.
    const char *anyCommand();

    /// A tree that doubles at each second step would soon be too large to be compared.
    bool isLarge() const { return m_allNodes().size() > 60; }

    /// A pattern of the search box.
    QString anyPattern();

    /// The service does something by itself; tells what it was.
    QString changeService();

private:
    kxOverlayService *m_service;
    std::function<QRPC::NodeList()> m_allNodes;
    std::mt19937 m_random;
};
