// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/QKXCollapsibleFrame.h"
#include "tests/hostlib/widgetInput.h"
#include "tests/support/KxTest.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QVBoxLayout>

#include <memory>

/// Two frames below one another, each with a page of labels and fields, as a panel has them.
class tst_QKXCollapsibleFrame : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void cleanup() override;
    void shouldOwnAndShowItsPages();
    void shouldTakeItsCaptionAsAProperty();
    void shouldFoldAndUnfoldByMouse();
    void shouldFoldAndUnfoldByKeys_data();
    void shouldFoldAndUnfoldByKeys();
    void shouldGiveItsSpaceAwayWhileFolded();
    void shouldTakeItsSizePolicyBackWhenUnfolded();
    void shouldKeepTheFocusOnTheHeaderWhenAPageWithTheFocusFolds();
    void shouldTellAssistiveToolsItsNameAndState();
    void shouldLineLabelsUpAcrossFrames();
    void shouldGiveTheRoomToFieldsThatDoNotAskForIt();
    void shouldKeepAtLeastTheStatedWidth();
    void shouldCountHiddenLabels();
    void shouldLeaveWhatSpansTheColumnsOut();
    void shouldAcceptRootsWithoutFrames();

private:
    QKXCollapsibleFrame *addFrame(const QStringList &labels);
    QGridLayout *gridOf(const QKXCollapsibleFrame *frame) const;
    QAbstractButton *headerOf(const QKXCollapsibleFrame *frame) const;
    int fieldLeft(const QKXCollapsibleFrame *frame, int row) const;

    std::unique_ptr<QWidget> m_window;
    QVBoxLayout *m_layout = nullptr;
    QKXCollapsibleFrame *m_first = nullptr;
    QKXCollapsibleFrame *m_second = nullptr;
};

void tst_QKXCollapsibleFrame::init()
{
    KxTest::init();
    m_window = std::make_unique<QWidget>();
    m_layout = new QVBoxLayout(m_window.get());
    m_first = addFrame({QStringLiteral("Name"), QStringLiteral("A rather long label of a field")});
    m_second = addFrame({QStringLiteral("Size"), QStringLiteral("Offset")});
    m_layout->addStretch();
    m_window->resize(700, 500);
    QVERIFY(widgetinput::showActive(m_window.get()));
}

void tst_QKXCollapsibleFrame::cleanup()
{
    m_window.reset();
    KxTest::cleanup();
}

QKXCollapsibleFrame *tst_QKXCollapsibleFrame::addFrame(const QStringList &labels)
{
    auto *frame = new QKXCollapsibleFrame(m_window.get());
    auto *page = new QWidget;
    auto *grid = new QGridLayout(page);
    for (int row = 0; row < labels.size(); ++row) {
        grid->addWidget(new QLabel(labels.at(row), page), row, 0);
        grid->addWidget(new QLineEdit(page), row, 1);
    }
    frame->addPage(page);
    m_layout->addWidget(frame);
    return frame;
}

QGridLayout *tst_QKXCollapsibleFrame::gridOf(const QKXCollapsibleFrame *frame) const
{
    return frame->findChild<QGridLayout *>();
}

QAbstractButton *tst_QKXCollapsibleFrame::headerOf(const QKXCollapsibleFrame *frame) const
{
    return frame->findChild<QAbstractButton *>();
}

/// Where the field of a row begins, in the window.
int tst_QKXCollapsibleFrame::fieldLeft(const QKXCollapsibleFrame *frame, int row) const
{
    const QWidget *field = gridOf(frame)->itemAtPosition(row, 1)->widget();
    return field->mapTo(m_window.get(), QPoint(0, 0)).x();
}

void tst_QKXCollapsibleFrame::shouldOwnAndShowItsPages()
{
    auto *page = new QLabel(QStringLiteral("more"));
    m_first->addPage(page);
    m_first->addPage(nullptr);
    QVERIFY(m_first->isAncestorOf(page));
    QTRY_VERIFY(page->isVisible());
    QVERIFY(page->mapTo(m_window.get(), QPoint()).y()
            > gridOf(m_first)->parentWidget()->mapTo(m_window.get(), QPoint()).y());
}

void tst_QKXCollapsibleFrame::shouldTakeItsCaptionAsAProperty()
{
    QVERIFY(m_first->setProperty("caption", QStringLiteral("Size & Position")));
    QCOMPARE(m_first->caption(), QStringLiteral("Size & Position"));
    QVERIFY(headerOf(m_first)->shortcut().isEmpty());
}

void tst_QKXCollapsibleFrame::shouldFoldAndUnfoldByMouse()
{
    QSignalSpy toggles(m_first, &QKXCollapsibleFrame::toggled);
    const QWidget *page = gridOf(m_first)->parentWidget();
    QTest::mouseClick(headerOf(m_first), Qt::LeftButton);
    QVERIFY(!m_first->isExpanded());
    QVERIFY(!page->isVisible());
    QTest::mouseClick(headerOf(m_first), Qt::LeftButton);
    QVERIFY(m_first->isExpanded());
    QVERIFY(page->isVisible());
    QCOMPARE(toggles, QList<QVariantList>({{false}, {true}}));
}

void tst_QKXCollapsibleFrame::shouldFoldAndUnfoldByKeys_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<Qt::Key>("fold");
    QTest::addColumn<Qt::Key>("unfold");
    QTest::newRow("Space") << Qt::LeftToRight << Qt::Key_Space << Qt::Key_Space;
    QTest::newRow("Return") << Qt::LeftToRight << Qt::Key_Return << Qt::Key_Return;
    QTest::newRow("Enter") << Qt::LeftToRight << Qt::Key_Enter << Qt::Key_Enter;
    QTest::newRow("arrows") << Qt::LeftToRight << Qt::Key_Left << Qt::Key_Right;
    QTest::newRow("arrows, mirrored") << Qt::RightToLeft << Qt::Key_Right << Qt::Key_Left;
}

void tst_QKXCollapsibleFrame::shouldFoldAndUnfoldByKeys()
{
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(Qt::Key, fold);
    QFETCH(Qt::Key, unfold);
    m_window->setLayoutDirection(direction);
    gridOf(m_first)->itemAtPosition(0, 1)->widget()->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
    QVERIFY(headerOf(m_first)->hasFocus());
    QTest::keyClick(headerOf(m_first), fold);
    QVERIFY(!m_first->isExpanded());
    QTest::keyClick(headerOf(m_first), unfold);
    QVERIFY(m_first->isExpanded());
}

void tst_QKXCollapsibleFrame::shouldGiveItsSpaceAwayWhileFolded()
{
    delete m_layout->takeAt(m_layout->count() - 1); // nothing else stretches
    m_first->setExpanded(false);
    QTRY_COMPARE(m_first->height(), headerOf(m_first)->sizeHint().height());
    m_first->setExpanded(true);
    QTRY_VERIFY(m_first->height() > 3 * headerOf(m_first)->height());
}

void tst_QKXCollapsibleFrame::shouldTakeItsSizePolicyBackWhenUnfolded()
{
    QSizePolicy policy(QSizePolicy::MinimumExpanding, QSizePolicy::Maximum);
    policy.setVerticalStretch(3);
    m_first->setSizePolicy(policy);
    m_first->setExpanded(false);
    m_first->setExpanded(true);
    QCOMPARE(m_first->sizePolicy(), policy);
}

void tst_QKXCollapsibleFrame::shouldKeepTheFocusOnTheHeaderWhenAPageWithTheFocusFolds()
{
    gridOf(m_first)->itemAtPosition(1, 1)->widget()->setFocus();
    m_second->setExpanded(false);
    QVERIFY(gridOf(m_first)->itemAtPosition(1, 1)->widget()->hasFocus());
    m_first->setExpanded(false);
    QVERIFY(headerOf(m_first)->hasFocus());
}

void tst_QKXCollapsibleFrame::shouldTellAssistiveToolsItsNameAndState()
{
    m_first->setCaption(QStringLiteral("Properties"));
    QAccessibleInterface *header = QAccessible::queryAccessibleInterface(headerOf(m_first));
    QCOMPARE(header->text(QAccessible::Name), QStringLiteral("Properties"));
    QCOMPARE(header->role(), QAccessible::Button);
    QVERIFY(header->state().expandable && header->state().expanded && !header->state().collapsed);
    header->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QVERIFY(!m_first->isExpanded());
    QVERIFY(header->state().collapsed && !header->state().expanded);
    header->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    QVERIFY(headerOf(m_first)->hasFocus());
}

void tst_QKXCollapsibleFrame::shouldLineLabelsUpAcrossFrames()
{
    QVERIFY(fieldLeft(m_first, 0) != fieldLeft(m_second, 0));
    QKXCollapsibleFrame::fixLayouts(m_window.get(), 10);
    QTRY_COMPARE(fieldLeft(m_second, 0), fieldLeft(m_first, 0));
    QCOMPARE(fieldLeft(m_second, 1), fieldLeft(m_first, 1));
    const QWidget *widest = gridOf(m_first)->itemAtPosition(1, 0)->widget();
    QCOMPARE(widest->width(), widest->sizeHint().width());
    m_window->resize(1000, 500);
    QTRY_VERIFY(m_first->width() > 900);
    QCOMPARE(fieldLeft(m_second, 0), fieldLeft(m_first, 0));
    QCOMPARE(widest->width(), widest->sizeHint().width());
}

void tst_QKXCollapsibleFrame::shouldGiveTheRoomToFieldsThatDoNotAskForIt()
{
    QGridLayout *grid = gridOf(m_second);
    for (int row = 0; row < 2; ++row) {
        delete grid->itemAtPosition(row, 1)->widget();
        grid->addWidget(new QLabel(QStringLiteral("plain")), row, 1);
    }
    QKXCollapsibleFrame::fixLayouts(m_window.get(), 10);
    QTRY_COMPARE(fieldLeft(m_second, 0), fieldLeft(m_first, 0));
}

void tst_QKXCollapsibleFrame::shouldKeepAtLeastTheStatedWidth()
{
    QKXCollapsibleFrame::fixLayouts(m_second, 300);
    const int scaled = qRound(300 * m_window->logicalDpiX() / 96.0);
    QTRY_COMPARE(gridOf(m_second)->itemAtPosition(0, 0)->widget()->width(), scaled);
    QCOMPARE(gridOf(m_first)->columnMinimumWidth(0), 0);
    QKXCollapsibleFrame::fixLayouts(m_second, 0);
    const int needed = gridOf(m_second)->columnMinimumWidth(0);
    QVERIFY(needed > 0);
    QKXCollapsibleFrame::fixLayouts(m_second, -300);
    QCOMPARE(gridOf(m_second)->columnMinimumWidth(0), needed);
}

void tst_QKXCollapsibleFrame::shouldCountHiddenLabels()
{
    QWidget *widest = gridOf(m_first)->itemAtPosition(1, 0)->widget();
    widest->hide();
    QKXCollapsibleFrame::fixLayouts(m_window.get(), 10);
    QCOMPARE(gridOf(m_second)->columnMinimumWidth(0), widest->sizeHint().width());
    QTRY_COMPARE(fieldLeft(m_second, 0), fieldLeft(m_first, 0));
}

void tst_QKXCollapsibleFrame::shouldLeaveWhatSpansTheColumnsOut()
{
    auto *wide = new QLabel(QString(60, QLatin1Char('w')));
    gridOf(m_second)->addWidget(wide, 2, 0, 1, 2);
    QKXCollapsibleFrame::fixLayouts(m_window.get(), 10);
    QVERIFY(gridOf(m_second)->columnMinimumWidth(0) < wide->sizeHint().width());
}

void tst_QKXCollapsibleFrame::shouldAcceptRootsWithoutFrames()
{
    QKXCollapsibleFrame::fixLayouts(nullptr, 130);
    QKXCollapsibleFrame::fixLayouts(headerOf(m_first), 130);
    m_first->addPage(new QLabel(QStringLiteral("a page without a grid")));
    QKXCollapsibleFrame::fixLayouts(m_first, 130);
    QVERIFY(gridOf(m_first)->columnMinimumWidth(0) >= 130);
}

KX_TEST_MAIN(tst_QKXCollapsibleFrame)
#include "tst_QKXCollapsibleFrame.moc"
