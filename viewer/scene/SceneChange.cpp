// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/scene/SceneChange.h"

#include <QHash>
#include <QSet>

#include <algorithm>

namespace viewer {

using QRPC::NodeId;
using QRPC::NodeList;

namespace {

template<class Number>
bool sameNumber(Number a, Number b)
{
    return a == b || (a != a && b != b);
}

struct SameValue
{
    template<class A, class B>
    bool operator()(const A &, const B &) const
    {
        return false;
    }
    template<class A>
    bool operator()(const A &a, const A &b) const
    {
        return a == b;
    }
    bool operator()(float a, float b) const { return sameNumber(a, b); }
    bool operator()(const QPointF &a, const QPointF &b) const
    {
        return sameNumber(a.x(), b.x()) && sameNumber(a.y(), b.y());
    }
};

/// Calls use(member) with the member of an overlay that a property stands for.
template<class AnyOverlay, class Use>
void withMember(AnyOverlay &overlay, Property property, Use use)
{
    switch (property) {
    case Property::Type:
        return use(overlay.type);
    case Property::Text:
        return use(overlay.text);
    case Property::Font:
        return use(overlay.font);
    case Property::FontColor:
        return use(overlay.fontColor);
    case Property::BackgroundColor:
        return use(overlay.backgroundColor);
    case Property::BackgroundTransparency:
        return use(overlay.backgroundTransparency);
    case Property::Image:
        return use(overlay.image);
    case Property::SizeType:
        return use(overlay.sizeType);
    case Property::Size:
        return use(overlay.size);
    case Property::Position:
        return use(overlay.position);
    case Property::Offset:
        return use(overlay.offset);
    case Property::Enabled:
    case Property::Name:
        break; // of every node, not of overlays
    }
}

using PlacesByParent = QHash<NodeId, std::vector<SceneChange::Place>>;

PlacesByParent byParent(const std::vector<SceneChange::Place> &places)
{
    PlacesByParent sorted;
    for (const SceneChange::Place &place : places)
        sorted[place.parent].push_back(place);
    for (std::vector<SceneChange::Place> &siblings : sorted)
        std::sort(siblings.begin(), siblings.end(),
                  [](const auto &a, const auto &b) { return a.row < b.row; });
    return sorted;
}

/// The children of a parent once the nodes stand at their rows, which count in the result.
std::vector<NodeId> withPlaces(const std::vector<NodeId> &children,
                               const std::vector<SceneChange::Place> &places)
{
    std::vector<NodeId> result;
    result.reserve(children.size() + places.size());
    auto child = children.begin();
    for (const SceneChange::Place &place : places) {
        const auto missing = std::ptrdiff_t(place.row) - std::ptrdiff_t(result.size());
        const auto end = child + std::min(missing, children.end() - child);
        result.insert(result.end(), child, end);
        child = end;
        result.push_back(place.node);
    }
    result.insert(result.end(), child, children.end());
    return result;
}

} // namespace

PropertyValue valueOf(const Node &node, Property property)
{
    if (property == Property::Enabled)
        return node.enabled;
    PropertyValue value = node.name;
    withMember(node.overlay, property, [&value](const auto &member) { value = member; });
    return value;
}

void setValue(Scene *scene, NodeId id, Property property, const PropertyValue &value)
{
    if (property == Property::Enabled) {
        scene->setEnabled(id, std::get<bool>(value));
    } else if (property == Property::Name) {
        scene->setName(id, std::get<QString>(value));
    } else {
        withMember(scene->overlay(id), property, [&value](auto &member) {
            member = std::get<std::decay_t<decltype(member)>>(value);
        });
    }
}

bool sameValue(const PropertyValue &a, const PropertyValue &b)
{
    return std::visit(SameValue(), a, b);
}

std::vector<SceneChange::Place> SceneChange::placesOf(const Scene &scene, const NodeList &nodes)
{
    std::vector<Place> places;
    places.reserve(std::size_t(nodes.size()));
    for (const NodeId id : nodes) {
        const Node &node = *scene.find(id);
        places.push_back({id, node.parent, node.row});
    }
    return places;
}

void SceneChange::noteValue(const Node &node, Property property, const PropertyValue &wanted)
{
    values.push_back({node.id, property, valueOf(node, property), wanted});
}

SceneChange::Kind SceneChange::kind() const
{
    if (before.empty())
        return after.empty() ? Kind::Values : Kind::Additions;
    return after.empty() ? Kind::Removals : Kind::Moves;
}

void SceneChange::mergeValues(const SceneChange *later, std::size_t count)
{
    QHash<QPair<NodeId, int>, std::size_t> known;
    for (std::size_t i = 0; i < values.size(); ++i)
        known.insert({values[i].node, int(values[i].property)}, i);
    for (const SceneChange *change = later; change != later + count; ++change) {
        for (const Value &value : change->values) {
            const QPair<NodeId, int> key(value.node, int(value.property));
            const auto it = known.constFind(key);
            if (it != known.constEnd()) {
                values[*it].after = value.after;
                continue;
            }
            known.insert(key, values.size());
            values.push_back(value);
        }
    }
    const auto isBack = [](const Value &value) { return sameValue(value.before, value.after); };
    values.erase(std::remove_if(values.begin(), values.end(), isBack), values.end());
}

void SceneChange::apply(Scene *scene, Direction direction)
{
    const std::vector<Place> &from = direction == Direction::Forth ? before : after;
    const std::vector<Place> &to = direction == Direction::Forth ? after : before;
    // A switch takes no second enabled child, so what is to be disabled comes first.
    applyValues(scene, direction, true);
    lift(scene, from);
    if (to.empty()) {
        m_records.reserve(from.size());
        for (const Place &place : from)
            take(scene, place.node);
    } else if (from.empty()) {
        scene->putBack(&m_records);
    }
    const PlacesByParent places = byParent(to);
    for (auto it = places.cbegin(); it != places.cend(); ++it)
        scene->setChildren(it.key(), withPlaces(scene->find(it.key())->children, *it));
    applyValues(scene, direction, false);
}

void SceneChange::lift(Scene *scene, const std::vector<Place> &places)
{
    QHash<NodeId, QSet<NodeId>> leaving;
    for (const Place &place : places)
        leaving[place.parent].insert(place.node);
    for (auto it = leaving.cbegin(); it != leaving.cend(); ++it) {
        std::vector<NodeId> children = scene->find(it.key())->children;
        const auto leaves = [&it](NodeId id) { return it->contains(id); };
        children.erase(std::remove_if(children.begin(), children.end(), leaves), children.end());
        scene->setChildren(it.key(), std::move(children));
    }
}

void SceneChange::applyValues(Scene *scene, Direction direction, bool disabling) const
{
    for (const Value &value : values) {
        const PropertyValue &wanted = direction == Direction::Forth ? value.after : value.before;
        const bool disables = value.property == Property::Enabled && !std::get<bool>(wanted);
        if (disables == disabling)
            setValue(scene, value.node, value.property, wanted);
    }
}

} // namespace viewer
