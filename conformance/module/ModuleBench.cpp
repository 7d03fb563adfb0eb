// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "conformance/module/ModuleBench.h"

#include "conformance/Library.h"
#include "kit/TreeDump.h"
#include "kit/keys.h"

#include <QAbstractButton>
#include <QAction>
#include <QButtonGroup>
#include <QLayout>
#include <QLineEdit>
#include <QMenu>

#include <algorithm>

namespace conformance {

namespace {

constexpr int idRole = Qt::UserRole + 1;

} // namespace

ModuleBench::ModuleBench(const QString &file)
    : m_entry(entryOf(file, "initPlugin"))
    , m_host(std::make_unique<HostFixture>())
{
}

ModuleBench::~ModuleBench()
{
    // Windows ask services to the last.
    for (const HostFixture::Registration &registration : m_host->registrations())
        delete registration.window;
}

void ModuleBench::enter()
{
    if (!m_entered)
        m_entry();
    m_entered = true;
}

void ModuleBench::reset()
{
    m_host->onCall = nullptr;
    m_host->scaleX = m_host->scaleY = 1.0;
    service().setApplies(true);
    service().setHook(nullptr);
    service().setCallHook(nullptr);
    QWidget &shown = window();
    shown.hide();
    qobject_cast<QLineEdit *>(&searchBox())->clear();
    open(QString());
    // Editors of names, for one.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

QMainWindow &ModuleBench::window()
{
    const auto &registrations = m_host->registrations();
    expect("a module window is registered", !registrations.isEmpty());
    auto *found = qobject_cast<QMainWindow *>(registrations.first().window.data());
    expect("the module's window is a QMainWindow", found != nullptr);
    return *found;
}

QTreeView &ModuleBench::tree()
{
    auto *found = form<QFrame>("_overlay_tree_frame").findChild<QTreeView *>();
    expect("the tree frame holds a tree view", found != nullptr);
    return *found;
}

QStandardItemModel &ModuleBench::model()
{
    auto *found = qobject_cast<QStandardItemModel *>(tree().model());
    expect("the tree's model is a QStandardItemModel", found != nullptr);
    return *found;
}

QWidget &ModuleBench::searchBox()
{
    const QLayout *layout = form<QFrame>("_overlay_tree_frame").layout();
    expect("the tree frame has a layout of two", layout && layout->count() == 2);
    auto *found = qobject_cast<QLineEdit *>(layout->itemAt(0)->widget());
    expect("the search box stands above the tree", found != nullptr);
    return *found;
}

QMenu &ModuleBench::menu()
{
    auto *found = tree().findChild<QMenu *>(QString(), Qt::FindDirectChildrenOnly);
    expect("the tree view has a menu", found != nullptr);
    return *found;
}

QAction &ModuleBench::menuEntry(const QString &text)
{
    const QList<QAction *> entries = menu().actions();
    const auto found = std::find_if(entries.begin(), entries.end(), [&text](const QAction *entry) {
        return entry->text().section('\t', 0, 0) == text;
    });
    expect("the menu has the entry", found != entries.end());
    return **found;
}

QObject &ModuleBench::editor()
{
    const QButtonGroup *group = form<QAbstractButton>("_text_radio_button").group();
    expect("a group of the editor holds the type buttons", group && group->parent());
    return *group->parent();
}

void ModuleBench::open(const QString &line)
{
    service().build(line);
    Q_EMIT service().modelReset();
    tree().expandAll();
    log().clear();
}

void ModuleBench::openShown(const QString &line)
{
    open(line);
    window().show();
}

void ModuleBench::beforeNext(const QString &call, const std::function<void()> &deed)
{
    service().setCallHook([this, call, deed](const QString &line) {
        if (!line.startsWith(call))
            return;
        service().setCallHook({});
        deed();
    });
}

void ModuleBench::inTheNextCommand(const std::function<void()> &deed)
{
    service().setHook([this, deed](const QString &) {
        service().setHook(nullptr);
        deed();
    });
}

QModelIndex ModuleBench::index(QRPC::NodeId id)
{
    const QModelIndexList found =
        model().match(model().index(0, 0), idRole, id, 1, Qt::MatchExactly | Qt::MatchRecursive);
    return found.value(0);
}

QStandardItem &ModuleBench::item(QRPC::NodeId id)
{
    QStandardItem *found = model().itemFromIndex(index(id));
    expect("the node has a row", found != nullptr);
    return *found;
}

void ModuleBench::select(const Nodes &nodes)
{
    tree().selectionModel()->clearSelection();
    for (const QRPC::NodeId id : nodes)
        tree().selectionModel()->select(item(id).index(), QItemSelectionModel::Select);
    log().clear();
}

ModuleBench::Nodes ModuleBench::selected()
{
    Nodes nodes;
    const QModelIndexList indexes = tree().selectionModel()->selectedIndexes();
    for (const QModelIndex &index : indexes)
        nodes.append(index.data(idRole).toUInt());
    std::sort(nodes.begin(), nodes.end());
    return nodes;
}

int ModuleBench::insertionsOf(const std::function<void()> &action)
{
    int count = 0;
    const QObject context;
    QObject::connect(&model(), &QAbstractItemModel::rowsInserted, &context,
                     [counter = &count] { ++*counter; });
    action();
    return count;
}

void ModuleBench::call(const char *slot)
{
    expect(slot, QMetaObject::invokeMethod(&editor(), slot, Qt::DirectConnection));
}

bool ModuleBench::press(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    return keys::press(&tree(), key, modifiers);
}

QString ModuleBench::shown()
{
    return dumpTree(model());
}

void ModuleBench::expectTree()
{
    expectEqual("the tree", dumpTree(model()), dumpTree(service()));
}

void ModuleBench::expectSettled()
{
    QCoreApplication::processEvents();
    expectTree();
}

} // namespace conformance
