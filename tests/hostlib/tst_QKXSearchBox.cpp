// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/QKXSearchBox.h"
#include "tests/hostlib/widgetInput.h"
#include "tests/support/KxTest.h"

#include <QAction>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QToolButton>
#include <QTreeView>
#include <QVBoxLayout>

#include <memory>

/// A box above a tree, made in the other order, in a window that knows Escape as a shortcut.
class tst_QKXSearchBox : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void cleanup() override;
    void shouldAnnounceEachChangeOfTheText();
    void shouldAnnounceItsTextOnceMoreToSearchAgain();
    void shouldTakeTheFocusAndSelectItsTextToBeginASearch();
    void shouldClearByItsButton();
    void shouldClearOnEscapeAndThenLeaveEscapeToTheWindow();
    void shouldIgnoreEscapeWithoutAText();
    void shouldHandTheFocusOnToWhatStandsBelow_data();
    void shouldHandTheFocusOnToWhatStandsBelow();
    void shouldHandTheFocusOnInTabOrderWithoutANeighbourBelow();
    void shouldSayWhatItIsFor();

private:
    std::unique_ptr<QWidget> m_window;
    QTreeView *m_tree = nullptr;
    QKXSearchBox *m_box = nullptr;
    QPushButton *m_other = nullptr;
};

void tst_QKXSearchBox::init()
{
    KxTest::init();
    m_window = std::make_unique<QWidget>();
    m_tree = new QTreeView(m_window.get());
    m_box = new QKXSearchBox(m_window.get());
    m_other = new QPushButton(m_window.get());
    auto *layout = new QVBoxLayout(m_window.get());
    layout->addWidget(m_box);
    layout->addWidget(new QLabel(m_window.get()));
    layout->addWidget(m_tree);
    layout->addWidget(m_other);
    QVERIFY(widgetinput::showActive(m_window.get()));
}

void tst_QKXSearchBox::cleanup()
{
    m_window.reset();
    KxTest::cleanup();
}

void tst_QKXSearchBox::shouldAnnounceEachChangeOfTheText()
{
    QSignalSpy changes(m_box, SIGNAL(searchChanged(const QString &)));
    m_box->beginSearch();
    widgetinput::typeAtFocus(QStringLiteral("ab"));
    QTest::keyClick(m_box, Qt::Key_Backspace);
    QCOMPARE(changes, QList<QVariantList>(
                          {{QStringLiteral("a")}, {QStringLiteral("ab")}, {QStringLiteral("a")}}));
    QCOMPARE(m_box->text(), QStringLiteral("a"));
}

void tst_QKXSearchBox::shouldAnnounceItsTextOnceMoreToSearchAgain()
{
    m_box->setText(QStringLiteral("ab"));
    QSignalSpy changes(m_box, SIGNAL(searchChanged(const QString &)));
    m_box->searchAgain();
    QCOMPARE(changes, QList<QVariantList>({{QStringLiteral("ab")}}));
    QCOMPARE(m_box->text(), QStringLiteral("ab"));
}

void tst_QKXSearchBox::shouldTakeTheFocusAndSelectItsTextToBeginASearch()
{
    m_tree->setFocus();
    m_box->setText(QStringLiteral("old"));
    m_box->beginSearch();
    QVERIFY(m_box->hasFocus());
    widgetinput::typeAtFocus(QStringLiteral("n"));
    QCOMPARE(m_box->text(), QStringLiteral("n"));
}

void tst_QKXSearchBox::shouldClearByItsButton()
{
    m_box->setText(QStringLiteral("old"));
    const QList<QToolButton *> buttons = m_box->findChildren<QToolButton *>();
    QCOMPARE(buttons.size(), 2);
    QVERIFY(buttons.last()->isVisible());
    QTest::mouseClick(buttons.last(), Qt::LeftButton);
    QVERIFY(m_box->text().isEmpty());
    QVERIFY(!buttons.last()->isVisible());
    QVERIFY(!buttons.last()->icon().isNull());
}

void tst_QKXSearchBox::shouldClearOnEscapeAndThenLeaveEscapeToTheWindow()
{
    auto *action = new QAction(m_window.get());
    action->setShortcut(Qt::Key_Escape);
    m_window->addAction(action);
    QSignalSpy shortcuts(action, &QAction::triggered);
    m_box->setFocus();
    m_box->setText(QStringLiteral("old"));
    QTest::keyClick(m_box, Qt::Key_Escape);
    QVERIFY(m_box->text().isEmpty());
    QVERIFY(shortcuts.isEmpty());
    QTest::keyClick(m_box, Qt::Key_Escape);
    QCOMPARE(shortcuts.size(), 1);
}

void tst_QKXSearchBox::shouldIgnoreEscapeWithoutAText()
{
    QKeyEvent event(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    m_box->setFocus();
    const bool left = !QCoreApplication::sendEvent(m_box, &event) || !event.isAccepted();
    QVERIFY(left);
}

void tst_QKXSearchBox::shouldHandTheFocusOnToWhatStandsBelow_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("Down") << Qt::Key_Down;
    QTest::newRow("Return") << Qt::Key_Return;
    QTest::newRow("Enter") << Qt::Key_Enter;
}

void tst_QKXSearchBox::shouldHandTheFocusOnToWhatStandsBelow()
{
    QFETCH(Qt::Key, key);
    m_box->setFocus();
    QTest::keyClick(m_box, key);
    QVERIFY(m_tree->hasFocus());
}

void tst_QKXSearchBox::shouldHandTheFocusOnInTabOrderWithoutANeighbourBelow()
{
    m_tree->hide();
    m_other->setEnabled(false);
    auto *elsewhere = new QPushButton(m_window.get());
    elsewhere->show();
    m_box->setFocus();
    QTest::keyClick(m_box, Qt::Key_Down);
    QVERIFY(elsewhere->hasFocus());
}

void tst_QKXSearchBox::shouldSayWhatItIsFor()
{
    QCOMPARE(m_box->placeholderText(), QStringLiteral("Search"));
    QCOMPARE(m_box->accessibleName(), QStringLiteral("Search"));
}

KX_TEST_MAIN(tst_QKXSearchBox)
#include "tst_QKXSearchBox.moc"
