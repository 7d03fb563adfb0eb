// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/MoveSteps.h"

#include <QSet>

#include <algorithm>

namespace viewer {

namespace {

/// The rows of siblings, and what stands around them.
struct Block
{
    QRPC::NodeId parent = 0;
    int first = 0;
    int last = 0;
};

Block blockOf(kxOverlayService *service, const QRPC::NodeList &siblings)
{
    const QRPC::NodeId parent = service->getParent(siblings.first());
    QVector<int> rows;
    for (const QRPC::NodeId node : siblings)
        rows.append(service->getChildIndex(parent, node));
    const auto [first, last] = std::minmax_element(rows.cbegin(), rows.cend());
    return {parent, *first, *last};
}

bool isGroup(kxOverlayService *service, QRPC::NodeId node)
{
    return node != 0 && !service->isOverlay(node);
}

std::optional<NodeMove> planIn(kxOverlayService *service, const Block &block)
{
    const QRPC::NodeId above =
        block.first > 0 ? service->getChild(block.parent, block.first - 1) : 0;
    if (isGroup(service, above))
        return NodeMove{above, -1};
    const bool isLast = block.last + 1 >= service->getChildCount(block.parent);
    const QRPC::NodeId below = isLast ? 0 : service->getChild(block.parent, block.last + 1);
    if (isGroup(service, below))
        return NodeMove{below, 0};
    return std::nullopt;
}

std::optional<NodeMove> planOut(kxOverlayService *service, const Block &block)
{
    const QRPC::NodeId outer = service->getParent(block.parent);
    if (outer == 0)
        return std::nullopt;
    return NodeMove{outer, service->getChildIndex(outer, block.parent) + 1};
}

} // namespace

QVector<QRPC::NodeList> siblingsOf(kxOverlayService *service, const QRPC::NodeList &nodes)
{
    const QSet<QRPC::NodeId> moving(nodes.begin(), nodes.end());
    const auto travelsInside = [&](QRPC::NodeId node) {
        do
            node = service->getParent(node);
        while (node != 0 && !moving.contains(node));
        return node != 0;
    };
    QVector<QRPC::NodeId> parents;
    QVector<QRPC::NodeList> groups;
    for (const QRPC::NodeId node : nodes) {
        const QRPC::NodeId parent = service->getParent(node);
        if (parent == 0 || travelsInside(node))
            continue;
        int at = parents.indexOf(parent);
        if (at < 0) {
            at = parents.size();
            parents.append(parent);
            groups.append(QRPC::NodeList());
        }
        groups[at].append(node);
    }
    return groups;
}

std::optional<NodeMove> planStep(kxOverlayService *service, const QRPC::NodeList &siblings,
                                 MoveStep step)
{
    const Block block = blockOf(service, siblings);
    switch (step) {
    case MoveStep::Up:
        return NodeMove{block.parent, std::max(0, block.first - 1)};
    case MoveStep::Down:
        return NodeMove{block.parent,
                        std::min(service->getChildCount(block.parent), block.last + 2)};
    case MoveStep::In:
        return planIn(service, block);
    case MoveStep::Out:
        return planOut(service, block);
    }
    return std::nullopt;
}

} // namespace viewer
