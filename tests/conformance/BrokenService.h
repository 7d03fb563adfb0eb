// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "kit/RecordingService.h"
#include "kit/nodeSignals.h"

/// An overlay service with one fault, named "kind:subject":
/// - "ignore:operation": a question is answered by nothing, a command is not followed;
/// - "each:operation": the command is followed for each node by itself;
/// - "unknown:operation": a command is not followed when the list names what is no node;
/// - "drop:signal", "double:signal", "reverse:signal": the signal is not sent, is sent twice, names
///   its nodes in the other order;
/// - "late:signal": the signal is sent from the event loop;
/// - "crash:question", "hang:question", "throw:question": for the tests of the program itself.
///
/// Role: a host that breaks one rule, behind a sound one. Owner: the library's entry.
class BrokenService : public kxOverlayService
{
    Q_OBJECT

public:
    explicit BrokenService(const QByteArray &fault);
    ~BrokenService() override;

    /// The names of all faults, but for those that end or stop the program.
    static QList<QByteArray> faults();

    QRPC::NodeId getRootNode() override { return ask("getRootNode", &S::getRootNode); }
    QRPC::NodeId getParent(QRPC::NodeId node) override
    {
        return ask("getParent", &S::getParent, node);
    }
    int getChildCount(QRPC::NodeId node) override
    {
        return ask("getChildCount", &S::getChildCount, node);
    }
    QRPC::NodeId getChild(QRPC::NodeId node, int second) override
    {
        return ask("getChild", &S::getChild, node, second);
    }
    int getChildIndex(QRPC::NodeId node, QRPC::NodeId second) override
    {
        return ask("getChildIndex", &S::getChildIndex, node, second);
    }
    bool isOverlay(QRPC::NodeId node) override { return ask("isOverlay", &S::isOverlay, node); }
    bool isSwitch(QRPC::NodeId node) override { return ask("isSwitch", &S::isSwitch, node); }
    QString getName(QRPC::NodeId node) override { return ask("getName", &S::getName, node); }
    bool isEnabled(QRPC::NodeId node) override { return ask("isEnabled", &S::isEnabled, node); }
    bool isActive(QRPC::NodeId node) override { return ask("isActive", &S::isActive, node); }
    int getOverlayType(QRPC::NodeId node) override
    {
        return ask("getOverlayType", &S::getOverlayType, node);
    }
    QString getText(QRPC::NodeId node) override { return ask("getText", &S::getText, node); }
    QString getFont(QRPC::NodeId node) override { return ask("getFont", &S::getFont, node); }
    QColor getFontColor(QRPC::NodeId node) override
    {
        return ask("getFontColor", &S::getFontColor, node);
    }
    QColor getBackgroundColor(QRPC::NodeId node) override
    {
        return ask("getBackgroundColor", &S::getBackgroundColor, node);
    }
    QColor getBackgroundTransparency(QRPC::NodeId node) override
    {
        return ask("getBackgroundTransparency", &S::getBackgroundTransparency, node);
    }
    QString getImage(QRPC::NodeId node) override { return ask("getImage", &S::getImage, node); }
    int getSizeType(QRPC::NodeId node) override
    {
        return ask("getSizeType", &S::getSizeType, node);
    }
    float getSize(QRPC::NodeId node) override { return ask("getSize", &S::getSize, node); }
    QPointF getPosition(QRPC::NodeId node) override
    {
        return ask("getPosition", &S::getPosition, node);
    }
    QPointF getOffset(QRPC::NodeId node) override { return ask("getOffset", &S::getOffset, node); }
    QRPC::NodeId createOverlay(QRPC::NodeId node) override
    {
        return ask("createOverlay", &S::createOverlay, node);
    }
    QRPC::NodeId createGroup(QRPC::NodeId node) override
    {
        return ask("createGroup", &S::createGroup, node);
    }
    QRPC::NodeId createSwitch(QRPC::NodeId node) override
    {
        return ask("createSwitch", &S::createSwitch, node);
    }

    void duplicateNodes(const QRPC::NodeList &nodes) override
    {
        tell("duplicateNodes", &S::duplicateNodes, nodes);
    }
    void deleteNodes(const QRPC::NodeList &nodes) override
    {
        tell("deleteNodes", &S::deleteNodes, nodes);
    }
    void groupNodes(const QRPC::NodeList &nodes) override
    {
        tell("groupNodes", &S::groupNodes, nodes);
    }
    void moveNodes(const QRPC::NodeList &nodes, QRPC::NodeId value, int row) override
    {
        tell("moveNodes", &S::moveNodes, nodes, value, row);
    }
    void setOverlayType(const QRPC::NodeList &nodes, int value) override
    {
        tell("setOverlayType", &S::setOverlayType, nodes, value);
    }
    void setName(const QRPC::NodeList &nodes, const QString &value) override
    {
        tell("setName", &S::setName, nodes, value);
    }
    void setEnabled(const QRPC::NodeList &nodes, bool value) override
    {
        tell("setEnabled", &S::setEnabled, nodes, value);
    }
    void setText(const QRPC::NodeList &nodes, const QString &value) override
    {
        tell("setText", &S::setText, nodes, value);
    }
    void setFont(const QRPC::NodeList &nodes, const QString &value) override
    {
        tell("setFont", &S::setFont, nodes, value);
    }
    void setFontColor(const QRPC::NodeList &nodes, const QColor &value) override
    {
        tell("setFontColor", &S::setFontColor, nodes, value);
    }
    void setBackgroundColor(const QRPC::NodeList &nodes, const QColor &value) override
    {
        tell("setBackgroundColor", &S::setBackgroundColor, nodes, value);
    }
    void setBackgroundTransparency(const QRPC::NodeList &nodes, const QColor &value) override
    {
        tell("setBackgroundTransparency", &S::setBackgroundTransparency, nodes, value);
    }
    void setImage(const QRPC::NodeList &nodes, const QString &value) override
    {
        tell("setImage", &S::setImage, nodes, value);
    }
    void setSizeType(const QRPC::NodeList &nodes, int value) override
    {
        tell("setSizeType", &S::setSizeType, nodes, value);
    }
    void setSize(const QRPC::NodeList &nodes, float value) override
    {
        tell("setSize", &S::setSize, nodes, value);
    }
    void setPosition(const QRPC::NodeList &nodes, const QPointF &value) override
    {
        tell("setPosition", &S::setPosition, nodes, value);
    }
    void setOffset(const QRPC::NodeList &nodes, const QPointF &value) override
    {
        tell("setOffset", &S::setOffset, nodes, value);
    }
    void setOffsetX(const QRPC::NodeList &nodes, float value) override
    {
        tell("setOffsetX", &S::setOffsetX, nodes, value);
    }
    void setOffsetY(const QRPC::NodeList &nodes, float value) override
    {
        tell("setOffsetY", &S::setOffsetY, nodes, value);
    }

private:
    using S = kxOverlayService;

    bool is(const char *kind, const char *subject) const;
    void relay(const char *name, NodesSignal signal);
    void relayMoves();
    bool namesUnknown(const QRPC::NodeList &nodes) const;
    void stumble(const char *operation) const;

    template<class R, class... A, class... B>
    R ask(const char *operation, R (S::*question)(A...), B... arguments);
    template<class... A, class... B>
    void tell(const char *operation, void (S::*command)(const QRPC::NodeList &, A...),
              const QRPC::NodeList &nodes, const B &...arguments);

    QByteArray m_fault;
    CallLog m_log;
    RecordingService m_service;
};

template<class R, class... A, class... B>
R BrokenService::ask(const char *operation, R (S::*question)(A...), B... arguments)
{
    stumble(operation);
    return is("ignore", operation) ? R() : (static_cast<S &>(m_service).*question)(arguments...);
}

template<class... A, class... B>
void BrokenService::tell(const char *operation, void (S::*command)(const QRPC::NodeList &, A...),
                         const QRPC::NodeList &nodes, const B &...arguments)
{
    S &service = m_service;
    if (is("ignore", operation) || (is("unknown", operation) && namesUnknown(nodes)))
        return;
    if (!is("each", operation)) {
        (service.*command)(nodes, arguments...);
        return;
    }
    for (const QRPC::NodeId node : nodes)
        (service.*command)({node}, arguments...);
}
