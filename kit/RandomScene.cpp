// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "kit/RandomScene.h"

QRPC::NodeId RandomScene::anyNode()
{
    const QRPC::NodeList all = m_allNodes();
    return all.isEmpty() ? 0 : all.at(below(all.size()));
}

QRPC::NodeId RandomScene::anyContainer()
{
    QRPC::NodeList containers{m_service->getRootNode()};
    const QRPC::NodeList all = m_allNodes();
    for (const QRPC::NodeId id : all) {
        if (!m_service->isOverlay(id))
            containers.append(id);
    }
    return containers.at(below(containers.size()));
}

QRPC::NodeList RandomScene::anyNodes()
{
    QRPC::NodeList nodes;
    for (int i = below(5); i > 0; --i)
        nodes.append(anyNode());
    nodes.removeAll(0);
    return nodes;
}

const char *RandomScene::anyCommand()
{
    static constexpr const char *commands[] = {"createOverlay",
                                               "createOverlayGroup",
                                               "createSwitch",
                                               "deleteOverlays",
                                               "toggle",
                                               "switchOn",
                                               "switchOff",
                                               "selectAll",
                                               "deselectAll",
                                               "invertSelection",
                                               "createGroupFromSelection",
                                               "duplicateOverlays"};
    return commands[below(int(std::size(commands)))];
}

QString RandomScene::anyPattern()
{
    static constexpr const char *patterns[] = {
        "", "", "e", "o1", "[a-f]", "*", "nothing of that name"};
    return QString::fromLatin1(patterns[below(int(std::size(patterns)))]);
}

/// A value is drawn before the nodes that get it, so that a seed means the same with each compiler.
QString RandomScene::changeService()
{
    switch (below(6)) {
    case 0: {
        const int row = below(6) - 1;
        const QRPC::NodeId parent = anyContainer();
        m_service->moveNodes(anyNodes(), parent, row);
        return QStringLiteral("outside: move to %1 at %2").arg(parent).arg(row);
    }
    case 1:
        m_service->deleteNodes(anyNodes());
        return QStringLiteral("outside: delete");
    case 2: {
        const QString name = QStringLiteral("o%1").arg(below(100));
        m_service->setName(anyNodes(), name);
        return QStringLiteral("outside: rename to ") + name;
    }
    case 3: {
        const bool enabled = below(2) == 0;
        m_service->setEnabled(anyNodes(), enabled);
        return QStringLiteral("outside: enable %1").arg(enabled);
    }
    case 4:
        m_service->groupNodes(anyNodes());
        return QStringLiteral("outside: group");
    default:
        if (below(4) > 0)
            return QStringLiteral("outside: nothing");
        Q_EMIT m_service->modelReset();
        return QStringLiteral("outside: reset");
    }
}
