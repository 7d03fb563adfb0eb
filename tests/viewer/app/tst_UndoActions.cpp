// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/UndoActions.h"

#include "tests/support/KxTest.h"
#include "viewer/app/HistoryPanel.h"

#include <QAction>
#include <QLineEdit>
#include <QListView>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPointer>
#include <QSpinBox>
#include <QVBoxLayout>

#include <memory>

using namespace viewer;

class tst_UndoActions : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void cleanup() override;
    void shouldNameTheSteps();
    void shouldUndoTextFirst_data();
    void shouldUndoTextFirst();
    void shouldTakeOneDragForOneStep();
    void shouldEndAGestureWithTheFocus();
    void shouldListTheSteps();
    void shouldGoToAStepThatIsClicked();

private:
    struct Window : QMainWindow
    {
        OverlayService service;
        QRPC::NodeId node = service.createOverlay(Scene::RootId);
        QMenu *menu = menuBar()->addMenu(QStringLiteral("Edit"));
        UndoActions *actions = new UndoActions(&service, menu);

        ~Window() override { delete actions; } // while the service is there

        QAction *undo() const { return menu->actions().at(0); }
        QAction *redo() const { return menu->actions().at(1); }
        const QUndoStack &stack() { return *service.history().stack(); }
        void showWith(QWidget *widget);
    };

    std::unique_ptr<Window> m_window;
};

void tst_UndoActions::Window::showWith(QWidget *widget)
{
    setCentralWidget(widget);
    show();
    QVERIFY(QTest::qWaitForWindowActive(this));
    widget->setFocus();
}

void tst_UndoActions::init()
{
    KxTest::init();
    m_window = std::make_unique<Window>();
}

void tst_UndoActions::cleanup()
{
    m_window.reset();
    KxTest::cleanup();
}

void tst_UndoActions::shouldNameTheSteps()
{
    QCOMPARE(m_window->undo()->text(), QString("&Undo Create \"Text 1\""));
    QCOMPARE(m_window->undo()->iconText(), QString("Undo"));
    QCOMPARE(m_window->redo()->text(), QString("&Redo"));
    QVERIFY(m_window->undo()->isEnabled());
    QVERIFY(!m_window->redo()->isEnabled());
    m_window->undo()->trigger();
    QCOMPARE(m_window->service.getChildCount(Scene::RootId), 0);
    QCOMPARE(m_window->redo()->text(), QString("&Redo Create \"Text 1\""));
    QVERIFY(!m_window->undo()->isEnabled());
    m_window->redo()->trigger();
    QCOMPARE(m_window->service.getChildCount(Scene::RootId), 1);
}

void tst_UndoActions::shouldUndoTextFirst_data()
{
    QTest::addColumn<QString>("kind");
    QTest::newRow("line") << "line";
    QTest::newRow("text") << "text";
    QTest::newRow("number") << "number";
}

void tst_UndoActions::shouldUndoTextFirst()
{
    QFETCH(QString, kind);
    QWidget *field = nullptr;
    if (kind == "line")
        field = new QLineEdit;
    else if (kind == "text")
        field = new QPlainTextEdit;
    else
        field = new QSpinBox;
    m_window->showWith(field);
    QTest::keyClicks(field, "7");
    QTest::keyClick(field, Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(m_window->stack().canUndo());
    // Through the window, as a key of the user comes.
    QTest::keyClick(m_window->windowHandle(), Qt::Key_Z, Qt::ControlModifier);
    QTRY_VERIFY(!m_window->stack().canUndo());
    QTest::keyClick(m_window->windowHandle(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QVERIFY(!m_window->stack().canUndo()); // the text comes back first
}

void tst_UndoActions::shouldTakeOneDragForOneStep()
{
    auto *control = new QWidget;
    m_window->showWith(control);
    const int steps = m_window->stack().count();
    for (const int drag : {1, 2}) {
        QTest::mousePress(control, Qt::LeftButton);
        for (const int move : {10, 20, 30})
            m_window->service.setSize({m_window->node}, float(100 * drag + move));
        QTest::mouseRelease(control, Qt::LeftButton);
        // What a control sends once it learns of the release.
        m_window->service.setSize({m_window->node}, float(100 * drag));
    }
    QCOMPARE(m_window->stack().count(), steps + 2);
}

void tst_UndoActions::shouldEndAGestureWithTheFocus()
{
    auto *both = new QWidget;
    auto *layout = new QVBoxLayout(both);
    auto *first = new QLineEdit;
    auto *second = new QLineEdit;
    layout->addWidget(first);
    layout->addWidget(second);
    m_window->showWith(both);
    const int steps = m_window->stack().count();
    for (QLineEdit *field : {first, second}) {
        field->setFocus();
        m_window->service.setText({m_window->node}, QStringLiteral("a"));
        m_window->service.setText({m_window->node}, QStringLiteral("ab"));
    }
    first->setFocus();
    m_window->service.setText({m_window->node}, QStringLiteral("c"));
    QCOMPARE(m_window->stack().count(), steps + 2);
}

void tst_UndoActions::shouldListTheSteps()
{
    HistoryPanel panel(&m_window->service, nullptr);
    const auto *list = panel.findChild<QListView *>("historyList");
    QCOMPARE(list->model()->rowCount(), 2);
    QCOMPARE(list->model()->index(1, 0).data().toString(), QString("Create \"Text 1\""));
    QCOMPARE(list->currentIndex().row(), 1);
    m_window->service.history().setSaved();
    QVERIFY(!list->model()->index(1, 0).data(Qt::ToolTipRole).isNull());
    QVERIFY(list->model()->index(0, 0).data(Qt::ToolTipRole).isNull());
    m_window->service.undo();
    QCOMPARE(list->currentIndex().row(), 0);
    QVERIFY(list->model()->index(1, 0).data(Qt::ForegroundRole).isValid());
}

void tst_UndoActions::shouldGoToAStepThatIsClicked()
{
    HistoryPanel panel(&m_window->service, nullptr);
    auto *list = panel.findChild<QListView *>("historyList");
    m_window->service.setName({m_window->node}, QStringLiteral("b"));
    m_window->service.setName({m_window->node}, QStringLiteral("c"));
    panel.show();
    for (const int row : {1, 3, 0}) {
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                          list->visualRect(list->model()->index(row, 0)).center());
        QCOMPARE(m_window->stack().index(), row);
        QCOMPARE(list->currentIndex().row(), row);
    }
}

KX_TEST_MAIN(tst_UndoActions)
#include "tst_UndoActions.moc"
