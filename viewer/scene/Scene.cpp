// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/scene/Scene.h"

#include <algorithm>

namespace viewer {

using QRPC::NodeId;
using QRPC::NodeList;

Scene::Scene()
{
    Entry root;
    root.id = RootId;
    root.kind = NodeKind::Root;
    m_nodes.emplace(RootId, std::move(root));
}

const Node *Scene::find(NodeId id) const
{
    const auto it = m_nodes.find(id);
    return it == m_nodes.end() ? nullptr : &it->second;
}

bool Scene::isActive(NodeId id) const
{
    // Climbs to the first ancestor whose state is known or decides, then notes it down the path, so
    // that asking for all nodes of a deep tree does not climb to the root for each.
    std::vector<Entry *> path;
    bool active = true;
    for (auto it = m_nodes.find(id); it != m_nodes.end(); it = m_nodes.find(it->second.parent)) {
        Entry &node = it->second;
        if (node.activeStamp == m_stamp) {
            active = node.active;
            break;
        }
        path.push_back(&node);
    }
    if (path.empty() && m_nodes.find(id) == m_nodes.end())
        return false;
    for (auto node = path.rbegin(); node != path.rend(); ++node) {
        active = active && (*node)->enabled;
        (*node)->active = active;
        (*node)->activeStamp = m_stamp;
    }
    return active;
}

NodeId Scene::add(Node node)
{
    if (node.id == 0)
        node.id = m_nextId;
    m_nextId = std::max(m_nextId, node.id + 1);
    Entry added;
    static_cast<Node &>(added) = std::move(node);
    const NodeId id = added.id;
    m_nodes.insert_or_assign(id, std::move(added));
    return id;
}

NodeList Scene::append(NodeId parent, NodeId child)
{
    Entry &target = entry(parent);
    target.children.push_back(child);
    link(target, target.children.size() - 1);
    Entry &node = entry(child);
    if (!target.isSwitch() || !node.enabled)
        return {};
    if (target.shown == 0) {
        target.shown = child;
        return {};
    }
    node.enabled = false;
    return {child};
}

NodeList Scene::setChildren(NodeId parent, std::vector<NodeId> children)
{
    Entry &target = entry(parent);
    const auto firstDifference = std::mismatch(target.children.begin(), target.children.end(),
                                               children.begin(), children.end());
    const std::size_t row = std::size_t(firstDifference.second - children.begin());
    unlink(target, row);
    target.children = std::move(children);
    link(target, row);
    return keepOneShown(target);
}

void Scene::link(Entry &parent, std::size_t firstRow)
{
    for (std::size_t row = firstRow; row < parent.children.size(); ++row) {
        Entry &child = entry(parent.children[row]);
        child.parent = parent.id;
        child.row = int(row);
    }
    ++m_stamp;
}

void Scene::unlink(const Entry &parent, std::size_t firstRow)
{
    for (std::size_t row = firstRow; row < parent.children.size(); ++row) {
        Entry &child = entry(parent.children[row]);
        child.parent = 0;
        child.row = -1;
    }
}

NodeList Scene::keepOneShown(Entry &parent)
{
    NodeList disabled;
    if (!parent.isSwitch())
        return disabled;
    const Node *shown = find(parent.shown);
    parent.shown = shown && shown->parent == parent.id ? parent.shown : 0;
    for (const NodeId id : parent.children) {
        Entry &child = entry(id);
        if (!child.enabled || id == parent.shown)
            continue;
        if (parent.shown == 0) {
            parent.shown = id;
        } else {
            child.enabled = false;
            disabled.append(id);
        }
    }
    return disabled;
}

void Scene::take(NodeId top, Records *records)
{
    std::vector<NodeId> pending{top};
    while (!pending.empty()) {
        records->push_back(m_nodes.extract(pending.back()));
        pending.pop_back();
        const std::vector<NodeId> &children = records->back().mapped().children;
        pending.insert(pending.end(), children.rbegin(), children.rend());
    }
}

void Scene::putBack(Records *records)
{
    m_nodes.reserve(m_nodes.size() + records->size());
    for (Entries::node_type &record : *records)
        m_nodes.insert(std::move(record));
    *records = Records();
}

void Scene::setName(NodeId id, const QString &name)
{
    entry(id).name = name;
}

void Scene::setEnabled(NodeId id, bool enabled)
{
    Entry &node = entry(id);
    node.enabled = enabled;
    ++m_stamp;
    Entry &parent = entry(node.parent);
    if (!parent.isSwitch())
        return;
    if (enabled)
        parent.shown = id;
    else if (parent.shown == id)
        parent.shown = 0;
}

Overlay &Scene::overlay(NodeId id)
{
    return entry(id).overlay;
}

void Scene::setUnknownKeys(NodeId id, UnknownKeys keys)
{
    entry(id).unknownKeys = std::move(keys);
}

void Scene::startIdsAt(NodeId first)
{
    const NodeId shift = first - (RootId + 1);
    const auto shifted = [shift](NodeId id) { return id > RootId ? id + shift : id; };
    Entries nodes;
    nodes.reserve(m_nodes.size());
    for (auto &[id, node] : m_nodes) {
        node.id = shifted(id);
        node.parent = shifted(node.parent);
        node.shown = shifted(node.shown);
        std::transform(node.children.begin(), node.children.end(), node.children.begin(), shifted);
        nodes.emplace(node.id, std::move(node));
    }
    m_nodes = std::move(nodes);
    m_nextId = shifted(m_nextId);
}

} // namespace viewer
