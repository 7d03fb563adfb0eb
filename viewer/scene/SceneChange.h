// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "viewer/scene/Scene.h"

#include <variant>

namespace viewer {

/// The content of a node that single operations change.
enum class Property {
    Name,
    Type,
    Text,
    Font,
    FontColor,
    BackgroundColor,
    BackgroundTransparency,
    Image,
    SizeType,
    Size,
    Position,
    Offset,
    Enabled
};

using PropertyValue = std::variant<bool, int, float, QString, QColor, QPointF>;

PropertyValue valueOf(const Node &node, Property property);

/// Changes a known node; all but name and state are properties of overlays alone.
void setValue(Scene *scene, QRPC::NodeId id, Property property, const PropertyValue &value);

/// Whether two values read the same: NaN is the same as NaN, and points are compared exactly.
bool sameValue(const PropertyValue &a, const PropertyValue &b);

/// What one operation changed in a scene, as values that lead there and back: the places of the
/// nodes that it added, removed or moved, and the values before and after. Subtrees that are not in
/// the scene are kept here, with their ids. Its size is in proportion to what changed, whatever the
/// size of the scene. Owned by the history; knows neither signals nor widgets.
class SceneChange
{
public:
    enum class Direction { Back, Forth };

    /// What happened to nodes, besides values.
    enum class Kind { Values, Additions, Removals, Moves };

    /// A node and its row in the children of a parent.
    struct Place
    {
        QRPC::NodeId node;
        QRPC::NodeId parent;
        int row;
    };

    struct Value
    {
        QRPC::NodeId node;
        Property property;
        PropertyValue before;
        PropertyValue after;
    };

    /// Where the nodes are now.
    static std::vector<Place> placesOf(const Scene &scene, const QRPC::NodeList &nodes);

    /// Nodes that were put into the scene: they have no place before. Nodes that are removed have
    /// none after; take() keeps their records.
    std::vector<Place> before;
    std::vector<Place> after;
    std::vector<Value> values;

    Kind kind() const;
    bool isEmpty() const { return before.empty() && after.empty() && values.empty(); }

    /// Takes a node without parent out of the scene, with all that lies in it, and keeps it.
    void take(Scene *scene, QRPC::NodeId top) { scene->take(top, &m_records); }

    /// Notes a value before it is changed to the wanted one.
    void noteValue(const Node &node, Property property, const PropertyValue &wanted);

    /// Goes on with the values of later changes of values; what is back where it was is dropped.
    void mergeValues(const SceneChange *later, std::size_t count = 1);

    /// Changes a scene that is in the state before (Forth) or after (Back) this change.
    void apply(Scene *scene, Direction direction);

private:
    void lift(Scene *scene, const std::vector<Place> &places);
    void applyValues(Scene *scene, Direction direction, bool disabling) const;

    Scene::Records m_records;
};

} // namespace viewer
