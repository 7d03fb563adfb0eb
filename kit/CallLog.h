// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QStringList>

#include <functional>

/// What the services of a test were asked, in order, as short lines: the operation, then its
/// arguments ("getParent 5", "setName [5,6] \"x\""). Owned by the test; GUI thread only.
class CallLog
{
public:
    /// Notes one call. The first word of the line is the operation.
    void add(const QString &line);

    /// The lines since the log was last emptied. Large tests switch the lines off and use counts.
    const QStringList &lines() const { return m_lines; }

    /// The lines, which the log forgets with its counts.
    QStringList take();

    /// The lines of the named operations only, in order.
    QStringList linesOf(const QStringList &operations) const;

    /// The lines of commands and writes alone, in order: those that ask nothing.
    QStringList commands() const;

    /// The lines, or those of commands and writes alone, that `action` adds to the emptied log.
    QStringList callsOf(const std::function<void()> &action);
    QStringList commandsOf(const std::function<void()> &action);

    /// How often an operation was called; counted while lines are switched off too.
    int count(const QString &operation) const { return m_counts.value(operation); }

    /// How often any operation was called.
    int total() const;

    void clear();
    void setKeepsLines(bool keeps) { m_keepsLines = keeps; }

private:
    QStringList m_lines;
    QHash<QString, int> m_counts;
    bool m_keepsLines = true;
};
