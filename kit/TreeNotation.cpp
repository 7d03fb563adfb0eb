// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "kit/TreeNotation.h"

#include <QDebug>

namespace notation {

namespace {

class Reader
{
public:
    explicit Reader(const QString &line) : m_line(line) {}

    std::vector<Node> readAll()
    {
        std::vector<Node> nodes = readList();
        if (m_at != m_line.size())
            qFatal("tree notation: cannot read '%s' at %d", qPrintable(m_line), m_at);
        return nodes;
    }

private:
    std::vector<Node> readList()
    {
        std::vector<Node> nodes;
        while (skip(QLatin1Char(' ')) || (m_at < m_line.size() && m_line.at(m_at).isLetter())) {
            if (m_at < m_line.size() && m_line.at(m_at).isLetter())
                nodes.push_back(readNode());
        }
        return nodes;
    }

    Node readNode()
    {
        Node node;
        while (m_at < m_line.size() && m_line.at(m_at).isLetterOrNumber())
            node.name.append(m_line.at(m_at++));
        node.id = idOf(node.name);
        if (skip(QLatin1Char('*')))
            node.kind = Kind::Switch;
        node.enabled = !skip(QLatin1Char('-'));
        if (skip(QLatin1Char('('))) {
            if (node.kind == Kind::Overlay)
                node.kind = Kind::Group;
            node.children = readList();
            if (!skip(QLatin1Char(')')))
                qFatal("tree notation: no closing bracket in '%s' at %d", qPrintable(m_line), m_at);
        }
        return node;
    }

    bool skip(QChar wanted)
    {
        if (m_at >= m_line.size() || m_line.at(m_at) != wanted)
            return false;
        ++m_at;
        return true;
    }

    const QString m_line;
    int m_at = 0;
};

} // namespace

std::vector<Node> parse(const QString &line)
{
    return Reader(line).readAll();
}

QRPC::NodeId idOf(const QString &name)
{
    int start = name.size();
    while (start > 0 && name.at(start - 1).isDigit())
        --start;
    return name.midRef(start).toUInt();
}

} // namespace notation
