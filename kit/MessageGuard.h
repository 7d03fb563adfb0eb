// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QRegularExpression>
#include <QStringList>

/// Collects every Qt warning, critical and debug line that a test did not announce. One guard lives
/// at a time, for the length of one test function; it hands each message on to the handler that was
/// there before.
class MessageGuard
{
public:
    MessageGuard();
    ~MessageGuard();
    Q_DISABLE_COPY(MessageGuard)

    /// Announces one message that matches `pattern`. A message that was announced and did not come
    /// counts as a fault too.
    void expect(const QRegularExpression &pattern);

    /// What is wrong so far, one line each: messages not announced, announced ones that are missing.
    QStringList faults() const;

private:
    static void handle(QtMsgType type, const QMessageLogContext &context, const QString &message);
    void take(QtMsgType type, const QString &message);

    static MessageGuard *s_current;

    QtMessageHandler m_previous;
    QList<QRegularExpression> m_expected;
    QStringList m_unexpected;
};
