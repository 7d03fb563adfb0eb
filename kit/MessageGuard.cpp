// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "kit/MessageGuard.h"

namespace {

// Lines of the platform that say nothing about the code under test.
bool isPlatformNoise(const QString &message)
{
    static const QRegularExpression noise(
        QStringLiteral("^(This plugin does not support "
                       "(propagateSizeHints\\(\\)|raise\\(\\)|grabbing the keyboard)"
                       "|libpng warning: iCCP"
                       "|QStandardPaths: (XDG_RUNTIME_DIR|runtime directory)"
                       "|Could not connect to any X display"
                       "|libGL)"));
    return noise.match(message).hasMatch();
}

} // namespace

MessageGuard *MessageGuard::s_current = nullptr;

MessageGuard::MessageGuard()
{
    Q_ASSERT(!s_current);
    s_current = this;
    m_previous = qInstallMessageHandler(&MessageGuard::handle);
}

MessageGuard::~MessageGuard()
{
    qInstallMessageHandler(m_previous);
    s_current = nullptr;
}

void MessageGuard::expect(const QRegularExpression &pattern)
{
    m_expected.append(pattern);
}

QStringList MessageGuard::faults() const
{
    QStringList all = m_unexpected;
    for (const QRegularExpression &pattern : m_expected)
        all.append(QStringLiteral("announced, but did not come: ") + pattern.pattern());
    return all;
}

void MessageGuard::handle(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (s_current->m_previous)
        s_current->m_previous(type, context, message);
    s_current->take(type, message);
}

void MessageGuard::take(QtMsgType type, const QString &message)
{
    for (int i = 0; i < m_expected.size(); ++i) {
        if (m_expected.at(i).match(message).hasMatch()) {
            m_expected.removeAt(i);
            return;
        }
    }
    if (type == QtInfoMsg || isPlatformNoise(message))
        return;
    m_unexpected.append(QStringLiteral("not announced: ") + message);
}
