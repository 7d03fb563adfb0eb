// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/ShortcutsDialog.h"

#include "host/QKXSearchBox.h"
#include "tests/support/KxTest.h"
#include "viewer/app/KeyList.h"

#include <QLabel>
#include <QMenuBar>
#include <QTreeWidget>

using namespace viewer;

namespace {

QVector<kxShortcut::Entry> someKeys()
{
    return {
        {"Overlays", Qt::Key_D, Qt::ControlModifier, "Duplicate Overlay"},
        {"Overlays", Qt::Key_F, Qt::ControlModifier, "Find Overlay"},
        {"Lights", Qt::Key_D, Qt::ControlModifier | Qt::ShiftModifier, "Dim"},
    };
}

/// The rows that are not hidden, each category with its own in brackets.
QStringList rowsOf(const ShortcutsDialog &dialog)
{
    const auto *list = dialog.findChild<QTreeWidget *>();
    QStringList rows;
    for (int i = 0; i < list->topLevelItemCount(); ++i) {
        const QTreeWidgetItem *category = list->topLevelItem(i);
        if (category->isHidden())
            continue;
        QStringList keys;
        for (int row = 0; row < category->childCount(); ++row) {
            if (!category->child(row)->isHidden())
                keys.append(category->child(row)->text(0) + ' ' + category->child(row)->text(1));
        }
        rows.append(QString("%1 (%2)").arg(category->text(0), keys.join(", ")));
    }
    return rows;
}

} // namespace

class tst_ShortcutsDialog : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldListKeysByCategory();
    void shouldListTheKeysOfOneCommandTogether();
    void shouldShowItsKeysWholeAndInPlaceWhileItFilters();
    void shouldKeepItsCategoriesOpen();
    void shouldFindByCommandKeyOrCategory_data();
    void shouldFindByCommandKeyOrCategory();
    void shouldReadTheKeysOfMenus();
    void shouldLeaveOutKeysThatNoKeyboardHas();
    void shouldNameACommandWithoutTheKeyBehindItsName();
    void shouldNameCommandsAlikeWhateverTheMenuSays();
    void shouldLeaveOutKeysOfOneWidgetWhereTheWholeWindowIsMeant();
    void shouldNameClashes();
};

void tst_ShortcutsDialog::shouldListKeysByCategory()
{
    const ShortcutsDialog dialog(someKeys());
    QCOMPARE(rowsOf(dialog),
             (QStringList{"Overlays (Duplicate Overlay Ctrl+D, Find Overlay Ctrl+F)",
                          "Lights (Dim Ctrl+Shift+D)"}));
    QCOMPARE(dialog.findChild<QLabel *>()->text(), QString("Shortcuts shown: 3"));
}

void tst_ShortcutsDialog::shouldListTheKeysOfOneCommandTogether()
{
    const ShortcutsDialog dialog({
        {"Viewer", Qt::Key_Z, Qt::ControlModifier, "Undo"},
        {"Overlays", Qt::Key_F14, Qt::NoModifier, "Undo"},
        {"Viewer", Qt::Key_F14, Qt::NoModifier, "Undo"},
    });
    QCOMPARE(rowsOf(dialog), (QStringList{"Viewer (Undo Ctrl+Z or F14)", "Overlays (Undo F14)"}));
}

void tst_ShortcutsDialog::shouldShowItsKeysWholeAndInPlaceWhileItFilters()
{
    QVector<kxShortcut::Entry> keys = someKeys();
    keys.append({"Lights", Qt::Key_MediaTogglePlayPause,
                 Qt::ControlModifier | Qt::ShiftModifier | Qt::AltModifier, "Play"});
    ShortcutsDialog dialog(keys);
    dialog.show();
    const auto *list = dialog.findChild<QTreeWidget *>();
    const int width = list->columnWidth(1);
    const QString widest = list->topLevelItem(1)->child(1)->text(1);
    QVERIFY(width > list->fontMetrics().horizontalAdvance(widest));
    QVERIFY(width < list->viewport()->width());
    dialog.findChild<QKXSearchBox *>()->setText("find");
    QCoreApplication::processEvents();
    QCOMPARE(list->columnWidth(1), width);
}

/// What a search finds must not lie in a closed category.
void tst_ShortcutsDialog::shouldKeepItsCategoriesOpen()
{
    ShortcutsDialog dialog(someKeys());
    dialog.show();
    auto *list = dialog.findChild<QTreeWidget *>();
    list->setCurrentItem(list->topLevelItem(0));
    QTest::keyClick(list, Qt::Key_Left);
    const QRect row = list->visualItemRect(list->topLevelItem(0));
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, row.center());
    QVERIFY(list->topLevelItem(0)->isExpanded());
    QVERIFY(!list->rootIsDecorated());
}

void tst_ShortcutsDialog::shouldFindByCommandKeyOrCategory_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("found");
    QTest::newRow("command") << "find" << QStringList{"Overlays (Find Overlay Ctrl+F)"};
    QTest::newRow("key") << "+d"
                         << QStringList{"Overlays (Duplicate Overlay Ctrl+D)",
                                        "Lights (Dim Ctrl+Shift+D)"};
    QTest::newRow("category") << "LIGHTS" << QStringList{"Lights (Dim Ctrl+Shift+D)"};
    QTest::newRow("nothing") << "zoom" << QStringList();
}

void tst_ShortcutsDialog::shouldFindByCommandKeyOrCategory()
{
    QFETCH(QString, text);
    QFETCH(QStringList, found);
    const ShortcutsDialog dialog(someKeys());
    dialog.findChild<QKXSearchBox *>()->setText(text);
    QCOMPARE(rowsOf(dialog), found);
    const QString count = dialog.findChild<QLabel *>()->text();
    QCOMPARE(count == "No shortcut matches.", found.isEmpty());
    dialog.findChild<QKXSearchBox *>()->clear();
    QCOMPARE(rowsOf(dialog).size(), 2);
}

void tst_ShortcutsDialog::shouldNameACommandWithoutTheKeyBehindItsName()
{
    QMenuBar bar;
    QMenu *menu = bar.addMenu("menu");
    for (const char *text : {"保存(&S)", "打开(&O)…", "Fit (all)"})
        menu->addAction(text)->setShortcut(Qt::Key_F5);
    QStringList names;
    const QVector<kxShortcut::Entry> keys = menuKeys(bar, QString());
    for (const kxShortcut::Entry &key : keys)
        names.append(key.description);
    QCOMPARE(names, QStringList({"保存", "打开", "Fit (all)"}));
}

void tst_ShortcutsDialog::shouldReadTheKeysOfMenus()
{
    QMenuBar bar;
    QMenu *menu = bar.addMenu("&File");
    menu->addAction("&Open…")->setShortcut(QKeySequence("Ctrl+O"));
    menu->addAction("Without");
    QMenu *inner = menu->addMenu("More");
    inner->addAction("Deep")->setShortcuts({QKeySequence("F5"), QKeySequence("Alt+R")});
    inner->addAction("Chord")->setShortcut(QKeySequence("Ctrl+K, Ctrl+D"));
    const QVector<kxShortcut::Entry> keys = menuKeys(bar, "Viewer");
    QStringList read;
    for (const kxShortcut::Entry &key : keys)
        read.append(key.category + ' ' + key.description + ' '
                    + kxShortcut::convertKey(key.key, key.modifiers, true));
    QCOMPARE(read, (QStringList{"Viewer Open Ctrl+O", "Viewer Deep F5", "Viewer Deep Alt+R"}));
}

void tst_ShortcutsDialog::shouldLeaveOutKeysThatNoKeyboardHas()
{
    QMenuBar bar;
    bar.addAction("Undo")->setShortcuts({QKeySequence("F12"), QKeySequence("F14")});
    const QVector<kxShortcut::Entry> keys = menuKeys(bar, "Viewer");
    QCOMPARE(keys.size(), 1);
    QCOMPARE(keys.at(0).key, int(Qt::Key_F12));
}

/// The menu says what would be undone, and marks a key with an ampersand.
void tst_ShortcutsDialog::shouldNameCommandsAlikeWhateverTheMenuSays()
{
    QMenuBar bar;
    QAction *undo = bar.addMenu("&Edit")->addAction("&Undo Create \"Text 1\"");
    undo->setIconText("Undo");
    undo->setShortcut(QKeySequence("Ctrl+Z"));
    bar.addAction("Cut && &Paste")->setShortcut(QKeySequence("Ctrl+X"));
    const QVector<kxShortcut::Entry> keys = menuKeys(bar, "Viewer");
    QCOMPARE(keys.at(0).description, QString("Undo"));
    QCOMPARE(keys.at(1).description, QString("Cut & Paste"));
}

void tst_ShortcutsDialog::shouldLeaveOutKeysOfOneWidgetWhereTheWholeWindowIsMeant()
{
    QMenuBar bar;
    QAction *reset = bar.addMenu("View")->addAction("Reset");
    reset->setShortcut(Qt::Key_Home);
    QCOMPARE(menuKeys(bar, "Viewer", KeyScope::WholeWindow).size(), 1);
    for (const auto context : {Qt::WidgetShortcut, Qt::WidgetWithChildrenShortcut}) {
        reset->setShortcutContext(context);
        QVERIFY(menuKeys(bar, "Viewer", KeyScope::WholeWindow).isEmpty());
        QCOMPARE(menuKeys(bar, "Viewer").size(), 1);
    }
}

void tst_ShortcutsDialog::shouldNameClashes()
{
    const QVector<kxShortcut::Entry> own{
        {"Viewer", Qt::Key_D, Qt::NoModifier, "Draw"},
        {"Viewer", Qt::Key_F, Qt::ControlModifier, "Full Screen"},
    };
    QCOMPARE(
        keyClashes(own, someKeys()),
        QStringList{"Ctrl+F is the key of \"Full Screen\" in the menu and of \"Find Overlay\" in "
                    "Overlays."});
}

KX_TEST_MAIN(tst_ShortcutsDialog)
#include "tst_ShortcutsDialog.moc"
