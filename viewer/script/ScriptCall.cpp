// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/script/ScriptCall.h"

#include "viewer/script/ScriptText.h"

#include <QRegularExpression>

#include <cmath>
#include <limits>

namespace viewer {

using QRPC::NodeId;
using QRPC::NodeList;

namespace {

bool isWhole(double number, double least, double most)
{
    return number >= least && number <= most && std::floor(number) == number;
}

/// The index of a name in a list that ends with null; -1 when it is none of them.
int indexOf(const QString &name, const char *const *names)
{
    for (int i = 0; names && names[i]; ++i) {
        if (name == QLatin1String(names[i]))
            return i;
    }
    return -1;
}

QString listed(const char *const *names)
{
    QStringList list;
    for (int i = 0; names[i]; ++i)
        list += QLatin1Char('"') + QLatin1String(names[i]) + QLatin1Char('"');
    return list.join(QLatin1String(", "));
}

} // namespace

QString ScriptSignature::call() const
{
    return QLatin1String(object) + QLatin1Char('.') + QLatin1String(name) + QLatin1String("()");
}

QString ScriptSignature::full() const
{
    QStringList names;
    for (const ScriptParameter &parameter : parameters)
        names += QLatin1String(parameter.name);
    QString text = call();
    return text.insert(text.size() - 1, names.join(QLatin1String(", ")));
}

ScriptCall::ScriptCall(QJSEngine *engine, ScriptSteps *steps, const Invoke &invoke,
                       const ScriptSignature &signature, const QJSValue &arguments)
    : m_engine(engine)
    , m_steps(steps)
    , m_invoke(invoke)
    , m_signature(signature)
    , m_arguments(arguments)
{
    const int count = arguments.property(QStringLiteral("length")).toInt();
    if (count != signature.parameters.size())
        m_fault = tr("The number of arguments is wrong: %1 was called with %2.")
                      .arg(signature.full())
                      .arg(count);
}

void ScriptCall::invoke(const std::function<void()> &work) const
{
    if (m_fault.isEmpty())
        m_invoke(work);
}

void ScriptCall::refuse(int index, const char *sentence)
{
    if (m_fault.isEmpty() && index < m_signature.parameters.size())
        m_fault = tr(sentence).arg(m_signature.call(),
                                   QLatin1String(m_signature.parameters.at(index).name));
}

bool ScriptCall::isNode(const QJSValue &value) const
{
    return value.isNumber() && isWhole(value.toNumber(), 0, std::numeric_limits<NodeId>::max());
}

void ScriptCall::read(int index, NodeId *node)
{
    const QJSValue value = given(index);
    if (isNode(value))
        *node = m_steps->toService(value.toNumber());
    else
        refuse(index, QT_TR_NOOP("%1: \"%2\" must be the id of a node, which is a whole number."));
}

void ScriptCall::read(int index, NodeList *nodes)
{
    const QJSValue list = given(index);
    bool isRight = list.isArray();
    const quint32 count = isRight ? list.property(QStringLiteral("length")).toUInt() : 0;
    for (quint32 i = 0; isRight && i < count; ++i) {
        const QJSValue value = list.property(i);
        isRight = isNode(value);
        if (isRight)
            nodes->append(m_steps->toService(value.toNumber()));
    }
    if (!isRight)
        refuse(index, QT_TR_NOOP("%1: \"%2\" must be an array with the ids of nodes."));
}

void ScriptCall::read(int index, int *number)
{
    const QJSValue value = given(index);
    const char *const *names = m_signature.parameters.value(index).names;
    const int named = value.isString() ? indexOf(value.toString(), names) : -1;
    using Limits = std::numeric_limits<int>;
    if (named >= 0)
        *number = named;
    else if (value.isNumber() && isWhole(value.toNumber(), Limits::min(), Limits::max()))
        *number = value.toInt();
    else if (!names)
        refuse(index, QT_TR_NOOP("%1: \"%2\" must be a whole number."));
    else if (m_fault.isEmpty())
        m_fault = tr("%1: \"%2\" must be one of %3.")
                      .arg(m_signature.call(), QLatin1String(m_signature.parameters.at(index).name),
                           listed(names));
}

void ScriptCall::read(int index, float *number)
{
    if (given(index).isNumber())
        *number = float(given(index).toNumber());
    else
        refuse(index, QT_TR_NOOP("%1: \"%2\" must be a number."));
}

void ScriptCall::read(int index, bool *value)
{
    if (given(index).isBool())
        *value = given(index).toBool();
    else
        refuse(index, QT_TR_NOOP("%1: \"%2\" must be true or false."));
}

void ScriptCall::read(int index, QString *text)
{
    if (given(index).isString())
        *text = given(index).toString();
    else
        refuse(index, QT_TR_NOOP("%1: \"%2\" must be a string."));
}

void ScriptCall::read(int index, QColor *color)
{
    static const QRegularExpression digits(QStringLiteral("^#(?:[0-9a-fA-F]{6}|[0-9a-fA-F]{8})$"),
                                           QRegularExpression::DontCaptureOption);
    const QJSValue value = given(index);
    if (value.isString() && digits.match(value.toString()).hasMatch())
        color->setNamedColor(value.toString());
    else if (!value.isNull())
        refuse(index, QT_TR_NOOP("%1: \"%2\" must be a colour, as \"#rrggbb\" or \"#aarrggbb\", or "
                                 "null for none."));
}

void ScriptCall::read(int index, QPointF *point)
{
    const QJSValue x = given(index).property(QStringLiteral("x"));
    const QJSValue y = given(index).property(QStringLiteral("y"));
    if (x.isNumber() && y.isNumber())
        *point = QPointF(x.toNumber(), y.toNumber());
    else
        refuse(index, QT_TR_NOOP("%1: \"%2\" must be a point, as {x: 0.5, y: 1}."));
}

// A script that wrote 0.1 expects to read 0.1.
QJSValue ScriptCall::toScript(float value) const
{
    return std::isfinite(value) ? scripttext::write(value).toDouble() : double(value);
}

QJSValue ScriptCall::toScript(const QColor &value) const
{
    return value.isValid() ? QJSValue(scripttext::nameOf(value)) : QJSValue(QJSValue::NullValue);
}

QJSValue ScriptCall::toScript(const QPointF &value) const
{
    QJSValue point = m_engine->newObject();
    point.setProperty(QStringLiteral("x"), value.x());
    point.setProperty(QStringLiteral("y"), value.y());
    return point;
}

QJSValue ScriptCall::named(int value, const char *const *names)
{
    for (int i = 0; names && names[i]; ++i) {
        if (i == value)
            return QString(QLatin1String(names[i]));
    }
    return value;
}

} // namespace viewer
