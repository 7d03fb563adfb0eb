// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/Viewport.h"

#include "tests/support/GraphicsDriver.h"
#include "tests/support/KxTest.h"
#include "viewer/app/ViewArea.h"

#include <QSignalSpy>

using namespace viewer;

class tst_Viewport : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void cleanup() override;
    void shouldDrawAModelOnABackground();
    void shouldOrbitWithTheLeftButton();
    void shouldPanWithTheMiddleButtonAndWithCtrl();
    void shouldZoomWithTheWheel();
    void shouldResetOnADoubleClick();
    void shouldNotMoveWithoutAButton();
    void shouldDrawNothingOverItOnOrbiting();
    void shouldNameTheRenderer();

private:
    void drag(Qt::MouseButton button, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

    std::unique_ptr<ViewArea> m_area;
    Viewport *m_viewport = nullptr;
};

namespace {

/// Counts what is painted on a widget that lies over the view.
class Layer : public QWidget
{
public:
    int paints = 0;

protected:
    void paintEvent(QPaintEvent *) override { ++paints; }
};

} // namespace

void tst_Viewport::init()
{
    KxTest::init();
    m_area = std::make_unique<ViewArea>(ViewArea::Background::OpenGl);
    m_area->resize(400, 300);
    m_viewport = m_area->viewport();
    QVERIFY2(m_viewport, qPrintable(m_area->backgroundText()));
    QSignalSpy frames(m_area.get(), &ViewArea::framePainted);
    m_area->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_area.get()));
    QTRY_VERIFY(!frames.isEmpty());
    graphicsDriver::keepLoaded();
}

void tst_Viewport::cleanup()
{
    m_area.reset();
    KxTest::cleanup();
}

void tst_Viewport::drag(Qt::MouseButton button, Qt::KeyboardModifiers modifiers)
{
    QTest::mousePress(m_viewport, button, modifiers, {200, 150});
    // A move with a button held cannot be made by QTest, which sends it without buttons.
    QMouseEvent move(QEvent::MouseMove, QPointF(240, 165), Qt::NoButton, button, modifiers);
    QApplication::sendEvent(m_viewport, &move);
    QTest::mouseRelease(m_viewport, button, modifiers, {240, 165});
}

void tst_Viewport::shouldDrawAModelOnABackground()
{
    const QImage frame = m_viewport->grabFramebuffer();
    const QColor corner = frame.pixelColor(3, 3);
    const QColor middle = frame.pixelColor(frame.width() / 2, frame.height() / 2);
    // The vase is green-blue, the wall is grey.
    QVERIFY2(middle.green() - middle.red() > 30, qPrintable(middle.name()));
    QVERIFY2(qAbs(corner.green() - corner.red()) < 15, qPrintable(corner.name()));
}

void tst_Viewport::shouldOrbitWithTheLeftButton()
{
    const OrbitCamera before = m_viewport->camera();
    const QImage frame = m_viewport->grabFramebuffer();
    drag(Qt::LeftButton);
    QCOMPARE(m_viewport->camera().yaw(), before.yaw() - 36);
    QCOMPARE(m_viewport->camera().pitch(), before.pitch() + 9);
    QCOMPARE(m_viewport->camera().target(), before.target());
    QVERIFY(m_viewport->grabFramebuffer() != frame);
}

void tst_Viewport::shouldPanWithTheMiddleButtonAndWithCtrl()
{
    const OrbitCamera before = m_viewport->camera();
    drag(Qt::MiddleButton);
    const QVector3D once = m_viewport->camera().target();
    QVERIFY(once != before.target());
    QCOMPARE(m_viewport->camera().yaw(), before.yaw());
    drag(Qt::LeftButton, Qt::ControlModifier);
    QVERIFY(m_viewport->camera().target() != once);
    QCOMPARE(m_viewport->camera().yaw(), before.yaw());
}

void tst_Viewport::shouldZoomWithTheWheel()
{
    const float before = m_viewport->camera().distance();
    QWheelEvent wheel({200, 150}, m_viewport->mapToGlobal({200, 150}), {}, {0, 120}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(m_viewport, &wheel);
    QVERIFY(m_viewport->camera().distance() < before);
}

void tst_Viewport::shouldResetOnADoubleClick()
{
    drag(Qt::LeftButton);
    QVERIFY(m_viewport->camera().eye() != OrbitCamera().eye());
    QTest::mouseDClick(m_viewport, Qt::LeftButton);
    QCOMPARE(m_viewport->camera().eye(), OrbitCamera().eye());
}

void tst_Viewport::shouldNotMoveWithoutAButton()
{
    drag(Qt::RightButton);
    QMouseEvent move(QEvent::MouseMove, QPointF(20, 16), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QApplication::sendEvent(m_viewport, &move);
    QCOMPARE(m_viewport->camera().eye(), OrbitCamera().eye());
}

void tst_Viewport::shouldDrawNothingOverItOnOrbiting()
{
    auto *layer = new Layer;
    layer->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_area->addLayer(layer);
    QTRY_VERIFY(layer->paints > 0);
    QCoreApplication::processEvents();
    const int before = layer->paints;
    QSignalSpy frames(m_area.get(), &ViewArea::framePainted);
    for (int turn = 1; turn <= 5; ++turn) {
        drag(Qt::LeftButton);
        QTRY_COMPARE(frames.size(), turn);
    }
    QCOMPARE(layer->paints, before);
}

void tst_Viewport::shouldNameTheRenderer()
{
    QVERIFY(!m_viewport->rendererName().isEmpty());
    QVERIFY(m_area->backgroundText().contains(m_viewport->rendererName()));
}

KX_TEST_MAIN(tst_Viewport)
#include "tst_Viewport.moc"
