// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/scene/OverlayService.h"

#include <QTimer>

namespace viewer {

using QRPC::NodeId;
using QRPC::NodeList;

OverlayService::OverlayService(QObject *parent) : kxOverlayService(parent) {}

OverlayService::~OverlayService() = default;

void OverlayService::setScene(Scene scene)
{
    sendPostponed();
    scene.startIdsAt(m_scene.nextId());
    m_history.clear(); // its steps are of the scene that goes
    m_scene = std::move(scene);
    m_highestNumbers.clear();
    m_scene.forEach([this](const Node &node) { countName(node.kind, node.name); });
    announceStructure([this] { Q_EMIT modelReset(); });
}

NodeId OverlayService::getRootNode()
{
    return Scene::RootId;
}

NodeId OverlayService::getParent(NodeId node)
{
    const Node *n = m_scene.find(node);
    return n ? n->parent : 0;
}

int OverlayService::getChildCount(NodeId node)
{
    const Node *n = m_scene.find(node);
    return n ? int(n->children.size()) : 0;
}

NodeId OverlayService::getChild(NodeId node, int index)
{
    const Node *n = m_scene.find(node);
    const bool exists = n && index >= 0 && std::size_t(index) < n->children.size();
    return exists ? n->children[std::size_t(index)] : 0;
}

int OverlayService::getChildIndex(NodeId parent, NodeId child)
{
    const Node *n = m_scene.find(child);
    return n && parent != 0 && n->parent == parent ? n->row : -1;
}

bool OverlayService::isOverlay(NodeId node)
{
    return findOverlay(node) != nullptr;
}

bool OverlayService::isSwitch(NodeId node)
{
    const Node *n = m_scene.find(node);
    return n && n->isSwitch();
}

QString OverlayService::getName(NodeId node)
{
    const Node *n = m_scene.find(node);
    return n ? n->name : QString();
}

bool OverlayService::isEnabled(NodeId node)
{
    const Node *n = m_scene.find(node);
    return n && n->enabled;
}

bool OverlayService::isActive(NodeId node)
{
    return m_scene.isActive(node);
}

const Overlay *OverlayService::findOverlay(NodeId id) const
{
    const Node *node = m_scene.find(id);
    return node && node->isOverlay() ? &node->overlay : nullptr;
}

/// A property of an overlay; what stands for "none" for any other id.
template<class Value>
Value OverlayService::read(NodeId id, Value Overlay::*member) const
{
    const Overlay *overlay = findOverlay(id);
    return overlay ? overlay->*member : Value();
}

int OverlayService::getOverlayType(NodeId node)
{
    return read(node, &Overlay::type);
}

QString OverlayService::getText(NodeId node)
{
    return read(node, &Overlay::text);
}

QString OverlayService::getFont(NodeId node)
{
    return read(node, &Overlay::font);
}

QColor OverlayService::getFontColor(NodeId node)
{
    return read(node, &Overlay::fontColor);
}

QColor OverlayService::getBackgroundColor(NodeId node)
{
    return read(node, &Overlay::backgroundColor);
}

QColor OverlayService::getBackgroundTransparency(NodeId node)
{
    return read(node, &Overlay::backgroundTransparency);
}

QString OverlayService::getImage(NodeId node)
{
    return read(node, &Overlay::image);
}

int OverlayService::getSizeType(NodeId node)
{
    return read(node, &Overlay::sizeType);
}

float OverlayService::getSize(NodeId node)
{
    return read(node, &Overlay::size);
}

QPointF OverlayService::getPosition(NodeId node)
{
    return read(node, &Overlay::position);
}

QPointF OverlayService::getOffset(NodeId node)
{
    return read(node, &Overlay::offset);
}

void OverlayService::announce(std::function<void()> signal)
{
    if (m_postponed.empty())
        signal();
    else
        postpone(std::move(signal)); // behind what it may depend on
}

void OverlayService::announce(NodeSignal signal, const NodeList &nodes)
{
    if (!nodes.isEmpty())
        announce([this, signal, nodes] { Q_EMIT(this->*signal)(nodes); });
}

void OverlayService::announceStructure(std::function<void()> signal)
{
    if (m_announcedMoves == 0)
        announce(std::move(signal));
    else
        postpone(std::move(signal));
}

void OverlayService::announceStructure(NodeSignal signal, const NodeList &nodes)
{
    if (!nodes.isEmpty())
        announceStructure([this, signal, nodes] { Q_EMIT(this->*signal)(nodes); });
}

void OverlayService::postpone(std::function<void()> signal)
{
    if (m_postponed.empty())
        QTimer::singleShot(0, this, [this] { sendPostponed(); });
    m_postponed.push(std::move(signal));
}

/// What every operation begins with: nothing that happened before it is left to be told.
void OverlayService::sendPostponed()
{
    finishRestoring();
    if (m_announcedMoves != 0)
        return;
    while (!m_postponed.empty()) {
        const std::function<void()> signal = std::move(m_postponed.front());
        m_postponed.pop();
        signal();
    }
}

} // namespace viewer
