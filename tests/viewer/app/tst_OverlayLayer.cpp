// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/OverlayLayer.h"

#include "tests/support/KxTest.h"
#include "viewer/scene/OverlayService.h"

#include <QPainter>

using namespace viewer;

/// Something that a user does to a node.
using Change = void (*)(OverlayService *, QRPC::NodeId);
Q_DECLARE_METATYPE(Change)

class tst_OverlayLayer : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void cleanup() override;
    void shouldDrawOnceForAChange_data();
    void shouldDrawOnceForAChange();
    void shouldDrawOnceForManyChangesInARow();
    void shouldNotDrawForANewName();
    void shouldNotDrawWhenNothingChanges();
    void shouldAskForTheWholeViewAtItsOwnPixels();
    void shouldLetTheMouseThrough();

private:
    void settle();

    std::unique_ptr<OverlayService> m_service;
    std::unique_ptr<OverlayLayer> m_layer;
    QRPC::NodeId m_node = 0;
    int m_draws = 0;
    QSize m_size;
    double m_dpi = 0;
};

void tst_OverlayLayer::init()
{
    KxTest::init();
    m_service = std::make_unique<OverlayService>();
    m_node = m_service->createOverlay(m_service->getRootNode());
    m_layer = std::make_unique<OverlayLayer>(m_service.get(),
                                             [this](QPainter *, const QSize &size, double dpi) {
                                                 ++m_draws;
                                                 m_size = size;
                                                 m_dpi = dpi;
                                             });
    m_layer->resize(320, 200);
    m_layer->show();
    m_draws = 0;
    QTRY_VERIFY(m_draws > 0);
    settle();
}

void tst_OverlayLayer::cleanup()
{
    m_layer.reset();
    m_service.reset();
    KxTest::cleanup();
}

// Lets all drawings come that are asked for, and counts anew.
void tst_OverlayLayer::settle()
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents();
    m_draws = 0;
}

void tst_OverlayLayer::shouldDrawOnceForAChange_data()
{
    QTest::addColumn<Change>("change");
    const auto row = [](const char *name, Change change) { QTest::newRow(name) << change; };
    row("add", [](OverlayService *s, QRPC::NodeId) { s->createOverlay(s->getRootNode()); });
    row("remove", [](OverlayService *s, QRPC::NodeId n) { s->deleteNodes({n}); });
    row("group", [](OverlayService *s, QRPC::NodeId n) { s->groupNodes({n}); });
    row("duplicate", [](OverlayService *s, QRPC::NodeId n) { s->duplicateNodes({n}); });
    row("type", [](OverlayService *s, QRPC::NodeId n) { s->setOverlayType({n}, 1); });
    row("text", [](OverlayService *s, QRPC::NodeId n) { s->setText({n}, "another"); });
    row("font", [](OverlayService *s, QRPC::NodeId n) { s->setFont({n}, "Serif"); });
    row("colour", [](OverlayService *s, QRPC::NodeId n) { s->setFontColor({n}, Qt::red); });
    row("background",
        [](OverlayService *s, QRPC::NodeId n) { s->setBackgroundColor({n}, Qt::red); });
    row("transparency",
        [](OverlayService *s, QRPC::NodeId n) { s->setBackgroundTransparency({n}, Qt::red); });
    row("image", [](OverlayService *s, QRPC::NodeId n) { s->setImage({n}, "x.png"); });
    row("size type", [](OverlayService *s, QRPC::NodeId n) { s->setSizeType({n}, 1); });
    row("size", [](OverlayService *s, QRPC::NodeId n) { s->setSize({n}, 77); });
    row("position", [](OverlayService *s, QRPC::NodeId n) { s->setPosition({n}, {1, 1}); });
    row("offset", [](OverlayService *s, QRPC::NodeId n) { s->setOffset({n}, {9, 8}); });
    row("enabled", [](OverlayService *s, QRPC::NodeId n) { s->setEnabled({n}, false); });
    row("reset", [](OverlayService *s, QRPC::NodeId) { s->setScene(Scene()); });
}

void tst_OverlayLayer::shouldDrawOnceForAChange()
{
    QFETCH(Change, change);
    change(m_service.get(), m_node);
    QTRY_COMPARE(m_draws, 1);
    QCoreApplication::processEvents();
    QCOMPARE(m_draws, 1);
}

void tst_OverlayLayer::shouldDrawOnceForManyChangesInARow()
{
    for (int i = 1; i <= 100; ++i)
        m_service->setOffsetX({m_node}, float(i));
    m_service->setText({m_node}, "moved");
    QTRY_COMPARE(m_draws, 1);
    QCoreApplication::processEvents();
    QCOMPARE(m_draws, 1);
}

void tst_OverlayLayer::shouldNotDrawForANewName()
{
    m_service->setName({m_node}, "another name");
    QCoreApplication::processEvents();
    QCOMPARE(m_draws, 0);
}

void tst_OverlayLayer::shouldNotDrawWhenNothingChanges()
{
    m_service->setText({m_node}, m_service->getText(m_node));
    m_service->setOffset({m_node}, m_service->getOffset(m_node));
    QCoreApplication::processEvents();
    QCOMPARE(m_draws, 0);
}

void tst_OverlayLayer::shouldAskForTheWholeViewAtItsOwnPixels()
{
    m_layer->resize(640, 480);
    QTRY_COMPARE(m_size, QSize(640, 480) * m_layer->devicePixelRatioF());
    QCOMPARE(m_dpi, 96 * m_layer->devicePixelRatioF());
}

void tst_OverlayLayer::shouldLetTheMouseThrough()
{
    QVERIFY(m_layer->testAttribute(Qt::WA_TransparentForMouseEvents));
}

KX_TEST_MAIN(tst_OverlayLayer)
#include "tst_OverlayLayer.moc"
