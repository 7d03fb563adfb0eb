// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

/// Counts how often a signal is emitted that is known by its text only. Owned by a test or a check.
class CallCounter : public QObject
{
    Q_OBJECT

public:
    /// Begins to count; `signal` is written with SIGNAL().
    CallCounter(const QObject *sender, const char *signal);

    int count() const { return m_count; }

private Q_SLOTS:
    void note() { ++m_count; }

private:
    int m_count = 0;
};
