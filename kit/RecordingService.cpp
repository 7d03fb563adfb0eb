// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "kit/RecordingService.h"

#include <algorithm>

using notation::Kind;

RecordingService::RecordingService(CallLog *log, QObject *parent)
    : kxOverlayService(parent)
    , m_log(log)
{
    build(QString());
}

RecordingService::~RecordingService() = default;

void RecordingService::build(const QString &line)
{
    m_nodes.clear();
    m_root = addNode(rootId, Kind::Group, QStringLiteral("root"));
    insert(rootId, -1, line);
}

QRPC::NodeList RecordingService::insert(QRPC::NodeId parent, int row, const QString &line)
{
    QRPC::NodeList ids;
    for (const notation::Node &source : notation::parse(line)) {
        ids.append(adopt(m_nodes.at(parent).get(), row, source)->id);
        row = row < 0 ? row : row + 1;
    }
    return ids;
}

QRPC::NodeId RecordingService::insertChain(QRPC::NodeId parent, int depth)
{
    Node *at = m_nodes.at(parent).get();
    QRPC::NodeId top = 0;
    for (int level = 0; level < depth; ++level) {
        const QString name = QStringLiteral("c%1").arg(m_nextId);
        at = adopt(at, -1, notation::Node{name, m_nextId, Kind::Group, true, {}});
        top = top ? top : at->id;
    }
    return top;
}

RecordingService::Node *RecordingService::adopt(Node *parent, int row, const notation::Node &source)
{
    Node *node = addNode(source.id ? source.id : m_nextId, source.kind, source.name);
    node->enabled = source.enabled;
    node->parent = parent;
    parent->children.insert(row < 0 ? parent->children.size() : row, node);
    for (const notation::Node &child : source.children)
        adopt(node, -1, child);
    return node;
}

RecordingService::Node *RecordingService::addNode(QRPC::NodeId id, Kind kind, const QString &name)
{
    auto node = std::make_unique<Node>();
    node->id = id;
    node->kind = kind;
    node->name = name;
    m_nextId = std::max(m_nextId, id + 1);
    const auto [place, isNew] = m_nodes.emplace(id, std::move(node));
    if (!isNew)
        qFatal("the tree has a node %u already", id);
    return place->second.get();
}

void RecordingService::erase(const QRPC::NodeList &nodes)
{
    const QVector<Node *> doomed = tops(nodes);
    for (Node *node : doomed) {
        node->parent->children.removeOne(node);
        release(node);
    }
}

void RecordingService::release(Node *node)
{
    QVector<Node *> doomed{node};
    while (!doomed.isEmpty()) {
        const Node *next = doomed.takeLast();
        doomed += next->children;
        m_nodes.erase(next->id);
    }
}

void RecordingService::place(QRPC::NodeId node, QRPC::NodeId parent, int row)
{
    Node *moved = m_nodes.at(node).get();
    Node *target = m_nodes.at(parent).get();
    moved->parent->children.removeOne(moved);
    target->children.insert(row < 0 ? target->children.size() : row, moved);
    moved->parent = target;
}

QString RecordingService::lineOf(QRPC::NodeId id) const
{
    const Node &top = node(id);
    QString line = top.name;
    if (top.kind == Kind::Switch)
        line += QLatin1Char('*');
    if (!top.enabled)
        line += QLatin1Char('-');
    if (top.kind == Kind::Overlay)
        return line;
    QStringList inside;
    for (const Node *child : top.children)
        inside.append(lineOf(child->id));
    return line + QLatin1Char('(') + inside.join(QLatin1Char(' ')) + QLatin1Char(')');
}

QRPC::NodeList RecordingService::allIds() const
{
    QRPC::NodeList ids;
    QVector<const Node *> open{m_root};
    while (!open.isEmpty()) {
        const Node *node = open.takeLast();
        if (node != m_root)
            ids.append(node->id);
        std::copy(node->children.crbegin(), node->children.crend(), std::back_inserter(open));
    }
    return ids;
}

bool RecordingService::isActiveNode(const Node &node)
{
    const Node *at = &node;
    while (at && at->enabled)
        at = at->parent;
    return !at;
}

RecordingService::Node *RecordingService::find(QRPC::NodeId node) const
{
    const auto found = m_nodes.find(node);
    return found == m_nodes.end() ? nullptr : found->second.get();
}

QVector<RecordingService::Node *> RecordingService::known(const QRPC::NodeList &nodes) const
{
    QVector<Node *> found;
    for (const QRPC::NodeId id : nodes) {
        Node *node = find(id);
        if (node && node != m_root && !found.contains(node))
            found.append(node);
    }
    return found;
}

QVector<RecordingService::Node *> RecordingService::tops(const QRPC::NodeList &nodes) const
{
    const QVector<Node *> all = known(nodes);
    QVector<Node *> highest;
    for (Node *node : all) {
        const Node *above = node->parent;
        while (above && !all.contains(const_cast<Node *>(above)))
            above = above->parent;
        if (!above)
            highest.append(node);
    }
    return highest;
}

/// In the order of the tree.
QVector<RecordingService::Node *> RecordingService::inOrder(QVector<Node *> nodes) const
{
    if (nodes.size() < 2)
        return nodes;
    QHash<QRPC::NodeId, int> places;
    const QRPC::NodeList all = allIds();
    for (int place = 0; place < all.size(); ++place)
        places.insert(all.at(place), place);
    std::sort(nodes.begin(), nodes.end(), [&places](const Node *a, const Node *b) {
        return places.value(a->id) < places.value(b->id);
    });
    return nodes;
}

QRPC::NodeList RecordingService::idsOf(const QVector<Node *> &nodes)
{
    QRPC::NodeList ids;
    for (const Node *node : nodes)
        ids.append(node->id);
    return ids;
}
