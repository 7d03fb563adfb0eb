// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "viewer/scene/OverlayService.h"

#include <QObject>
#include <QStringList>

/// Scenes as one line of text, so that one comparison tells all: "a- g(b c) s{d e-}" is a disabled
/// overlay a, a group g and a switch s. Names are single words.
namespace scenetext {

viewer::Scene build(const QString &text);
QString dump(const viewer::Scene &scene);

/// What a file of the scene would hold.
QByteArray fileOf(const viewer::OverlayService &service);

/// The node with that name, 0 when there is none. "root" is the root.
QRPC::NodeId id(const viewer::Scene &scene, const QString &name);

/// Nodes by name, separated by blanks; "?" is an id that no node has, "0" is no node.
QRPC::NodeList ids(const viewer::Scene &scene, const QString &names);

} // namespace scenetext

/// Writes down every signal of a service as one line with the names of its nodes, and checks with
/// each that what is announced is true by then.
class SignalRecorder : public QObject
{
    Q_OBJECT

public:
    explicit SignalRecorder(viewer::OverlayService *service);

    /// The lines since the last call.
    QStringList take();

    bool isEmpty() const { return m_lines.isEmpty(); }

    /// Things that were announced and were not so.
    QStringList faults() const { return m_faults; }

private:
    QString names(const QRPC::NodeList &nodes) const;
    void note(const QString &signal, const QRPC::NodeList &nodes);

    viewer::OverlayService *m_service;
    QHash<QRPC::NodeId, QString> m_names;
    QStringList m_lines;
    QStringList m_faults;
};
