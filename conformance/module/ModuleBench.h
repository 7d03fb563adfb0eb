// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "conformance/Application.h"
#include "conformance/Check.h"
#include "kit/HostFixture.h"

#include <QStandardItemModel>
#include <QTreeView>

#include <functional>

class QAction;
class QMenu;

namespace conformance {

/// A module in the kit's own host, seen from outside: what it asks of the services, the widgets of
/// its window by their names, its tree by the roles of its items.
///
/// Made in a child process, once; the module lives as long as that process. GUI thread only.
class ModuleBench
{
public:
    using Nodes = QRPC::NodeList;

    /// Loads the module; throws std::runtime_error when that cannot be done.
    explicit ModuleBench(const QString &file);
    ~ModuleBench();
    Q_DISABLE_COPY(ModuleBench)

    /// Enters the module, unless that was done before.
    void enter();

    /// Calls the module's entry, whatever was done before.
    void callEntry() const { m_entry(); }

    /// Brings host and window back to where they were when nothing had happened.
    void reset();

    HostFixture &host() { return *m_host; }
    RecordingService &service() { return m_host->service(); }
    CallLog &log() { return m_host->log(); }
    RecordingService::Node &node(QRPC::NodeId id) { return service().node(id); }

    /// @name The module's window
    /// Each fails the check when it is not there.
    /// @{
    QMainWindow &window();
    QTreeView &tree();
    QStandardItemModel &model();
    QWidget &searchBox();
    QMenu &menu();
    QAction &menuEntry(const QString &text);
    /// The editor: what owns the panel's groups of buttons.
    QObject &editor();
    template<class T>
    T &form(const char *name);
    /// @}

    /// Makes the service's tree the one of `line`, announces the reset and opens all levels. The log
    /// is empty afterwards.
    void open(const QString &line);

    /// The same in a window that is shown.
    void openShown(const QString &line);

    QModelIndex index(QRPC::NodeId id);
    QStandardItem &item(QRPC::NodeId id);

    /// Makes the nodes the selection, each with a call of its own, in the order of the list. The log
    /// is empty afterwards.
    void select(const Nodes &nodes);

    /// The selected nodes in ascending order.
    Nodes selected();

    /// The commands and writes that `action` sends, and all calls that it makes.
    QStringList commandsOf(const std::function<void()> &action) { return log().commandsOf(action); }
    QStringList callsOf(const std::function<void()> &action) { return log().callsOf(action); }

    /// Has the service do something of its own, once: before it answers the next call whose line
    /// begins with `call`.
    void beforeNext(const QString &call, const std::function<void()> &deed);

    /// The same at the end of the next command or write.
    void inTheNextCommand(const std::function<void()> &deed);

    /// How many times `action` has rows inserted into the tree.
    int insertionsOf(const std::function<void()> &action);

    /// Calls a slot of the editor that has no arguments.
    void call(const char *slot);

    /// Presses a key in the tree; true when somebody took it.
    bool press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

    /// The tree on one line.
    QString shown();

    /// Fails the check unless the tree shows what the service holds.
    void expectTree();

    /// The same once all that waits in the event loop is done.
    void expectSettled();

private:
    Application m_application;
    QFunctionPointer m_entry;
    std::unique_ptr<HostFixture> m_host;
    bool m_entered = false;
};

template<class T>
T &ModuleBench::form(const char *name)
{
    auto *found = window().findChild<T *>(QString::fromLatin1(name));
    expect(name, found != nullptr);
    return *found;
}

} // namespace conformance
