// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/scene/SceneCopy.h"

#include "viewer/scene/NodeLists.h"

namespace viewer {

using QRPC::NodeId;

NodeId copyTree(const Scene &from, NodeId original, Scene *to)
{
    NodeId top = 0;
    std::vector<std::pair<NodeId, NodeId>> pending{{original, 0}}; // original, parent of the copy
    while (!pending.empty()) {
        const auto [source, parent] = pending.back();
        pending.pop_back();
        Node copy = *from.find(source);
        const std::vector<NodeId> children = std::move(copy.children);
        copy.id = copy.parent = copy.shown = 0;
        copy.children.clear();
        const NodeId id = to->add(std::move(copy));
        if (parent == 0)
            top = id;
        else
            to->append(parent, id);
        for (auto child = children.rbegin(); child != children.rend(); ++child)
            pending.emplace_back(*child, id);
    }
    return top;
}

Scene extract(const Scene &scene, const QRPC::NodeList &nodes)
{
    Scene result;
    const QRPC::NodeList tops = inTreeOrder(scene, topNodes(scene, nodes));
    for (const NodeId top : tops)
        result.append(Scene::RootId, copyTree(scene, top, &result));
    return result;
}

} // namespace viewer
