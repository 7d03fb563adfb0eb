// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/e2e/ViewerTest.h"
#include "tests/support/GraphicsDriver.h"
#include "tests/support/RealInput.h"
#include "tests/viewer/app/OverlayPicture.h"
#include "viewer/app/ModulePanels.h"
#include "viewer/app/Viewport.h"

#include <QDir>
#include <QDockWidget>

#include <cmath>

using namespace viewer;

/// The viewer as a user has it: real window, mouse and keys, the real plug-in file and each example.
/// The plug-in starts once in a process, so that one test function walks through all of it.
class tst_examples : public ViewerTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldShowEveryExampleAndFollowMouseAndKeys();

private:
    void showExample(const QString &file);
    void selectWithMouseAndKeys();
    void editWhatIsSelected();
    void turnTheModel();

    QModelIndexList selected() const { return tree()->selectionModel()->selectedRows(); }
};

namespace {

int rowsBelow(const QAbstractItemModel *model, const QModelIndex &parent)
{
    int rows = model->rowCount(parent);
    for (int row = 0, count = rows; row < count; ++row)
        rows += rowsBelow(model, model->index(row, 0, parent));
    return rows;
}

int nodesBelow(OverlayService *service, QRPC::NodeId parent)
{
    int nodes = service->getChildCount(parent);
    for (int row = 0, count = nodes; row < count; ++row)
        nodes += nodesBelow(service, service->getChild(parent, row));
    return nodes;
}

} // namespace

void tst_examples::shouldShowEveryExampleAndFollowMouseAndKeys()
{
    QVERIFY(start({}));
    graphicsDriver::keepLoaded();
    const QDockWidget *panel = session()->window()->modulePanels()->dock("Overlay Editor");
    QVERIFY(panel);
    QTRY_VERIFY(panel->widget()->isVisible());
    QVERIFY(panel->isAncestorOf(tree()));

    const QDir examples(QStringLiteral(EXAMPLES));
    const QStringList files = examples.entryList({"*.json"}, QDir::Files);
    QVERIFY(files.size() >= 3);
    for (const QString &file : files) {
        showExample(examples.filePath(file));
        selectWithMouseAndKeys();
        editWhatIsSelected();
        turnTheModel();
        if (QTest::currentTestFailed())
            QFAIL(qPrintable(file));
    }
}

void tst_examples::showExample(const QString &file)
{
    QVERIFY(session()->openScene(file));
    QCOMPARE(session()->window()->viewArea()->notices()->texts(), QStringList());
    OverlayService *service = session()->overlays();
    const int nodes = nodesBelow(service, service->getRootNode());
    QVERIFY(nodes > 5);
    QCOMPARE(rowsBelow(tree()->model(), {}), nodes);
    QImage nothing = overlayPicture(*session());
    const QImage shown = nothing.copy();
    nothing.fill(Qt::transparent);
    QVERIFY(shown != nothing);
}

void tst_examples::selectWithMouseAndKeys()
{
    const QModelIndex row = tree()->model()->index(1, 0);
    clickRow(row);
    QTRY_COMPARE(selected(), QModelIndexList({row}));
    const int open = tree()->model()->rowCount();
    realInput::key("ctrl+a");
    QTRY_COMPARE(selected().size(), open);
    realInput::key("ctrl+i");
    QTRY_VERIFY(!tree()->selectionModel()->isRowSelected(1, {}));
    // On another row: a second click on the same one could make a double click.
    const QModelIndex first = tree()->model()->index(0, 0);
    clickRow(first);
    QTRY_COMPARE(selected(), QModelIndexList({first}));
}

void tst_examples::editWhatIsSelected()
{
    OverlayService *service = session()->overlays();
    const QRPC::NodeId node = service->getChild(service->getRootNode(), 0);
    const bool enabled = service->isEnabled(node);
    realInput::key("ctrl+t");
    QTRY_COMPARE(service->isEnabled(node), !enabled);
    realInput::key("ctrl+t");
    QTRY_COMPARE(service->isEnabled(node), enabled);
}

void tst_examples::turnTheModel()
{
    Viewport *viewport = session()->window()->viewArea()->viewport();
    QVERIFY(viewport);
    // Through the layer of the overlays to the view below; the tree keeps its selection.
    const QPoint middle = viewport->rect().center();
    const float yaw = viewport->camera().yaw();
    realInput::startDrag(*viewport, middle, middle + QPoint(viewport->width() / 4, 0));
    QTRY_VERIFY(qAbs(std::remainder(viewport->camera().yaw() - yaw, 360.0F)) > 60);
    // The hand opens when the button is let go.
    QTRY_COMPARE(viewport->cursor().shape(), Qt::OpenHandCursor);
    QCOMPARE(selected().size(), 1);
    realInput::key("Home");
    QTRY_COMPARE(viewport->camera().eye(), OrbitCamera().eye());
}

KX_TEST_MAIN(tst_examples)
#include "tst_examples.moc"
