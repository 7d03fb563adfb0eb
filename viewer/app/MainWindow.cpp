// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/MainWindow.h"

#include "host/kxIconManager.h"
#include "viewer/app/GuideWindow.h"
#include "viewer/app/HelpId.h"
#include "viewer/app/ModulePanels.h"
#include "viewer/app/Scaled.h"
#include "viewer/app/ShortcutsDialog.h"
#include "viewer/app/UserGuide.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDockWidget>
#include <QFileInfo>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QPointer>
#include <QScreen>
#include <QSettings>
#include <QStatusBar>
#include <QTimer>
#include <QUrl>

namespace viewer {

namespace {

constexpr QSize DefaultSize(1600, 1000);
constexpr int HistoryWidth = 230;
constexpr double MostOfScreen = 0.94; // what is left is for the window's frame

// Raised when docks get other names, so that an old layout is not applied to them.
constexpr int LayoutVersion = 1;

QIcon icon(const char *name)
{
    return kxIconManager::getIcon(name, std::string());
}

QString firstLine(const QString &text)
{
    return text.section(QLatin1Char('\n'), 0, 0);
}

/// The one local file that is dragged; empty for anything else.
QString droppedFile(const QDropEvent &event)
{
    const QList<QUrl> urls = event.mimeData()->urls();
    return urls.size() == 1 ? urls.constFirst().toLocalFile() : QString();
}

/// The other application may propose to move the file, and delete it when it is told that it was.
void takeCopy(QDropEvent *event)
{
    event->setDropAction(Qt::CopyAction);
    event->accept();
}

QString geometryKey()
{
    return QStringLiteral("mainWindow/geometry");
}

QString stateKey()
{
    return QStringLiteral("mainWindow/state");
}

} // namespace

MainWindow::MainWindow(ViewArea::Background background) : m_viewArea(new ViewArea(background, this))
{
    setObjectName(QStringLiteral("mainWindow"));
    setCentralWidget(m_viewArea);
    setDockNestingEnabled(true);
    setAcceptDrops(true);
    createFileMenu();
    createEditMenu();
    createViewMenu();
    createModulesMenu();
    createHelpMenu();
    createStatusBar();
    setScenePath(QString());
    useDefaultLayout();
}

MainWindow::~MainWindow() = default;

void MainWindow::setScenePath(const QString &path)
{
    const QString application = QApplication::applicationDisplayName();
    const QString name = path.isEmpty() ? tr("Untitled") : QFileInfo(path).fileName();
    setWindowTitle(tr("%1[*] — %2").arg(name, application));
}

void MainWindow::finishEdits()
{
    // In a window without the keyboard nothing is held back any more.
    const QPointer<QWidget> field = QApplication::focusWidget();
    if (!field)
        return;
    field->clearFocus();
    // An editor in a row is about to go.
    if (field && field->isVisible())
        field->setFocus();
}

void MainWindow::notify(Severity severity, const QString &text)
{
    m_viewArea->notices()->add(severity, text);
    if (severity != Severity::Info)
        statusBar()->showMessage(firstLine(text));
}

/// What is no trouble any more does not stand in the status bar either.
void MainWindow::forgetNotice(const QString &text)
{
    if (statusBar()->currentMessage() == firstLine(text))
        statusBar()->clearMessage();
}

void MainWindow::restoreLayout(const QSettings &settings)
{
    useDefaultLayout();
    const QSize usual(scaled(DefaultSize.width(), this), scaled(DefaultSize.height(), this));
    resize(screen() ? usual.boundedTo(screen()->availableSize() * MostOfScreen) : usual);
    restoreGeometry(settings.value(geometryKey()).toByteArray());
    m_wantsDefaultSizes = !restoreState(settings.value(stateKey()).toByteArray(), LayoutVersion);
}

void MainWindow::useDefaultLayout()
{
    resize(DefaultSize);
    m_wantsDefaultSizes = true;
}

void MainWindow::saveLayout(QSettings *settings) const
{
    settings->setValue(geometryKey(), saveGeometry());
    settings->setValue(stateKey(), saveState(LayoutVersion));
}

void MainWindow::showEvent(QShowEvent *event)
{
    QMainWindow::showEvent(event);
    // Docks take a size only once the window has its own.
    if (m_wantsDefaultSizes)
        m_panels->applyDefaultSizes();
    m_wantsDefaultSizes = false;
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    if (m_mayClose && !m_mayClose()) {
        event->ignore();
        return;
    }
    emit closing();
    QMainWindow::closeEvent(event);
}

void MainWindow::changeEvent(QEvent *event)
{
    QMainWindow::changeEvent(event);
    // The window manager and a remembered layout switch too.
    if (event->type() == QEvent::WindowStateChange)
        m_fullScreen->setChecked(isFullScreen());
}

void MainWindow::createFileMenu()
{
    m_fileMenu = menuBar()->addMenu(tr("&File"));
    m_fileMenu->setObjectName(QStringLiteral("file"));
    QAction *quit = m_fileMenu->addAction(tr("&Quit"), this, &QWidget::close);
    quit->setShortcut(QKeySequence::Quit);
    quit->setMenuRole(QAction::QuitRole);
}

void MainWindow::createEditMenu()
{
    m_editMenu = menuBar()->addMenu(tr("&Edit"));
    m_editMenu->setObjectName(QStringLiteral("edit"));
}

void MainWindow::createViewMenu()
{
    m_viewMenu = menuBar()->addMenu(tr("&View"));
    QMenu *menu = m_viewMenu;
    QAction *reset =
        menu->addAction(icon("ResetView"), tr("&Reset View"), m_viewArea, &ViewArea::resetView);
    reset->setObjectName(QStringLiteral("resetView"));
    reset->setShortcut(Qt::Key_Home);
    // In lists and text fields the key has a meaning of its own.
    reset->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    m_viewArea->addAction(reset);
    m_fullScreen = menu->addAction(tr("&Full Screen"));
    m_fullScreen->setObjectName(QStringLiteral("fullScreen"));
    m_fullScreen->setCheckable(true);
    m_fullScreen->setShortcut(Qt::Key_F11);
    connect(m_fullScreen, &QAction::toggled, this, &MainWindow::toggleFullScreen);
}

void MainWindow::addHistory(QDockWidget *panel)
{
    addDockWidget(Qt::LeftDockWidgetArea, panel);
    panel->hide();
    QAction *show = panel->toggleViewAction();
    show->setObjectName(QStringLiteral("showHistory"));
    show->setText(tr("&History"));
    m_viewMenu->addSeparator();
    m_viewMenu->addAction(show);
    // As wide as a list needs to be; the view is what the window is for.
    connect(show, &QAction::triggered, panel, [this, panel] {
        if (panel->isVisible() && !panel->isFloating())
            resizeDocks({panel}, {scaled(HistoryWidth, this)}, Qt::Horizontal);
    });
}

void MainWindow::createModulesMenu()
{
    QMenu *menu = menuBar()->addMenu(tr("&Modules"));
    menu->setObjectName(QStringLiteral("modules"));
    menu->setEnabled(false);
    m_panels = new ModulePanels(this, menu);
}

void MainWindow::createHelpMenu()
{
    QMenu *menu = menuBar()->addMenu(tr("&Help"));
    QAction *guide = menu->addAction(tr("User &Guide"), this, &MainWindow::showGuide);
    guide->setObjectName(QStringLiteral("userGuide"));
    guide->setShortcut(QKeySequence::HelpContents);
    QAction *shortcuts =
        menu->addAction(tr("&Keyboard Shortcuts…"), this, &MainWindow::showShortcuts);
    shortcuts->setObjectName(QStringLiteral("keyboardShortcutsEntry"));
    menu->addSeparator();
    QAction *about = menu->addAction(tr("&About %1").arg(QApplication::applicationDisplayName()),
                                     this, &MainWindow::showAbout);
    about->setObjectName(QStringLiteral("about"));
    about->setMenuRole(QAction::AboutRole);
}

void MainWindow::createStatusBar()
{
    m_backgroundLabel = new QLabel(m_viewArea->backgroundText(), this);
    m_backgroundLabel->setObjectName(QStringLiteral("backgroundLabel"));
    statusBar()->addPermanentWidget(m_backgroundLabel);
    connect(m_viewArea, &ViewArea::backgroundChanged, this,
            [this] { m_backgroundLabel->setText(m_viewArea->backgroundText()); });
    connect(m_viewArea->notices(), &NoticeArea::dismissed, this, &MainWindow::forgetNotice);
}

void MainWindow::dragEnterEvent(QDragEnterEvent *event)
{
    if (!droppedFile(*event).isEmpty())
        takeCopy(event);
}

void MainWindow::dropEvent(QDropEvent *event)
{
    takeCopy(event);
    // The application that was dragged from waits for the drop to return; a question may follow.
    const QString file = droppedFile(*event);
    QTimer::singleShot(0, this, [this, file] { emit openRequested(file); });
}

void MainWindow::toggleFullScreen(bool on)
{
    setWindowState(on ? windowState() | Qt::WindowFullScreen
                      : windowState() & ~Qt::WindowFullScreen);
}

QVector<kxShortcut::Entry> MainWindow::ownKeys(KeyScope scope) const
{
    return menuKeys(*menuBar(), QApplication::applicationDisplayName(), scope);
}

void MainWindow::reportKeyClashes()
{
    QStringList lines = keyClashes(ownKeys(KeyScope::WholeWindow), kxShortcut::registeredKeys());
    if (lines.isEmpty())
        return;
    lines.append(tr("The command of the menu goes first."));
    notify(Severity::Warning, lines.join(QLatin1Char('\n')));
}

void MainWindow::showShortcuts()
{
    auto *dialog = findChild<ShortcutsDialog *>();
    if (!dialog) {
        dialog =
            new ShortcutsDialog(ownKeys(KeyScope::Anywhere) + kxShortcut::registeredKeys(), this);
        dialog->setAttribute(Qt::WA_DeleteOnClose);
    }
    dialog->show();
    dialog->raise();
    dialog->activateWindow();
}

/// At the page of the panel that has the focus.
void MainWindow::showGuide()
{
    const QString helpId = helpIdOf(QApplication::focusWidget());
    auto *window = findChild<GuideWindow *>();
    if (!window) {
        window = new GuideWindow(UserGuide::file(), this);
        window->setAttribute(Qt::WA_DeleteOnClose);
    }
    window->show();
    window->raise();
    window->activateWindow();
    window->goTo(helpId);
}

void MainWindow::showAbout()
{
    QMessageBox::about(
        this, tr("About %1").arg(QApplication::applicationDisplayName()),
        tr("<h3>%1 %2</h3><p>Shows a scene and its text and image overlays, and hosts "
           "the modules that edit them.</p>")
            .arg(QApplication::applicationDisplayName(), QApplication::applicationVersion()));
}

} // namespace viewer
