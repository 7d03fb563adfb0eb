// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "viewer/script/ScriptCall.h"

#include <QByteArrayList>

#include <random>

/// Changes scripts by whole lines, which bytes alone would hardly ever hit: calls of operations with
/// arguments that mostly fit, in handlers, in steps, and where a fault is caught. Made for one
/// change; the seed decides it.
class ScriptComposer
{
public:
    explicit ScriptComposer(unsigned seed) : m_random(seed) {}

    /// The script with one line more, less, or another one.
    QByteArray changed(const QByteArray &script);

private:
    int below(int limit) { return int(m_random() % unsigned(limit)); }
    template<class List>
    const auto &anyOf(const List &list)
    {
        return list[std::size_t(below(int(std::size(list))))];
    }
    QByteArray line();
    QByteArray call();
    QByteArray argument(const viewer::ScriptParameter &parameter);
    QByteArray fitting(const QByteArray &parameter);
    QByteArray node();
    QByteArray nodes();
    QByteArray number();
    QByteArray point();

    std::minstd_rand m_random;
};
