// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/kxStyle.h"
#include "tests/support/KxTest.h"
#include "tests/support/RealInput.h"
#include "viewer/app/OverlayLayer.h"
#include "viewer/app/ViewerSession.h"
#include "viewer/app/Viewport.h"
#include "viewer/scene/SceneWriter.h"

#include <QTreeView>

using namespace viewer;

/// Overlays picked and moved in the view of the running viewer, with the real mouse and keys, beside
/// the tree of the plug-in. One test function, because the editor of a process is created once.
class tst_viewer_editing : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void shouldEditInTheView();

private:
    void pickAndCycle();
    void bandSeveral();
    void turnTheModel();
    void dragAndUndo();
    void snapToTheMiddle();
    void putBack();
    void nudge();

    QRPC::NodeId node(const QString &name) const;
    QPoint middleOf(const QString &name) const;
    QPointF offsetOf(const QString &name) const;
    QStringList selected() const;
    QByteArray file() const;
    int steps() const { return m_session->overlays()->history().stack()->index(); }
    void click(const QPoint &place, const QStringList &held = {});
    void drag(const QPoint &from, const QPoint &to);

    ViewerSession *m_session = nullptr;
    Viewport *m_view = nullptr;
    QTreeView *m_tree = nullptr;
    std::unique_ptr<ImageCache> m_images;
    std::unique_ptr<OverlayPainter> m_painter;
};

void tst_viewer_editing::initTestCase()
{
    QApplication::setStyle(new kxStyle);
}

QRPC::NodeId tst_viewer_editing::node(const QString &name) const
{
    QRPC::NodeId found = 0;
    m_session->overlays()->scene().forEach([&](const Node &each) {
        if (each.name == name)
            found = each.id;
    });
    return found;
}

QPoint tst_viewer_editing::middleOf(const QString &name) const
{
    const ViewGeometry geometry = OverlayLayer::geometryOf(*m_view);
    return m_painter->boxOf(node(name), geometry.size, geometry.dpi).center().toPoint();
}

QPointF tst_viewer_editing::offsetOf(const QString &name) const
{
    return m_session->overlays()->getOffset(node(name));
}

QStringList tst_viewer_editing::selected() const
{
    QStringList names;
    const QModelIndexList indexes = m_tree->selectionModel()->selectedIndexes();
    for (const QModelIndex &index : indexes)
        names.append(index.data().toString());
    return names;
}

QByteArray tst_viewer_editing::file() const
{
    QStringList warnings;
    return SceneWriter::content(m_session->overlays()->scene(), EXAMPLES "/title_sheet.json",
                                &warnings);
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
    const CommandLine line(
        {"overlay-viewer", EXAMPLES "/title_sheet.json", "--plugin", EDITOR_PLUGIN});
    ViewerSession session(line, nullptr);
    m_session = &session;
    session.start();
    m_tree = session.window()->findChild<QTreeView *>();
    m_view = session.window()->viewArea()->viewport();
    QVERIFY(m_tree);
    QVERIFY(m_view);
    QVERIFY(becomesActive(session.window()));
    m_images = std::make_unique<ImageCache>();
    m_painter = std::make_unique<OverlayPainter>(session.overlays()->scene(), *m_images);

    pickAndCycle();
    bandSeveral();
    turnTheModel();
    dragAndUndo();
    snapToTheMiddle();
    putBack();
    nudge();
    m_painter.reset();
}

void tst_viewer_editing::pickAndCycle()
{
    // The shade lies behind the title.
    for (const char *name : {"Title", "Shade", "Title"}) {
        click(middleOf("Title"));
        QTRY_COMPARE(selected(), QStringList(name));
    }
    QVERIFY(m_view->hasFocus());
    QCOMPARE(m_view->cursor().shape(), Qt::SizeAllCursor);
    click(middleOf("Draft"), {"shift"});
    QTRY_COMPARE(selected(), (QStringList{"Title", "Draft"}));
    click(middleOf("Title"), {"ctrl"});
    QTRY_COMPARE(selected(), QStringList("Draft"));
    QCOMPARE(steps(), 0);
}

void tst_viewer_editing::bandSeveral()
{
    const OrbitCamera camera = m_view->camera();
    realInput::keyDown("shift");
    drag({10, 10}, middleOf("Place") + QPoint(5, 5));
    QTRY_COMPARE(m_view->cursor().shape(), Qt::CrossCursor);
    QCOMPARE(selected(), QStringList("Draft"));
    realInput::release();
    realInput::keyUp("shift");
    QTRY_COMPARE(selected(), (QStringList{"Mark", "Studio", "Place"}));
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
    QCOMPARE(selected(), (QStringList{"Mark", "Studio", "Place"}));
    click(empty);
    QTRY_COMPARE(selected(), QStringList());
    QCOMPARE(steps(), 0);
}

void tst_viewer_editing::dragAndUndo()
{
    const QByteArray before = file();
    const QPointF offset = offsetOf("Draft");
    const QPoint from = middleOf("Draft");
    drag(from, from + QPoint(-90, 130));
    QTRY_COMPARE(selected(), QStringList("Draft"));
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
    const QRPC::NodeId draft = node("Draft");
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
    QVERIFY(m_session->overlays()->history().stack()->canRedo());
    QCOMPARE(m_view->camera().eye(), camera.eye());
}

void tst_viewer_editing::nudge()
{
    const QPointF offset = offsetOf("Draft");
    click(middleOf("Draft"));
    QTRY_COMPARE(selected(), QStringList("Draft"));
    for (const char *key : {"Left", "Left", "Up", "shift+Down"})
        realInput::key(key);
    QTRY_COMPARE(offsetOf("Draft"), offset + QPointF(-2, -9));
    QCOMPARE(steps(), 1);
    QCOMPARE(selected(), QStringList("Draft"));
    realInput::key("ctrl+z");
    QTRY_COMPARE(offsetOf("Draft"), offset);
    realInput::key("Escape");
    QTRY_COMPARE(selected(), QStringList());
}

KX_TEST_MAIN(tst_viewer_editing)
#include "tst_viewer_editing.moc"
