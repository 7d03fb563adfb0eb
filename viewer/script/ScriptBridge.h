// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "viewer/script/ScriptOperations.h"

#include <QMutex>
#include <QObject>

#include <deque>

namespace viewer {

/// What the prelude of scripts is given, and what nothing but the prelude sees: operations and
/// signals by their index, and the way to the outside. Lives as long as the engine, on its thread.
class ScriptBridge : public QObject
{
    Q_OBJECT

public:
    using Print = std::function<void(const QString &)>;

    /// `folder` is what files are read from.
    ScriptBridge(QJSEngine *engine, ScriptSteps *steps, const ScriptCall::Invoke &invoke,
                 const Print &print, const QString &folder);
    ~ScriptBridge() override;

    /// The object for the prelude.
    QJSValue value();

    /// "overlays.setText" and so on, in the order of their indices.
    Q_INVOKABLE QStringList operations() const;
    Q_INVOKABLE QStringList signalNames() const;

    /// Carries an operation out. An error object, not thrown, where that cannot be.
    Q_INVOKABLE QJSValue call(int operation, const QJSValue &arguments);

    /// Has a signal noted from now on.
    Q_INVOKABLE void listen(int signal);

    /// The next signal that was sent, as [index, list, list, list]; undefined when there is none.
    Q_INVOKABLE QJSValue nextEvent();

    Q_INVOKABLE void print(const QString &text);

    /// The content of a file of text, or an error object.
    Q_INVOKABLE QJSValue readText(const QJSValue &arguments);

private:
    struct Event
    {
        int signal;
        QVector<QRPC::NodeList> lists;
    };

    QJSValue error(const QString &text) const;

    QJSEngine *m_engine;
    ScriptSteps *m_steps;
    const ScriptCall::Invoke &m_invoke;
    const Print &m_print;
    const QString m_folder;
    std::unique_ptr<QObject> m_listener; // on the service's thread
    QMutex m_mutex;                      // guards the events
    std::deque<Event> m_events;
};

} // namespace viewer
