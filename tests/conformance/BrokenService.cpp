// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/conformance/BrokenService.h"

#include <algorithm>
#include <cstdlib>
#include <stdexcept>

namespace {

using S = kxOverlayService;

const char *const s_questions[] = {
    "getRootNode",
    "getParent",
    "getChildCount",
    "getChild",
    "getChildIndex",
    "isOverlay",
    "isSwitch",
    "getName",
    "isEnabled",
    "isActive",
    "getOverlayType",
    "getText",
    "getFont",
    "getFontColor",
    "getBackgroundColor",
    "getBackgroundTransparency",
    "getImage",
    "getSizeType",
    "getSize",
    "getPosition",
    "getOffset",
    "createOverlay",
    "createGroup",
    "createSwitch",
};

const char *const s_commands[] = {
    "duplicateNodes",
    "deleteNodes",
    "groupNodes",
    "moveNodes",
    "setOverlayType",
    "setName",
    "setEnabled",
    "setText",
    "setFont",
    "setFontColor",
    "setBackgroundColor",
    "setBackgroundTransparency",
    "setImage",
    "setSizeType",
    "setSize",
    "setPosition",
    "setOffset",
    "setOffsetX",
    "setOffsetY",
};

QRPC::NodeList reversed(QRPC::NodeList nodes)
{
    std::reverse(nodes.begin(), nodes.end());
    return nodes;
}

} // namespace

BrokenService::BrokenService(const QByteArray &fault) : m_fault(fault), m_service(&m_log)
{
    const auto signalsOfNodes = nodeSignals();
    for (const auto &[name, signal] : signalsOfNodes)
        relay(name, signal);
    relayMoves();
    connect(&m_service, &S::modelReset, this, &S::modelReset);
}

BrokenService::~BrokenService() = default;

QList<QByteArray> BrokenService::faults()
{
    QList<QByteArray> all;
    for (const char *question : s_questions)
        all.append(QByteArray("ignore:") + question);
    for (const char *command : s_commands) {
        for (const char *kind : {"ignore:", "each:", "unknown:"})
            all.append(QByteArray(kind) + command);
    }
    const auto signalsOfNodes = nodeSignals();
    for (const char *kind : {"drop:", "double:", "reverse:", "late:"}) {
        for (const auto &[name, signal] : signalsOfNodes)
            all.append(QByteArray(kind) + name);
        all.append(QByteArray(kind) + "nodesMoved");
    }
    return all;
}

bool BrokenService::is(const char *kind, const char *subject) const
{
    return m_fault == QByteArray(kind) + ':' + subject;
}

void BrokenService::relay(const char *name, NodesSignal signal)
{
    const auto type = is("late", name) ? Qt::QueuedConnection : Qt::DirectConnection;
    connect(
        &m_service, signal, this,
        [this, name, signal](const QRPC::NodeList &nodes) {
            if (is("drop", name))
                return;
            const QRPC::NodeList told = is("reverse", name) ? reversed(nodes) : nodes;
            Q_EMIT(this->*signal)(told);
            if (is("double", name))
                Q_EMIT(this->*signal)(told);
        },
        type);
}

void BrokenService::relayMoves()
{
    const auto type = is("late", "nodesMoved") ? Qt::QueuedConnection : Qt::DirectConnection;
    connect(
        &m_service, &S::nodesMoved, this,
        [this](const QRPC::NodeList &nodes, const QRPC::NodeList &parents,
               const QRPC::NodeList &afters) {
            if (is("drop", "nodesMoved"))
                return;
            const bool isReverse = is("reverse", "nodesMoved");
            for (int times = is("double", "nodesMoved") ? 2 : 1; times > 0; --times)
                Q_EMIT nodesMoved(isReverse ? reversed(nodes) : nodes,
                                  isReverse ? reversed(parents) : parents,
                                  isReverse ? reversed(afters) : afters);
        },
        type);
}

bool BrokenService::namesUnknown(const QRPC::NodeList &nodes) const
{
    return std::any_of(nodes.begin(), nodes.end(),
                       [this](QRPC::NodeId node) { return !m_service.has(node); });
}

void BrokenService::stumble(const char *operation) const
{
    if (is("crash", operation))
        std::abort();
    if (is("throw", operation))
        throw std::runtime_error("out of\nplaces");
    while (is("hang", operation)) {
    }
}
