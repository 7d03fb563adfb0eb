// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "conformance/service/SignalLog.h"

#include <QSet>

namespace conformance {

SignalLog::SignalLog(kxOverlayService *service, const NamesOf &namesOf)
    : m_service(service)
    , m_namesOf(namesOf)
{
    using S = kxOverlayService;
    const auto lists = nodeSignals();
    for (const auto &[name, signal] : lists)
        record(name, signal);
    connect(service, &S::modelReset, this, [this] { add(QStringLiteral("modelReset")); });
    connect(service, &S::nodesMoved, this, &SignalLog::checkMove);
}

QStringList SignalLog::take()
{
    m_faults.clear();
    return std::exchange(m_lines, QStringList());
}

void SignalLog::record(const char *name, NodesSignal signal)
{
    connect(m_service, signal, this, [this, name](const QRPC::NodeList &nodes) {
        checkPresence(name, nodes);
        add(QString::fromLatin1(name) + QLatin1Char(' ') + m_namesOf(nodes));
    });
}

void SignalLog::add(const QString &line)
{
    if (onSignal)
        onSignal();
    m_lines.append(line);
}

/// What a signal names is there, but for what it says to be gone.
void SignalLog::checkPresence(const char *name, const QRPC::NodeList &nodes)
{
    const bool isRemoval = qstrcmp(name, "nodesRemoved") == 0;
    for (const QRPC::NodeId node : nodes) {
        if ((m_service->getParent(node) == 0) != isRemoval)
            m_faults.append(QStringLiteral("%1 names a node that is %2")
                                .arg(QLatin1String(name), isRemoval ? "still there" : "not there"));
    }
    if (nodes.isEmpty())
        m_faults.append(QStringLiteral("%1 names no node").arg(QLatin1String(name)));
    if (QSet<QRPC::NodeId>(nodes.begin(), nodes.end()).size() != nodes.size())
        m_faults.append(QStringLiteral("%1 names a node twice").arg(QLatin1String(name)));
}

void SignalLog::checkMove(const QRPC::NodeList &nodes, const QRPC::NodeList &parents,
                          const QRPC::NodeList &afters)
{
    if (nodes.size() != parents.size() || nodes.size() != afters.size())
        m_faults.append(QStringLiteral("nodesMoved has lists of different lengths"));
    for (int i = 0; i < std::min({nodes.size(), parents.size(), afters.size()}); ++i) {
        const int row = m_service->getChildIndex(parents.at(i), nodes.at(i));
        const QRPC::NodeId before = row > 0 ? m_service->getChild(parents.at(i), row - 1) : 0;
        if (row < 0 || before != afters.at(i))
            m_faults.append(QStringLiteral("nodesMoved names another place than the tree"));
    }
    add(QStringLiteral("nodesMoved %1 / %2 / %3")
            .arg(m_namesOf(nodes), m_namesOf(parents), m_namesOf(afters)));
}

} // namespace conformance
