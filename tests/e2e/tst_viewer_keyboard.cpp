// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/QKXCollapsibleFrame.h"
#include "host/QKXSearchBox.h"
#include "tests/e2e/ViewerTest.h"
#include "tests/support/RealInput.h"

#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QScrollArea>
#include <QSpinBox>

/// A scene built and rearranged with the keyboard alone. After each step tree and service are the
/// same, and a picture of the screen is left in the build folder to look at.
class tst_viewer_keyboard : public ViewerTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldDoItAllByKeyboard();

private:
    void reachTheTree();
    void createFromTheMenu();
    void rename();
    void keepKeysInTheNameEditor();
    void group();
    void reorder();
    void search();
    void remove();
    void walkThroughThePanel();

    QWidget *step(const char *key, const QWidget *from);
    static bool showsItsFocus(QWidget *control);
    void choose(int entry);
    void check(const QString &step, const QString &tree);
    QString shown(const QModelIndex &parent = {}) const;
    QString stored(QRPC::NodeId parent) const;
};

QString tst_viewer_keyboard::shown(const QModelIndex &parent) const
{
    QStringList parts;
    for (int row = 0; row < tree()->model()->rowCount(parent); ++row) {
        const QModelIndex index = tree()->model()->index(row, 0, parent);
        const QString below = shown(index);
        parts << index.data().toString() + (below.isEmpty() ? QString() : '(' + below + ')');
    }
    return parts.join(' ');
}

QString tst_viewer_keyboard::stored(QRPC::NodeId parent) const
{
    QStringList parts;
    for (int row = 0; row < service().getChildCount(parent); ++row) {
        const QRPC::NodeId node = service().getChild(parent, row);
        const QString below = stored(node);
        parts << service().getName(node) + (below.isEmpty() ? QString() : '(' + below + ')');
    }
    return parts.join(' ');
}

void tst_viewer_keyboard::check(const QString &step, const QString &tree)
{
    QTRY_COMPARE(shown(), tree);
    QCOMPARE(stored(service().getRootNode()), tree);
    photograph(step);
}

void tst_viewer_keyboard::shouldDoItAllByKeyboard()
{
    QVERIFY(start({}));
    reachTheTree();
    createFromTheMenu();
    rename();
    keepKeysInTheNameEditor();
    group();
    reorder();
    search();
    remove();
    walkThroughThePanel();
}

/// The window gives the keyboard to its view; the first control behind it is the search box.
void tst_viewer_keyboard::reachTheTree()
{
    QWidget *view = session()->window()->viewArea()->background();
    QTRY_COMPARE(QApplication::focusWidget(), view);
    QVERIFY(qobject_cast<QKXSearchBox *>(step("Tab", view)));
    QCOMPARE(step("Tab", QApplication::focusWidget()), tree());
}

/// Opens the menu of the tree by its key and goes down to an entry, counted from 1.
void tst_viewer_keyboard::choose(int entry)
{
    realInput::key("Menu");
    // The menu runs in an event loop of its own, out of which the next keys are sent.
    for (int i = 0; i < entry; ++i)
        realInput::key("Down");
    realInput::key("Return");
    QTRY_VERIFY(!QApplication::activePopupWidget());
}

void tst_viewer_keyboard::createFromTheMenu()
{
    choose(1);
    check("created", "Text 1");
    QVERIFY(tree()->hasFocus());
    choose(1);
    check("created-another", "Text 1 Text 2");
    QCOMPARE(tree()->selectionModel()->selectedRows().size(), 1);
}

void tst_viewer_keyboard::rename()
{
    realInput::key("ctrl+r");
    QTRY_VERIFY(qobject_cast<QLineEdit *>(QApplication::focusWidget()));
    realInput::type("Gate");
    realInput::key("Return");
    check("renamed", "Text 1 Gate");
    QTRY_VERIFY(tree()->hasFocus());
}

void tst_viewer_keyboard::keepKeysInTheNameEditor()
{
    realInput::key("ctrl+r");
    QTRY_VERIFY(qobject_cast<QLineEdit *>(QApplication::focusWidget()));
    realInput::type("Door");
    for (const char *key : {"ctrl+d", "ctrl+t", "ctrl+g", "ctrl+i", "Delete", "ctrl+f"})
        realInput::key(key);
    auto *editor = qobject_cast<QLineEdit *>(QApplication::focusWidget());
    QTRY_COMPARE(editor->text(), QString("Door"));
    realInput::key("Escape");
    QTRY_VERIFY(tree()->hasFocus());
    check("name-editor-left", "Text 1 Gate");
    const QModelIndex gate = tree()->model()->index(1, 0);
    QCOMPARE(gate.data(Qt::CheckStateRole).toInt(), int(Qt::Checked));
}

void tst_viewer_keyboard::group()
{
    realInput::key("ctrl+a");
    QTRY_COMPARE(tree()->selectionModel()->selectedRows().size(), 2);
    realInput::key("ctrl+shift+g");
    check("grouped", "Group 1(Text 1 Gate)");
    realInput::key("ctrl+g");
    check("group-in-group", "Group 1(Text 1 Gate Group 2)");
}

void tst_viewer_keyboard::reorder()
{
    realInput::key("alt+Left");
    check("moved-out", "Group 1(Text 1 Gate) Group 2");
    realInput::key("alt+Up");
    check("moved-up", "Group 2 Group 1(Text 1 Gate)");
    realInput::key("alt+Down");
    check("moved-down", "Group 1(Text 1 Gate) Group 2");
    realInput::key("alt+Right");
    check("moved-in", "Group 1(Text 1 Gate Group 2)");
}

void tst_viewer_keyboard::search()
{
    realInput::key("ctrl+f");
    QTRY_VERIFY(qobject_cast<QLineEdit *>(QApplication::focusWidget()));
    realInput::type("Gate");
    const auto *guide = session()->window()->findChild<QLabel *>("searchGuide");
    QTRY_COMPARE(guide->text(), QString("1 found\n1 selected, but hidden by the search"));
    check("searched", "Group 1(Text 1 Gate Group 2)");
    realInput::key("Down");
    QTRY_VERIFY(tree()->hasFocus());
    realInput::key("ctrl+f");
    QTRY_VERIFY(!tree()->hasFocus());
    realInput::key("Escape");
    QTRY_VERIFY(!guide->isVisible());
    realInput::key("Down");
    QTRY_VERIFY(tree()->hasFocus());
}

void tst_viewer_keyboard::remove()
{
    realInput::key("Delete");
    check("deleted", "Group 1(Text 1 Gate)");
    realInput::key("Home");
    realInput::key("Down");
    QTRY_COMPARE(tree()->currentIndex().data().toString(), QString("Text 1"));
}

/// From the tree Tab goes to the first header of the panel and down to its last control, then to the
/// search box and back to the tree; Shift+Tab goes the same way back. Each control shows that it has
/// the focus.
void tst_viewer_keyboard::walkThroughThePanel()
{
    const auto *panel = session()->window()->findChild<QScrollArea *>("_property_scrollArea");
    const auto *frame = panel->findChild<QKXCollapsibleFrame *>("_property_frame");
    QVector<QWidget *> path{tree()};
    int lastTop = -1;
    do {
        QWidget *control = step("Tab", path.constLast());
        if (!control || path.size() > 40)
            QFAIL("Tab does not come out of the panel.");
        path.append(control);
        if (!panel->isAncestorOf(control))
            break;
        const int top = control->mapTo(panel, QPoint()).y() - panel->widget()->y();
        QVERIFY2(top + control->height() > lastTop, qPrintable(control->objectName()));
        lastTop = top;
        QVERIFY2(showsItsFocus(control), qPrintable(control->objectName()));
    } while (true);
    QCOMPARE(path.at(1)->parentWidget(), frame);
    QVERIFY2(path.size() > 12, qPrintable(QString::number(path.size())));
    QVERIFY(qobject_cast<QKXSearchBox *>(path.constLast()));
    QCOMPARE(step("Tab", path.constLast()), tree());
    QWidget *from = tree();
    for (auto control = path.crbegin(); control != path.crend(); ++control) {
        from = step("shift+Tab", from);
        QCOMPARE(from, *control);
    }
    check("walked-through", "Group 1(Text 1 Gate)");
}

/// Where a key leads from a control; null where it leads nowhere.
QWidget *tst_viewer_keyboard::step(const char *key, const QWidget *from)
{
    realInput::key(key);
    const bool moved = QTest::qWaitFor([from] { return QApplication::focusWidget() != from; });
    return moved ? QApplication::focusWidget() : nullptr;
}

bool tst_viewer_keyboard::showsItsFocus(QWidget *control)
{
    QCoreApplication::processEvents();
    const QImage focused = control->grab().toImage();
    control->clearFocus();
    const QImage plain = control->grab().toImage();
    control->setFocus(Qt::TabFocusReason);
    return focused != plain;
}

KX_TEST_MAIN(tst_viewer_keyboard)
#include "tst_viewer_keyboard.moc"
