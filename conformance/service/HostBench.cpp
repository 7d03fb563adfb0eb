// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "conformance/service/HostBench.h"

#include "conformance/Library.h"
#include "host/kxKernelServiceFactory.h"

#include <stdexcept>

namespace conformance {

namespace {

constexpr QRPC::NodeId unknownId = 4000000000U;

} // namespace

HostBench::HostBench(const QString &file) : m_entry(entryOf(file, "initHost")) {}

HostBench::~HostBench() = default;

void HostBench::enter()
{
    if (m_service)
        return;
    m_entry();
    m_service = kxKernelServiceFactory::the()->getService<kxOverlayService>();
    expect("an overlay service is registered", m_service != nullptr);
    m_log = std::make_unique<SignalLog>(
        m_service, [this](const QRPC::NodeList &nodes) { return namesOf(nodes); });
}

void HostBench::reset()
{
    m_log->onSignal = nullptr;
    build(QString());
}

kxOverlayService &HostBench::service()
{
    return *m_service;
}

void HostBench::empty()
{
    QRPC::NodeList all;
    const QRPC::NodeId root = m_service->getRootNode();
    for (int row = 0; row < m_service->getChildCount(root); ++row)
        all.append(m_service->getChild(root, row));
    m_service->deleteNodes(all);
    expectEqual("children of the root after all were deleted", m_service->getChildCount(root), 0);
    m_names.clear();
    m_enabled.clear();
    m_newNames = 0;
}

void HostBench::build(const QString &line)
{
    empty();
    for (const notation::Node &node : notation::parse(line))
        add(m_service->getRootNode(), node);
    setStates(false);
    setStates(true);
    QCoreApplication::sendPostedEvents();
    expectEqual("the scene that was built", dump(), line);
    m_log->take();
    m_newNames = 0;
}

void HostBench::add(QRPC::NodeId parent, const notation::Node &node)
{
    QRPC::NodeId id = 0;
    if (node.kind == notation::Kind::Overlay)
        id = m_service->createOverlay(parent);
    else if (node.kind == notation::Kind::Group)
        id = m_service->createGroup(parent);
    else
        id = m_service->createSwitch(parent);
    expect("a created node has an id", id != 0);
    m_names.insert(id, node.name);
    m_enabled.insert(id, node.enabled);
    m_service->setName({id}, node.name);
    for (const notation::Node &child : node.children)
        add(id, child);
}

void HostBench::setStates(bool enabled)
{
    QRPC::NodeList nodes;
    for (auto it = m_enabled.cbegin(); it != m_enabled.cend(); ++it) {
        if (it.value() == enabled && m_service->isEnabled(it.key()) != enabled)
            nodes.append(it.key());
    }
    m_service->setEnabled(nodes, enabled);
}

QRPC::NodeId HostBench::id(const QString &name) const
{
    if (name == QLatin1String("root"))
        return m_service->getRootNode();
    return name == QLatin1String("?") ? unknownId : m_names.key(name, 0);
}

QRPC::NodeList HostBench::ids(const QString &names) const
{
    QRPC::NodeList nodes;
    const QStringList all = names.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const QString &name : all)
        nodes.append(id(name));
    return nodes;
}

QString HostBench::nameOf(QRPC::NodeId id) const
{
    if (id == 0)
        return QStringLiteral("0");
    if (id == m_service->getRootNode())
        return QStringLiteral("root");
    if (!m_names.contains(id))
        m_names.insert(id, QStringLiteral("+%1").arg(++m_newNames));
    return m_names.value(id);
}

QString HostBench::namesOf(const QRPC::NodeList &nodes) const
{
    QStringList names;
    for (const QRPC::NodeId node : nodes)
        names.append(nameOf(node));
    return names.join(QLatin1Char(' '));
}

QString HostBench::dump() const
{
    return dumpBelow(m_service->getRootNode());
}

QString HostBench::dumpBelow(QRPC::NodeId parent) const
{
    QStringList texts;
    for (int row = 0; row < m_service->getChildCount(parent); ++row) {
        const QRPC::NodeId child = m_service->getChild(parent, row);
        QString text = nameOf(child);
        text += QLatin1String(m_service->isSwitch(child) ? "*" : "");
        text += QLatin1String(m_service->isEnabled(child) ? "" : "-");
        if (!m_service->isOverlay(child))
            text += QLatin1Char('(') + dumpBelow(child) + QLatin1Char(')');
        texts.append(text);
    }
    return texts.join(QLatin1Char(' '));
}

QString HostBench::stateOf(QRPC::NodeId node) const
{
    QString text;
    QDebug(&text) << m_service->getParent(node) << m_service->getName(node)
                  << m_service->isActive(node);
    return text + valuesOf(node);
}

QString HostBench::valuesOf(QRPC::NodeId node) const
{
    QString text;
    QDebug(&text) << m_service->getOverlayType(node) << m_service->getText(node)
                  << m_service->getFont(node) << m_service->getFontColor(node)
                  << m_service->getBackgroundColor(node)
                  << m_service->getBackgroundTransparency(node) << m_service->getImage(node)
                  << m_service->getSizeType(node) << m_service->getSize(node)
                  << m_service->getPosition(node) << m_service->getOffset(node);
    return text;
}

QString HostBench::state() const
{
    QStringList lines{dump()};
    QRPC::NodeList all = m_names.keys();
    std::sort(all.begin(), all.end());
    for (const QRPC::NodeId node : qAsConst(all))
        lines.append(nameOf(node) + QLatin1Char(' ') + stateOf(node));
    return lines.join(QLatin1Char('\n'));
}

QStringList HostBench::signalsOf(const std::function<void()> &action)
{
    m_log->take();
    action();
    return m_log->take();
}

QStringList HostBench::faultsOf(const std::function<void()> &action)
{
    m_log->take();
    QStringList states;
    m_log->onSignal = [this, &states] { states.append(state()); };
    action();
    m_log->onSignal = nullptr;
    QStringList faults = m_log->faults();
    // Names of new nodes are given by the first look at them, which may have come late.
    if (!states.isEmpty() && states.last() != state())
        faults.append("a signal left before the state was complete");
    for (const QString &seen : qAsConst(states)) {
        if (seen != states.last())
            faults.append("a signal left before the state was complete");
    }
    m_log->take();
    return faults;
}

} // namespace conformance
