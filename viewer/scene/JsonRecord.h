// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "viewer/scene/Node.h"

#include <QCoreApplication>
#include <QStringList>

#include <nlohmann/json.hpp>

#include <set>

namespace viewer {

using Json = nlohmann::ordered_json;

/// A fault in a scene file. `place` goes on from the object in which it was found ("/size"). Thrown
/// inside the reader only.
struct SceneFault
{
    QString place;
    QString text;
};

/// Reads the keys of one JSON object by type. A key that is missing gives the value that stands for
/// it; a value of another type, or out of range, is a SceneFault. It remembers which keys were asked
/// for, so that the rest can be kept. Lives while one object is read.
class JsonRecord
{
    Q_DECLARE_TR_FUNCTIONS(viewer::JsonRecord)

public:
    explicit JsonRecord(const Json &object);

    QString text(const char *key, const QString &missing);
    bool flag(const char *key, bool missing);
    double number(const char *key, double missing);
    QColor color(const char *key, const QColor &missing);
    QPointF point(const char *key, const QPointF &missing);

    /// The index of the value among `choices`. A key that is missing gives 0, unless it is `needed`.
    int choice(const char *key, const QStringList &choices, bool needed = false);

    /// The array under a key; null when it is missing.
    const Json *array(const char *key);

    /// What was not asked for.
    UnknownKeys rest() const;

    /// A value in a few words for a message.
    static QString describe(const Json &value);

    [[noreturn]] static void fail(const QString &place, const QString &expected, const Json &found);

private:
    const Json *value(const char *key);

    const Json &m_object;
    std::set<std::string> m_asked;
};

} // namespace viewer
