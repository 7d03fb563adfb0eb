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

/// What a part of a step comes to: which nodes it adds, moves and removes, each list in the order of
/// the tree in which the nodes stand, and whose values it changes.
struct NodeFates
{
    /// Looks at the scene before the part is carried out.
    NodeFates(const Scene &scene, const StepPart &part);

    /// Looks at it again afterwards.
    void settle(const Scene &scene);

    NodeList added;
    NodeList moved;
    NodeList removed;
    QMap<Property, NodeList> changed;

private:
    NodeList m_touched;
    NodeList m_known; // that were there before
    QHash<NodeId, NodeId> m_oldParents;
};

NodeFates::NodeFates(const Scene &scene, const StepPart &part)
{
    const auto touch = [this](const std::vector<SceneChange::Place> &places) {
        for (const SceneChange::Place &place : places)
            m_touched.append(place.node);
    };
    for (const SceneChange *change : part) {
        touch(change->before);
        touch(change->after);
        for (const SceneChange::Value &value : change->values)
            changed[value.property].append(value.node);
    }
    m_known = inTreeOrder(scene, knownNodes(scene, m_touched));
    for (const NodeId id : qAsConst(m_known))
        m_oldParents.insert(id, scene.find(id)->parent);
}

void NodeFates::settle(const Scene &scene)
{
    const NodeList there = inTreeOrder(scene, knownNodes(scene, m_touched));
    for (const NodeId id : there)
        (m_oldParents.contains(id) ? moved : added).append(id);
    added = topNodes(scene, added);
    // What lay in a removed node goes with it.
    std::copy_if(m_known.cbegin(), m_known.cend(), std::back_inserter(removed),
                 [&](NodeId id) { return !scene.find(id) && scene.find(m_oldParents.value(id)); });
    for (NodeList &nodes : changed)
        nodes = knownNodes(scene, nodes); // each once
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
    record(operation, nodes, std::move(change), nodes);
}

/// The step is called by other nodes than it was asked to change.
void OverlayService::record(Operation operation, const NodeList &nodes, SceneChange change,
                            const NodeList &named)
{
    if (change.isEmpty())
        return;
    Step step = stepOf(operation, named);
    step.nodes = nodes;
    step.changes.push_back(std::move(change));
    m_history.record(std::move(step));
}

void OverlayService::recordAdded(Operation operation, const NodeList &tops)
{
    recordAdded(operation, tops, tops);
}

/// The step is called by other nodes than it adds.
void OverlayService::recordAdded(Operation operation, const NodeList &tops, const NodeList &named)
{
    SceneChange change;
    change.after = SceneChange::placesOf(m_scene, tops);
    record(operation, named, std::move(change));
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
    if (m_history.startRestoring(direction))
        restoreParts();
}

void OverlayService::rollBack()
{
    sendPostponed();
    m_history.startRollBack();
    restoreParts();
}

/// Carries out a step and announces each part of it before the next one is carried out: in sum, a
/// node could have to be told to move into one that is not known yet.
void OverlayService::restoreParts()
{
    while (m_history.isRestoring()) {
        NodeFates fates(m_scene, m_history.nextPart());
        m_history.restorePart();
        fates.settle(m_scene);
        // Nothing but the last part can wait until a move has been announced.
        if (m_announcedMoves != 0 && m_history.isRestoring())
            finishRestoring();
        else
            announceRestored(fates);
    }
}

/// Carries out what is left of a step, since somebody who was told of a part of it is about to go on
/// with the scene.
void OverlayService::finishRestoring()
{
    if (!m_history.isRestoring())
        return;
    while (m_history.isRestoring())
        m_history.restorePart();
    announceStructure([this] { Q_EMIT modelReset(); });
}

void OverlayService::announceRestored(const NodeFates &fates)
{
    const NodeList enabled = fates.changed.value(Property::Enabled) + reachedBy(fates.moved);
    announceStructure(&kxOverlayService::nodesAdded, fates.added);
    announcePlaces(knownNodes(m_scene, fates.moved));
    announceStructure(&kxOverlayService::nodesRemoved, fates.removed);
    // Slots may have changed the scene by now.
    for (auto it = fates.changed.cbegin(); it != fates.changed.cend(); ++it) {
        if (it.key() != Property::Enabled)
            announceValue(it.key(), inTreeOrder(m_scene, knownNodes(m_scene, *it)));
    }
    announce(&kxOverlayService::enabledStateChanged,
             inTreeOrder(m_scene, knownNodes(m_scene, enabled)));
}

StepGroup::StepGroup(OverlayService *service, const QString &text, History::Group group)
    : m_service(service)
{
    Step step;
    step.text = text;
    m_service->history().open(std::move(step), group);
}

StepGroup::StepGroup(OverlayService *service, Operation operation, const NodeList &nodes)
    : m_service(service)
{
    m_service->history().open(service->stepOf(operation, nodes));
}

StepGroup::~StepGroup()
{
    if (!m_isRolledBack)
        m_service->history().close();
}

void StepGroup::rollBack()
{
    m_isRolledBack = true;
    m_service->rollBack();
}

} // namespace viewer
