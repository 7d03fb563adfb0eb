// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "conformance/Report.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>
#include <QXmlStreamWriter>

#include <algorithm>
#include <cstdio>

namespace conformance {

namespace {

QString outcomeText(Result::Outcome outcome)
{
    switch (outcome) {
    case Result::Outcome::Passed:
        return QStringLiteral("ok");
    case Result::Outcome::Failed:
        return QStringLiteral("failed");
    case Result::Outcome::Crashed:
        return QStringLiteral("crashed");
    case Result::Outcome::Hung:
        break;
    }
    return QStringLiteral("hung");
}

QString reason(const Failure &failure)
{
    return QStringLiteral("%1: expected %2, seen %3")
        .arg(failure.what, failure.expected, failure.seen);
}

/// What a library says may have several lines.
QString onOneLine(QString text)
{
    return text.replace('\n', QLatin1String("\\n"));
}

QJsonObject object(const Result &result)
{
    QJsonObject entry{{"name", result.check.name},
                      {"rule", result.check.rule},
                      {"outcome", outcomeText(result.outcome)},
                      {"milliseconds", result.milliseconds}};
    if (result.outcome != Result::Outcome::Passed) {
        entry.insert("what", result.failure.what);
        entry.insert("expected", result.failure.expected);
        entry.insert("seen", result.failure.seen);
    }
    return entry;
}

} // namespace

void Report::add(const Result &result)
{
    m_results.push_back(result);
    const QString name = result.check.name;
    if (result.outcome == Result::Outcome::Passed)
        std::printf("ok   %s\n", qPrintable(name));
    else
        std::printf("FAIL %s: %s (%s)\n", qPrintable(name),
                    qPrintable(onOneLine(reason(result.failure))), qPrintable(result.check.rule));
    std::fflush(stdout);
}

int Report::failed() const
{
    return int(std::count_if(m_results.begin(), m_results.end(), [](const Result &result) {
        return result.outcome != Result::Outcome::Passed;
    }));
}

void Report::close() const
{
    std::printf("%s %s: %d checks, %d failed\n", qPrintable(m_kind), qPrintable(m_file),
                int(m_results.size()), failed());
}

QString Report::obstacleAt(const QString &path)
{
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) ? QString() : file.errorString();
}

QString Report::write(const QString &path) const
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return file.errorString();
    file.write(path.endsWith(QLatin1String(".xml")) ? xml() : json());
    // What is flushed by the commit alone may fail without a word.
    return file.flush() && file.commit() ? QString() : file.errorString();
}

QByteArray Report::json() const
{
    QJsonArray checks;
    for (const Result &result : m_results)
        checks.append(object(result));
    const QJsonObject report{{"kind", m_kind},
                             {"file", m_file},
                             {"checked", int(m_results.size())},
                             {"failed", failed()},
                             {"checks", checks}};
    return QJsonDocument(report).toJson();
}

QByteArray Report::xml() const
{
    QByteArray text;
    QXmlStreamWriter writer(&text);
    writer.setAutoFormatting(true);
    writer.writeStartDocument();
    writer.writeStartElement("testsuite");
    writer.writeAttribute("name", m_kind + ' ' + m_file);
    writer.writeAttribute("tests", QString::number(m_results.size()));
    writer.writeAttribute("failures", QString::number(failed()));
    for (const Result &result : m_results) {
        writer.writeStartElement("testcase");
        writer.writeAttribute("classname", m_kind);
        writer.writeAttribute("name", result.check.name);
        writer.writeAttribute("time", QString::number(result.milliseconds / 1000.0));
        if (result.outcome != Result::Outcome::Passed) {
            writer.writeStartElement("failure");
            writer.writeAttribute("type", outcomeText(result.outcome));
            writer.writeAttribute("message", reason(result.failure));
            writer.writeCharacters(result.check.rule);
            writer.writeEndElement();
        }
        writer.writeEndElement();
    }
    writer.writeEndDocument();
    return text;
}

} // namespace conformance
