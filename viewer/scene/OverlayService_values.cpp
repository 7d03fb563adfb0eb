// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/scene/NodeLists.h"
#include "viewer/scene/OverlayService.h"

namespace viewer {

using QRPC::NodeId;
using QRPC::NodeList;

namespace {

/// Whether two values are the same for the purpose of "nothing changes". The comparison of Qt's
/// points is relative and a NaN never equals itself; here a value is the same when it reads the same.
template<class Value>
bool same(const Value &a, const Value &b)
{
    return a == b;
}

template<class Number>
bool sameNumber(Number a, Number b)
{
    return a == b || (a != a && b != b);
}

bool same(float a, float b)
{
    return sameNumber(a, b);
}

bool same(const QPointF &a, const QPointF &b)
{
    return sameNumber(a.x(), b.x()) && sameNumber(a.y(), b.y());
}

} // namespace

/// Runs change(Overlay &), which tells whether it changed something, on each listed overlay.
template<class Change>
NodeList OverlayService::changeOverlays(const NodeList &nodes, Change change)
{
    sendPostponed();
    NodeList changed;
    const NodeList known = knownNodes(m_scene, nodes);
    for (const NodeId id : known) {
        if (findOverlay(id) && change(m_scene.overlay(id)))
            changed.append(id);
    }
    return inTreeOrder(m_scene, changed);
}

template<class Value>
void OverlayService::write(const NodeList &nodes, Value Overlay::*member, const Value &value,
                           NodeSignal signal)
{
    const NodeList changed = changeOverlays(nodes, [member, &value](Overlay &overlay) {
        const bool differs = !same(overlay.*member, value);
        if (differs)
            overlay.*member = value;
        return differs;
    });
    announce(signal, changed);
}

void OverlayService::setOverlayType(const NodeList &nodes, int type)
{
    const NodeList changed = changeOverlays(
        nodes, [type](Overlay &overlay) { return std::exchange(overlay.type, type) != type; });
    // A view of the other type's values has not followed them while it could not show them.
    for (const NodeSignal signal :
         {&kxOverlayService::overlayTypeChanged, &kxOverlayService::textChanged,
          &kxOverlayService::fontChanged, &kxOverlayService::fontColorChanged,
          &kxOverlayService::backgroundColorChanged,
          &kxOverlayService::backgroundTransparencyChanged, &kxOverlayService::imageChanged})
        announce(signal, changed);
}

void OverlayService::setName(const NodeList &nodes, const QString &name)
{
    sendPostponed();
    NodeList changed;
    const NodeList known = knownNodes(m_scene, nodes);
    for (const NodeId id : known) {
        if (m_scene.find(id)->name == name)
            continue;
        m_scene.setName(id, name);
        changed.append(id);
    }
    announce(&kxOverlayService::nameChanged, inTreeOrder(m_scene, changed));
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
    const auto change = [this, &changed](NodeId id, bool on) {
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
    announce(&kxOverlayService::enabledStateChanged, inTreeOrder(m_scene, changed));
}

void OverlayService::setText(const NodeList &nodes, const QString &text)
{
    write(nodes, &Overlay::text, text, &kxOverlayService::textChanged);
}

void OverlayService::setFont(const NodeList &nodes, const QString &family)
{
    write(nodes, &Overlay::font, family, &kxOverlayService::fontChanged);
}

void OverlayService::setFontColor(const NodeList &nodes, const QColor &color)
{
    write(nodes, &Overlay::fontColor, color, &kxOverlayService::fontColorChanged);
}

void OverlayService::setBackgroundColor(const NodeList &nodes, const QColor &color)
{
    write(nodes, &Overlay::backgroundColor, color, &kxOverlayService::backgroundColorChanged);
}

void OverlayService::setBackgroundTransparency(const NodeList &nodes, const QColor &color)
{
    write(nodes, &Overlay::backgroundTransparency, color,
          &kxOverlayService::backgroundTransparencyChanged);
}

void OverlayService::setImage(const NodeList &nodes, const QString &path)
{
    const NodeList concerned = changeOverlays(nodes, [&path](Overlay &overlay) {
        const bool differs = overlay.image != path;
        overlay.image = path;
        return differs || !path.isEmpty();
    });
    if (!concerned.isEmpty() && !path.isEmpty())
        announce([this, path] { Q_EMIT imageFileSet(path); });
    announce(&kxOverlayService::imageChanged, concerned);
}

void OverlayService::setSizeType(const NodeList &nodes, int sizeType)
{
    write(nodes, &Overlay::sizeType, sizeType, &kxOverlayService::sizeTypeChanged);
}

void OverlayService::setSize(const NodeList &nodes, float size)
{
    write(nodes, &Overlay::size, size, &kxOverlayService::sizeChanged);
}

void OverlayService::setPosition(const NodeList &nodes, const QPointF &position)
{
    write(nodes, &Overlay::position, position, &kxOverlayService::positionChanged);
}

void OverlayService::setOffset(const NodeList &nodes, const QPointF &offset)
{
    write(nodes, &Overlay::offset, offset, &kxOverlayService::offsetChanged);
}

template<class Change>
void OverlayService::writeOffset(const NodeList &nodes, Change change)
{
    const NodeList changed = changeOverlays(nodes, [&change](Overlay &overlay) {
        const QPointF before = overlay.offset;
        change(overlay.offset);
        return !same(before, overlay.offset);
    });
    announce(&kxOverlayService::offsetChanged, changed);
}

void OverlayService::setOffsetX(const NodeList &nodes, float x)
{
    writeOffset(nodes, [x](QPointF &offset) { offset.setX(double(x)); });
}

void OverlayService::setOffsetY(const NodeList &nodes, float y)
{
    writeOffset(nodes, [y](QPointF &offset) { offset.setY(double(y)); });
}

} // namespace viewer
