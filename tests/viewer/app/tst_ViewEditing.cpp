// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/ViewEditing.h"

#include "tests/support/KxTest.h"
#include "viewer/app/HelpId.h"
#include "viewer/app/OverlayLayer.h"
#include "viewer/app/UserGuide.h"
#include "viewer/app/ViewArea.h"

#include <QFile>
#include <QPainter>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTreeView>

using namespace viewer;
using QRPC::NodeId;
using QRPC::NodeList;

/// A view area over a painted backdrop, beside a tree as a module makes it. The overlays are texts
/// without a background, each in a line of its own from the top left on. The program runs once for
/// each of several densities of the display.
class tst_ViewEditing : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void cleanup() override;
    void shouldSelectInTheTree();
    void shouldOutlineWhatIsSelectedInTheTree();
    void shouldWorkWithoutATree();
    void shouldFindATreeThatIsFilledLater();
    void shouldSelectAThousandInOneChange();
    void shouldNotLayOutForOutlines();
    void shouldForgetWhatLosesItsRow();
    void shouldStayOutOfPictures();
    void shouldDragToTheMouse();
    void shouldPutADragBackWhenTheKeyboardGoes();
    void shouldPutADragBackWhenTheViewGoes();
    void shouldGiveADragUpWithItsScene();
    void shouldKeepADragOutOfTheNextScene();
    void shouldNudgeWithTheKeysOfTheView();
    void shouldClaimKeysFromShortcuts();
    void shouldShowWhatTheMouseWillDo();
    void shouldFollowTheModifierKeys();
    void shouldLetTheViewHaveItsEvents();
    void shouldBeToldOfInTheGuide();

private:
    struct Window : QWidget
    {
        Window();

        ViewArea *area;
        QStandardItemModel *model;
        QTreeView *tree;
    };

    NodeId addText(const QString &text, const QPointF &offset);
    void fillTree();
    QPoint middleOf(NodeId node) const;
    QWidget *view() const { return m_window->area->background(); }
    QImage picture() const;
    NodeList selected() const;
    void move(const QPoint &to, Qt::KeyboardModifiers modifiers = {},
              Qt::MouseButtons buttons = Qt::LeftButton);
    Qt::CursorShape shapeAt(const QPoint &place, Qt::KeyboardModifiers modifiers = {});

    std::unique_ptr<OverlayService> m_service;
    ImageCache m_images;
    std::unique_ptr<OverlayPainter> m_painter;
    std::unique_ptr<Window> m_window;
    NodeId m_first = 0;
    NodeId m_second = 0;
};

tst_ViewEditing::Window::Window()
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

void tst_ViewEditing::init()
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

void tst_ViewEditing::cleanup()
{
    m_window.reset();
    m_painter.reset();
    m_service.reset();
    KxTest::cleanup();
}

NodeId tst_ViewEditing::addText(const QString &text, const QPointF &offset)
{
    const NodeId node = m_service->createOverlay(Scene::RootId);
    m_service->setText({node}, text);
    m_service->setBackgroundTransparency({node}, Qt::white);
    m_service->setPosition({node}, {0, 1});
    m_service->setOffset({node}, offset);
    return node;
}

void tst_ViewEditing::fillTree()
{
    m_window->model->clear();
    for (const NodeId node : m_service->scene().root().children) {
        auto *item = new QStandardItem(m_service->getName(node));
        item->setData(node, Qt::UserRole + 1);
        m_window->model->appendRow(item);
    }
}

QPoint tst_ViewEditing::middleOf(NodeId node) const
{
    const ViewGeometry geometry = OverlayLayer::geometryOf(*view());
    const QPointF middle = m_painter->boxOf(node, geometry.size, geometry.dpi).center();
    return (middle / view()->devicePixelRatioF()).toPoint();
}

QImage tst_ViewEditing::picture() const
{
    return m_window->area->grab().toImage();
}

NodeList tst_ViewEditing::selected() const
{
    return NodeView(m_window->tree).selectedNodes();
}

void tst_ViewEditing::move(const QPoint &to, Qt::KeyboardModifiers modifiers,
                           Qt::MouseButtons buttons)
{
    QMouseEvent event(QEvent::MouseMove, QPointF(to), Qt::NoButton, buttons, modifiers);
    QApplication::sendEvent(view(), &event);
}

Qt::CursorShape tst_ViewEditing::shapeAt(const QPoint &place, Qt::KeyboardModifiers modifiers)
{
    move(place, modifiers, Qt::NoButton);
    return view()->cursor().shape();
}

void tst_ViewEditing::shouldSelectInTheTree()
{
    const QSignalSpy changes(m_window->tree->selectionModel(),
                             &QItemSelectionModel::selectionChanged);
    QTest::mouseClick(view(), Qt::LeftButton, {}, middleOf(m_second));
    QCOMPARE(selected(), NodeList{m_second});
    QCOMPARE(m_window->tree->currentIndex().row(), 1);
    QTest::mouseClick(view(), Qt::LeftButton, Qt::ShiftModifier, middleOf(m_first));
    QCOMPARE(selected(), (NodeList{m_second, m_first}));
    QCOMPARE(changes.size(), 2);
    QTest::mouseClick(view(), Qt::LeftButton, {}, {300, 250});
    QCOMPARE(selected(), NodeList());
}

void tst_ViewEditing::shouldOutlineWhatIsSelectedInTheTree()
{
    const QImage before = picture();
    m_window->tree->setCurrentIndex(m_window->model->index(0, 0));
    const QImage one = picture();
    QVERIFY(one != before);
    m_window->tree->selectAll();
    const QImage both = picture();
    QVERIFY(both != one);
    // It goes where the overlay goes.
    m_service->setOffset({m_second}, {40, -150});
    QVERIFY(picture() != both);
    m_service->setOffset({m_second}, {20, -70});
    QCOMPARE(picture(), both);
    m_window->tree->clearSelection();
    QCOMPARE(picture(), before);
}

void tst_ViewEditing::shouldWorkWithoutATree()
{
    delete m_window->tree;
    const QImage before = picture();
    QTest::mouseClick(view(), Qt::LeftButton, {}, middleOf(m_second));
    QVERIFY(picture() != before);
    QTest::keyClick(view(), Qt::Key_Right);
    QCOMPARE(m_service->getOffset(m_second), QPointF(21, -70));
    QCOMPARE(m_service->getOffset(m_first), QPointF(20, -20));
}

void tst_ViewEditing::shouldFindATreeThatIsFilledLater()
{
    m_window->model->clear();
    delete m_window->tree;
    m_window->tree = new QTreeView(m_window.get());
    m_window->tree->setModel(m_window->model);
    const NodeId third = addText("Third", {20, -120});
    QCoreApplication::processEvents();
    fillTree();
    addText("Fourth", {20, -160});
    QCoreApplication::processEvents();
    QTest::mouseClick(view(), Qt::LeftButton, {}, middleOf(third));
    QCOMPARE(selected(), NodeList{third});
}

void tst_ViewEditing::shouldSelectAThousandInOneChange()
{
    for (int i = 0; i < 998; ++i)
        addText("x", {20.0 + i % 30, -20.0 - i % 7});
    fillTree();
    picture();
    const int layouts = m_painter->layoutCount();
    const QSignalSpy changes(m_window->tree->selectionModel(),
                             &QItemSelectionModel::selectionChanged);
    QTest::mousePress(view(), Qt::LeftButton, Qt::ShiftModifier, {399, 299});
    move({200, 150}, Qt::ShiftModifier);
    move({1, 1}, Qt::ShiftModifier);
    picture();
    QCOMPARE(changes.size(), 0);
    QTest::mouseRelease(view(), Qt::LeftButton, Qt::ShiftModifier, {1, 1});
    picture();
    QCOMPARE(selected().size(), 1000);
    QCOMPARE(changes.size(), 1);
    QCOMPARE(m_window->tree->selectionModel()->selection().size(), 1);
    QCOMPARE(m_painter->layoutCount(), layouts);
}

void tst_ViewEditing::shouldNotLayOutForOutlines()
{
    m_window->tree->selectAll();
    picture();
    const int layouts = m_painter->layoutCount();
    QTest::mousePress(view(), Qt::LeftButton, {}, middleOf(m_first));
    for (int way = 20; way < 60; way += 10) {
        move(middleOf(m_first) + QPoint(way, way));
        picture();
    }
    QTest::mouseRelease(view(), Qt::LeftButton, {}, middleOf(m_first));
    QCOMPARE(m_painter->layoutCount(), layouts);
    m_service->setText({m_second}, "Another");
    picture();
    QCOMPARE(m_painter->layoutCount(), layouts + 1);
}

void tst_ViewEditing::shouldForgetWhatLosesItsRow()
{
    const QImage before = picture();
    m_window->tree->setCurrentIndex(m_window->model->index(0, 0));
    QVERIFY(picture() != before);
    m_window->model->removeRow(0);
    m_window->tree->clearSelection(); // the next row is selected in its place
    QCOMPARE(picture(), before);
    m_window->tree->selectAll();
    m_window->model->clear();
    QCOMPARE(picture(), before);
}

void tst_ViewEditing::shouldStayOutOfPictures()
{
    const auto painted = [this] {
        QImage image(400, 300, QImage::Format_RGB32);
        image.fill(Qt::gray);
        QPainter painter(&image);
        m_painter->paint(painter, image.size(), 96);
        return image;
    };
    const QImage before = painted();
    auto *layer = m_window->area->findChild<OverlayLayer *>();
    const QImage shown = layer->grab().toImage();
    m_window->tree->selectAll();
    QCOMPARE(painted(), before);
    QCOMPARE(layer->grab().toImage(), shown);
}

void tst_ViewEditing::shouldDragToTheMouse()
{
    const QPoint from = middleOf(m_first);
    QTest::mousePress(view(), Qt::LeftButton, {}, from);
    move(from + QPoint(30, 40), Qt::ControlModifier);
    move(from + QPoint(131, 83), Qt::ControlModifier);
    const QImage dragged = picture();
    QTest::mouseRelease(view(), Qt::LeftButton, Qt::ControlModifier, from + QPoint(131, 83));
    QVERIFY(picture() != dragged); // the read-out is gone
    const QPoint way = middleOf(m_first) - from;
    QVERIFY2((way - QPoint(131, 83)).manhattanLength() <= 1, qPrintable(QString::number(way.x())));
    // A point is 4/3 of a pixel of a display without scaling.
    QCOMPARE(m_service->getOffset(m_first), QPointF(118.25, -82.25));
    QCOMPARE(m_service->history().stack()->count(), 1);
}

void tst_ViewEditing::shouldPutADragBackWhenTheKeyboardGoes()
{
    QTest::mousePress(view(), Qt::LeftButton, {}, middleOf(m_first));
    move({200, 200});
    QVERIFY(m_service->getOffset(m_first) != QPointF(20, -20));
    m_window->tree->setFocus();
    QCOMPARE(m_service->getOffset(m_first), QPointF(20, -20));
    QTest::mouseRelease(view(), Qt::LeftButton, {}, {200, 200});
    QCOMPARE(m_service->history().stack()->count(), 0);
}

/// In a window that has been given the mouse, but not the keyboard.
void tst_ViewEditing::shouldPutADragBackWhenTheViewGoes()
{
    QWidget other;
    other.show();
    QVERIFY(becomesActive(&other));
    QTest::mousePress(view(), Qt::LeftButton, {}, middleOf(m_first));
    move({200, 200});
    QVERIFY(m_service->getOffset(m_first) != QPointF(20, -20));
    m_window->area->hide();
    QCOMPARE(m_service->getOffset(m_first), QPointF(20, -20));
}

void tst_ViewEditing::shouldGiveADragUpWithItsScene()
{
    QTest::mousePress(view(), Qt::LeftButton, {}, middleOf(m_first));
    move({200, 200});
    m_service->setScene(Scene());
    m_window->model->clear();
    move({220, 210});
    picture();
    QTest::mouseRelease(view(), Qt::LeftButton, {}, {220, 210});
    QCOMPARE(m_service->history().stack()->count(), 0);
}

void tst_ViewEditing::shouldKeepADragOutOfTheNextScene()
{
    QTest::mousePress(view(), Qt::LeftButton, {}, middleOf(m_first));
    move({200, 200});
    m_service->setScene(Scene());
    m_window->model->clear();
    m_service->createGroup(Scene::RootId);
    QCOMPARE(m_service->history().stack()->count(), 1); // rather than a part of the drag
    QTest::mouseRelease(view(), Qt::LeftButton, {}, {200, 200});
}

void tst_ViewEditing::shouldNudgeWithTheKeysOfTheView()
{
    QTest::mouseClick(view(), Qt::LeftButton, {}, middleOf(m_first));
    QVERIFY(view()->hasFocus());
    const QImage before = picture();
    QTest::keyClick(view(), Qt::Key_Left);
    QTest::keyClick(view(), Qt::Key_Up, Qt::ShiftModifier);
    QCOMPARE(m_service->getOffset(m_first), QPointF(19, -10));
    QVERIFY(picture() != before);
    QCOMPARE(m_service->history().stack()->count(), 1);
    QTest::keyClick(view(), Qt::Key_Escape);
    QCOMPARE(selected(), NodeList());
}

void tst_ViewEditing::shouldClaimKeysFromShortcuts()
{
    const auto isClaimed = [this](int key) {
        QKeyEvent event(QEvent::ShortcutOverride, key, Qt::NoModifier);
        event.ignore();
        QApplication::sendEvent(view(), &event);
        return event.isAccepted();
    };
    QVERIFY(!isClaimed(Qt::Key_Left));
    QTest::mousePress(view(), Qt::LeftButton, {}, middleOf(m_first));
    QVERIFY(isClaimed(Qt::Key_Z));
    QTest::mouseRelease(view(), Qt::LeftButton, {}, middleOf(m_first));
    QVERIFY(isClaimed(Qt::Key_Left));
    QVERIFY(isClaimed(Qt::Key_Escape));
    QVERIFY(!isClaimed(Qt::Key_Home));
}

void tst_ViewEditing::shouldShowWhatTheMouseWillDo()
{
    const QPoint empty(300, 250);
    QCOMPARE(shapeAt(empty), Qt::ArrowCursor);
    QCOMPARE(shapeAt(empty, Qt::ShiftModifier), Qt::CrossCursor);
    QCOMPARE(shapeAt(middleOf(m_first)), Qt::PointingHandCursor);
    QTest::mousePress(view(), Qt::LeftButton, {}, middleOf(m_first));
    QCOMPARE(view()->cursor().shape(), Qt::SizeAllCursor);
    QTest::mouseRelease(view(), Qt::LeftButton, {}, middleOf(m_first));
    QCOMPARE(shapeAt(middleOf(m_first)), Qt::SizeAllCursor);
    QCOMPARE(shapeAt(middleOf(m_second)), Qt::PointingHandCursor);
    QCOMPARE(shapeAt(empty), Qt::ArrowCursor);
}

void tst_ViewEditing::shouldFollowTheModifierKeys()
{
    move({300, 250}, {}, Qt::NoButton);
    view()->setFocus();
    QTest::keyPress(view(), Qt::Key_Shift);
    QCOMPARE(view()->cursor().shape(), Qt::CrossCursor);
    QTest::keyRelease(view(), Qt::Key_Shift, Qt::ShiftModifier);
    QCOMPARE(view()->cursor().shape(), Qt::ArrowCursor);
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(view(), &leave);
    QTest::keyPress(view(), Qt::Key_Shift);
    QCOMPARE(view()->cursor().shape(), Qt::ArrowCursor);
}

/// What is not for an overlay is for the background, as if nobody looked on.
void tst_ViewEditing::shouldLetTheViewHaveItsEvents()
{
    struct Behind : QObject
    {
        QVector<QEvent::Type> seen;
        bool eventFilter(QObject *, QEvent *event) override
        {
            if (event->type() >= QEvent::MouseButtonPress && event->type() <= QEvent::MouseMove)
                seen.append(event->type());
            return false;
        }
    } behind;
    // Filters that came first are asked last.
    view()->removeEventFilter(m_window->area->findChild<ViewEditing *>());
    view()->installEventFilter(&behind);
    view()->installEventFilter(m_window->area->findChild<ViewEditing *>());
    QTest::mousePress(view(), Qt::LeftButton, {}, {300, 250});
    move({320, 260});
    QTest::mouseRelease(view(), Qt::LeftButton, {}, {320, 260});
    const QVector<QEvent::Type> drag{QEvent::MouseButtonPress, QEvent::MouseMove,
                                     QEvent::MouseButtonRelease};
    QCOMPARE(behind.seen, drag);
    behind.seen.clear();
    QTest::mousePress(view(), Qt::LeftButton, {}, middleOf(m_first));
    move({320, 260});
    QTest::mouseRelease(view(), Qt::LeftButton, {}, {320, 260});
    QCOMPARE(behind.seen, QVector<QEvent::Type>());
}

void tst_ViewEditing::shouldBeToldOfInTheGuide()
{
    QFile file(UserGuide::file());
    QVERIFY(file.open(QFile::ReadOnly));
    const UserGuide guide(QString::fromUtf8(file.readAll()), QString());
    QVERIFY(guide.hasAnchor(helpIdOf(view())));
}

KX_TEST_MAIN(tst_ViewEditing)
#include "tst_ViewEditing.moc"
