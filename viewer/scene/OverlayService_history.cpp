// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/scene/NodeLists.h"
#include "viewer/scene/OverlayService.h"

#include <QMap>

#include <algorithm>

namespace viewer {

using QRPC::NodeId;
using QRPC::NodeList;
using Direction = SceneChange::Direction;

/// Which nodes a step adds, moves and removes in sum, each list in the order of the tree in which
/// the nodes stand.
struct NodeFates
{
    /// Looks at the scene before the step is taken.
    NodeFates(const Scene &scene, const Step &step);

    /// Looks at it again afterwards.
    void settle(const Scene &scene);

    NodeList added;
    NodeList moved; // and added ones beside moved or removed ones: their place follows
    NodeList removed;

private:
    NodeList inKnownNodes(const Scene &scene) const;

    NodeList m_touched;
    NodeList m_known; // that were there before
    QHash<NodeId, NodeId> m_oldParents;
};

NodeFates::NodeFates(const Scene &scene, const Step &step)
{
    QSet<NodeId> seen;
    const auto touch = [&](const std::vector<SceneChange::Place> &places) {
        for (const SceneChange::Place &place : places) {
            if (seen.contains(place.node))
                continue;
            seen.insert(place.node);
            m_touched.append(place.node);
        }
    };
    for (const SceneChange &change : step.changes) {
        touch(change.before);
        touch(change.after);
    }
    m_known = inTreeOrder(scene, knownNodes(scene, m_touched));
    for (const NodeId id : qAsConst(m_known))
        m_oldParents.insert(id, scene.find(id)->parent);
}

void NodeFates::settle(const Scene &scene)
{
    for (const NodeId id : qAsConst(m_touched)) {
        if (scene.find(id))
            (m_oldParents.contains(id) ? moved : added).append(id);
    }
    added = inTreeOrder(scene, moved.isEmpty() ? topNodes(scene, added) : inKnownNodes(scene));
    // What lay in a removed node goes with it.
    std::copy_if(m_known.cbegin(), m_known.cend(), std::back_inserter(removed),
                 [&](NodeId id) { return !scene.find(id) && scene.find(m_oldParents.value(id)); });
    // While other rows are still to come and to go, the row of a new node says little.
    if (!moved.isEmpty() || !removed.isEmpty())
        moved += added;
    moved = inTreeOrder(scene, moved);
}

/// The added nodes that do not come with another one: nothing new lies between them and what was
/// there before. A known node that lies in a new one has moved there, and brings nothing along that
/// is new in it.
NodeList NodeFates::inKnownNodes(const Scene &scene) const
{
    const QSet<NodeId> fresh(added.begin(), added.end());
    NodeList tops;
    for (const NodeId id : added) {
        NodeId above = scene.find(id)->parent;
        while (above != 0 && !fresh.contains(above) && !m_oldParents.contains(above))
            above = scene.find(above)->parent;
        if (!fresh.contains(above))
            tops.append(id);
    }
    return tops;
}

Step OverlayService::stepOf(Operation operation, const NodeList &nodes) const
{
    Step step;
    step.operation = operation;
    step.nodes = nodes;
    step.count = nodes.size();
    if (step.count == 1)
        step.subject = m_scene.find(nodes.constFirst())->name;
    return step;
}

void OverlayService::record(Operation operation, const NodeList &nodes, SceneChange change)
{
    if (change.isEmpty())
        return;
    Step step = stepOf(operation, nodes);
    step.changes.push_back(std::move(change));
    m_history.record(std::move(step));
}

void OverlayService::recordAdded(Operation operation, const NodeList &tops)
{
    SceneChange change;
    change.after = SceneChange::placesOf(m_scene, tops);
    record(operation, tops, std::move(change));
}

void OverlayService::undo()
{
    restore(Direction::Back);
}

void OverlayService::redo()
{
    restore(Direction::Forth);
}

void OverlayService::restore(Direction direction)
{
    sendPostponed();
    const Step *step = m_history.next(direction);
    if (!step)
        return;
    NodeFates fates(m_scene, *step);
    if (direction == Direction::Back)
        m_history.undo();
    else
        m_history.redo();
    fates.settle(m_scene);
    announceRestored(*step, fates);
}

void OverlayService::announceRestored(const Step &step, const NodeFates &fates)
{
    QMap<Property, NodeList> changed;
    for (const SceneChange &change : step.changes) {
        for (const SceneChange::Value &value : change.values)
            changed[value.property].append(value.node);
    }
    const NodeList enabled = changed.take(Property::Enabled) + reachedBy(fates.moved);
    // Nothing of the step is asked for once slots run: they may change the history.
    announceStructure(&kxOverlayService::nodesAdded, fates.added);
    announcePlaces(knownNodes(m_scene, fates.moved));
    announceStructure(&kxOverlayService::nodesRemoved, fates.removed);
    for (auto it = changed.cbegin(); it != changed.cend(); ++it)
        announceValue(it.key(), inTreeOrder(m_scene, knownNodes(m_scene, *it)));
    announce(&kxOverlayService::enabledStateChanged,
             inTreeOrder(m_scene, knownNodes(m_scene, enabled)));
}

StepGroup::StepGroup(OverlayService *service, const QString &text) : m_service(service)
{
    Step step;
    step.text = text;
    m_service->history().open(step);
}

StepGroup::~StepGroup()
{
    m_service->history().close();
}

} // namespace viewer
