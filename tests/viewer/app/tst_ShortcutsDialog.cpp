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
    void shouldFindByCommandKeyOrCategory_data();
    void shouldFindByCommandKeyOrCategory();
    void shouldReadTheKeysOfMenus();
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

void tst_ShortcutsDialog::shouldNameClashes()
{
    const QVector<kxShortcut::Entry> own{
        {"Viewer", Qt::Key_D, Qt::NoModifier, "Draw"},
        {"Viewer", Qt::Key_F, Qt::ControlModifier, "Full Screen"},
    };
    QCOMPARE(keyClashes(own, someKeys()),
             QStringList{"The key Ctrl+F stands for \"Full Screen\" of the menu and for "
                         "\"Find Overlay\" of the module Overlays."});
}

KX_TEST_MAIN(tst_ShortcutsDialog)
#include "tst_ShortcutsDialog.moc"
