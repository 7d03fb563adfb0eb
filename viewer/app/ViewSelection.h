// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "viewer/app/NodeView.h"

#include <QObject>

#include <optional>

class kxOverlayService;

namespace viewer {

/// The selection that the view shows and changes: that of the module's view of the nodes, whichever
/// module made it, or one of its own while there is no such view. GUI thread only.
class ViewSelection : public QObject
{
    Q_OBJECT

public:
    /// Looks for views of nodes in `window`, whenever the service announces nodes: a view without
    /// rows does not tell what it shows.
    ViewSelection(QWidget *window, const kxOverlayService *service, QObject *parent = nullptr);

    QRPC::NodeList nodes() const;

    /// The module's view that has the selection; none when no module shows nodes.
    NodeView nodeView() const { return m_view; }

    /// Makes nodes the selection, in one change of the module's.
    void select(const QRPC::NodeList &nodes);

Q_SIGNALS:
    void changed();

private:
    void look();
    void follow();
    void forget();

    QWidget *m_window;
    NodeView m_view;
    QRPC::NodeList m_own;
    mutable std::optional<QRPC::NodeList> m_known; // what the module's view has selected
};

} // namespace viewer
