// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/ClipboardActions.h"

#include "tests/support/KxTest.h"
#include "tests/viewer/scene/SceneText.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QStandardItemModel>
#include <QTreeView>
#include <QVBoxLayout>

using namespace viewer;

class tst_ClipboardActions : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void cleanup() override;
    void shouldActOnTheTree();
    void shouldActOnTextInATextField_data();
    void shouldActOnTextInATextField();
    void shouldActOnTheSelectionOfTheViewFromElsewhere();
    void shouldActOnTheTreeThatHasTheFocus();
    void shouldActOnWhatHadTheFocusBeforeTheMenu();
    void shouldPasteWhereThereIsNothingYet();
    void shouldStandInTheMenuAsTheyAre_data();
    void shouldStandInTheMenuAsTheyAre();
    void shouldAnswerTheirKeysWhateverTheMenuShowed();

private:
    /// A window like the viewer's: a module's tree, fields, and something else.
    struct Window : QMainWindow
    {
        Window();
        ~Window() override { delete actions; } // while the service is there

        /// Makes the rows of the tree those of the root's children.
        void fillTree();
        void focusOn(QWidget *widget);
        void select(const QString &name);
        void press(Qt::Key key) { QTest::keyClick(windowHandle(), key, Qt::ControlModifier); }
        QString dump() const { return scenetext::dump(service.scene()); }

        /// Which of the entries cut, copy and paste can be used once the menu is open.
        QString entries();

        OverlayService service;
        SceneClipboard clipboard{&service};
        EditFocus focus;
        ViewSelection selection{this, &service};
        QMenu *menu = menuBar()->addMenu(QStringLiteral("Edit"));
        ClipboardActions *actions = new ClipboardActions(&clipboard, &focus, &selection, menu);
        QStandardItemModel rows;
        QTreeView *tree = new QTreeView;
        QLineEdit *line = new QLineEdit;
        QPlainTextEdit *text = new QPlainTextEdit;
        QSpinBox *number = new QSpinBox;
        QPushButton *button = new QPushButton;
    };

    std::unique_ptr<Window> m_window;
};

tst_ClipboardActions::Window::Window()
{
    auto *content = new QWidget;
    auto *layout = new QVBoxLayout(content);
    const QWidgetList parts{tree, line, text, number, button};
    for (QWidget *part : parts)
        layout->addWidget(part);
    setCentralWidget(content);
    tree->setModel(&rows);
    tree->setSelectionMode(QAbstractItemView::ExtendedSelection);
    service.setScene(scenetext::build("a b"));
    fillTree();
}

void tst_ClipboardActions::Window::fillTree()
{
    rows.clear();
    for (int row = 0; row < service.getChildCount(Scene::RootId); ++row) {
        const QRPC::NodeId node = service.getChild(Scene::RootId, row);
        auto *item = new QStandardItem(service.getName(node));
        item->setData(node, Qt::UserRole + 1);
        rows.appendRow(item);
    }
}

void tst_ClipboardActions::Window::focusOn(QWidget *widget)
{
    widget->setFocus();
    QTRY_COMPARE(QApplication::focusWidget(), widget);
}

void tst_ClipboardActions::Window::select(const QString &name)
{
    const QList<QStandardItem *> found = rows.findItems(name);
    tree->selectionModel()->select(found.value(0) ? found.first()->index() : QModelIndex(),
                                   QItemSelectionModel::ClearAndSelect);
}

QString tst_ClipboardActions::Window::entries()
{
    QStringList usable;
    emit menu->aboutToShow();
    for (const char *name : {"cut", "copy", "paste"}) {
        if (menu->findChild<QAction *>(name)->isEnabled())
            usable.append(name);
    }
    emit menu->aboutToHide();
    return usable.join(' ');
}

void tst_ClipboardActions::init()
{
    KxTest::init();
    QApplication::clipboard()->clear();
    m_window = std::make_unique<Window>();
    QCoreApplication::processEvents(); // the selection of the view finds the tree
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void tst_ClipboardActions::cleanup()
{
    m_window.reset();
    KxTest::cleanup();
}

void tst_ClipboardActions::shouldActOnTheTree()
{
    m_window->focusOn(m_window->tree);
    m_window->select("a");
    m_window->press(Qt::Key_C);
    m_window->press(Qt::Key_V);
    QCOMPARE(m_window->dump(), QString("a a b"));
    m_window->select("b");
    m_window->press(Qt::Key_X);
    QCOMPARE(m_window->dump(), QString("a a"));
}

void tst_ClipboardActions::shouldActOnTextInATextField_data()
{
    QTest::addColumn<QString>("field");
    QTest::newRow("line") << "line";
    QTest::newRow("text") << "text";
    QTest::newRow("number") << "number";
}

void tst_ClipboardActions::shouldActOnTextInATextField()
{
    QFETCH(QString, field);
    m_window->select("a");
    QWidget *widget = field == "line"   ? static_cast<QWidget *>(m_window->line)
                      : field == "text" ? static_cast<QWidget *>(m_window->text)
                                        : m_window->number;
    m_window->focusOn(widget);
    QTest::keyClick(widget, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(widget, "7");
    for (const bool byKey : {true, false}) {
        const auto command = [&](const char *name, Qt::Key key) {
            if (byKey)
                m_window->press(key);
            else
                m_window->findChild<QAction *>(name)->trigger();
        };
        QTest::keyClick(widget, Qt::Key_A, Qt::ControlModifier);
        QApplication::clipboard()->clear();
        command("copy", Qt::Key_C);
        QCOMPARE(QApplication::clipboard()->text(), QString("7"));
        command("cut", Qt::Key_X);
        QTest::keyClick(widget, Qt::Key_A, Qt::ControlModifier);
        QApplication::clipboard()->setText("8");
        command("copy", Qt::Key_C);
        QCOMPARE(QApplication::clipboard()->text(), QString("8")); // there is nothing any more
        command("paste", Qt::Key_V);
        QTest::keyClick(widget, Qt::Key_A, Qt::ControlModifier);
        QApplication::clipboard()->clear();
        command("copy", Qt::Key_C);
        QCOMPARE(QApplication::clipboard()->text(), QString("8"));
        QTest::keyClicks(widget, "7");
    }
    QCOMPARE(m_window->dump(), QString("a b"));
}

void tst_ClipboardActions::shouldActOnTheSelectionOfTheViewFromElsewhere()
{
    m_window->select("a");
    m_window->focusOn(m_window->button);
    m_window->press(Qt::Key_C);
    m_window->press(Qt::Key_V);
    QCOMPARE(m_window->dump(), QString("a a b"));
}

void tst_ClipboardActions::shouldActOnTheTreeThatHasTheFocus()
{
    QTreeView other;
    other.setModel(&m_window->rows);
    m_window->centralWidget()->layout()->addWidget(&other);
    m_window->select("a");
    m_window->focusOn(&other);
    other.setCurrentIndex(m_window->rows.index(1, 0));
    m_window->press(Qt::Key_X);
    QCOMPARE(m_window->dump(), QString("a"));
}

void tst_ClipboardActions::shouldActOnWhatHadTheFocusBeforeTheMenu()
{
    m_window->focusOn(m_window->text);
    QTest::keyClicks(m_window->text, "7");
    m_window->text->selectAll();
    m_window->focusOn(m_window->menuBar());
    m_window->menu->findChild<QAction *>("copy")->trigger();
    QCOMPARE(QApplication::clipboard()->text(), QString("7"));
}

void tst_ClipboardActions::shouldPasteWhereThereIsNothingYet()
{
    m_window->select("a");
    m_window->press(Qt::Key_C);
    m_window->service.setScene(Scene());
    m_window->fillTree();
    m_window->focusOn(m_window->tree);
    m_window->press(Qt::Key_V);
    QCOMPARE(m_window->dump(), QString("a"));
}

void tst_ClipboardActions::shouldStandInTheMenuAsTheyAre_data()
{
    QTest::addColumn<QString>("focus");
    QTest::addColumn<QString>("selected");
    QTest::addColumn<QString>("clipboard");
    QTest::addColumn<QString>("entries");
    QTest::newRow("nothing selected") << "tree"
                                      << ""
                                      << "words"
                                      << "paste";
    QTest::newRow("nothing at all") << "tree"
                                    << ""
                                    << ""
                                    << "";
    QTest::newRow("selected") << "tree"
                              << "a"
                              << ""
                              << "cut copy";
    QTest::newRow("from elsewhere") << "button"
                                    << "a"
                                    << "words"
                                    << "cut copy paste";
    QTest::newRow("text") << "line"
                          << "a"
                          << "words"
                          << "paste";
    QTest::newRow("selected text") << "selected line"
                                   << ""
                                   << ""
                                   << "cut copy";
    QTest::newRow("text for reading") << "selected read-only line"
                                      << "a"
                                      << "words"
                                      << "copy";
}

void tst_ClipboardActions::shouldStandInTheMenuAsTheyAre()
{
    QFETCH(QString, focus);
    QFETCH(QString, selected);
    QFETCH(QString, clipboard);
    QTest::keyClicks(m_window->line, "text");
    m_window->line->setReadOnly(focus.contains("read-only"));
    m_window->focusOn(focus == "tree"     ? static_cast<QWidget *>(m_window->tree)
                      : focus == "button" ? static_cast<QWidget *>(m_window->button)
                                          : m_window->line);
    if (focus.startsWith("selected"))
        m_window->line->selectAll();
    else
        m_window->line->deselect();
    m_window->select(selected);
    if (!clipboard.isEmpty())
        QApplication::clipboard()->setText(clipboard);
    QTEST(m_window->entries(), "entries");
}

void tst_ClipboardActions::shouldAnswerTheirKeysWhateverTheMenuShowed()
{
    m_window->focusOn(m_window->tree);
    QCOMPARE(m_window->entries(), QString());
    m_window->select("a");
    m_window->press(Qt::Key_C);
    m_window->press(Qt::Key_V);
    QCOMPARE(m_window->dump(), QString("a a b"));
}

KX_TEST_MAIN(tst_ClipboardActions)
#include "tst_ClipboardActions.moc"
