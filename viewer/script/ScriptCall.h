// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/QRPC.h"
#include "viewer/script/ScriptSteps.h"

#include <QCoreApplication>
#include <QJSEngine>
#include <QVector>

#include <functional>

namespace viewer {

/// What a script calls a parameter, and the names that stand for its first values; none for most.
struct ScriptParameter
{
    const char *name;
    const char *const *names = nullptr; ///< of the values 0, 1 and so on; ends with null
};

/// How a script calls an operation.
struct ScriptSignature
{
    const char *object;
    const char *name;
    QVector<ScriptParameter> parameters;

    QString call() const; ///< "overlays.setText()"
    QString full() const; ///< "overlays.setText(nodes, text)"
};

/// One call of an operation by a script: reads the arguments, carries the operation out on the
/// thread of the service, and turns what comes back into a value for the script. Lives as long as
/// the call, on the thread of the engine. The first argument that is wrong leaves a fault, with which
/// nothing is carried out.
class ScriptCall
{
    Q_DECLARE_TR_FUNCTIONS(viewer::ScriptCall)

public:
    /// Carries work out on the thread of the service and waits for it.
    using Invoke = std::function<void(const std::function<void()> &)>;

    ScriptCall(QJSEngine *engine, ScriptSteps *steps, const Invoke &invoke,
               const ScriptSignature &signature, const QJSValue &arguments);

    /// A full sentence that says what was expected; empty when all is well.
    QString fault() const { return m_fault; }
    void setFault(const QString &fault) { m_fault = fault; }

    ScriptSteps *steps() const { return m_steps; }
    OverlayService *service() const { return m_steps->service(); }

    /// An argument in the form that the service wants.
    template<class Value>
    Value argument(int index)
    {
        Value value{};
        read(index, &value);
        return value;
    }

    /// Carries work out unless an argument was wrong.
    void invoke(const std::function<void()> &work) const;

    QJSValue toScript(bool value) const { return value; }
    QJSValue toScript(int value) const { return value; }
    QJSValue toScript(QRPC::NodeId node) const { return QJSValue(m_steps->toScript(node)); }
    QJSValue toScript(float value) const;
    QJSValue toScript(const QString &value) const { return value; }
    QJSValue toScript(const QColor &value) const;
    QJSValue toScript(const QPointF &value) const;

    /// The name of a value, or the value where it has none.
    static QJSValue named(int value, const char *const *names);

private:
    void read(int index, QRPC::NodeId *node);
    void read(int index, QRPC::NodeList *nodes);
    void read(int index, int *number);
    void read(int index, float *number);
    void read(int index, bool *value);
    void read(int index, QString *text);
    void read(int index, QColor *color);
    void read(int index, QPointF *point);

    bool isNode(const QJSValue &value) const;
    QJSValue given(int index) const { return m_arguments.property(quint32(index)); }
    void refuse(int index, const char *sentence);

    QJSEngine *m_engine;
    ScriptSteps *m_steps;
    const Invoke &m_invoke;
    const ScriptSignature &m_signature;
    const QJSValue m_arguments;
    QString m_fault;
};

} // namespace viewer
