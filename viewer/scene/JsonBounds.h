// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

#include <vector>

namespace viewer {

/// Looks through a text that claims to be JSON before it is parsed, and finds what no scene needs
/// but would take the parser gigabytes or hours: nesting without end, millions of tiny values,
/// objects with very many keys. One walk over the bytes without allocation but for the open
/// brackets; whether the text is JSON at all is the parser's business. Used by the reader alone.
class JsonBounds
{
    Q_DECLARE_TR_FUNCTIONS(viewer::JsonBounds)

public:
    explicit JsonBounds(const QByteArray &text) : m_text(text) {}

    /// What is wrong and at which byte, counted from 1; empty when nothing is.
    QString fault();

private:
    struct Bracket
    {
        bool isObject;
        int commas;
    };

    int endOfString(int quote) const;
    QString take(char c);

    const QByteArray &m_text;
    std::vector<Bracket> m_open;
    int m_values = 0;
};

} // namespace viewer
