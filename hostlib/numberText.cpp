// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "hostlib/numberText.h"

#include <QByteArray>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

static constexpr int s_mostDecimals = 6;

/// The shortest digits, without an exponent, that are read back as the same float.
static QByteArray shortestText(float value)
{
    char digits[std::numeric_limits<float>::max_exponent10 + 64];
    const auto end = std::to_chars(digits, digits + sizeof digits, value, std::chars_format::fixed);
    return QByteArray(digits, int(end.ptr - digits));
}

static bool isFloat(double value)
{
    return std::abs(value) <= double(std::numeric_limits<float>::max())
           && double(float(value)) == value;
}

static int decimalsIn(const QByteArray &text)
{
    const int point = text.indexOf('.');
    return point < 0 ? 0 : text.size() - point - 1;
}

int hostlib::neededDecimals(double value)
{
    const int exact = isFloat(value) ? decimalsIn(shortestText(float(value))) : s_mostDecimals;
    QByteArray text = QByteArray::number(value, 'f', std::min(exact, s_mostDecimals));
    while (decimalsIn(text) > 0 && text.endsWith('0'))
        text.chop(1);
    return decimalsIn(text);
}
