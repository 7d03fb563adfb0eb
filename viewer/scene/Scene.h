// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "viewer/scene/Node.h"

#include <unordered_map>

namespace viewer {

/// The tree of nodes that one scene consists of, without signals and without a file. Owned by the
/// overlay service; filled by the scene reader, read by the painter and the scene writer. GUI thread
/// only, since reading refreshes a cache.
///
/// All changes of the tree are made of the few primitive edits below, each of which can be reverted
/// by another one: a history needs to record nothing else. The scene itself keeps two rules with
/// every edit: links are consistent, and a switch has at most one enabled child.
class Scene
{
    struct Entry : Node
    {
        quint64 activeStamp = 0; // m_stamp when `active` was computed
        bool active = false;
    };
    using Entries = std::unordered_map<QRPC::NodeId, Entry>;

public:
    /// Nodes that are out of the scene for as long as somebody may put them back, in pre-order. They
    /// are the scene's own, so that nothing is copied on the way.
    using Records = std::vector<Entries::node_type>;

    static constexpr QRPC::NodeId RootId = 1;

    Scene();

    /// @name Reading
    /// All of it in constant time, isActive() amortised over the nodes asked between two changes.
    /// @{

    /// The node with this id; null for 0 and unknown ids. Valid until the node is removed.
    const Node *find(QRPC::NodeId id) const;

    const Node &root() const { return *find(RootId); }
    int nodeCount() const { return int(m_nodes.size()); }

    /// True when the node and all its ancestors are enabled.
    bool isActive(QRPC::NodeId id) const;

    /// Calls visit(const Node &) for every node, in no particular order.
    template<class Visit>
    void forEach(Visit visit) const
    {
        for (const auto &[id, node] : m_nodes)
            visit(static_cast<const Node &>(node));
    }

    /// @}
    /// @name Primitive edits
    /// Ids must be known and fit the stated case; callers sort out what a module may get wrong.
    /// @{

    /// Takes a record in as a node without parent. A record without id gets the next free one.
    QRPC::NodeId add(Node node);

    /// Makes a node without parent the last child. Returns the nodes that had to be disabled.
    QRPC::NodeList append(QRPC::NodeId parent, QRPC::NodeId child);

    /// Gives a group, switch or the root exactly these children; each must be without parent or a
    /// child already. Children that are missing in the list are left without parent. Returns the
    /// nodes that had to be disabled, since they entered a switch which shows another one.
    QRPC::NodeList setChildren(QRPC::NodeId parent, std::vector<QRPC::NodeId> children);

    /// Removes a node without parent with all that lies in it, and appends the records to others.
    void take(QRPC::NodeId top, Records *records);

    /// Takes records in again, as nodes without parent and what lies in them; none are left.
    void putBack(Records *records);

    void setName(QRPC::NodeId id, const QString &name);

    /// Stores the node's own state. The child of a switch that is enabled must be the only one.
    void setEnabled(QRPC::NodeId id, bool enabled);

    /// The properties of an overlay, for writing.
    Overlay &overlay(QRPC::NodeId id);

    void setUnknownKeys(QRPC::NodeId id, UnknownKeys keys);

    /// @}

    /// The id that the next new node gets.
    QRPC::NodeId nextId() const { return m_nextId; }

    /// Renumbers all nodes but the root so that their ids start at `first`: a scene that replaces
    /// another one must not bring its ids back to life.
    void startIdsAt(QRPC::NodeId first);

private:
    Entry &entry(QRPC::NodeId id) { return m_nodes.at(id); }
    QRPC::NodeList keepOneShown(Entry &parent);
    void link(Entry &parent, std::size_t firstRow);
    void unlink(const Entry &parent, std::size_t firstRow);

    mutable Entries m_nodes;
    QRPC::NodeId m_nextId = RootId + 1;
    quint64 m_stamp = 1; // raised by whatever may change an active state
};

} // namespace viewer
