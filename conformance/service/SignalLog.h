// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "kit/nodeSignals.h"

#include <QStringList>

#include <functional>

namespace conformance {

/// Every signal of an overlay service, as it comes. Owned by the bench, which gives nodes their
/// names.
class SignalLog : public QObject
{
    Q_OBJECT

public:
    using NamesOf = std::function<QString(const QRPC::NodeList &)>;

    SignalLog(kxOverlayService *service, const NamesOf &namesOf);

    /// The lines since the last call.
    QStringList take();

    /// Is called with each signal, before its line is written; empty for none.
    std::function<void()> onSignal;

    /// Positions in nodesMoved() and lists that did not fit the tree, since the last take().
    const QStringList &faults() const { return m_faults; }

private:
    void record(const char *name, NodesSignal signal);
    void add(const QString &line);
    void checkMove(const QRPC::NodeList &nodes, const QRPC::NodeList &parents,
                   const QRPC::NodeList &afters);
    void checkPresence(const char *name, const QRPC::NodeList &nodes);

    kxOverlayService *m_service;
    NamesOf m_namesOf;
    QStringList m_lines;
    QStringList m_faults;
};

} // namespace conformance
