// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "kit/RecordingService.h"

using notation::Kind;

namespace {

QString text(const QRPC::NodeList &nodes)
{
    QStringList ids;
    for (const QRPC::NodeId id : nodes)
        ids.append(QString::number(id));
    return QLatin1Char('[') + ids.join(QLatin1Char(',')) + QLatin1Char(']');
}

QString text(const QString &value)
{
    return QLatin1Char('"') + value + QLatin1Char('"');
}

QString text(const QColor &value)
{
    return value.name(QColor::HexArgb);
}

QString text(const QPointF &value)
{
    return QStringLiteral("(%1,%2)").arg(value.x()).arg(value.y());
}

} // namespace

void RecordingService::note(const QString &line)
{
    m_log->add(line);
    const auto hook = m_callHook; // it may replace itself
    if (hook)
        hook(line);
}

QString RecordingService::noteWrite(const char *operation, const QRPC::NodeList &nodes,
                                    const QString &value)
{
    QString line = QString::fromLatin1(operation) + QLatin1Char(' ') + text(nodes);
    if (!value.isNull())
        line += QLatin1Char(' ') + value;
    note(line);
    return line;
}

void RecordingService::finish(const QString &line)
{
    const auto hook = m_hook; // it may replace itself
    if (hook)
        hook(line);
}

template<class V>
V RecordingService::ask(const char *operation, QRPC::NodeId id, V Node::*member, const V &none)
{
    note(QStringLiteral("%1 %2").arg(QLatin1String(operation)).arg(id));
    const Node *node = find(id);
    return node && node->kind == Kind::Overlay ? node->*member : none;
}

QString RecordingService::getName(QRPC::NodeId id)
{
    note(QStringLiteral("getName %1").arg(id));
    const Node *node = find(id);
    return node && node != m_root ? node->name : QString();
}

int RecordingService::getOverlayType(QRPC::NodeId node)
{
    return ask("getOverlayType", node, &Node::type, 0);
}

QString RecordingService::getText(QRPC::NodeId node)
{
    return ask("getText", node, &Node::text, QString());
}

QString RecordingService::getFont(QRPC::NodeId node)
{
    return ask("getFont", node, &Node::font, QString());
}

QColor RecordingService::getFontColor(QRPC::NodeId node)
{
    return ask("getFontColor", node, &Node::fontColor, QColor());
}

QColor RecordingService::getBackgroundColor(QRPC::NodeId node)
{
    return ask("getBackgroundColor", node, &Node::backgroundColor, QColor());
}

QColor RecordingService::getBackgroundTransparency(QRPC::NodeId node)
{
    return ask("getBackgroundTransparency", node, &Node::transparency, QColor());
}

QString RecordingService::getImage(QRPC::NodeId node)
{
    return ask("getImage", node, &Node::image, QString());
}

int RecordingService::getSizeType(QRPC::NodeId node)
{
    return ask("getSizeType", node, &Node::sizeType, 0);
}

float RecordingService::getSize(QRPC::NodeId node)
{
    return ask("getSize", node, &Node::size, 0.0F);
}

QPointF RecordingService::getPosition(QRPC::NodeId node)
{
    return ask("getPosition", node, &Node::position, QPointF());
}

QPointF RecordingService::getOffset(QRPC::NodeId node)
{
    return ask("getOffset", node, &Node::offset, QPointF());
}

/// `setter` changes one node and answers whether that changed anything. The signals are all those
/// that such a change causes.
template<class Setter>
void RecordingService::write(const QString &line, const QRPC::NodeList &nodes,
                             std::initializer_list<Change> changes, Setter setter)
{
    QVector<Node *> touched;
    const QVector<Node *> targets = m_applies ? known(nodes) : QVector<Node *>();
    for (Node *node : targets) {
        const bool hasIt =
            node->kind == Kind::Overlay || *changes.begin() == &kxOverlayService::nameChanged;
        if (hasIt && setter(node))
            touched.append(node);
    }
    const QRPC::NodeList announced = idsOf(inOrder(touched));
    for (const Change changed : changes) {
        if (!announced.isEmpty())
            announce([=] { Q_EMIT(this->*changed)(announced); }, false);
    }
    finish(line);
}

namespace {

/// Equal, or both no number.
template<class V>
bool isSame(const V &a, const V &b)
{
    return a == b || (a != a && b != b); // NOLINT(misc-redundant-expression)
}

/// Assigns `value` to a member of a node; true when it was another one.
template<class V>
auto assign(V RecordingService::Node::*member, const V &value)
{
    return [member, value](RecordingService::Node *node) {
        const bool differs = !isSame(node->*member, value);
        node->*member = value;
        return differs;
    };
}

} // namespace

void RecordingService::setOverlayType(const QRPC::NodeList &nodes, int type)
{
    write(noteWrite("setOverlayType", nodes, QString::number(type)), nodes,
          {&kxOverlayService::overlayTypeChanged, &kxOverlayService::textChanged,
           &kxOverlayService::fontChanged, &kxOverlayService::fontColorChanged,
           &kxOverlayService::backgroundColorChanged,
           &kxOverlayService::backgroundTransparencyChanged, &kxOverlayService::imageChanged},
          assign(&Node::type, type));
}

void RecordingService::setName(const QRPC::NodeList &nodes, const QString &name)
{
    write(noteWrite("setName", nodes, text(name)), nodes, {&kxOverlayService::nameChanged},
          assign(&Node::name, name));
}

void RecordingService::setText(const QRPC::NodeList &nodes, const QString &value)
{
    write(noteWrite("setText", nodes, text(value)), nodes, {&kxOverlayService::textChanged},
          assign(&Node::text, value));
}

void RecordingService::setFont(const QRPC::NodeList &nodes, const QString &family)
{
    write(noteWrite("setFont", nodes, text(family)), nodes, {&kxOverlayService::fontChanged},
          assign(&Node::font, family));
}

void RecordingService::setFontColor(const QRPC::NodeList &nodes, const QColor &color)
{
    write(noteWrite("setFontColor", nodes, text(color)), nodes,
          {&kxOverlayService::fontColorChanged}, assign(&Node::fontColor, color));
}

void RecordingService::setBackgroundColor(const QRPC::NodeList &nodes, const QColor &color)
{
    write(noteWrite("setBackgroundColor", nodes, text(color)), nodes,
          {&kxOverlayService::backgroundColorChanged}, assign(&Node::backgroundColor, color));
}

void RecordingService::setBackgroundTransparency(const QRPC::NodeList &nodes, const QColor &color)
{
    write(noteWrite("setBackgroundTransparency", nodes, text(color)), nodes,
          {&kxOverlayService::backgroundTransparencyChanged}, assign(&Node::transparency, color));
}

void RecordingService::setImage(const QRPC::NodeList &nodes, const QString &path)
{
    write(noteWrite("setImage", nodes, text(path)), nodes, {&kxOverlayService::imageChanged},
          [path](Node *node) {
              const bool announced = !path.isEmpty() || !node->image.isEmpty();
              node->image = path;
              return announced;
          });
}

void RecordingService::setSizeType(const QRPC::NodeList &nodes, int sizeType)
{
    write(noteWrite("setSizeType", nodes, QString::number(sizeType)), nodes,
          {&kxOverlayService::sizeTypeChanged}, assign(&Node::sizeType, sizeType));
}

void RecordingService::setSize(const QRPC::NodeList &nodes, float size)
{
    write(noteWrite("setSize", nodes, QString::number(double(size))), nodes,
          {&kxOverlayService::sizeChanged}, assign(&Node::size, size));
}

void RecordingService::setPosition(const QRPC::NodeList &nodes, const QPointF &position)
{
    write(noteWrite("setPosition", nodes, text(position)), nodes,
          {&kxOverlayService::positionChanged}, assign(&Node::position, position));
}

void RecordingService::setOffset(const QRPC::NodeList &nodes, const QPointF &offset)
{
    write(noteWrite("setOffset", nodes, text(offset)), nodes, {&kxOverlayService::offsetChanged},
          assign(&Node::offset, offset));
}

void RecordingService::setOffsetX(const QRPC::NodeList &nodes, float x)
{
    write(noteWrite("setOffsetX", nodes, QString::number(double(x))), nodes,
          {&kxOverlayService::offsetChanged}, [x](Node *node) {
              const bool differs = float(node->offset.x()) != x;
              node->offset.setX(double(x));
              return differs;
          });
}

void RecordingService::setOffsetY(const QRPC::NodeList &nodes, float y)
{
    write(noteWrite("setOffsetY", nodes, QString::number(double(y))), nodes,
          {&kxOverlayService::offsetChanged}, [y](Node *node) {
              const bool differs = float(node->offset.y()) != y;
              node->offset.setY(double(y));
              return differs;
          });
}
