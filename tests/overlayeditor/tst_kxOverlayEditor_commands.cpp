// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/QKXToolBar.h"
#include "host/kxIconManager.h"
#include "host/kxShortcut.h"
#include "tests/overlayeditor/EditorTest.h"

#include <QAction>
#include <QMenu>

namespace {

/// One entry of the context menu; an empty text is a separator.
struct Entry
{
    const char *text;
    int key;
    int modifiers;
    QStringList commands; ///< sent with [3,4] selected of "g2(a3 b4-) c5"
};

QVector<Entry> menuEntries()
{
    constexpr int ctrl = Qt::ControlModifier;
    constexpr int ctrlShift = Qt::ControlModifier | Qt::ShiftModifier;
    const Entry separator{"", 0, 0, {}};
    return {
        {"Create Overlay", 0, 0, {"createOverlay 2"}},
        {"Create Group\t", Qt::Key_G, ctrl, {"createGroup 2"}},
        {"Create Switch", 0, 0, {"createSwitch 2"}},
        {"Duplicate Overlays\t", Qt::Key_D, ctrl, {"duplicateNodes [3,4]"}},
        {"Delete Overlays\t", Qt::Key_Delete, 0, {"deleteNodes [3,4]"}},
        separator,
        {"Rename Overlay\t", Qt::Key_R, ctrl, {}},
        {"Group Selection\t", Qt::Key_G, ctrlShift, {"groupNodes [3,4]"}},
        separator,
        {"Switch On", 0, 0, {"setEnabled [3,4] true"}},
        {"Switch Off", 0, 0, {"setEnabled [3,4] false"}},
        {"Toggle\t", Qt::Key_T, ctrl, {"setEnabled [3] false", "setEnabled [4] true"}},
        separator,
        {"Select All\t", Qt::Key_A, ctrl, {}},
        {"Deselect All\t", Qt::Key_A, ctrlShift, {}},
        {"Invert Selection\t", Qt::Key_I, ctrl, {}},
    };
}

} // namespace

/// The commands, and the menu and bar that lead to them.
class tst_kxOverlayEditor_commands : public EditorTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldSendTheSelection_data();
    void shouldSendTheSelection();
    void shouldSendHiddenRowsToo_data() { shouldSendTheSelection_data(); }
    void shouldSendHiddenRowsToo();
    void shouldSendAnEmptySelectionToo_data();
    void shouldSendAnEmptySelectionToo();
    void shouldCreateInTheFirstGroup_data();
    void shouldCreateInTheFirstGroup();
    void shouldToggleEachNodeByItself();
    void shouldToggleNothingWithTwoCalls();
    void shouldOpenTheNameEditorOfTheFirstSelectedRow();
    void shouldOpenNoNameEditorForAnEmptySelection();
    void shouldFocusTheSearchBox();
    void shouldLeaveTreeAndSelectionToTheService_data();
    void shouldLeaveTreeAndSelectionToTheService();
    void shouldKeepTheSelectionWhileSwitching();
    void shouldSelectWhatACommandCreated();
    void shouldShowItsMenuEntriesInOrder();
    void shouldTriggerTheSlotOfAMenuEntry();
    void shouldSelectFromTheMenu();
    void shouldGiveMenuEntriesNoKeysIconsOrRules();
    void shouldDockTheQuickActionBarAtTheBottom();
    void shouldOfferThreeQuickActions();
};

void tst_kxOverlayEditor_commands::shouldSendTheSelection_data()
{
    QTest::addColumn<QString>("command");
    QTest::newRow("duplicateOverlays") << "duplicateNodes [4,2,3]";
    QTest::newRow("deleteOverlays") << "deleteNodes [4,2,3]";
    QTest::newRow("createGroupFromSelection") << "groupNodes [4,2,3]";
    QTest::newRow("switchOn") << "setEnabled [4,2,3] true";
    QTest::newRow("switchOff") << "setEnabled [4,2,3] false";
}

void tst_kxOverlayEditor_commands::shouldSendTheSelection()
{
    QFETCH(QString, command);
    openEditor("g2(a3 b4) c5");
    service().setApplies(false);
    select({4, 2, 3});
    QCOMPARE(editor().getSelectedNodes(), (QRPC::NodeList{4, 2, 3}));
    QCOMPARE(commandsOf([this] { call(QTest::currentDataTag()); }), QStringList(command));
}

/// What a filter hides is selected nevertheless.
void tst_kxOverlayEditor_commands::shouldSendHiddenRowsToo()
{
    QFETCH(QString, command);
    openEditor("g2(a3 b4) c5");
    service().setApplies(false);
    select({4, 2, 3});
    QVERIFY(QMetaObject::invokeMethod(&editor(), "searchChanged", Q_ARG(QString, "c")));
    QVERIFY(tree().isRowHidden(0, QModelIndex()));
    QCOMPARE(commandsOf([this] { call(QTest::currentDataTag()); }), QStringList(command));
}

void tst_kxOverlayEditor_commands::shouldSendAnEmptySelectionToo_data()
{
    QTest::addColumn<QString>("command");
    QTest::newRow("duplicateOverlays") << "duplicateNodes []";
    QTest::newRow("deleteOverlays") << "deleteNodes []";
    QTest::newRow("createGroupFromSelection") << "groupNodes []";
    QTest::newRow("switchOn") << "setEnabled [] true";
    QTest::newRow("switchOff") << "setEnabled [] false";
    QTest::newRow("createOverlay") << "createOverlay 1";
    QTest::newRow("createOverlayGroup") << "createGroup 1";
    QTest::newRow("createSwitch") << "createSwitch 1";
}

void tst_kxOverlayEditor_commands::shouldSendAnEmptySelectionToo()
{
    QFETCH(QString, command);
    openEditor("a2");
    service().setApplies(false);
    QCOMPARE(commandsOf([this] { call(QTest::currentDataTag()); }), QStringList(command));
}

void tst_kxOverlayEditor_commands::shouldCreateInTheFirstGroup_data()
{
    QTest::addColumn<QRPC::NodeList>("nodes");
    QTest::addColumn<QString>("parent");
    QTest::newRow("overlay in a group") << QRPC::NodeList{3} << "2";
    QTest::newRow("group") << QRPC::NodeList{2} << "2";
    QTest::newRow("top-level overlay") << QRPC::NodeList{5} << "1";
    QTest::newRow("the first counts") << QRPC::NodeList{5, 2} << "1";
}

void tst_kxOverlayEditor_commands::shouldCreateInTheFirstGroup()
{
    QFETCH(QRPC::NodeList, nodes);
    QFETCH(QString, parent);
    openEditor("g2(a3 b4) c5");
    service().setApplies(false);
    select(nodes);
    QCOMPARE(commandsOf([this] {
                 call("createOverlay");
                 call("createOverlayGroup");
                 call("createSwitch");
             }),
             (QStringList{"createOverlay " + parent, "createGroup " + parent,
                          "createSwitch " + parent}));
}

void tst_kxOverlayEditor_commands::shouldToggleEachNodeByItself()
{
    openEditor("a2 b3- c4");
    service().setApplies(false);
    select({3, 2, 4});
    log().clear();
    call("toggle");
    QCOMPARE(log().linesOf({"isEnabled", "setEnabled"}),
             (QStringList{"isEnabled 3", "isEnabled 2", "isEnabled 4", "setEnabled [2,4] false",
                          "setEnabled [3] true"}));
    service().setApplies(true);
    call("toggle");
    QCOMPARE(shown(), QString("a2- b3 c4-"));
}

void tst_kxOverlayEditor_commands::shouldToggleNothingWithTwoCalls()
{
    openEditor("a2");
    QCOMPARE(commandsOf([this] { call("toggle"); }),
             (QStringList{"setEnabled [] false", "setEnabled [] true"}));
}

void tst_kxOverlayEditor_commands::shouldOpenTheNameEditorOfTheFirstSelectedRow()
{
    openEditor("a2 b3");
    showWindow();
    select({3, 2});
    QCOMPARE(commandsOf([this] { call("renameOverlay"); }), QStringList());
    QVERIFY(nameEditor());
    QCOMPARE(nameEditor()->property("text").toString(), QString("b3"));
}

void tst_kxOverlayEditor_commands::shouldOpenNoNameEditorForAnEmptySelection()
{
    openEditor("a2 b3");
    showWindow();
    call("renameOverlay");
    QVERIFY(!nameEditor());
}

void tst_kxOverlayEditor_commands::shouldFocusTheSearchBox()
{
    openEditor("a2");
    showWindow();
    tree().setFocus();
    call("find");
    QTRY_VERIFY(QApplication::focusWidget() && QApplication::focusWidget() != &tree());
    QVERIFY(QApplication::focusWidget() == &searchBox()
            || searchBox().isAncestorOf(QApplication::focusWidget()));
}

void tst_kxOverlayEditor_commands::shouldLeaveTreeAndSelectionToTheService_data()
{
    QTest::addColumn<QString>("command");
    for (const char *command :
         {"createOverlay", "createOverlayGroup", "createSwitch", "duplicateOverlays",
          "deleteOverlays", "createGroupFromSelection", "toggle", "switchOn", "switchOff"})
        QTest::newRow(command) << QString(command);
}

/// A service that does as it is told and has not said so yet.
void tst_kxOverlayEditor_commands::shouldLeaveTreeAndSelectionToTheService()
{
    QFETCH(QString, command);
    openEditor("g2(a3 b4-) c5");
    select({4, 3});
    {
        const QSignalBlocker silence(&service());
        call(qPrintable(command));
    }
    QVERIFY(dumpTree(service()) != "g2(a3 b4-) c5");
    QCOMPARE(shown(), QString("g2(a3 b4-) c5"));
    QCOMPARE(editor().getSelectedNodes(), (QRPC::NodeList{4, 3}));
}

void tst_kxOverlayEditor_commands::shouldKeepTheSelectionWhileSwitching()
{
    openEditor("g2(a3 b4-) s5*(c6 d7-)");
    select({7, 2, 4});
    const char *const commands[] = {"toggle", "switchOff", "switchOn"};
    const QString shownAfter[] = {"g2-(a3~ b4~) s5(c6- d7)", "g2-(a3~ b4-) s5(c6- d7-)",
                                  "g2(a3 b4) s5(c6- d7)"};
    for (int i = 0; i < int(std::size(commands)); ++i) {
        call(commands[i]);
        QCOMPARE(shown(), shownAfter[i]);
        KX_COMPARE_TREE(model(), service());
        QCOMPARE(editor().getSelectedNodes(), (QRPC::NodeList{7, 2, 4}));
    }
}

void tst_kxOverlayEditor_commands::shouldSelectWhatACommandCreated()
{
    openEditor("g2(a3) b4");
    select({3});
    call("createOverlay");
    QCOMPARE(shown(), QString("g2(a3 n5) b4"));
    QCOMPARE(selected(), QRPC::NodeList{5});
    call("duplicateOverlays");
    QCOMPARE(selected(), QRPC::NodeList{6});
    select({3, 4});
    call("createGroupFromSelection");
    QCOMPARE(selected(), QRPC::NodeList{7});
    KX_COMPARE_TREE(model(), service());
    call("deleteOverlays");
    KX_COMPARE_TREE(model(), service());
    QCOMPARE(selected(), QRPC::NodeList());
}

void tst_kxOverlayEditor_commands::shouldShowItsMenuEntriesInOrder()
{
    openEditor();
    const auto *menu = tree().findChild<QMenu *>();
    QVERIFY(menu);
    QCOMPARE(menu->parentWidget(), &tree());
    QVERIFY(menu->isTearOffEnabled());
    const QVector<Entry> wanted = menuEntries();
    const QList<QAction *> actions = menu->actions();
    QCOMPARE(actions.size(), wanted.size());
    for (int i = 0; i < actions.size(); ++i) {
        const Entry &entry = wanted.at(i);
        const QString key = kxShortcut::convertKey(entry.key, entry.modifiers, false);
        QCOMPARE(actions.at(i)->isSeparator(), *entry.text == '\0');
        if (!actions.at(i)->isSeparator())
            QCOMPARE(actions.at(i)->text(), QString(entry.text) + (entry.key ? key : QString()));
    }
    QCOMPARE(actions.at(0)->text(), QString("Create Overlay"));
    QCOMPARE(actions.at(1)->text(), QString("Create Group\tCtrl+G"));
}

void tst_kxOverlayEditor_commands::shouldTriggerTheSlotOfAMenuEntry()
{
    openEditor("g2(a3 b4-) c5");
    service().setApplies(false);
    const QVector<Entry> wanted = menuEntries();
    const QList<QAction *> actions = tree().findChild<QMenu *>()->actions();
    for (int i = 0; i < actions.size(); ++i) {
        select({3, 4});
        QCOMPARE(commandsOf([&] { actions.at(i)->trigger(); }), wanted.at(i).commands);
    }
}

void tst_kxOverlayEditor_commands::shouldSelectFromTheMenu()
{
    openEditor("g2(a3 b4) c5");
    showWindow();
    const QList<QAction *> actions = tree().findChild<QMenu *>()->actions();
    select({3, 4});
    actions.at(13)->trigger();
    QCOMPARE(selected(), (QRPC::NodeList{2, 3, 4, 5}));
    actions.at(14)->trigger();
    QCOMPARE(selected(), QRPC::NodeList());
    select({3, 4});
    actions.at(15)->trigger();
    QCOMPARE(selected(), (QRPC::NodeList{2, 5}));
    actions.at(6)->trigger();
    QVERIFY(nameEditor());
}

void tst_kxOverlayEditor_commands::shouldGiveMenuEntriesNoKeysIconsOrRules()
{
    openEditor("a2");
    const QList<QAction *> actions = tree().findChild<QMenu *>()->actions();
    for (const QAction *action : actions) {
        QVERIFY(action->shortcut().isEmpty());
        QVERIFY(action->icon().isNull());
        QVERIFY(action->isEnabled());
        QVERIFY(!action->isCheckable());
    }
}

void tst_kxOverlayEditor_commands::shouldDockTheQuickActionBarAtTheBottom()
{
    openEditor();
    const auto *bar = window().findChild<QKXToolBar *>("QuickActionBar");
    QVERIFY(bar);
    QCOMPARE(bar->windowTitle(), QString("QuickActions"));
    QCOMPARE(bar->allowedAreas(), Qt::ToolBarAreas(Qt::BottomToolBarArea));
    QVERIFY(!bar->isMovable());
    QVERIFY(!bar->isFloatable());
    QCOMPARE(bar->contextMenuPolicy(), Qt::ActionsContextMenu);
    QCOMPARE(window().toolBarArea(const_cast<QKXToolBar *>(bar)), Qt::BottomToolBarArea);
}

void tst_kxOverlayEditor_commands::shouldOfferThreeQuickActions()
{
    openEditor("g2(a3 b4) c5");
    service().setApplies(false);
    const struct
    {
        const char *icon;
        const char *text;
        const char *tip;
        const char *command;
    } wanted[] = {
        {"CreateNew", "Create", "Create a new overlay", "createOverlay 2"},
        {"Duplicate", "Duplicate", "Duplicates the currently selected overlays",
         "duplicateNodes [3,4]"},
        {"Delete", "Delete", "Deletes the currently selected overlays", "deleteNodes [3,4]"},
    };
    const QList<QAction *> actions = window().findChild<QKXToolBar *>("QuickActionBar")->actions();
    QCOMPARE(actions.size(), int(std::size(wanted)));
    const QSize size(24, 24);
    for (int i = 0; i < actions.size(); ++i) {
        QCOMPARE(actions.at(i)->text(), QString(wanted[i].text));
        QCOMPARE(actions.at(i)->statusTip(), QString(wanted[i].tip));
        QCOMPARE(actions.at(i)->parent(), static_cast<QObject *>(&editor()));
        QVERIFY(!actions.at(i)->icon().isNull());
        QCOMPARE(actions.at(i)->icon().pixmap(size).toImage(),
                 kxIconManager::getIcon(wanted[i].icon, "").pixmap(size).toImage());
        select({3, 4});
        QCOMPARE(commandsOf([&] { actions.at(i)->trigger(); }), QStringList(wanted[i].command));
    }
}

KX_TEST_MAIN(tst_kxOverlayEditor_commands)
#include "tst_kxOverlayEditor_commands.moc"
