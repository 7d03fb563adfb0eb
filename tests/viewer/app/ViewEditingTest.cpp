// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/viewer/app/ViewEditingTest.h"

#include "viewer/app/OverlayLayer.h"

#include <QPainter>

using namespace viewer;
using QRPC::NodeId;
using QRPC::NodeList;

ViewEditingTest::Window::Window()
    : area(new ViewArea(ViewArea::Background::Painted, this))
    , model(new QStandardItemModel(this))
    , tree(new QTreeView(this))
{
    tree->setModel(model);
    tree->setSelectionMode(QAbstractItemView::ExtendedSelection);
    resize(600, 300);
    area->setGeometry(0, 0, 400, 300);
    tree->setGeometry(400, 0, 200, 300);
}

void ViewEditingTest::init()
{
    KxTest::init();
    m_service = std::make_unique<OverlayService>();
    m_painter = std::make_unique<OverlayPainter>(m_service->scene(), m_images);
    m_window = std::make_unique<Window>();
    m_window->area->addLayer(
        new OverlayLayer(m_service.get(), [this](QPainter *painter, const QSize &size, double dpi) {
            m_painter->paint(*painter, size, dpi);
        }));
    new ViewEditing(m_service.get(), m_painter.get(), m_window->area);
    m_first = addText("First", {20, -20});
    m_second = addText("Second", {20, -70});
    fillTree();
    m_service->history().clear();
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    QCoreApplication::processEvents();
}

void ViewEditingTest::cleanup()
{
    m_window.reset();
    m_painter.reset();
    m_service.reset();
    KxTest::cleanup();
}

NodeId ViewEditingTest::addText(const QString &text, const QPointF &offset)
{
    const NodeId node = m_service->createOverlay(Scene::RootId);
    m_service->setText({node}, text);
    m_service->setBackgroundTransparency({node}, Qt::white);
    m_service->setPosition({node}, {0, 1});
    m_service->setOffset({node}, offset);
    return node;
}

void ViewEditingTest::fillTree()
{
    m_window->model->clear();
    for (const NodeId node : m_service->scene().root().children) {
        auto *item = new QStandardItem(m_service->getName(node));
        item->setData(node, Qt::UserRole + 1);
        m_window->model->appendRow(item);
    }
}

QPoint ViewEditingTest::middleOf(NodeId node) const
{
    const ViewGeometry geometry = OverlayLayer::geometryOf(*view());
    const QPointF middle = m_painter->boxOf(node, geometry.size, geometry.dpi).center();
    return (middle / view()->devicePixelRatioF()).toPoint();
}

QImage ViewEditingTest::picture() const
{
    return m_window->area->grab().toImage();
}

NodeList ViewEditingTest::selected() const
{
    return NodeView(m_window->tree).selectedNodes();
}

void ViewEditingTest::move(const QPoint &to, Qt::KeyboardModifiers modifiers,
                           Qt::MouseButtons buttons)
{
    QMouseEvent event(QEvent::MouseMove, QPointF(to), Qt::NoButton, buttons, modifiers);
    QApplication::sendEvent(view(), &event);
}

Qt::CursorShape ViewEditingTest::shapeAt(const QPoint &place, Qt::KeyboardModifiers modifiers)
{
    move(place, modifiers, Qt::NoButton);
    return view()->cursor().shape();
}
