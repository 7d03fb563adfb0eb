// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "kit/RecordingService.h"

#include <QMap>

#include <functional>

/// What the property panel has to show, told from the rules alone: which selections show which
/// properties, what counts as one value, what stays where values differ.
///
/// It follows a panel step by step, because a control that must not be touched keeps what it had:
/// the test tells it of each change of the selection and each signal of the service. Reads the data
/// of the service, not its operations. Owned by a test; GUI thread only.
class PanelOracle
{
public:
    /// The controls are unknown until selections have shown each of them once.
    explicit PanelOracle(const RecordingService &service);

    /// The selection is another, or lost nodes.
    void refreshAll(const QRPC::NodeList &selection);

    /// The service announced a change of one property: "name", "type", "text", "font", "font color",
    /// "background color", "transparency", "image", "size type", "size", "position" or "offset".
    void refresh(const QString &property, const QRPC::NodeList &selection);

    /// One line for each control, in the order of their names: value, marking, state.
    QStringList lines() const;

    /// The line of a control.
    static QString line(const QString &control, const QString &value, bool mixed, bool enabled,
                        bool visible);

private:
    struct Control
    {
        QString value;
        bool mixed = false;
        bool enabled = true;
        bool visible = true;
    };
    using Node = RecordingService::Node;
    using Equal = std::function<bool(const Node &, const Node &)>;
    using Value = std::function<QString(const Node &)>;

    bool areOverlays(const QRPC::NodeList &nodes) const;
    bool areOfOneType(const QRPC::NodeList &nodes) const;
    bool agree(const QRPC::NodeList &nodes, const Equal &equal) const;
    void show(const QString &control, const QRPC::NodeList &nodes, const Equal &equal,
              const Value &value);
    void showType(const QRPC::NodeList &nodes);
    void showTextProperty(const QString &property, const QRPC::NodeList &nodes);
    void showImage(const QRPC::NodeList &nodes);
    void showSizeType(const QRPC::NodeList &nodes);
    void showSize(const QRPC::NodeList &nodes);
    void showPosition(const QRPC::NodeList &nodes);
    void showOffsets(const QRPC::NodeList &nodes);

    const RecordingService &m_service;
    QMap<QString, Control> m_controls;
};
