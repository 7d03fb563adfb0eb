// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/scene/MoveRule.h"

#include "viewer/scene/NodeLists.h"

#include <algorithm>
#include <map>

namespace viewer {

using QRPC::NodeId;
using QRPC::NodeList;

namespace {

NodeList movableNodes(const Scene &scene, const NodeList &nodes, NodeId newParent)
{
    const QSet<NodeId> staying = pathToRoot(scene, newParent);
    NodeList movable = topNodes(scene, nodes);
    movable.erase(std::remove_if(movable.begin(), movable.end(),
                                 [&staying](NodeId id) { return staying.contains(id); }),
                  movable.end());
    return movable;
}

NodeList bySourceRow(const Scene &scene, const NodeList &nodes)
{
    std::map<int, NodeId> firstOfRow;
    NodeList others;
    for (const NodeId id : nodes) {
        if (!firstOfRow.emplace(scene.find(id)->row, id).second)
            others.append(id);
    }
    NodeList block;
    for (const auto &[row, id] : firstOfRow)
        block.append(id);
    return block + others;
}

std::vector<NodeId> withBlock(const std::vector<NodeId> &children, const NodeList &block, int row)
{
    const QSet<NodeId> moving(block.begin(), block.end());
    const bool atEnd = row < 0 || std::size_t(row) > children.size();
    auto anchor = atEnd ? children.end() : children.begin() + row;
    anchor =
        std::find_if(anchor, children.end(), [&moving](NodeId id) { return !moving.contains(id); });
    const auto stays = [&moving](NodeId id) { return !moving.contains(id); };
    std::vector<NodeId> result;
    result.reserve(children.size() + std::size_t(block.size()));
    std::copy_if(children.begin(), anchor, std::back_inserter(result), stays);
    result.insert(result.end(), block.begin(), block.end());
    std::copy_if(anchor, children.end(), std::back_inserter(result), stays);
    return result;
}

} // namespace

MovePlan planMove(const Scene &scene, const NodeList &nodes, NodeId newParent, int row)
{
    const Node *parent = scene.find(newParent);
    if (!parent || !parent->canHoldNodes())
        return {};
    const NodeList block = bySourceRow(scene, movableNodes(scene, nodes, newParent));
    if (block.isEmpty())
        return {};
    std::vector<NodeId> children = withBlock(parent->children, block, row);
    if (children == parent->children)
        return {};
    return {block, std::move(children)};
}

} // namespace viewer
