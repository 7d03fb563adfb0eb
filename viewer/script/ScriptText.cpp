// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/script/ScriptText.h"

#include <QStringList>

#include <array>
#include <charconv>
#include <cmath>

namespace viewer::scripttext {

namespace {

/// The shortest digits that read as the same number.
template<class Number>
QString digitsOf(Number number)
{
    if (std::isnan(number))
        return QStringLiteral("NaN");
    if (std::isinf(number))
        return number > 0 ? QStringLiteral("Infinity") : QStringLiteral("-Infinity");
    std::array<char, 64> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number);
    return QString::fromLatin1(digits.data(), int(end.ptr - digits.data()));
}

/// Whether a character may not stand in a string as it is: it ends the line or the string, cannot be
/// seen, or is half of one, which no file can hold.
bool needsEscape(QChar c)
{
    return c == QLatin1Char('"') || c == QLatin1Char('\\') || !c.isPrint() || c.isSurrogate()
           || c == QChar::LineSeparator || c == QChar::ParagraphSeparator;
}

QString escaped(QChar c)
{
    if (c == QLatin1Char('\n'))
        return QStringLiteral("\\n");
    if (c == QLatin1Char('"') || c == QLatin1Char('\\'))
        return QLatin1Char('\\') + QString(c);
    return QStringLiteral("\\u%1").arg(int(c.unicode()), 4, 16, QLatin1Char('0'));
}

} // namespace

QString write(bool value)
{
    return value ? QStringLiteral("true") : QStringLiteral("false");
}

QString write(int value)
{
    return QString::number(value);
}

QString write(float value)
{
    return digitsOf(value);
}

QString write(double value)
{
    return digitsOf(value);
}

QString write(QRPC::NodeId node)
{
    return QString::number(node);
}

QString write(const QRPC::NodeList &nodes)
{
    QStringList ids;
    for (const QRPC::NodeId node : nodes)
        ids += write(node);
    return QLatin1Char('[') + ids.join(QLatin1String(", ")) + QLatin1Char(']');
}

QString write(const QString &text)
{
    QString written(QLatin1Char('"'));
    for (const QChar c : text) {
        if (needsEscape(c))
            written += escaped(c);
        else
            written += c;
    }
    return written + QLatin1Char('"');
}

QString write(const QColor &color)
{
    return color.isValid() ? write(nameOf(color)) : QStringLiteral("null");
}

QString write(const QPointF &point)
{
    return QStringLiteral("{x: %1, y: %2}").arg(write(point.x()), write(point.y()));
}

QString nameOf(const QColor &color)
{
    return color.name(color.alpha() == 255 ? QColor::HexRgb : QColor::HexArgb);
}

} // namespace viewer::scripttext
