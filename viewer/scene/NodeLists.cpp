// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/scene/NodeLists.h"

#include <QHash>

#include <algorithm>

namespace viewer {

using QRPC::NodeId;
using QRPC::NodeList;

NodeList knownNodes(const Scene &scene, const NodeList &nodes)
{
    NodeList known;
    QSet<NodeId> seen;
    seen.reserve(nodes.size());
    known.reserve(nodes.size());
    for (const NodeId id : nodes) {
        if (id == Scene::RootId || seen.contains(id) || !scene.find(id))
            continue;
        seen.insert(id);
        known.append(id);
    }
    return known;
}

namespace {

/// Tells for nodes whether they or one of their ancestors belong to a set, and remembers it for
/// every node that it passed.
class Membership
{
public:
    Membership(const Scene &scene, const QSet<NodeId> &members) : m_scene(scene), m_members(members)
    {
    }

    bool holds(NodeId id)
    {
        std::vector<NodeId> path;
        while (id != 0 && !m_members.contains(id) && !m_known.contains(id)) {
            path.push_back(id);
            id = m_scene.find(id)->parent;
        }
        const bool held = id != 0 && (m_members.contains(id) || m_known.value(id));
        for (const NodeId passed : path)
            m_known.insert(passed, held);
        return held;
    }

private:
    const Scene &m_scene;
    const QSet<NodeId> &m_members;
    QHash<NodeId, bool> m_known;
};

using Branches = QHash<NodeId, std::vector<const Node *>>;

/// For each ancestor of the nodes, the children through which one of them is reached, in row order.
Branches branchesTo(const Scene &scene, const NodeList &nodes)
{
    Branches branches;
    QSet<NodeId> reached;
    reached.reserve(nodes.size());
    for (const NodeId id : nodes) {
        const Node *node = scene.find(id);
        while (node && node->parent != 0 && !reached.contains(node->id)) {
            reached.insert(node->id);
            branches[node->parent].push_back(node);
            node = scene.find(node->parent);
        }
    }
    for (std::vector<const Node *> &children : branches) {
        std::sort(children.begin(), children.end(),
                  [](const Node *a, const Node *b) { return a->row < b->row; });
    }
    return branches;
}

} // namespace

NodeList topNodes(const Scene &scene, const NodeList &nodes)
{
    const NodeList known = knownNodes(scene, nodes);
    const QSet<NodeId> members(known.begin(), known.end());
    Membership membership(scene, members);
    NodeList tops;
    for (const NodeId id : known) {
        if (!membership.holds(scene.find(id)->parent))
            tops.append(id);
    }
    return tops;
}

NodeList inTreeOrder(const Scene &scene, const NodeList &nodes)
{
    if (nodes.size() < 2)
        return nodes;
    const Branches branches = branchesTo(scene, nodes);
    const QSet<NodeId> wanted(nodes.begin(), nodes.end());
    NodeList ordered;
    std::vector<NodeId> pending{Scene::RootId};
    while (!pending.empty()) {
        const NodeId id = pending.back();
        pending.pop_back();
        if (wanted.contains(id))
            ordered.append(id);
        const auto children = branches.constFind(id);
        if (children == branches.constEnd())
            continue;
        for (auto child = children->rbegin(); child != children->rend(); ++child)
            pending.push_back((*child)->id);
    }
    return ordered;
}

QSet<NodeId> pathToRoot(const Scene &scene, NodeId node)
{
    QSet<NodeId> path;
    for (const Node *n = scene.find(node); n; n = scene.find(n->parent))
        path.insert(n->id);
    return path;
}

NodeId highestDisabled(const Scene &scene, NodeId node)
{
    NodeId highest = node;
    for (const Node *n = scene.find(node); n; n = scene.find(n->parent)) {
        if (!n->enabled)
            highest = n->id;
    }
    return highest;
}

} // namespace viewer
