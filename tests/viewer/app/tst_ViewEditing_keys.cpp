// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/kxShortcut.h"
#include "tests/viewer/app/ViewEditingTest.h"
#include "viewer/app/NoticeArea.h"

#include <QContextMenuEvent>

using namespace viewer;
using QRPC::NodeId;
using QRPC::NodeList;

/// What the keys do in the view, and what is left to a module's keys and menu.
class tst_ViewEditing_keys : public ViewEditingTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldPutADragBackWhenTheKeyboardGoes();
    void shouldNudgeWithTheKeysOfTheView();
    void shouldDismissMessagesWithEscape();
    void shouldClaimKeysFromShortcuts();
    void shouldLetModulesHaveTheirKeys();
    void shouldOpenTheMenuOfTheModule();
    void shouldFollowTheModifierKeys();
};

/// What reaches a module at its tree.
struct ModuleInput : QObject
{
    explicit ModuleInput(QTreeView *tree) { tree->installEventFilter(this); }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::KeyPress) {
            const auto &key = static_cast<QKeyEvent &>(*event);
            seen.append(kxShortcut::convertKey(key.key(), int(key.modifiers()), true));
        }
        if (event->type() == QEvent::ContextMenu)
            seen.append("menu");
        return event->type() == QEvent::KeyPress;
    }

    QStringList seen;
};

void tst_ViewEditing_keys::shouldPutADragBackWhenTheKeyboardGoes()
{
    QTest::mousePress(view(), Qt::LeftButton, {}, middleOf(m_first));
    move({200, 200});
    QVERIFY(m_service->getOffset(m_first) != QPointF(20, -20));
    m_window->tree->setFocus();
    QCOMPARE(m_service->getOffset(m_first), QPointF(20, -20));
    QTest::mouseRelease(view(), Qt::LeftButton, {}, {200, 200});
    QCOMPARE(m_service->history().stack()->count(), 0);
}

void tst_ViewEditing_keys::shouldNudgeWithTheKeysOfTheView()
{
    QTest::mouseClick(view(), Qt::LeftButton, {}, middleOf(m_first));
    QVERIFY(view()->hasFocus());
    const QImage before = picture();
    QTest::keyClick(view(), Qt::Key_Left);
    QTest::keyClick(view(), Qt::Key_Up, Qt::ShiftModifier);
    QCOMPARE(m_service->getOffset(m_first), QPointF(19, -10));
    QVERIFY(picture() != before);
    QCOMPARE(m_service->history().stack()->count(), 1);
    QTest::keyClick(view(), Qt::Key_Escape);
    QCOMPARE(selected(), NodeList());
}

void tst_ViewEditing_keys::shouldDismissMessagesWithEscape()
{
    NoticeArea *notices = m_window->area->notices();
    notices->add(Severity::Error, "first");
    notices->add(Severity::Error, "second");
    QTest::mouseClick(view(), Qt::LeftButton, {}, middleOf(m_first));
    QTest::keyClick(view(), Qt::Key_Escape);
    QCOMPARE(selected(), NodeList());
    QCOMPARE(notices->texts().size(), 2);
    QTest::keyClick(view(), Qt::Key_Escape);
    QCOMPARE(notices->texts(), QStringList("first"));
    QTest::keyClick(view(), Qt::Key_Escape, Qt::ShiftModifier);
    QCOMPARE(notices->texts(), QStringList("first"));
}

void tst_ViewEditing_keys::shouldClaimKeysFromShortcuts()
{
    const auto isClaimed = [this](int key) {
        QKeyEvent event(QEvent::ShortcutOverride, key, Qt::NoModifier);
        event.ignore();
        QApplication::sendEvent(view(), &event);
        return event.isAccepted();
    };
    QVERIFY(!isClaimed(Qt::Key_Left));
    QTest::mousePress(view(), Qt::LeftButton, {}, middleOf(m_first));
    QVERIFY(isClaimed(Qt::Key_Z));
    QTest::mouseRelease(view(), Qt::LeftButton, {}, middleOf(m_first));
    QVERIFY(isClaimed(Qt::Key_Left));
    QVERIFY(isClaimed(Qt::Key_Escape));
    QVERIFY(!isClaimed(Qt::Key_Home));
}

void tst_ViewEditing_keys::shouldLetModulesHaveTheirKeys()
{
    kxShortcut::addKey("Editor", Qt::Key_D, Qt::ControlModifier, "Duplicate");
    const ModuleInput input(m_window->tree);
    QTest::mouseClick(view(), Qt::LeftButton, {}, middleOf(m_first));
    QTest::keyClick(view(), Qt::Key_D, Qt::ControlModifier);
    QCOMPARE(input.seen, QStringList("Ctrl+D"));
    QVERIFY(view()->hasFocus());
    QTest::keyClick(view(), Qt::Key_D);
    QTest::keyClick(view(), Qt::Key_E, Qt::ControlModifier);
    QTest::mousePress(view(), Qt::LeftButton, {}, middleOf(m_first));
    QTest::keyClick(view(), Qt::Key_D, Qt::ControlModifier);
    QTest::mouseRelease(view(), Qt::LeftButton, {}, middleOf(m_first));
    delete m_window->tree;
    QTest::keyClick(view(), Qt::Key_D, Qt::ControlModifier);
    QCOMPARE(input.seen, QStringList("Ctrl+D"));
    kxShortcut::clear();
}

void tst_ViewEditing_keys::shouldOpenTheMenuOfTheModule()
{
    const ModuleInput input(m_window->tree);
    QContextMenuEvent byMouse(QContextMenuEvent::Mouse, middleOf(m_second));
    QApplication::sendEvent(view(), &byMouse);
    QCOMPARE(selected(), NodeList{m_second});
    QContextMenuEvent byKey(QContextMenuEvent::Keyboard, middleOf(m_first));
    QApplication::sendEvent(view(), &byKey);
    QCOMPARE(selected(), NodeList{m_second});
    QCOMPARE(input.seen, (QStringList{"menu", "menu"}));
    // A drag goes on.
    QTest::mousePress(view(), Qt::LeftButton, {}, middleOf(m_second));
    QApplication::sendEvent(view(), &byMouse);
    QTest::mouseRelease(view(), Qt::LeftButton, {}, middleOf(m_second));
    QCOMPARE(input.seen.size(), 2);
}

void tst_ViewEditing_keys::shouldFollowTheModifierKeys()
{
    move({300, 250}, {}, Qt::NoButton);
    view()->setFocus();
    QTest::keyPress(view(), Qt::Key_Shift);
    QCOMPARE(view()->cursor().shape(), Qt::CrossCursor);
    QTest::keyRelease(view(), Qt::Key_Shift, Qt::ShiftModifier);
    QCOMPARE(view()->cursor().shape(), Qt::ArrowCursor);
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(view(), &leave);
    QTest::keyPress(view(), Qt::Key_Shift);
    QCOMPARE(view()->cursor().shape(), Qt::ArrowCursor);
}

KX_TEST_MAIN(tst_ViewEditing_keys)
#include "tst_ViewEditing_keys.moc"
