// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/script/ScriptBridge.h"

#include "viewer/script/ScriptSource.h"

#include <QQmlEngine>

namespace viewer {

ScriptBridge::ScriptBridge(QJSEngine *engine, ScriptSteps *steps, const ScriptCall::Invoke &invoke,
                           const Print &print, const QString &folder)
    : m_engine(engine)
    , m_steps(steps)
    , m_invoke(invoke)
    , m_print(print)
    , m_folder(folder)
{
    m_invoke([this] { m_listener = std::make_unique<QObject>(); });
}

ScriptBridge::~ScriptBridge()
{
    m_invoke([this] { m_listener.reset(); });
}

QJSValue ScriptBridge::value()
{
    QQmlEngine::setObjectOwnership(this, QQmlEngine::CppOwnership);
    return m_engine->newQObject(this);
}

QStringList ScriptBridge::operations() const
{
    QStringList names;
    for (const ScriptOperation &operation : scriptOperations())
        names += QLatin1String(operation.signature.object) + QLatin1Char('.')
                 + QLatin1String(operation.signature.name);
    return names;
}

QStringList ScriptBridge::signalNames() const
{
    QStringList names;
    for (const ScriptSignal &signal : scriptSignals())
        names += QLatin1String(signal.name);
    return names;
}

QJSValue ScriptBridge::error(const QString &text) const
{
    return m_engine->newErrorObject(QJSValue::TypeError, text);
}

QJSValue ScriptBridge::call(int operation, const QJSValue &arguments)
{
    const ScriptOperation &called = scriptOperations()[std::size_t(operation)];
    ScriptCall call(m_engine, m_steps, m_invoke, called.signature, arguments);
    const QJSValue answer = called.run(call);
    return call.fault().isEmpty() ? answer : error(call.fault());
}

void ScriptBridge::listen(int signal)
{
    const auto note = [this, signal](const QVector<QRPC::NodeList> &lists) {
        const QMutexLocker locker(&m_mutex);
        m_events.push_back({signal, lists});
    };
    m_invoke([&] {
        scriptSignals()[std::size_t(signal)].connect(m_steps->service(), m_listener.get(), note);
    });
}

QJSValue ScriptBridge::nextEvent()
{
    QMutexLocker locker(&m_mutex);
    if (m_events.empty())
        return {};
    const Event event = std::move(m_events.front());
    m_events.pop_front();
    locker.unlock();
    QJSValue value = m_engine->newArray();
    value.setProperty(0, event.signal);
    for (int i = 0; i < event.lists.size(); ++i) {
        const QRPC::NodeList &nodes = event.lists.at(i);
        QJSValue list = m_engine->newArray(uint(nodes.size()));
        for (int node = 0; node < nodes.size(); ++node)
            list.setProperty(quint32(node), m_steps->toScript(nodes.at(node)));
        value.setProperty(quint32(i + 1), list);
    }
    return value;
}

void ScriptBridge::print(const QString &text)
{
    m_invoke([&] { m_print(text); });
}

QJSValue ScriptBridge::readText(const QJSValue &arguments)
{
    const QJSValue path = arguments.property(0);
    if (arguments.property(QStringLiteral("length")).toInt() != 1 || !path.isString())
        return error(tr("readText(path) takes one string, the path of a file."));
    const TextReading reading = ScriptSource::readBelow(m_folder, path.toString());
    return reading.error.isEmpty() ? QJSValue(reading.text) : error(reading.error);
}

} // namespace viewer
