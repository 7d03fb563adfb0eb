// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/scene/NodeLists.h"
#include "viewer/scene/OverlayService.h"

#include <QDir>

namespace viewer {

using QRPC::NodeId;
using QRPC::NodeList;

/// Gives every listed overlay its value. Returns the nodes that it changed, in tree order.
NodeList OverlayService::change(Operation operation, Property property, const NodeList &nodes,
                                const ValueFor &valueFor)
{
    sendPostponed();
    NodeList changed;
    SceneChange noted;
    const NodeList known = knownNodes(m_scene, nodes);
    for (const NodeId id : known) {
        const Node &node = *m_scene.find(id);
        if (!node.isOverlay() && property != Property::Name)
            continue;
        const PropertyValue value = valueFor(node);
        if (sameValue(valueOf(node, property), value))
            continue;
        noted.noteValue(node, property, value);
        setValue(&m_scene, id, property, value);
        changed.append(id);
    }
    // A gesture goes on with all of them, also where it meets a value that some have.
    record(operation, known, std::move(noted), changed);
    return inTreeOrder(m_scene, changed);
}

void OverlayService::write(Operation operation, Property property, const NodeList &nodes,
                           const PropertyValue &value)
{
    announceValue(property,
                  change(operation, property, nodes, [&value](const Node &) { return value; }));
}

void OverlayService::announceValue(Property property, const NodeList &nodes)
{
    using S = kxOverlayService;
    static constexpr std::pair<Property, NodeSignal> table[] = {
        {Property::Name, &S::nameChanged},
        {Property::Type, &S::overlayTypeChanged},
        {Property::Text, &S::textChanged},
        {Property::Font, &S::fontChanged},
        {Property::FontColor, &S::fontColorChanged},
        {Property::BackgroundColor, &S::backgroundColorChanged},
        {Property::BackgroundTransparency, &S::backgroundTransparencyChanged},
        {Property::Image, &S::imageChanged},
        {Property::SizeType, &S::sizeTypeChanged},
        {Property::Size, &S::sizeChanged},
        {Property::Position, &S::positionChanged},
        {Property::Offset, &S::offsetChanged},
    };
    for (const auto &[known, signal] : table) {
        // A view of the other type's values has not followed them while it could not show them.
        const bool showsAnew =
            property == Property::Type && known >= Property::Type && known <= Property::Image;
        if (known == property || showsAnew)
            announce(signal, nodes);
    }
}

void OverlayService::setOverlayType(const NodeList &nodes, int type)
{
    write(Operation::SetType, Property::Type, nodes, type);
}

void OverlayService::setName(const NodeList &nodes, const QString &name)
{
    const NodeList known = knownNodes(m_scene, nodes);
    for (const NodeId id : known)
        countName(m_scene.find(id)->kind, name);
    write(Operation::Rename, Property::Name, nodes, name);
}

void OverlayService::setEnabled(const NodeList &nodes, bool enabled)
{
    sendPostponed();
    QHash<NodeId, NodeId> shownBySwitch; // the last child named for it
    NodeList wanted;
    const NodeList known = knownNodes(m_scene, nodes);
    for (const NodeId id : known) {
        const NodeId parent = m_scene.find(id)->parent;
        if (enabled && m_scene.find(parent)->isSwitch())
            shownBySwitch.insert(parent, id);
        else if (m_scene.find(id)->enabled != enabled)
            wanted.append(id);
    }
    NodeList changed;
    SceneChange noted;
    const auto change = [this, &changed, &noted](NodeId id, bool on) {
        noted.noteValue(*m_scene.find(id), Property::Enabled, on);
        m_scene.setEnabled(id, on);
        changed.append(id);
    };
    for (auto it = shownBySwitch.cbegin(); it != shownBySwitch.cend(); ++it) {
        const NodeId before = m_scene.find(it.key())->shown;
        if (before == it.value())
            continue;
        if (before != 0)
            change(before, false);
        change(it.value(), true);
    }
    for (const NodeId id : qAsConst(wanted))
        change(id, enabled);
    record(enabled ? Operation::Enable : Operation::Disable, known, std::move(noted));
    announce(&kxOverlayService::enabledStateChanged, inTreeOrder(m_scene, changed));
}

void OverlayService::setText(const NodeList &nodes, const QString &text)
{
    write(Operation::SetText, Property::Text, nodes, text);
}

void OverlayService::setFont(const NodeList &nodes, const QString &family)
{
    write(Operation::SetFont, Property::Font, nodes, family);
}

void OverlayService::setFontColor(const NodeList &nodes, const QColor &color)
{
    write(Operation::SetFontColor, Property::FontColor, nodes, color);
}

void OverlayService::setBackgroundColor(const NodeList &nodes, const QColor &color)
{
    write(Operation::SetBackgroundColor, Property::BackgroundColor, nodes, color);
}

void OverlayService::setBackgroundTransparency(const NodeList &nodes, const QColor &color)
{
    write(Operation::SetBackgroundTransparency, Property::BackgroundTransparency, nodes, color);
}

QString OverlayService::imageFile(const QString &path) const
{
    if (path.isEmpty() || QDir::isAbsolutePath(path))
        return path;
    return QDir::cleanPath(QDir(m_imageFolder).absoluteFilePath(path));
}

void OverlayService::setImage(const NodeList &nodes, const QString &given)
{
    const QString path = imageFile(given);
    NodeList concerned =
        change(Operation::SetImage, Property::Image, nodes, [&path](const Node &) { return path; });
    if (!path.isEmpty()) {
        // Those that had it already are shown anew too, since the file may have changed.
        concerned.clear();
        const NodeList known = knownNodes(m_scene, nodes);
        std::copy_if(known.begin(), known.end(), std::back_inserter(concerned),
                     [this](NodeId id) { return m_scene.find(id)->isOverlay(); });
        concerned = inTreeOrder(m_scene, concerned);
    }
    if (!concerned.isEmpty() && !path.isEmpty())
        announce([this, path] { Q_EMIT imageFileSet(path); });
    announce(&kxOverlayService::imageChanged, concerned);
}

void OverlayService::setSizeType(const NodeList &nodes, int sizeType)
{
    write(Operation::SetSizeType, Property::SizeType, nodes, sizeType);
}

void OverlayService::setSize(const NodeList &nodes, float size)
{
    write(Operation::SetSize, Property::Size, nodes, size);
}

void OverlayService::setPosition(const NodeList &nodes, const QPointF &position)
{
    write(Operation::SetPosition, Property::Position, nodes, position);
}

void OverlayService::setOffset(const NodeList &nodes, const QPointF &offset)
{
    write(Operation::SetOffset, Property::Offset, nodes, offset);
}

void OverlayService::setOffsetX(const NodeList &nodes, float x)
{
    announceValue(Property::Offset,
                  change(Operation::SetOffsetX, Property::Offset, nodes, [x](const Node &node) {
                      return QPointF(double(x), node.overlay.offset.y());
                  }));
}

void OverlayService::setOffsetY(const NodeList &nodes, float y)
{
    announceValue(Property::Offset,
                  change(Operation::SetOffsetY, Property::Offset, nodes, [y](const Node &node) {
                      return QPointF(node.overlay.offset.x(), double(y));
                  }));
}

void OverlayService::setOffsets(const QVector<NodeOffset> &offsets)
{
    NodeList nodes;
    QHash<NodeId, QPointF> wanted;
    for (const NodeOffset &entry : offsets) {
        nodes.append(entry.node);
        wanted.insert(entry.node, entry.offset);
    }
    announceValue(Property::Offset,
                  change(Operation::MoveInView, Property::Offset, nodes,
                         [&wanted](const Node &node) { return wanted[node.id]; }));
}

} // namespace viewer
