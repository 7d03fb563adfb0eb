// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/e2e/ViewerTest.h"
#include "tests/support/RealInput.h"
#include "viewer/app/OverlayLayer.h"
#include "viewer/app/Viewport.h"
#include "viewer/scene/SceneWriter.h"

using namespace viewer;
using QRPC::NodeId;

/// Overlays picked and moved in the view of the running viewer, with the real mouse and keys, beside
/// the tree of the plug-in.
class tst_viewer_editing : public ViewerTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldEditInTheView();

private:
    void pickAndCycle();
    void bandSeveral();
    void turnTheModel();
    void dragAndUndo();
    void snapToTheMiddle();
    void putBack();
    void nudge();
    void workOnWhatIsPicked();

    QPoint middleOf(const QString &name) const;
    QPointF offsetOf(const QString &name) const;
    QByteArray file() const;
    int steps() const { return service().history().stack()->index(); }
    void click(const QPoint &place, const QStringList &held = {});
    void drag(const QPoint &from, const QPoint &to);

    Viewport *m_view = nullptr;
    std::unique_ptr<ImageCache> m_images;
    std::unique_ptr<OverlayPainter> m_painter;
};

QPoint tst_viewer_editing::middleOf(const QString &name) const
{
    const ViewGeometry geometry = OverlayLayer::geometryOf(*m_view);
    return m_painter->boxOf(nodeOf(name), geometry.size, geometry.dpi).center().toPoint();
}

QPointF tst_viewer_editing::offsetOf(const QString &name) const
{
    return service().getOffset(nodeOf(name));
}

QByteArray tst_viewer_editing::file() const
{
    QStringList warnings;
    return SceneWriter::content(service().scene(), EXAMPLES "/title_sheet.json", &warnings);
}

void tst_viewer_editing::click(const QPoint &place, const QStringList &held)
{
    realInput::click(*m_view, place, held);
}

/// Leaves the button down.
void tst_viewer_editing::drag(const QPoint &from, const QPoint &to)
{
    realInput::moveTo(*m_view, from);
    realInput::press();
    for (int step = 1; step <= 3; ++step) {
        realInput::moveTo(*m_view, from + (to - from) * step / 3);
        QTest::qWait(0);
    }
}

void tst_viewer_editing::shouldEditInTheView()
{
    QVERIFY(start({EXAMPLES "/title_sheet.json"}));
    m_view = session()->window()->viewArea()->viewport();
    QVERIFY(m_view);
    m_images = std::make_unique<ImageCache>();
    m_painter = std::make_unique<OverlayPainter>(service().scene(), *m_images);

    pickAndCycle();
    bandSeveral();
    turnTheModel();
    dragAndUndo();
    snapToTheMiddle();
    putBack();
    nudge();
    workOnWhatIsPicked();
    m_painter.reset();
}

void tst_viewer_editing::pickAndCycle()
{
    // The shade lies behind the title.
    for (const char *name : {"Title", "Shade", "Title"}) {
        click(middleOf("Title"));
        QTRY_COMPARE(selectedNames(), QStringList(name));
    }
    QVERIFY(m_view->hasFocus());
    QCOMPARE(m_view->cursor().shape(), Qt::SizeAllCursor);
    click(middleOf("Draft"), {"shift"});
    QTRY_COMPARE(selectedNames(), (QStringList{"Title", "Draft"}));
    click(middleOf("Title"), {"ctrl"});
    QTRY_COMPARE(selectedNames(), QStringList("Draft"));
    QCOMPARE(steps(), 0);
}

void tst_viewer_editing::bandSeveral()
{
    const OrbitCamera camera = m_view->camera();
    realInput::keyDown("shift");
    drag({10, 10}, middleOf("Place") + QPoint(5, 5));
    QTRY_COMPARE(m_view->cursor().shape(), Qt::CrossCursor);
    QCOMPARE(selectedNames(), QStringList("Draft"));
    realInput::release();
    realInput::keyUp("shift");
    QTRY_COMPARE(selectedNames(), (QStringList{"Mark", "Studio", "Place"}));
    QCOMPARE(m_view->camera().eye(), camera.eye());
}

void tst_viewer_editing::turnTheModel()
{
    const OrbitCamera camera = m_view->camera();
    const QPoint empty(m_view->width() / 2, m_view->height() / 3);
    drag(empty, empty + QPoint(60, 20));
    QTRY_VERIFY(m_view->camera().yaw() != camera.yaw());
    QCOMPARE(m_view->cursor().shape(), Qt::ClosedHandCursor);
    realInput::release();
    QTRY_COMPARE(m_view->cursor().shape(), Qt::OpenHandCursor);
    QCOMPARE(selectedNames(), (QStringList{"Mark", "Studio", "Place"}));
    click(empty);
    QTRY_COMPARE(selectedNames(), QStringList());
    QCOMPARE(steps(), 0);
}

void tst_viewer_editing::dragAndUndo()
{
    const QByteArray before = file();
    const QPointF offset = offsetOf("Draft");
    const QPoint from = middleOf("Draft");
    drag(from, from + QPoint(-90, 130));
    QTRY_COMPARE(selectedNames(), QStringList("Draft"));
    QTRY_VERIFY(offsetOf("Draft") != offset);
    QCOMPARE(steps(), 0);
    realInput::release();
    QTRY_COMPARE(steps(), 1);
    const QPoint way = middleOf("Draft") - from;
    QVERIFY2((way - QPoint(-90, 130)).manhattanLength() <= 14, "a snap is at most that far");
    realInput::key("ctrl+z");
    QTRY_COMPARE(offsetOf("Draft"), offset);
    QCOMPARE(file(), before);
    realInput::key("ctrl+shift+z");
    QTRY_VERIFY(offsetOf("Draft") != offset);
    realInput::key("ctrl+z");
    QTRY_COMPARE(file(), before);
}

void tst_viewer_editing::snapToTheMiddle()
{
    const double middle = m_view->width() / 2.0;
    const QPoint from = middleOf("Draft");
    drag(from, {int(middle) + 3, m_view->height() / 4});
    const QRPC::NodeId draft = nodeOf("Draft");
    const ViewGeometry geometry = OverlayLayer::geometryOf(*m_view);
    const auto miss = [&] {
        return qAbs(m_painter->boxOf(draft, geometry.size, geometry.dpi).center().x() - middle);
    };
    QTRY_VERIFY(miss() < 0.05);
    realInput::keyDown("ctrl");
    QTRY_VERIFY(miss() > 2.0);
    realInput::release();
    realInput::keyUp("ctrl");
    QTRY_COMPARE(steps(), 1);
    realInput::key("ctrl+z");
    QTRY_COMPARE(steps(), 0);
}

void tst_viewer_editing::putBack()
{
    const QByteArray before = file();
    const QPointF offset = offsetOf("Draft");
    const QPoint from = middleOf("Draft");
    const OrbitCamera camera = m_view->camera();
    drag(from, from + QPoint(-50, 60));
    QTRY_VERIFY(offsetOf("Draft") != offset);
    realInput::key("Escape");
    QTRY_COMPARE(offsetOf("Draft"), offset);
    realInput::moveTo(*m_view, from + QPoint(-80, 90));
    realInput::release();
    QTRY_COMPARE(QGuiApplication::mouseButtons(), Qt::NoButton);
    QCOMPARE(file(), before);
    QCOMPARE(steps(), 0);
    QVERIFY(service().history().stack()->canRedo());
    QCOMPARE(m_view->camera().eye(), camera.eye());
}

void tst_viewer_editing::nudge()
{
    const QPointF offset = offsetOf("Draft");
    click(middleOf("Draft"));
    QTRY_COMPARE(selectedNames(), QStringList("Draft"));
    for (const char *key : {"Left", "Left", "Up", "shift+Down"})
        realInput::key(key);
    QTRY_COMPARE(offsetOf("Draft"), offset + QPointF(-2, -9));
    QCOMPARE(steps(), 1);
    QCOMPARE(selectedNames(), QStringList("Draft"));
    realInput::key("ctrl+z");
    QTRY_COMPARE(offsetOf("Draft"), offset);
    realInput::key("Escape");
    QTRY_COMPARE(selectedNames(), QStringList());
}

/// The keys of the tree and of its moves, without going there.
void tst_viewer_editing::workOnWhatIsPicked()
{
    const QStringList rows = topRows();
    click(middleOf("Draft"));
    QTRY_COMPARE(selectedNames(), QStringList("Draft"));
    realInput::key("alt+Up");
    QTRY_COMPARE(topRows().indexOf("Draft"), rows.indexOf("Draft") - 1);
    QCOMPARE(selectedNames(), QStringList("Draft"));
    realInput::key("ctrl+d");
    QTRY_COMPARE(selectedNames(), QStringList("Draft Copy"));
    realInput::key("Delete");
    QTRY_COMPARE(nodeOf("Draft Copy"), NodeId(0));
    QVERIFY(m_view->hasFocus());
    QCOMPARE(steps(), 3);
}

KX_TEST_MAIN(tst_viewer_editing)
#include "tst_viewer_editing.moc"
