// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "kit/CallLog.h"

#include <numeric>

void CallLog::add(const QString &line)
{
    ++m_counts[line.section(QLatin1Char(' '), 0, 0)];
    if (m_keepsLines)
        m_lines.append(line);
}

QStringList CallLog::take()
{
    const QStringList lines = m_lines;
    clear();
    return lines;
}

QStringList CallLog::linesOf(const QStringList &operations) const
{
    QStringList wanted;
    for (const QString &line : m_lines) {
        if (operations.contains(line.section(QLatin1Char(' '), 0, 0)))
            wanted.append(line);
    }
    return wanted;
}

QStringList CallLog::commands() const
{
    QStringList wanted;
    for (const QString &line : m_lines) {
        const QString operation = line.section(QLatin1Char(' '), 0, 0);
        const bool isQuestion = operation.startsWith(QLatin1String("get"))
                                || operation.startsWith(QLatin1String("is"))
                                || operation.contains(QLatin1Char('.'));
        if (!isQuestion)
            wanted.append(line);
    }
    return wanted;
}

QStringList CallLog::callsOf(const std::function<void()> &action)
{
    clear();
    action();
    return take();
}

QStringList CallLog::commandsOf(const std::function<void()> &action)
{
    clear();
    action();
    QStringList wanted = commands();
    clear();
    return wanted;
}

int CallLog::total() const
{
    return std::accumulate(m_counts.cbegin(), m_counts.cend(), 0);
}

void CallLog::clear()
{
    m_lines.clear();
    m_counts.clear();
}
