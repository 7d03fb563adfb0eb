// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/overlayeditor/CountedService.h"

QRPC::NodeId CountedService::getRootNode()
{
    m_counter->add("getRootNode");
    return OverlayService::getRootNode();
}

QRPC::NodeId CountedService::getParent(QRPC::NodeId node)
{
    m_counter->add("getParent");
    return OverlayService::getParent(node);
}

int CountedService::getChildCount(QRPC::NodeId node)
{
    m_counter->add("getChildCount");
    return OverlayService::getChildCount(node);
}

QRPC::NodeId CountedService::getChild(QRPC::NodeId node, int index)
{
    m_counter->add("getChild");
    return OverlayService::getChild(node, index);
}

int CountedService::getChildIndex(QRPC::NodeId parent, QRPC::NodeId child)
{
    m_counter->add("getChildIndex");
    return OverlayService::getChildIndex(parent, child);
}

bool CountedService::isOverlay(QRPC::NodeId node)
{
    m_counter->add("isOverlay");
    return OverlayService::isOverlay(node);
}

bool CountedService::isSwitch(QRPC::NodeId node)
{
    m_counter->add("isSwitch");
    return OverlayService::isSwitch(node);
}

QString CountedService::getName(QRPC::NodeId node)
{
    m_counter->add("getName");
    return OverlayService::getName(node);
}

bool CountedService::isEnabled(QRPC::NodeId node)
{
    m_counter->add("isEnabled");
    return OverlayService::isEnabled(node);
}

bool CountedService::isActive(QRPC::NodeId node)
{
    m_counter->add("isActive");
    return OverlayService::isActive(node);
}

int CountedService::getOverlayType(QRPC::NodeId node)
{
    m_counter->add("getOverlayType");
    return OverlayService::getOverlayType(node);
}

QString CountedService::getText(QRPC::NodeId node)
{
    m_counter->add("getText");
    return OverlayService::getText(node);
}

QString CountedService::getFont(QRPC::NodeId node)
{
    m_counter->add("getFont");
    return OverlayService::getFont(node);
}

QColor CountedService::getFontColor(QRPC::NodeId node)
{
    m_counter->add("getFontColor");
    return OverlayService::getFontColor(node);
}

QColor CountedService::getBackgroundColor(QRPC::NodeId node)
{
    m_counter->add("getBackgroundColor");
    return OverlayService::getBackgroundColor(node);
}

QColor CountedService::getBackgroundTransparency(QRPC::NodeId node)
{
    m_counter->add("getBackgroundTransparency");
    return OverlayService::getBackgroundTransparency(node);
}

QString CountedService::getImage(QRPC::NodeId node)
{
    m_counter->add("getImage");
    return OverlayService::getImage(node);
}

int CountedService::getSizeType(QRPC::NodeId node)
{
    m_counter->add("getSizeType");
    return OverlayService::getSizeType(node);
}

float CountedService::getSize(QRPC::NodeId node)
{
    m_counter->add("getSize");
    return OverlayService::getSize(node);
}

QPointF CountedService::getPosition(QRPC::NodeId node)
{
    m_counter->add("getPosition");
    return OverlayService::getPosition(node);
}

QPointF CountedService::getOffset(QRPC::NodeId node)
{
    m_counter->add("getOffset");
    return OverlayService::getOffset(node);
}

void CountedService::duplicateNodes(const QRPC::NodeList &nodes)
{
    m_counter->add("duplicateNodes");
    OverlayService::duplicateNodes(nodes);
}

void CountedService::deleteNodes(const QRPC::NodeList &nodes)
{
    m_counter->add("deleteNodes");
    OverlayService::deleteNodes(nodes);
}

void CountedService::moveNodes(const QRPC::NodeList &nodes, QRPC::NodeId newParent, int row)
{
    m_counter->add("moveNodes");
    OverlayService::moveNodes(nodes, newParent, row);
}

void CountedService::setName(const QRPC::NodeList &nodes, const QString &name)
{
    m_counter->add("setName");
    OverlayService::setName(nodes, name);
}

void CountedService::setEnabled(const QRPC::NodeList &nodes, bool enabled)
{
    m_counter->add("setEnabled");
    OverlayService::setEnabled(nodes, enabled);
}

void CountedService::setFontColor(const QRPC::NodeList &nodes, const QColor &color)
{
    m_counter->add("setFontColor");
    OverlayService::setFontColor(nodes, color);
}
