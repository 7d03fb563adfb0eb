// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "bench/TreeCase.h"

#include "host/kxKernelServiceFactory.h"

namespace {

QRPC::NodeId addNode(viewer::Scene *scene, QRPC::NodeId parent, viewer::NodeKind kind)
{
    viewer::Node node;
    node.kind = kind;
    node.name = QStringLiteral("Node %1").arg(scene->nodeCount());
    const QRPC::NodeId id = scene->add(node);
    scene->append(parent, id);
    return id;
}

/// How many nodes lie in each top-level one, itself included; 1 for a flat tree.
int sizeOfTops(Shape shape, int nodeCount)
{
    switch (shape) {
    case Shape::Flat:
        return 1;
    case Shape::Groups:
        return 21;
    case Shape::Deep:
        return 100;
    case Shape::OneSwitch:
        break;
    }
    return nodeCount;
}

viewer::NodeKind kindOf(Shape shape, bool isTop)
{
    if (shape == Shape::Deep || (isTop && shape == Shape::Groups))
        return viewer::NodeKind::Group;
    return isTop && shape == Shape::OneSwitch ? viewer::NodeKind::Switch
                                              : viewer::NodeKind::Overlay;
}

viewer::Scene makeScene(Shape shape, int nodeCount)
{
    viewer::Scene scene;
    QRPC::NodeId parent = viewer::Scene::RootId;
    for (int i = 0; i < nodeCount; ++i) {
        const bool isTop = i % sizeOfTops(shape, nodeCount) == 0;
        const viewer::NodeKind kind = kindOf(shape, isTop);
        const QRPC::NodeId id = addNode(&scene, isTop ? viewer::Scene::RootId : parent, kind);
        if (kind != viewer::NodeKind::Overlay)
            parent = id;
    }
    return scene;
}

void collect(const viewer::Scene &scene, QRPC::NodeId parent, QRPC::NodeList *nodes)
{
    for (const QRPC::NodeId node : scene.find(parent)->children) {
        nodes->append(node);
        collect(scene, node, nodes);
    }
}

} // namespace

TreeCase::TreeCase(Shape shape, int nodeCount)
{
    m_service.setScene(makeScene(shape, nodeCount));
    for (const QRPC::NodeId node : m_service.scene().root().children)
        m_topNodes.append(node);
    collect(m_service.scene(), viewer::Scene::RootId, &m_allNodes);
    kxKernelServiceFactory::the()->registerService<kxOverlayService>(&m_service);
}

TreeCase::~TreeCase()
{
    kxKernelServiceFactory::the()->unregisterService<kxOverlayService>();
}

std::unique_ptr<QTreeView> makeView(bool wanted, QAbstractItemModel *model)
{
    if (!wanted)
        return nullptr;
    auto view = std::make_unique<QTreeView>();
    view->setHeaderHidden(true);
    view->setModel(model);
    view->setSelectionMode(QAbstractItemView::ExtendedSelection);
    view->setUniformRowHeights(true);
    view->resize(300, 800);
    view->show();
    return view;
}

const char *nameOf(Shape shape)
{
    switch (shape) {
    case Shape::Flat:
        return "flat";
    case Shape::Groups:
        return "groups of 20";
    case Shape::OneSwitch:
        return "one switch";
    case Shape::Deep:
        break;
    }
    return "100 levels";
}
