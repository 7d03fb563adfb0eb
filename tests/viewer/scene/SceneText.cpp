// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/viewer/scene/SceneText.h"

#include "kit/nodeSignals.h"
#include "viewer/scene/SceneWriter.h"

#include <QRegularExpression>

using QRPC::NodeId;
using QRPC::NodeList;
using viewer::Node;
using viewer::NodeKind;
using viewer::OverlayService;
using viewer::Scene;

namespace scenetext {

Scene build(const QString &text)
{
    Scene scene;
    QVector<NodeId> parents{Scene::RootId};
    static const QRegularExpression token(QStringLiteral("([^\\s(){}-]+)(-?)([({]?)|[)}]"));
    auto matches = token.globalMatch(text);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        if (match.captured(1).isEmpty()) {
            parents.removeLast();
            continue;
        }
        const QString opening = match.captured(3);
        Node node;
        node.name = match.captured(1);
        node.enabled = match.captured(2).isEmpty();
        node.kind = opening == QLatin1String("(")   ? NodeKind::Group
                    : opening == QLatin1String("{") ? NodeKind::Switch
                                                    : NodeKind::Overlay;
        const NodeId id = scene.add(node);
        scene.append(parents.constLast(), id);
        if (!opening.isEmpty())
            parents.append(id);
    }
    return scene;
}

static QString dumpChildren(const Scene &scene, const Node &parent)
{
    QStringList texts;
    for (const NodeId id : parent.children) {
        const Node &node = *scene.find(id);
        QString text = node.name + (node.enabled ? QString() : QStringLiteral("-"));
        if (node.kind == NodeKind::Group)
            text += '(' + dumpChildren(scene, node) + ')';
        else if (node.kind == NodeKind::Switch)
            text += '{' + dumpChildren(scene, node) + '}';
        texts.append(text);
    }
    return texts.join(' ');
}

QString dump(const Scene &scene)
{
    return dumpChildren(scene, scene.root());
}

NodeId id(const Scene &scene, const QString &name)
{
    if (name == QLatin1String("root"))
        return Scene::RootId;
    if (name == QLatin1String("?"))
        return scene.nextId() + 100;
    NodeId found = 0;
    scene.forEach([&](const Node &node) {
        if (node.name == name && node.kind != NodeKind::Root)
            found = node.id;
    });
    return found;
}

NodeList ids(const Scene &scene, const QString &names)
{
    NodeList nodes;
    const QStringList words = names.split(' ', Qt::SkipEmptyParts);
    for (const QString &name : words)
        nodes.append(id(scene, name));
    return nodes;
}

QByteArray fileOf(const OverlayService &service)
{
    return viewer::SceneWriter::content(service.scene(), QStringLiteral("/tmp/scene.json"),
                                        nullptr);
}

} // namespace scenetext

SignalRecorder::SignalRecorder(OverlayService *service) : m_service(service)
{
    using S = kxOverlayService;
    const auto table = nodeSignals();
    for (const auto &row : table) {
        const QString name = QString::fromLatin1(row.first);
        connect(service, row.second, this,
                [this, name](const NodeList &nodes) { note(name, nodes); });
    }
    connect(service, &S::modelReset, this, [this] { note(QStringLiteral("modelReset"), {}); });
    connect(service, &OverlayService::imageFileSet, this,
            [this](const QString &path) { m_lines.append("imageFileSet " + path); });
    connect(service, &S::nodesMoved, this,
            [this](const NodeList &nodes, const NodeList &parents, const NodeList &afters) {
                for (int i = 0; i < nodes.size(); ++i) {
                    const int row = m_service->getChildIndex(parents.at(i), nodes.at(i));
                    if (row < 0 || m_service->getChild(parents.at(i), row - 1) != afters.at(i))
                        m_faults.append("moved " + names({nodes.at(i)}) + " is not there");
                }
                m_lines.append("nodesMoved " + names(nodes) + " / " + names(parents) + " / "
                               + names(afters));
            });
    service->scene().forEach([this](const Node &node) { m_names.insert(node.id, node.name); });
    m_names.insert(Scene::RootId, QStringLiteral("root"));
    m_names.insert(0, QStringLiteral("0"));
}

QString SignalRecorder::names(const NodeList &nodes) const
{
    QStringList texts;
    for (const NodeId id : nodes)
        texts.append(m_names.value(id, QStringLiteral("?")));
    return texts.join(' ');
}

void SignalRecorder::note(const QString &signal, const NodeList &nodes)
{
    const bool removal = signal == QLatin1String("nodesRemoved");
    for (const NodeId id : nodes) {
        const Node *node = m_service->scene().find(id);
        if (removal == (node != nullptr))
            m_faults.append(signal + " came too early or too late");
        if (node && node->kind != NodeKind::Root)
            m_names.insert(id, node->name);
    }
    m_lines.append((signal + ' ' + names(nodes)).trimmed());
}

QStringList SignalRecorder::take()
{
    return std::exchange(m_lines, {});
}
