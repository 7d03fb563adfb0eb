// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/kxShortcut.h"
#include "tests/e2e/ViewerTest.h"
#include "tests/support/RealDrag.h"
#include "tests/support/RealInput.h"

#include <QDialog>
#include <QLineEdit>
#include <QMenu>
#include <QTreeWidget>

/// Nodes rearranged in the running viewer, by keys and by mouse, with the plug-in's tree and the
/// viewer's own service.
class tst_viewer_reorder : public ViewerTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldRearrangeTheScene();

private:
    void moveByKey();
    void moveFromTheMenu();
    void leaveTheKeysToOthers();
    void dragRows();
    void listShortcuts();

    void click(const QString &name, const QStringList &held = {});
    void drag(const QString &name, const QString &onto);
    QString treeOf(const QModelIndex &parent) const;
    QString sceneOf(QRPC::NodeId parent) const;
    QString difference() const;
};

void tst_viewer_reorder::click(const QString &name, const QStringList &held)
{
    clickRow(rowOf(name), held);
    QTRY_VERIFY(selectedNames().contains(name));
}

void tst_viewer_reorder::drag(const QString &name, const QString &onto)
{
    RealDrag drag(tree()->viewport(), [=] { return tree()->visualRect(rowOf(onto)).center(); });
    const QRect row = tree()->visualRect(rowOf(name));
    QVERIFY(drag.runFrom(tree()->viewport(), QPoint(row.left() + 30, row.center().y())));
    QCoreApplication::processEvents();
    QCOMPARE(difference(), QString());
}

QString tst_viewer_reorder::treeOf(const QModelIndex &parent) const
{
    QString line;
    for (int row = 0; row < tree()->model()->rowCount(parent); ++row) {
        const QModelIndex index = tree()->model()->index(row, 0, parent);
        line += QString("%1 %2 %3 %4(%5)")
                    .arg(index.data(Qt::UserRole + 1).toUInt())
                    .arg(index.data().toString())
                    .arg(index.data(Qt::CheckStateRole).toInt() == Qt::Checked)
                    .arg(index.data(Qt::UserRole + 2).toBool())
                    .arg(treeOf(index));
    }
    return line;
}

QString tst_viewer_reorder::sceneOf(QRPC::NodeId parent) const
{
    QString line;
    for (int row = 0; row < service().getChildCount(parent); ++row) {
        const QRPC::NodeId node = service().getChild(parent, row);
        line += QString("%1 %2 %3 %4(%5)")
                    .arg(node)
                    .arg(service().getName(node))
                    .arg(service().isEnabled(node))
                    .arg(service().isActive(node))
                    .arg(sceneOf(node));
    }
    return line;
}

/// Both trees, where they are not the same.
QString tst_viewer_reorder::difference() const
{
    const QString shown = treeOf(QModelIndex());
    const QString wanted = sceneOf(service().getRootNode());
    return shown == wanted ? QString() : shown + '\n' + wanted;
}

void tst_viewer_reorder::shouldRearrangeTheScene()
{
    QVERIFY(start({EXAMPLES "/title_sheet.json"}));
    QCOMPARE(session()->window()->viewArea()->notices()->texts(), QStringList());

    moveByKey();
    moveFromTheMenu();
    leaveTheKeysToOthers();
    dragRows();
    listShortcuts();
}

void tst_viewer_reorder::moveByKey()
{
    QCOMPARE(topRows(), (QStringList{"Shade", "Heading", "Credits", "Brand", "Draft", "Guides"}));
    click("Draft");
    realInput::key("alt+Up");
    QTRY_COMPARE(topRows().indexOf("Draft"), 3);
    realInput::key("alt+Up");
    QTRY_COMPARE(topRows().indexOf("Draft"), 2);
    QCOMPARE(selectedNames(), QStringList{"Draft"});
    QCOMPARE(tree()->currentIndex(), rowOf("Draft"));
    realInput::key("alt+Down");
    QTRY_COMPARE(topRows().indexOf("Draft"), 3);
    QCOMPARE(difference(), QString());

    // Credits stands above it and takes it in; the selection goes with it.
    tree()->expand(rowOf("Heading"));
    realInput::key("alt+Right");
    QTRY_COMPARE(rowOf("Draft").parent(), rowOf("Credits"));
    QCOMPARE(selectedNames(), QStringList{"Draft"});
    QVERIFY(tree()->isExpanded(rowOf("Credits")));
    realInput::key("alt+Left");
    QTRY_COMPARE(rowOf("Draft").parent(), QModelIndex());
    QCOMPARE(topRows(), (QStringList{"Shade", "Heading", "Credits", "Draft", "Brand", "Guides"}));
    QCOMPARE(selectedNames(), QStringList{"Draft"});
    QCOMPARE(difference(), QString());
}

void tst_viewer_reorder::moveFromTheMenu()
{
    click("Shade");
    click("Draft", {"ctrl"});
    realInput::key("alt+e");
    QTRY_VERIFY(QApplication::activePopupWidget());
    realInput::key("d");
    QTRY_COMPARE(topRows(),
                 (QStringList{"Heading", "Credits", "Brand", "Shade", "Draft", "Guides"}));
    QCOMPARE(selectedNames(), (QStringList{"Shade", "Draft"}));
    QCOMPARE(difference(), QString());
}

/// The same keys mean other things in other widgets.
void tst_viewer_reorder::leaveTheKeysToOthers()
{
    const auto *up = session()->window()->findChild<QAction *>("moveUp");
    QVERIFY(up->isEnabled());
    realInput::key("ctrl+f");
    QTRY_VERIFY(qobject_cast<QLineEdit *>(QApplication::focusWidget()));
    QVERIFY(!up->isEnabled());
    realInput::key("Down");
    QTRY_COMPARE(QApplication::focusWidget(), static_cast<QWidget *>(tree()));
    QVERIFY(up->isEnabled());
    realInput::key("ctrl+r");
    QTRY_VERIFY(qobject_cast<QLineEdit *>(QApplication::focusWidget()));
    QVERIFY(!up->isEnabled());
    const QStringList before = topRows();
    realInput::key("alt+Up");
    realInput::key("Escape");
    QTRY_COMPARE(QApplication::focusWidget(), static_cast<QWidget *>(tree()));
    QCOMPARE(topRows(), before);
}

void tst_viewer_reorder::dragRows()
{
    click("Shade");
    drag("Shade", "Credits");
    QCOMPARE(rowOf("Shade").parent(), rowOf("Credits"));
    QCOMPARE(selectedNames(), QStringList{"Shade"});
    click("Guides");
    click("Brand", {"ctrl"});
    drag("Brand", "Heading");
    QCOMPARE(rowOf("Brand").parent(), rowOf("Heading"));
    QCOMPARE(rowOf("Guides").parent(), rowOf("Heading"));
    click("Credits");
    drag("Credits", "Heading");
    tree()->expandAll();
    QCOMPARE(difference(), QString());
}

void tst_viewer_reorder::listShortcuts()
{
    session()->window()->findChild<QAction *>("keyboardShortcutsEntry")->trigger();
    auto *dialog = session()->window()->findChild<QDialog *>("keyboardShortcuts");
    QVERIFY(dialog);
    QVERIFY(becomesActive(dialog));
    QCOMPARE(QApplication::focusWidget(), dialog->findChild<QLineEdit *>());
    auto *list = dialog->findChild<QTreeWidget *>();
    QCOMPARE(list->topLevelItemCount(), 2);
    QCOMPARE(list->topLevelItem(1)->text(0), QString("Overlay Editor"));
    QCOMPARE(list->topLevelItem(1)->childCount(), kxShortcut::registeredKeys().size());
    for (const char *key : {"d", "u", "p", "l"})
        realInput::key(key);
    QTRY_VERIFY(list->topLevelItem(0)->isHidden());
    QCOMPARE(list->topLevelItem(1)->isHidden(), false);
    const QPointer<QDialog> open(dialog);
    realInput::key("Escape");
    realInput::key("Escape");
    QTRY_VERIFY(!open);
}

KX_TEST_MAIN(tst_viewer_reorder)
#include "tst_viewer_reorder.moc"
