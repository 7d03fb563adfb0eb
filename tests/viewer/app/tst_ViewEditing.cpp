// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/viewer/app/ViewEditingTest.h"
#include "viewer/app/HelpId.h"
#include "viewer/app/OverlayLayer.h"
#include "viewer/app/UserGuide.h"

#include <QFile>
#include <QPainter>
#include <QSignalSpy>

using namespace viewer;
using QRPC::NodeId;
using QRPC::NodeList;

/// What the mouse selects, moves and shows, and what is drawn of the selection.
class tst_ViewEditing : public ViewEditingTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldSelectInTheTree();
    void shouldOutlineWhatIsSelectedInTheTree();
    void shouldWorkWithoutATree();
    void shouldFindATreeThatIsFilledLater();
    void shouldGoOnFromWhatIsNew();
    void shouldSelectAThousandInOneChange();
    void shouldNotLayOutForOutlines();
    void shouldForgetWhatLosesItsRow();
    void shouldStayOutOfPictures();
    void shouldDragToTheMouse();
    void shouldPutADragBackWhenTheViewGoes();
    void shouldGiveADragUpWithItsScene();
    void shouldKeepADragOutOfTheNextScene();
    void shouldShowWhatTheMouseWillDo();
    void shouldLetTheViewHaveItsEvents();
    void shouldBeToldOfInTheGuide();
};

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

/// A module selects what was created, and the keys of its tree would go on from elsewhere.
void tst_ViewEditing::shouldGoOnFromWhatIsNew()
{
    m_window->tree->setCurrentIndex(m_window->model->index(0, 0));
    addText("Third", {20, -120});
    fillTree();
    m_window->tree->setCurrentIndex(m_window->model->index(0, 0));
    QItemSelectionModel *selection = m_window->tree->selectionModel();
    selection->select(m_window->model->index(2, 0), QItemSelectionModel::ClearAndSelect);
    QCoreApplication::processEvents();
    QCOMPARE(m_window->tree->currentIndex().row(), 2);
    QCOMPARE(selected().size(), 1);
    // One that is selected stays.
    m_window->tree->selectAll();
    m_service->createOverlay(Scene::RootId);
    QCoreApplication::processEvents();
    QCOMPARE(m_window->tree->currentIndex().row(), 2);
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
