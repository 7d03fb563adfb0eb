// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/kxStyle.h"
#include "tests/support/KxTest.h"
#include "tests/viewer/whole/WholeViewer.h"
#include "viewer/app/HelpId.h"
#include "viewer/app/UserGuide.h"

#include <QAction>
#include <QDialog>
#include <QDockWidget>
#include <QListView>
#include <QListWidget>
#include <QTreeView>

/// F1 in each panel of the viewer opens the guide that is shipped with it, at the panel's page.
class tst_helpPages : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void shouldOpenThePageOfThePanel();

private:
    static QString pageAt(QWidget *window, QWidget *focus);
};

void tst_helpPages::initTestCase()
{
    QApplication::setStyle(new kxStyle);
}

/// What the guide shows after F1 in a widget; its contents' current row.
QString tst_helpPages::pageAt(QWidget *window, QWidget *focus)
{
    focus->window()->activateWindow();
    if (!becomesActive(focus->window()))
        return "the window is not active";
    focus->setFocus();
    QTest::keyClick(focus, Qt::Key_F1);
    auto *guide = window->findChild<QDialog *>("guideWindow");
    if (!guide || !guide->isVisible())
        return "no guide";
    const QListWidgetItem *item = guide->findChild<QListWidget *>()->currentItem();
    const QString page = item ? item->text() : "no page";
    guide->close();
    QCoreApplication::sendPostedEvents(guide, QEvent::DeferredDelete);
    return page;
}

void tst_helpPages::shouldOpenThePageOfThePanel()
{
    WholeViewer viewer;
    QWidget *window = viewer.session().window();
    QFile file(viewer::UserGuide::file());
    QVERIFY(file.open(QIODevice::ReadOnly));
    const viewer::UserGuide guide(QString::fromUtf8(file.readAll()), QString());
    const QList<QDockWidget *> panels = window->findChildren<QDockWidget *>();
    for (const QDockWidget *panel : panels)
        QVERIFY2(guide.hasAnchor(viewer::helpIdOf(panel)), qPrintable(panel->objectName()));

    auto *tree = window->findChild<QTreeView *>();
    QCOMPARE(pageAt(window, tree), QString("The panel \"Overlays\""));
    window->findChild<QAction *>("showHistory")->trigger();
    QCOMPARE(pageAt(window, window->findChild<QListView *>("historyList")),
             QString("Undo and the list of steps"));
    // A panel that floats is a window of its own.
    auto *panel = window->findChild<QDockWidget *>("module/Overlay Editor");
    panel->setFloating(true);
    QCOMPARE(pageAt(window, tree), QString("The panel \"Overlays\""));
    panel->setFloating(false);
    auto *view = viewer.session().window()->viewArea()->background();
    QCOMPARE(pageAt(window, view), QString("Working in the view"));
    window->setFocus();
    QCOMPARE(pageAt(window, window), QString("User guide"));
}

KX_TEST_MAIN(tst_helpPages)
#include "tst_helpPages.moc"
