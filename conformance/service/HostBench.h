// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "conformance/Application.h"
#include "conformance/Check.h"
#include "conformance/service/SignalLog.h"
#include "host/kxOverlayService.h"
#include "kit/TreeNotation.h"

#include <memory>

namespace conformance {

/// A host's services, seen from outside: as a module finds them in the registry. The scene of each
/// check is built by the host's own commands.
///
/// Nodes are written by the names that the check gave them; those that appeared since then are "+1",
/// "+2" and so on, in the order in which they were seen first. "root" is the root, "0" no node and
/// "?" an id that no node has.
///
/// Made in a child process, once. GUI thread only.
class HostBench
{
public:
    /// Loads the host; throws std::runtime_error when that cannot be done.
    explicit HostBench(const QString &file);
    ~HostBench();
    Q_DISABLE_COPY(HostBench)

    /// Has the host register its services, unless that was done before.
    void enter();

    /// Empties the scene.
    void reset();

    kxOverlayService &service();

    /// Makes the scene the one of the line, in the notation of TreeNotation.h.
    void build(const QString &line);

    QRPC::NodeId id(const QString &name) const;
    QRPC::NodeList ids(const QString &names) const;

    /// How the node is written.
    QString nameOf(QRPC::NodeId id) const;
    QString namesOf(const QRPC::NodeList &nodes) const;

    /// The scene on one line.
    QString dump() const;

    /// All values of an overlay; the name is that of every node.
    QString valuesOf(QRPC::NodeId node) const;

    /// The scene with all values of all nodes.
    QString state() const;

    /// The signals that `action` causes, one line each, before any event is handled.
    QStringList signalsOf(const std::function<void()> &action);

    /// What is wrong with the announcements of `action`: places that are not those of the tree, and
    /// a state that is not yet the last one.
    QStringList faultsOf(const std::function<void()> &action);

private:
    void empty();
    void add(QRPC::NodeId parent, const notation::Node &node);
    void setStates(bool enabled);
    QString dumpBelow(QRPC::NodeId parent) const;
    QString stateOf(QRPC::NodeId node) const;

    Application m_application;
    QFunctionPointer m_entry;
    kxOverlayService *m_service = nullptr;
    std::unique_ptr<SignalLog> m_log;
    mutable QHash<QRPC::NodeId, QString> m_names;
    QHash<QRPC::NodeId, bool> m_enabled; // that the scene is to begin with
    mutable int m_newNames = 0;
};

} // namespace conformance
