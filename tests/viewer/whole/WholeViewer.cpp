// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/viewer/whole/WholeViewer.h"

#include "host/QKXColorManipulator.h"
#include "host/QKXSearchBox.h"
#include "viewer/app/ModulePanels.h"

#include <QApplication>
#include <QDialog>
#include <QDockWidget>
#include <QFile>
#include <QMenu>
#include <QScreen>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QTreeView>

using namespace viewer;

namespace {

constexpr QSize UsualWindow(1600, 1000);
constexpr QSize Display(1920, 1080);
constexpr double MostOfDisplay = 0.94;

const char *const SceneText = R"({"format": "overlay-scene", "version": 1, "overlays": [
    {"kind": "overlay", "name": "1", "type": "text", "text": "1", "size": 40.0},
    {"kind": "overlay", "name": "2", "type": "text", "text": "2", "size": 0.5,
     "sizeType": "relative", "fontColor": "#ff4040", "position": [1.0, 0.0]},
    {"kind": "overlay", "name": "3", "type": "image", "image": "none.png"},
    {"kind": "overlay", "name": "4", "type": "image", "image": "picture.png"},
    {"kind": "group", "name": "5", "children": [{"kind": "overlay", "name": "6"}]},
    {"kind": "switch", "name": "7", "enabled": false,
     "children": [{"kind": "overlay", "name": "8"}, {"kind": "overlay", "name": "9"}]}]})";

QStringList languageFolders()
{
    return Language::standardFolders() + QStringList(PSEUDO_CATALOGUES);
}

} // namespace

WholeViewer::WholeViewer()
    : m_language(qEnvironmentVariable("KX_LOCALE", "en"), languageFolders())
    , m_settings(
          std::make_unique<QSettings>(m_folder.filePath("settings.ini"), QSettings::IniFormat))
{
    QApplication::setApplicationDisplayName(
        QCoreApplication::translate("viewer", "Overlay Viewer"));
    const CommandLine line(
        {"overlay-viewer", writeScene(), "--no-gl", "--plugin", QStringLiteral(EDITOR_PLUGIN)});
    m_session = std::make_unique<ViewerSession>(line, m_settings.get());
    m_session->start();
    MainWindow *window = m_session->window();
    window->resize(UsualWindow.boundedTo(display() * MostOfDisplay));
    window->modulePanels()->applyDefaultSizes();
    m_tree = window->findChild<QTreeView *>();
    m_tree->expandAll();
    QCoreApplication::processEvents();
}

WholeViewer::~WholeViewer() = default;

QSize WholeViewer::display() const
{
    return Display / QGuiApplication::primaryScreen()->devicePixelRatio();
}

QString WholeViewer::writeScene() const
{
    QImage picture(8, 8, QImage::Format_RGB32);
    picture.fill(Qt::red);
    picture.save(m_folder.filePath("picture.png"));
    QFile file(m_folder.filePath("1.json"));
    file.open(QIODevice::WriteOnly);
    file.write(SceneText);
    return file.fileName();
}

QStringList WholeViewer::namesOfUser() const
{
    return {m_folder.path(), "1.json",    "picture.png", "none.png",
            "none.json",     "/overlays", "/children"};
}

void WholeViewer::visitAll(const Visitor &visit)
{
    m_visit = visit;
    visitSelections();
    visitCommands();
    visitSearch();
    visitNotices();
    visitMenus(m_session->window());
    visitDialogs();
}

void WholeViewer::show(QWidget *window, const QString &what)
{
    // Layouts settle by posted events.
    for (int round = 0; round < 3; ++round)
        QCoreApplication::processEvents();
    m_visit(window, what);
}

void WholeViewer::select(const QStringList &names)
{
    m_tree->clearSelection();
    for (const QString &name : names) {
        const QAbstractItemModel *model = m_tree->model();
        const QModelIndexList found = model->match(model->index(0, 0), Qt::DisplayRole, name, 1,
                                                   Qt::MatchExactly | Qt::MatchRecursive);
        m_tree->selectionModel()->select(found.value(0), QItemSelectionModel::Select);
    }
}

void WholeViewer::visitSelections()
{
    show(m_session->window(), "nothing selected");
    const QVector<QStringList> selections{{"1"},      {"2"},      {"3"}, {"4"},     {"1", "2"},
                                          {"1", "3"}, {"3", "4"}, {"5"}, {"7", "1"}};
    for (const QStringList &names : selections) {
        select(names);
        show(m_session->window(), "selected: " + names.join(' '));
    }
}

/// Each operation leaves the name of its step in the edit menu and in the list of steps.
void WholeViewer::visitCommands()
{
    OverlayService &service = *m_session->overlays();
    const QRPC::NodeId root = service.getRootNode();
    service.createGroup(root);
    service.createSwitch(root);
    service.createOverlay(root);
    const QRPC::NodeList one{service.getChild(root, 0)};
    const QRPC::NodeList two{one.first(), service.getChild(root, 1)};
    for (const QRPC::NodeList &nodes : {one, two}) {
        service.setOverlayType(nodes, 1);
        service.setOverlayType(nodes, 0);
        service.setText(nodes, "3");
        service.setFont(nodes, QString::number(nodes.size()));
        service.setFontColor(nodes, Qt::blue);
        service.setBackgroundColor(nodes, Qt::blue);
        service.setBackgroundTransparency(nodes, Qt::gray);
        service.setImage(nodes, m_folder.filePath("picture.png"));
        service.setSizeType(nodes, 1);
        service.setSize(nodes, 0.25F * float(nodes.size()));
        service.setPosition(nodes, {0, 0.5 * nodes.size()});
        service.setOffsetX(nodes, float(nodes.size()));
        service.setOffsetY(nodes, float(nodes.size()));
        service.setEnabled(nodes, false);
        service.setEnabled(nodes, true);
        service.setName(nodes, "1");
        service.duplicateNodes(nodes);
        service.groupNodes(nodes);
        service.deleteNodes(nodes);
        service.undo();
        service.undo();
    }
    m_session->window()->findChild<QAction *>("showHistory")->trigger();
    show(m_session->window(), "list of steps");
    m_session->window()->findChild<QAction *>("showHistory")->trigger();
}

void WholeViewer::visitSearch()
{
    auto *box = m_session->window()->findChild<QKXSearchBox *>();
    select({"1"});
    for (const char *text : {"1", "6", "none"}) {
        box->setText(text);
        QTest::qWait(0);
        show(m_session->window(), QStringLiteral("search for ") + text);
    }
    box->clear();
}

void WholeViewer::visitNotices()
{
    m_session->openScene(m_folder.filePath("none.json"));
    show(m_session->window(), "a scene that is missing");
    m_session->openScene(m_folder.filePath("1.json"));
    show(m_session->window(), "a scene with a missing picture");
}

void WholeViewer::visitMenus(QWidget *parent)
{
    const QList<QMenu *> menus = parent->findChildren<QMenu *>();
    for (QMenu *menu : menus) {
        if (menu->actions().isEmpty())
            continue;
        menu->popup(parent->geometry().topLeft());
        show(menu, "menu " + menu->title() + menu->objectName());
        menu->close();
    }
}

/// A modal dialog has a loop of its own: it is visited and closed from a timer.
void WholeViewer::visitModal(const QString &what, const std::function<void()> &open)
{
    bool seen = false;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
        auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (!dialog || !dialog->isVisible() || seen)
            return;
        seen = true;
        show(dialog, what);
        dialog->reject();
    });
    timer.start(1);
    open();
    QVERIFY2(QTest::qWaitFor([&] { return seen; }), qPrintable(what));
}

QAction *WholeViewer::action(const char *name) const
{
    return m_session->window()->findChild<QAction *>(name);
}

void WholeViewer::visitDialogs()
{
    MainWindow *window = m_session->window();
    action("keyboardShortcutsEntry")->trigger();
    auto *shortcuts = window->findChild<QDialog *>("keyboardShortcuts");
    show(shortcuts, "keyboard shortcuts");
    shortcuts->close();
    action("userGuide")->trigger();
    auto *guide = window->findChild<QDialog *>("guideWindow");
    show(guide, "user guide");
    guide->close();
    visitModal("about", [this] { action("about")->trigger(); });
    FileQuestions questions(window);
    visitModal("unsaved changes", [&] { questions.aboutChanges("1.json"); });
    visitModal("a changed file", [&] { questions.mayOverwrite("1.json"); });
    visitModal("recovery", [&] { questions.aboutRecovery("1.json", "1"); });
    visitModal("open a scene", [&] { questions.fileToOpen(m_folder.path()); });
    visitModal("save a scene", [&] { questions.fileToSave(QString()); });
    visitModal("choose a script", [&] { questions.scriptToRun(QString()); });
    QFile endless(m_folder.filePath("1.js"));
    if (endless.open(QIODevice::WriteOnly) && endless.write("while (true);") > 0)
        endless.close();
    visitModal("a script is running", [&] { m_session->runScript(endless.fileName()); });
    select({"4"});
    visitModal("open an image", [&] { window->findChild<QToolButton *>("loadTexture")->click(); });
    select({"1"});
    auto *colors = window->findChild<QKXColorManipulator *>("_color_slider");
    visitModal("choose a colour", [&] { QTest::keyClick(colors, Qt::Key_Space); });
}
