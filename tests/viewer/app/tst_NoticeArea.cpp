// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/NoticeArea.h"

#include "tests/support/KxTest.h"
#include "viewer/app/MainWindow.h"

#include <QStatusBar>
#include <QToolButton>

using namespace viewer;

/// How long messages stay over the view and in the status bar.
class tst_NoticeArea : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldShowNoticesUntilTheyAreDismissed();
    void shouldForgetInTheStatusBarWhatWasDismissed();
    void shouldSayWhatIsLeftOfAMessage();
    void shouldTakeAwayWhatAsksForNothing();
    void shouldKeepTheNewestNotices();

private:
    struct Window : MainWindow
    {
        Window() : MainWindow(ViewArea::Background::Painted) {}
        QStringList notices() const { return viewArea()->notices()->texts(); }
    };
};

void tst_NoticeArea::shouldShowNoticesUntilTheyAreDismissed()
{
    Window window;
    window.setVisible(true);
    QVERIFY(!window.viewArea()->notices()->isVisible());
    window.notify(Severity::Warning, "first\nwith a second line");
    window.notify(Severity::Error, "second");
    window.notify(Severity::Error, "second");
    QCOMPARE(window.notices(), QStringList({"second", "first\nwith a second line"}));
    QVERIFY(window.viewArea()->notices()->isVisible());
    QCOMPARE(window.statusBar()->currentMessage(), QString("second"));

    const auto newest = window.viewArea()->notices()->findChildren<Notice *>().constLast();
    QTest::mouseClick(newest->findChild<QToolButton *>("dismiss"), Qt::LeftButton);
    QCOMPARE(window.notices(), QStringList("first\nwith a second line"));
    window.viewArea()->notices()->clear();
    QCOMPARE(window.notices(), QStringList());
    QVERIFY(!window.viewArea()->notices()->isVisible());
}

void tst_NoticeArea::shouldForgetInTheStatusBarWhatWasDismissed()
{
    Window window;
    window.notify(Severity::Error, "first\nwith a second line");
    QCOMPARE(window.statusBar()->currentMessage(), QString("first"));
    window.viewArea()->notices()->clear();
    QCOMPARE(window.statusBar()->currentMessage(), QString());
    window.notify(Severity::Error, "first");
    window.statusBar()->showMessage("Saved");
    QVERIFY(window.viewArea()->notices()->dismissNewest());
    QCOMPARE(window.statusBar()->currentMessage(), QString("Saved"));
    QVERIFY(!window.viewArea()->notices()->dismissNewest());
}

void tst_NoticeArea::shouldSayWhatIsLeftOfAMessage()
{
    Window window;
    window.setVisible(true);
    NoticeArea *area = window.viewArea()->notices();
    window.notify(Severity::Error, "other");
    window.notify(Severity::Warning, "first\nsecond\nthird");
    const int height = area->height();
    area->replace("first\nsecond\nthird", "second");
    QCOMPARE(window.notices(), QStringList({"second", "other"}));
    QCOMPARE(area->findChildren<Notice *>().constLast()->accessibleName(), QString("second"));
    QVERIFY(area->height() < height);
    QCOMPARE(window.statusBar()->currentMessage(), QString()); // it names the first
    area->replace("gone", "third");
    QCOMPARE(window.notices(), QStringList({"second", "other"}));
    area->remove("second");
    area->remove("gone");
    QCOMPARE(window.notices(), QStringList("other"));
}

void tst_NoticeArea::shouldTakeAwayWhatAsksForNothing()
{
    Window window;
    window.setVisible(true);
    QVERIFY(QTest::qWaitForWindowActive(&window));
    window.notify(Severity::Info, "news");
    const auto *news = window.viewArea()->notices()->findChild<Notice *>();
    window.notify(Severity::Warning, "warning");
    window.notify(Severity::Error, "error");
    const QList<Notice *> notices = window.viewArea()->notices()->findChildren<Notice *>();
    for (const Notice *notice : notices)
        QCOMPARE(notice->findChild<QTimer *>()->isActive(), notice == news);
    news->findChild<QTimer *>()->setInterval(0);
    QTRY_COMPARE(window.notices(), QStringList({"error", "warning"}));
}

void tst_NoticeArea::shouldKeepTheNewestNotices()
{
    Window window;
    for (int i = 1; i <= 6; ++i)
        window.notify(Severity::Info, QString::number(i));
    QCOMPARE(window.notices(), QStringList({"6", "5", "4", "3"}));
}

KX_TEST_MAIN(tst_NoticeArea)
#include "tst_NoticeArea.moc"
