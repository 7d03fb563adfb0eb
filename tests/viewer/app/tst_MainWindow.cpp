// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/MainWindow.h"

#include "tests/support/KxTest.h"
#include "viewer/app/MainWindowService.h"
#include "viewer/app/ModulePanels.h"
#include "viewer/app/Scaled.h"
#include "viewer/app/Viewport.h"

#include <QDialog>
#include <QDockWidget>
#include <QDropEvent>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QScopeGuard>
#include <QScreen>
#include <QSettings>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QToolButton>
#include <QUrl>

using namespace viewer;

namespace {

/// A window of a module that hides QWidget::show() behind a signal, as the editor's does.
class ModuleWindow : public QMainWindow
{
    Q_OBJECT

public:
    using QMainWindow::QMainWindow;

Q_SIGNALS:
    void show(); // clazy:exclude=overridden-signal
};

class Window : public MainWindow
{
public:
    Window() : MainWindow(ViewArea::Background::Painted) {}

    QWidget *add(const QString &name, const QString &category = QStringLiteral("Scene"),
                 const QString &title = QStringLiteral("A Title"))
    {
        QPixmap red(16, 16);
        red.fill(Qt::red);
        auto *content = new ModuleWindow(this);
        content->setMinimumWidth(100);
        content->statusBar()->setSizeGripEnabled(true);
        MainWindowService(this).registerModule(name, category, content, "a help id", QIcon(red),
                                               title, 0);
        return content;
    }

    QMenu *modules() const { return findChild<QMenu *>("modules"); }

    QStringList notices() const { return viewArea()->notices()->texts(); }
};

QStringList textsOf(const QMenu *menu)
{
    QStringList texts;
    const QList<QAction *> actions = menu->actions();
    for (const QAction *action : actions)
        texts.append(action->text());
    return texts;
}

} // namespace

class tst_MainWindow : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void shouldDockAModuleWithItsWindowTitleAndIcon();
    void shouldListModulesByCategory();
    void shouldShowAndHideAModuleFromTheMenu();
    void shouldKeepTheFirstOfTwoModulesOfOneName();
    void shouldSurviveARegistrationWithoutWindow();
    void shouldTakeThePanelAwayWithTheModulesWindow();
    void shouldGiveThePanelItsUsualWidth();
    void shouldLeaveTheViewItsShareOfANarrowWindow();
    void shouldFitTheScreenWhereNothingIsRemembered();
    void shouldRememberTheLayout();
    void shouldUseTheDefaultLayoutWhereTheRememberedOneIsBroken();
    void shouldKeepTheFullScreenSwitchInStepWithTheWindow();
    void shouldNameTheSceneInTheTitle();
    void shouldAskForAFileThatIsDropped();
    void shouldNotTakeADroppedFileAway();
    void shouldRefuseADropThatIsNoFile();
    void shouldStayOpenWhenItMayNotClose();
    void shouldNameKeysThatStandForTwoCommands();
    void shouldOpenOneListOfShortcuts();
    void shouldSayThatThereIsNo3DView();
    void shouldShowAllLinesOfANotice();
    void shouldHaveRoomForTheSignsOfANotice();

private:
    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_MainWindow::init()
{
    KxTest::init();
    QApplication::setApplicationDisplayName("Overlay Viewer");
    m_folder = std::make_unique<QTemporaryDir>();
}

void tst_MainWindow::shouldDockAModuleWithItsWindowTitleAndIcon()
{
    Window window;
    QVERIFY(!window.modules()->isEnabled());
    QWidget *content = window.add("Editor");
    QDockWidget *dock = window.modulePanels()->dock("Editor");
    QVERIFY(dock);
    QCOMPARE(dock->widget(), content);
    QCOMPARE(dock->windowTitle(), QString("A Title"));
    QVERIFY(!dock->windowIcon().isNull());
    QCOMPARE(window.dockWidgetArea(dock), Qt::RightDockWidgetArea);
    QCOMPARE(window.modulePanels()->helpId("Editor"), QString("a help id"));
    QVERIFY(window.modules()->isEnabled());
    window.setVisible(true);
    QTRY_VERIFY(content->isVisible());
    QVERIFY(!content->isWindow());
    QVERIFY(!content->findChild<QStatusBar *>()->isSizeGripEnabled());
}

void tst_MainWindow::shouldListModulesByCategory()
{
    Window window;
    window.add("One", "Scene", "First");
    window.add("Two", "Render", "Second");
    window.add("Three", "Scene", "Third");
    QCOMPARE(textsOf(window.modules()), QStringList({"Scene", "Render"}));
    const QList<QAction *> categories = window.modules()->actions();
    QCOMPARE(textsOf(categories.at(0)->menu()), QStringList({"First", "Third"}));
    QCOMPARE(textsOf(categories.at(1)->menu()), QStringList("Second"));
}

void tst_MainWindow::shouldShowAndHideAModuleFromTheMenu()
{
    Window window;
    QWidget *content = window.add("Editor");
    window.setVisible(true);
    QTRY_VERIFY(content->isVisible());
    QAction *toggle = window.modules()->actions().constFirst()->menu()->actions().constFirst();
    QVERIFY(toggle->isCheckable());
    QVERIFY(toggle->isChecked());
    toggle->trigger();
    QVERIFY(!content->isVisible());
    toggle->trigger();
    QVERIFY(content->isVisible());
}

void tst_MainWindow::shouldKeepTheFirstOfTwoModulesOfOneName()
{
    Window window;
    const QWidget *first = window.add("Editor", "Scene", "First");
    const QWidget *second = window.add("Editor", "Scene", "Second");
    const QDockWidget *dock = window.modulePanels()->dock("Editor");
    QCOMPARE(dock->widget(), first);
    QCOMPARE(dock->windowTitle(), QString("First"));
    QCOMPARE(window.findChildren<QDockWidget *>().size(), 1);
    QCOMPARE(textsOf(window.modules()->actions().constFirst()->menu()), QStringList("First"));
    QVERIFY(!second->isVisible());
    QVERIFY(window.notices().join(' ').contains("\"Editor\""));
}

void tst_MainWindow::shouldSurviveARegistrationWithoutWindow()
{
    Window window;
    MainWindowService service(&window);
    service.registerModule("Editor", "Scene", nullptr, QString(), QIcon(), "Title", 0);
    QVERIFY(!window.modulePanels()->dock("Editor"));
    MainWindowService orphan(nullptr);
    QCOMPARE(orphan.getMainWindow(), nullptr);
    orphan.registerModule("Editor", "Scene", &window, QString(), QIcon(), "Title", 0);
}

void tst_MainWindow::shouldTakeThePanelAwayWithTheModulesWindow()
{
    Window window;
    delete window.add("Editor");
    QTRY_VERIFY(!window.modulePanels()->dock("Editor"));
    QVERIFY(!window.modules()->isEnabled());
    window.add("Editor");
    QVERIFY(window.modulePanels()->dock("Editor"));
    QVERIFY(window.modules()->isEnabled());
    QCOMPARE(textsOf(window.modules()), QStringList("Scene"));
}

void tst_MainWindow::shouldGiveThePanelItsUsualWidth()
{
    Window window;
    window.add("Editor");
    window.useDefaultLayout();
    QCOMPARE(window.size(), QSize(1600, 1000));
    window.resize(scaled(1600, &window), scaled(1000, &window));
    window.setVisible(true);
    QTRY_COMPARE(window.modulePanels()->dock("Editor")->width(), scaled(700, &window));
}

void tst_MainWindow::shouldLeaveTheViewItsShareOfANarrowWindow()
{
    Window window;
    window.add("Editor");
    window.useDefaultLayout();
    window.resize(1000, 700);
    window.setVisible(true);
    QTRY_COMPARE(window.modulePanels()->dock("Editor")->width(), 600);
}

void tst_MainWindow::shouldFitTheScreenWhereNothingIsRemembered()
{
    Window window;
    const QSize room = window.screen()->availableSize();
    QVERIFY(room.width() < 1600);
    window.restoreLayout(QSettings(m_folder->filePath("none.ini"), QSettings::IniFormat));
    // The window manager's frame needs room too.
    QVERIFY2(window.width() < room.width(), qPrintable(QString::number(window.width())));
    QVERIFY2(window.height() < room.height() - 30, qPrintable(QString::number(window.height())));
}

void tst_MainWindow::shouldRememberTheLayout()
{
    QSettings settings(m_folder->filePath("layout.ini"), QSettings::IniFormat);
    {
        Window window;
        window.add("Editor");
        window.add("Other", "Scene", "Other");
        window.restoreLayout(settings);
        window.setVisible(true);
        QTRY_VERIFY(window.modulePanels()->dock("Editor")->isVisible());
        window.resize(900, 555);
        window.addDockWidget(Qt::LeftDockWidgetArea, window.modulePanels()->dock("Editor"));
        window.resizeDocks({window.modulePanels()->dock("Editor")}, {222}, Qt::Horizontal);
        window.modulePanels()->dock("Other")->close();
        QTRY_COMPARE(window.modulePanels()->dock("Editor")->width(), 222);
        window.saveLayout(&settings);
    }
    Window window;
    window.add("Editor");
    window.add("Other", "Scene", "Other");
    window.restoreLayout(settings);
    window.setVisible(true);
    QTRY_COMPARE(window.size(), QSize(900, 555));
    QDockWidget *dock = window.modulePanels()->dock("Editor");
    QCOMPARE(window.dockWidgetArea(dock), Qt::LeftDockWidgetArea);
    QTRY_COMPARE(dock->width(), 222);
    QVERIFY(!window.modulePanels()->dock("Other")->isVisible());
}

void tst_MainWindow::shouldUseTheDefaultLayoutWhereTheRememberedOneIsBroken()
{
    QSettings settings(m_folder->filePath("broken.ini"), QSettings::IniFormat);
    settings.setValue("mainWindow/geometry", QByteArray("nonsense"));
    settings.setValue("mainWindow/state", QByteArray("nonsense"));
    Window window;
    window.add("Editor");
    window.restoreLayout(settings);
    window.resize(scaled(1600, &window), scaled(1000, &window));
    window.setVisible(true);
    QTRY_COMPARE(window.modulePanels()->dock("Editor")->width(), scaled(700, &window));
}

void tst_MainWindow::shouldKeepTheFullScreenSwitchInStepWithTheWindow()
{
    Window window;
    window.setVisible(true);
    auto *action = window.findChild<QAction *>("fullScreen");
    action->trigger();
    QTRY_VERIFY(window.isFullScreen());
    QVERIFY(action->isChecked());
    window.showNormal();
    QTRY_VERIFY(!action->isChecked());
    QVERIFY(!window.isFullScreen());
}

void tst_MainWindow::shouldNameTheSceneInTheTitle()
{
    Window window;
    QCOMPARE(window.windowTitle(), QString("Untitled[*] — Overlay Viewer"));
    window.setScenePath("/some/where/night.json");
    QCOMPARE(window.windowTitle(), QString("night.json[*] — Overlay Viewer"));
    window.setScenePath(QString());
    QCOMPARE(window.windowTitle(), QString("Untitled[*] — Overlay Viewer"));
}

static bool drop(QWidget *window, const QList<QUrl> &urls)
{
    QMimeData data;
    data.setUrls(urls);
    QDragEnterEvent enter(QPoint(9, 9), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QApplication::sendEvent(window, &enter);
    if (!enter.isAccepted())
        return false;
    QDropEvent event(QPointF(9, 9), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window, &event);
    return event.isAccepted();
}

void tst_MainWindow::shouldAskForAFileThatIsDropped()
{
    Window window;
    QSignalSpy asked(&window, &MainWindow::openRequested);
    QVERIFY(drop(&window, {QUrl::fromLocalFile("/some/where/night.json")}));
    QCOMPARE(asked.count(), 0); // the drop has returned before anyone is asked
    QTRY_COMPARE(asked.count(), 1);
    QCOMPARE(asked.first().first().toString(), QString("/some/where/night.json"));
}

void tst_MainWindow::shouldNotTakeADroppedFileAway()
{
    Window window;
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile("/some/where/night.json")});
    const Qt::DropActions possible = Qt::MoveAction | Qt::CopyAction;
    QDragEnterEvent enter({9, 9}, possible, &data, Qt::LeftButton, Qt::ShiftModifier);
    QCOMPARE(enter.proposedAction(), Qt::MoveAction);
    QApplication::sendEvent(&window, &enter);
    QCOMPARE(enter.dropAction(), Qt::CopyAction);
    QDropEvent event({9, 9}, possible, &data, Qt::LeftButton, Qt::ShiftModifier);
    QApplication::sendEvent(&window, &event);
    QCOMPARE(event.dropAction(), Qt::CopyAction);
}

void tst_MainWindow::shouldRefuseADropThatIsNoFile()
{
    Window window;
    QVERIFY(!drop(&window, {}));
    QVERIFY(!drop(&window, {QUrl("https://host/a.json")}));
    QVERIFY(!drop(&window, {QUrl::fromLocalFile("/a.json"), QUrl::fromLocalFile("/b.json")}));
}

void tst_MainWindow::shouldStayOpenWhenItMayNotClose()
{
    Window window;
    QSignalSpy closing(&window, &MainWindow::closing);
    int questions = 0;
    window.show();
    window.setCloseGuard([&questions] { return ++questions > 1; });
    QVERIFY(!window.close());
    QVERIFY(window.isVisible());
    QCOMPARE(closing.count(), 0);
    QVERIFY(window.close());
    QCOMPARE(closing.count(), 1);
    QCOMPARE(questions, 2);
}

void tst_MainWindow::shouldNameKeysThatStandForTwoCommands()
{
    const auto forget = qScopeGuard([] { kxShortcut::clear(); });
    Window window;
    kxShortcut::addKey("Lights", Qt::Key_F11, Qt::ShiftModifier, "Dim");
    // A key of the view alone, which does not keep it from a panel.
    kxShortcut::addKey("Lights", Qt::Key_Home, Qt::NoModifier, "First");
    window.reportKeyClashes();
    QCOMPARE(window.notices(), QStringList());
    kxShortcut::addKey("Lights", Qt::Key_F11, Qt::NoModifier, "Solo");
    window.reportKeyClashes();
    QCOMPARE(
        window.notices(),
        QStringList("F11 is the key of \"Full Screen\" in the menu and of \"Solo\" in Lights.\n"
                    "The command of the menu goes first."));
}

void tst_MainWindow::shouldOpenOneListOfShortcuts()
{
    Window window;
    auto *entry = window.findChild<QAction *>("keyboardShortcutsEntry");
    entry->trigger();
    entry->trigger();
    const QPointer<QDialog> list = window.findChild<QDialog *>("keyboardShortcuts");
    QVERIFY(list->isVisible());
    QCOMPARE(window.findChildren<QDialog *>().size(), 1);
    list->close();
    QTRY_VERIFY(!list);
}

void tst_MainWindow::shouldSayThatThereIsNo3DView()
{
    // The platform of this test has no OpenGL: the wish for it cannot be met, which is no error.
    MainWindow wishing(ViewArea::Background::OpenGl);
    QVERIFY(!wishing.viewArea()->viewport());
    const QLabel *label = wishing.statusBar()->findChild<QLabel *>("backgroundLabel");
    QVERIFY2(label->text().contains("No 3D view") && label->text().contains("offscreen"),
             qPrintable(label->text()));
    QVERIFY(wishing.viewArea()->notices()->texts().isEmpty());

    Window refusing;
    label = refusing.statusBar()->findChild<QLabel *>("backgroundLabel");
    QVERIFY2(label->text().contains("No 3D view") && label->text().contains("backdrop"),
             qPrintable(label->text()));
    QSignalSpy frames(refusing.viewArea(), &ViewArea::framePainted);
    refusing.setVisible(true);
    QTRY_VERIFY(!frames.isEmpty());
    refusing.viewArea()->resetView();
}

void tst_MainWindow::shouldShowAllLinesOfANotice()
{
    Window window;
    window.setVisible(true);
    window.notify(Severity::Error,
                  QString("many words in a long line ").repeated(20) + "\nand one");
    const Notice *notice = window.viewArea()->notices()->findChild<Notice *>();
    const auto *label = notice->findChild<QLabel *>();
    QTRY_VERIFY(label->height() >= label->heightForWidth(label->width()));
    QVERIFY(notice->height() < label->heightForWidth(label->width()) + scaled(30, &window));
    // In a narrow window the same words need more lines.
    window.resize(500, 600);
    QTRY_VERIFY(label->height() >= label->heightForWidth(label->width()));
}

void tst_MainWindow::shouldHaveRoomForTheSignsOfANotice()
{
    Window window;
    window.setVisible(true);
    window.notify(Severity::Info, "text");
    const Notice *notice = window.viewArea()->notices()->findChild<Notice *>();
    const auto *button = notice->findChild<QToolButton *>("dismiss");
    QTRY_VERIFY(button->width() >= button->iconSize().width());
    QVERIFY(button->height() >= button->iconSize().height());
    QVERIFY(notice->rect().contains(button->geometry()));
    QVERIFY(notice->findChild<QLabel *>()->geometry().right() < button->x());
}

KX_TEST_MAIN(tst_MainWindow)
#include "tst_MainWindow.moc"
