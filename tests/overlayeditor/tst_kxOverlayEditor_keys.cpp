// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/overlayeditor/EditorTest.h"

#include <QKeyEvent>
#include <QMenu>
#include <QTimer>

namespace {

/// Notes the events that an object receives.
class EventProbe : public QObject
{
public:
    bool eventFilter(QObject *, QEvent *event) override
    {
        types.append(event->type());
        if (event->type() == QEvent::KeyPress)
            keys.append(static_cast<QKeyEvent *>(event)->key());
        return false;
    }

    QVector<QEvent::Type> types;
    QVector<int> keys;
};

constexpr int ctrl = Qt::ControlModifier;
constexpr int shift = Qt::ShiftModifier;
constexpr int alt = Qt::AltModifier;

} // namespace

/// The keys and the context menu of the tree view.
class tst_kxOverlayEditor_keys : public EditorTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldSendTheCommandOfAKey_data();
    void shouldSendTheCommandOfAKey();
    void shouldChangeTheSelectionByKey_data();
    void shouldChangeTheSelectionByKey();
    void shouldOpenTheNameEditorByKey();
    void shouldOpenNoNameEditorForAnEmptySelection();
    void shouldFocusTheSearchBoxByKey();
    void shouldLeaveOtherKeysToTheView_data();
    void shouldLeaveOtherKeysToTheView();
    void shouldKeepHandledKeysFromTheView();
    void shouldIgnoreEventsOfOtherObjects();
    void shouldIgnoreOtherEvents();
    void shouldIgnoreKeysWhileANameIsEdited_data();
    void shouldIgnoreKeysWhileANameIsEdited();
    void shouldLeadTabFromTheSearchOverTheTreeToThePanel();
    void shouldOpenTheContextMenuAtTheCursor();
    void shouldOpenOneMenuForARightClick();

private:
    bool filter(QEvent *event) { return editor().eventFilter(&tree(), event); }
    void probeBehindTheEditor(EventProbe *probe);
};

/// Filters run from the last one installed to the first.
void tst_kxOverlayEditor_keys::probeBehindTheEditor(EventProbe *probe)
{
    tree().removeEventFilter(&editor());
    tree().installEventFilter(probe);
    tree().installEventFilter(&editor());
}

void tst_kxOverlayEditor_keys::shouldSendTheCommandOfAKey_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QStringList>("commands");
    QTest::newRow("delete") << int(Qt::Key_Delete) << 0 << QStringList("deleteNodes [3,4]");
    QTest::newRow("duplicate") << int(Qt::Key_D) << ctrl << QStringList("duplicateNodes [3,4]");
    QTest::newRow("create group") << int(Qt::Key_G) << ctrl << QStringList("createGroup 2");
    QTest::newRow("toggle") << int(Qt::Key_T) << ctrl
                            << QStringList{"setEnabled [3] false", "setEnabled [4] true"};
    QTest::newRow("group") << int(Qt::Key_G) << (ctrl | shift) << QStringList("groupNodes [3,4]");
}

void tst_kxOverlayEditor_keys::shouldSendTheCommandOfAKey()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(QStringList, commands);
    openEditor("g2(a3 b4-)");
    service().setApplies(false);
    select({3, 4});
    QKeyEvent event(QEvent::KeyPress, key, Qt::KeyboardModifiers(modifiers));
    event.ignore();
    QCOMPARE(commandsOf([&] { QVERIFY(filter(&event)); }), commands);
    QVERIFY(event.isAccepted());
    QCOMPARE(commandsOf(
                 [&] { QTest::keyClick(&tree(), Qt::Key(key), Qt::KeyboardModifiers(modifiers)); }),
             commands);
}

void tst_kxOverlayEditor_keys::shouldChangeTheSelectionByKey_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QRPC::NodeList>("after");
    QTest::newRow("all") << int(Qt::Key_A) << ctrl << QRPC::NodeList{2, 3, 4, 5};
    QTest::newRow("none") << int(Qt::Key_A) << (ctrl | shift) << QRPC::NodeList{};
    QTest::newRow("inverted") << int(Qt::Key_I) << ctrl << QRPC::NodeList{2, 5};
}

void tst_kxOverlayEditor_keys::shouldChangeTheSelectionByKey()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(QRPC::NodeList, after);
    openEditor("g2(a3 b4) c5");
    select({3, 4});
    QKeyEvent event(QEvent::KeyPress, key, Qt::KeyboardModifiers(modifiers));
    QVERIFY(filter(&event));
    QVERIFY(event.isAccepted());
    QCOMPARE(selected(), after);
}

void tst_kxOverlayEditor_keys::shouldOpenTheNameEditorByKey()
{
    openEditor("g2(a3) b4");
    showWindow();
    select({4, 3});
    QTest::keyClick(&tree(), Qt::Key_R, Qt::ControlModifier);
    QVERIFY(nameEditor());
    QCOMPARE(nameEditor()->property("text").toString(), QString("b4"));
}

void tst_kxOverlayEditor_keys::shouldOpenNoNameEditorForAnEmptySelection()
{
    openEditor("a2");
    showWindow();
    tree().setCurrentIndex(QModelIndex());
    QKeyEvent event(QEvent::KeyPress, Qt::Key_R, Qt::ControlModifier);
    QVERIFY(filter(&event));
    QVERIFY(!nameEditor());
    QCOMPARE(commandsOf([&] { filter(&event); }), QStringList());
}

void tst_kxOverlayEditor_keys::shouldFocusTheSearchBoxByKey()
{
    openEditor("a2");
    showWindow();
    tree().setFocus();
    QTest::keyClick(&tree(), Qt::Key_F, Qt::ControlModifier);
    const QWidget *focus = QApplication::focusWidget();
    QVERIFY(focus);
    QVERIFY(focus == &searchBox() || searchBox().isAncestorOf(focus));
}

void tst_kxOverlayEditor_keys::shouldLeaveOtherKeysToTheView_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    const auto add = [](const char *title, int key, int modifiers) {
        QTest::newRow(title) << key << modifiers;
    };
    add("Ctrl+Alt+G", Qt::Key_G, ctrl | alt);
    add("Shift+Delete", Qt::Key_Delete, shift);
    add("Ctrl+Delete", Qt::Key_Delete, ctrl);
    add("Ctrl+Shift+D", Qt::Key_D, ctrl | shift);
    add("Ctrl+Shift+T", Qt::Key_T, ctrl | shift);
    add("Ctrl+Shift+I", Qt::Key_I, ctrl | shift);
    add("Ctrl+Alt+Shift+A", Qt::Key_A, ctrl | alt | shift);
    add("Alt+A", Qt::Key_A, alt);
    add("G", Qt::Key_G, 0);
    add("Shift+G", Qt::Key_G, shift);
    add("Ctrl+X", Qt::Key_X, ctrl);
    add("Ctrl+keypad A", Qt::Key_A, ctrl | int(Qt::KeypadModifier));
    add("keypad Delete", Qt::Key_Delete, int(Qt::KeypadModifier));
    add("F2", Qt::Key_F2, 0);
    add("Down", Qt::Key_Down, 0);
}

void tst_kxOverlayEditor_keys::shouldLeaveOtherKeysToTheView()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    openEditor("g2(a3 b4) c5");
    select({3, 4});
    QKeyEvent event(QEvent::KeyPress, key, Qt::KeyboardModifiers(modifiers));
    event.accept();
    QCOMPARE(commandsOf([&] { QVERIFY(!filter(&event)); }), QStringList());
    QVERIFY(!event.isAccepted());
    QCOMPARE(selected(), (QRPC::NodeList{3, 4}));

    EventProbe probe;
    probeBehindTheEditor(&probe);
    QKeyEvent sent(QEvent::KeyPress, key, Qt::KeyboardModifiers(modifiers));
    QCoreApplication::sendEvent(&tree(), &sent);
    QCOMPARE(probe.keys, QVector<int>{key});
}

void tst_kxOverlayEditor_keys::shouldKeepHandledKeysFromTheView()
{
    openEditor("a2");
    EventProbe probe;
    probeBehindTheEditor(&probe);
    for (const auto &key : {QPair<int, int>(Qt::Key_A, ctrl), QPair<int, int>(Qt::Key_T, ctrl),
                            QPair<int, int>(Qt::Key_Delete, 0)}) {
        QKeyEvent sent(QEvent::KeyPress, key.first, Qt::KeyboardModifiers(key.second));
        QCoreApplication::sendEvent(&tree(), &sent);
        QVERIFY(sent.isAccepted());
    }
    QCOMPARE(probe.keys, QVector<int>());
}

void tst_kxOverlayEditor_keys::shouldIgnoreEventsOfOtherObjects()
{
    openEditor("a2");
    select({2});
    QKeyEvent event(QEvent::KeyPress, Qt::Key_Delete, Qt::NoModifier);
    QCOMPARE(commandsOf([&] {
                 QVERIFY(!editor().eventFilter(&window(), &event));
                 QVERIFY(!editor().eventFilter(tree().viewport(), &event));
             }),
             QStringList());
}

void tst_kxOverlayEditor_keys::shouldIgnoreOtherEvents()
{
    openEditor("a2");
    select({2});
    QKeyEvent released(QEvent::KeyRelease, Qt::Key_Delete, Qt::NoModifier);
    QKeyEvent offered(QEvent::ShortcutOverride, Qt::Key_Delete, Qt::NoModifier);
    QEvent polished(QEvent::Polish);
    QCOMPARE(commandsOf([&] {
                 QVERIFY(!filter(&released));
                 QVERIFY(!filter(&offered));
                 QVERIFY(!filter(&polished));
             }),
             QStringList());
}

void tst_kxOverlayEditor_keys::shouldIgnoreKeysWhileANameIsEdited_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::newRow("Ctrl+D") << int(Qt::Key_D) << ctrl;
    QTest::newRow("Ctrl+T") << int(Qt::Key_T) << ctrl;
    QTest::newRow("Ctrl+G") << int(Qt::Key_G) << ctrl;
    QTest::newRow("Ctrl+I") << int(Qt::Key_I) << ctrl;
    QTest::newRow("Ctrl+R") << int(Qt::Key_R) << ctrl;
    QTest::newRow("Ctrl+F") << int(Qt::Key_F) << ctrl;
    QTest::newRow("Ctrl+Shift+A") << int(Qt::Key_A) << (ctrl | shift);
    QTest::newRow("Ctrl+Shift+G") << int(Qt::Key_G) << (ctrl | shift);
    QTest::newRow("Delete") << int(Qt::Key_Delete) << 0;
}

void tst_kxOverlayEditor_keys::shouldIgnoreKeysWhileANameIsEdited()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    openEditor("a2 b3");
    showWindow();
    select({3});
    tree().setFocus();
    call("renameOverlay");
    QPointer<QWidget> line = nameEditor();
    QVERIFY(line);
    QTRY_COMPARE(QApplication::focusWidget(), line.data());
    QTest::keyClicks(line, "typed");
    QCOMPARE(
        commandsOf([&] { QTest::keyClick(line, Qt::Key(key), Qt::KeyboardModifiers(modifiers)); }),
        QStringList());
    QCOMPARE(selected(), QRPC::NodeList{3});
    QVERIFY(line);
    QCOMPARE(QApplication::focusWidget(), line.data());
    QCOMPARE(line->property("text").toString(), QString("typed"));
}

void tst_kxOverlayEditor_keys::shouldLeadTabFromTheSearchOverTheTreeToThePanel()
{
    openEditor("a2");
    showWindow();
    select({2});
    if (QApplication::focusWidget())
        QApplication::focusWidget()->clearFocus();
    const auto press = [this](Qt::Key key) {
        QWidget *focus = QApplication::focusWidget();
        QTest::keyClick(focus ? focus : &window(), key);
        return QApplication::focusWidget();
    };
    QCOMPARE(press(Qt::Key_Tab), &searchBox());
    QCOMPARE(press(Qt::Key_Tab), &tree());
    QCOMPARE(press(Qt::Key_Tab)->parentWidget(), window()._property_frame);
    QCOMPARE(press(Qt::Key_Tab), window()._overlay_name);
    QCOMPARE(press(Qt::Key_Backtab)->parentWidget(), window()._property_frame);
    QCOMPARE(press(Qt::Key_Backtab), &tree());
    QCOMPARE(press(Qt::Key_Backtab), &searchBox());
    QCOMPARE(press(Qt::Key_Backtab), window()._offset_y_spin_box);
}

void tst_kxOverlayEditor_keys::shouldOpenTheContextMenuAtTheCursor()
{
    openEditor("a2");
    showWindow();
    EventProbe probe;
    probeBehindTheEditor(&probe);
    QCursor::setPos(tree().viewport()->mapToGlobal(QPoint(30, 40)));
    auto *menu = tree().findChild<QMenu *>();
    QVERIFY(menu);
    QPoint place;
    bool wasSeenInTheMenu = true;
    QTimer::singleShot(0, this, [&] {
        place = menu->pos();
        wasSeenInTheMenu = probe.types.contains(QEvent::ContextMenu);
        QVERIFY(menu->isVisible());
        menu->close();
    });
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(5, 5));
    QCoreApplication::sendEvent(&tree(), &event);
    QCOMPARE(place, QCursor::pos());
    QVERIFY(!wasSeenInTheMenu);
    QVERIFY(probe.types.contains(QEvent::ContextMenu));
    QVERIFY(!menu->isVisible());
}

/// The event goes on to the view, which must not answer with a menu of its own.
void tst_kxOverlayEditor_keys::shouldOpenOneMenuForARightClick()
{
    openEditor("a2");
    showWindow();
    const auto *menu = tree().findChild<QMenu *>();
    QVERIFY(menu);
    QVector<const QWidget *> opened;
    QTimer closer;
    connect(&closer, &QTimer::timeout, this, [&opened] {
        if (QWidget *popup = QApplication::activePopupWidget()) {
            opened.append(popup);
            popup->close();
        }
    });
    closer.start(0);
    const QPoint place = tree().viewport()->rect().center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, tree().viewport()->mapToGlobal(place));
    QCoreApplication::sendEvent(tree().viewport(), &event);
    QCoreApplication::processEvents();
    QCOMPARE(opened, QVector<const QWidget *>{menu});
}

KX_TEST_MAIN(tst_kxOverlayEditor_keys)
#include "tst_kxOverlayEditor_keys.moc"
