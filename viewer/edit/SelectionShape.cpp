// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/edit/SelectionShape.h"

#include "viewer/scene/NodeLists.h"

#include <QHash>

namespace viewer {

using QRPC::NodeId;
using QRPC::NodeList;

namespace {

/// All nodes below and including the selected ones, parents before children.
std::vector<const Node *> reach(const Scene &scene, const NodeList &nodes)
{
    std::vector<const Node *> reached;
    const NodeList tops = inTreeOrder(scene, topNodes(scene, knownNodes(scene, nodes)));
    std::vector<NodeId> pending(tops.rbegin(), tops.rend());
    while (!pending.empty()) {
        const Node *node = scene.find(pending.back());
        pending.pop_back();
        reached.push_back(node);
        pending.insert(pending.end(), node->children.rbegin(), node->children.rend());
    }
    return reached;
}

} // namespace

NodeList overlaysOf(const Scene &scene, const NodeList &nodes)
{
    NodeList overlays;
    for (const Node *node : reach(scene, nodes)) {
        if (node->isOverlay())
            overlays.append(node->id);
    }
    return overlays;
}

Outlines outlinesOf(const Scene &scene, const NodeList &selection,
                    const std::vector<DrawnOverlay> &drawn)
{
    QHash<NodeId, QRectF> boxes; // of groups too, once all that lies in them has been passed
    for (const DrawnOverlay &overlay : drawn)
        boxes.insert(overlay.node, overlay.cover);
    const QSet<NodeId> selected(selection.begin(), selection.end());
    const std::vector<const Node *> reached = reach(scene, selection);
    Outlines outlines;
    for (auto it = reached.rbegin(); it != reached.rend(); ++it) {
        const Node &node = **it;
        const QRectF box = boxes.value(node.id);
        if (box.isEmpty())
            continue;
        boxes[node.parent] |= box;
        if (node.isOverlay())
            (selected.contains(node.id) ? outlines.overlays : outlines.members).append(box);
        else if (selected.contains(node.id))
            outlines.groups.append(box);
    }
    return outlines;
}

} // namespace viewer
