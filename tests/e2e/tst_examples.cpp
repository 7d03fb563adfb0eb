// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/support/GraphicsDriver.h"
#include "tests/support/KxTest.h"
#include "tests/support/RealInput.h"
#include "tests/viewer/app/OverlayPicture.h"
#include "viewer/app/ModulePanels.h"
#include "viewer/app/ViewerSession.h"
#include "viewer/app/Viewport.h"

#include <QDir>
#include <QDockWidget>
#include <QTreeView>

#include <cmath>

using namespace viewer;

/// The viewer as a user has it: real window, mouse and keys, the real plug-in file and each example.
/// The plug-in starts once in a process, so that one test function walks through all of it.
class tst_examples : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldShowEveryExampleAndFollowMouseAndKeys();

private:
    void showExample(const QString &file);
    void selectWithMouseAndKeys();
    void editWhatIsSelected();
    void turnTheModel();

    QModelIndexList selected() const { return m_tree->selectionModel()->selectedRows(); }

    ViewerSession *m_session = nullptr;
    QTreeView *m_tree = nullptr;
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
    ViewerSession session(CommandLine({"overlay-viewer", "--plugin", EDITOR_PLUGIN}), nullptr);
    m_session = &session;
    session.start();
    QVERIFY(becomesActive(session.window()));
    graphicsDriver::keepLoaded();
    const QDockWidget *panel = session.window()->modulePanels()->dock("Overlay Editor");
    QVERIFY(panel);
    QTRY_VERIFY(panel->widget()->isVisible());
    m_tree = panel->findChild<QTreeView *>();
    QVERIFY(m_tree);

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
    QVERIFY(m_session->openScene(file));
    QCOMPARE(m_session->window()->viewArea()->notices()->texts(), QStringList());
    OverlayService *service = m_session->overlays();
    const int nodes = nodesBelow(service, service->getRootNode());
    QVERIFY(nodes > 5);
    QCOMPARE(rowsBelow(m_tree->model(), {}), nodes);
    QImage nothing = overlayPicture(*m_session);
    const QImage shown = nothing.copy();
    nothing.fill(Qt::transparent);
    QVERIFY(shown != nothing);
}

void tst_examples::selectWithMouseAndKeys()
{
    const QModelIndex row = m_tree->model()->index(1, 0);
    realInput::click(*m_tree->viewport(), m_tree->visualRect(row).center());
    QTRY_COMPARE(selected(), QModelIndexList({row}));
    const int open = m_tree->model()->rowCount();
    realInput::key("ctrl+a");
    QTRY_COMPARE(selected().size(), open);
    realInput::key("ctrl+i");
    QTRY_VERIFY(!m_tree->selectionModel()->isRowSelected(1, {}));
    // On another row: a second click on the same one could make a double click.
    const QModelIndex first = m_tree->model()->index(0, 0);
    realInput::click(*m_tree->viewport(), m_tree->visualRect(first).center());
    QTRY_COMPARE(selected(), QModelIndexList({first}));
}

void tst_examples::editWhatIsSelected()
{
    OverlayService *service = m_session->overlays();
    const QRPC::NodeId node = service->getChild(service->getRootNode(), 0);
    const bool enabled = service->isEnabled(node);
    realInput::key("ctrl+t");
    QTRY_COMPARE(service->isEnabled(node), !enabled);
    realInput::key("ctrl+t");
    QTRY_COMPARE(service->isEnabled(node), enabled);
}

void tst_examples::turnTheModel()
{
    Viewport *viewport = m_session->window()->viewArea()->viewport();
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
