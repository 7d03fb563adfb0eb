// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>
#include <QTranslator>

/// Translates the texts of one context by a mark in front of them, and no other text. Is installed as
/// long as it lives.
class MarkingTranslator : public QTranslator
{
public:
    explicit MarkingTranslator(const char *context) : m_context(context)
    {
        QCoreApplication::installTranslator(this);
    }
    ~MarkingTranslator() override { QCoreApplication::removeTranslator(this); }
    Q_DISABLE_COPY(MarkingTranslator)

    bool isEmpty() const override { return false; }

    QString translate(const char *context, const char *text, const char *, int) const override
    {
        return qstrcmp(context, m_context) == 0 ? QLatin1Char('*') + QString::fromUtf8(text)
                                                : QString();
    }

private:
    const char *m_context;
};
