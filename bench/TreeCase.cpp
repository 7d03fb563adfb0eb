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

viewer::Scene makeScene(Shape shape, int nodeCount)
{
    const int groupSize = 20;
    const int depth = 100;
    viewer::Scene scene;
    QRPC::NodeId parent = viewer::Scene::RootId;
    for (int i = 0; i < nodeCount; ++i) {
        const bool isTop =
            shape == Shape::Flat || i % (shape == Shape::Groups ? groupSize + 1 : depth) == 0;
        const bool isLeaf = shape == Shape::Flat || (shape == Shape::Groups && !isTop);
        const auto kind = isLeaf ? viewer::NodeKind::Overlay : viewer::NodeKind::Group;
        const QRPC::NodeId id = addNode(&scene, isTop ? viewer::Scene::RootId : parent, kind);
        if (!isLeaf)
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
    case Shape::Deep:
        break;
    }
    return "100 levels";
}
