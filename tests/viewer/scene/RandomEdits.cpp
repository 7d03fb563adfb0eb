// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/viewer/scene/RandomEdits.h"

#include "viewer/scene/SceneCopy.h"

using QRPC::NodeId;
using QRPC::NodeList;

RandomEdits::RandomEdits(viewer::OverlayService *service, quint32 seed)
    : m_service(service)
    , m_random(seed)
{
}

NodeId RandomEdits::someNode()
{
    // Walks down from the root, so that the same seed finds the same nodes in every run.
    NodeId node = m_service->getRootNode();
    while (true) {
        const int children = m_service->getChildCount(node);
        if (children == 0 || below(4) == 0)
            return node;
        node = m_service->getChild(node, below(children));
    }
}

NodeList RandomEdits::someNodes()
{
    NodeList nodes;
    const int count = 1 + below(4);
    for (int i = 0; i < count; ++i)
        nodes.append(someNode());
    return nodes;
}

void RandomEdits::edit()
{
    if (below(2) == 0)
        changeTree();
    else
        changeValue();
}

void RandomEdits::changeTree()
{
    switch (below(10)) {
    case 0:
    case 1:
        m_service->createOverlay(someNode());
        break;
    case 2:
        m_service->createGroup(someNode());
        break;
    case 3:
        m_service->createSwitch(someNode());
        break;
    case 4:
        // A tree that only doubles would soon be all that the test works on.
        if (m_service->scene().nodeCount() < 300)
            m_service->duplicateNodes(someNodes());
        break;
    case 9:
        if (m_service->scene().nodeCount() < 300)
            m_service->insertScene(viewer::extract(m_service->scene(), someNodes()), someNode(),
                                   below(4) - 1);
        break;
    case 5:
        m_service->deleteNodes(someNodes());
        break;
    case 6:
        m_service->groupNodes(someNodes());
        break;
    default:
        m_service->moveNodes(someNodes(), someNode(), below(6) - 1);
    }
}

void RandomEdits::changeValue()
{
    const NodeList nodes = someNodes();
    switch (below(15)) {
    case 0:
        return m_service->setName(nodes, QString::number(below(5)));
    case 1:
        return m_service->setOverlayType(nodes, below(2));
    case 2:
        return m_service->setText(nodes, QString(below(5), QLatin1Char('x')));
    case 3:
        return m_service->setFont(nodes, QStringLiteral("Font %1").arg(below(3)));
    case 4:
        return m_service->setFontColor(nodes, color());
    case 5:
        return m_service->setBackgroundColor(nodes, color());
    case 6:
        return m_service->setBackgroundTransparency(nodes, color());
    case 7:
        return m_service->setImage(nodes, QStringLiteral("/tmp/picture %1.png").arg(below(3)));
    case 8:
        return m_service->setSizeType(nodes, below(2));
    case 9:
        return m_service->setSize(nodes, float(below(3)));
    case 10:
        return m_service->setPosition(nodes, point());
    case 11:
        return m_service->setOffset(nodes, point());
    case 12:
        return m_service->setOffsetX(nodes, float(below(3)));
    case 13:
        return m_service->setOffsetY(nodes, float(below(3)));
    default:
        return m_service->setEnabled(nodes, below(2) == 0);
    }
}
