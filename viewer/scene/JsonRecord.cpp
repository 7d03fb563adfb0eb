// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/scene/JsonRecord.h"

#include "viewer/scene/SceneFormat.h"

#include <cmath>
#include <optional>

namespace viewer {

namespace {

QString placeOf(const char *key)
{
    return QLatin1Char('/') + QLatin1String(key);
}

QString quoted(const std::string &text)
{
    constexpr int longest = 40;
    const QString whole = QString::fromStdString(text);
    const QString shown = whole.size() > longest ? whole.left(longest) + QChar(0x2026) : whole;
    return QLatin1Char('"') + shown + QLatin1Char('"');
}

double checkedNumber(const QString &place, const Json &value)
{
    if (!value.is_number())
        JsonRecord::fail(place, JsonRecord::tr("a number"), value);
    const double number = value.get<double>();
    if (!(std::abs(number) <= sceneformat::MaxNumber))
        JsonRecord::fail(place, JsonRecord::tr("a number between -1e9 and 1e9"), value);
    return number;
}

/// Reads "#rrggbb" or "#rrggbbaa".
std::optional<QColor> parsedColor(const std::string &text)
{
    const bool isHex = text.find_first_not_of("0123456789abcdefABCDEF", 1) == std::string::npos;
    if ((text.size() != 7 && text.size() != 9) || text.front() != '#' || !isHex)
        return std::nullopt;
    const auto bits = uint(std::stoul(text.substr(1), nullptr, 16));
    const uint rgba = text.size() == 9 ? bits : (bits << 8U) | 0xffU;
    return QColor(int(rgba >> 24U), int(rgba >> 16U & 0xffU), int(rgba >> 8U & 0xffU),
                  int(rgba & 0xffU));
}

/// Whether a value nests deeper than the format allows; without recursion, since it may.
bool isTooDeep(const Json &top)
{
    std::vector<std::pair<const Json *, int>> pending{{&top, 1}};
    while (!pending.empty()) {
        const auto [value, level] = pending.back();
        pending.pop_back();
        if (!value->is_structured())
            continue;
        if (level > sceneformat::MaxUnknownLevels)
            return true;
        for (const Json &inner : *value)
            pending.emplace_back(&inner, level + 1);
    }
    return false;
}

} // namespace

JsonRecord::JsonRecord(const Json &object) : m_object(object)
{
    if (!object.is_object())
        fail(QString(), tr("an object"), object);
}

const Json *JsonRecord::value(const char *key)
{
    m_asked.insert(key);
    const auto it = m_object.find(key);
    return it == m_object.end() ? nullptr : &*it;
}

QString JsonRecord::text(const char *key, const QString &missing)
{
    const Json *found = value(key);
    if (!found)
        return missing;
    if (!found->is_string())
        fail(placeOf(key), tr("a text"), *found);
    return QString::fromStdString(found->get_ref<const std::string &>());
}

bool JsonRecord::flag(const char *key, bool missing)
{
    const Json *found = value(key);
    if (!found)
        return missing;
    if (!found->is_boolean())
        fail(placeOf(key), tr("true or false"), *found);
    return found->get<bool>();
}

double JsonRecord::number(const char *key, double missing)
{
    const Json *found = value(key);
    return found ? checkedNumber(placeOf(key), *found) : missing;
}

QPointF JsonRecord::point(const char *key, const QPointF &missing)
{
    const Json *found = value(key);
    if (!found)
        return missing;
    if (!found->is_array() || found->size() != 2)
        fail(placeOf(key), tr("a list of two numbers"), *found);
    return {checkedNumber(placeOf(key) + QLatin1String("/0"), (*found)[0]),
            checkedNumber(placeOf(key) + QLatin1String("/1"), (*found)[1])};
}

QColor JsonRecord::color(const char *key, const QColor &missing)
{
    const Json *found = value(key);
    if (!found)
        return missing;
    if (found->is_null())
        return {};
    const std::optional<QColor> read =
        found->is_string() ? parsedColor(found->get_ref<const std::string &>()) : std::nullopt;
    if (!read)
        fail(placeOf(key), tr(R"(a colour such as "#ff8800" or "#ff880080", or null)"), *found);
    return *read;
}

int JsonRecord::choice(const char *key, const QStringList &choices, bool needed)
{
    const Json *found = value(key);
    const QString expected = QLatin1Char('"') + choices.join(tr("\" or \"")) + QLatin1Char('"');
    if (!found && needed)
        throw SceneFault{placeOf(key), tr("expected %1, found nothing").arg(expected)};
    if (!found)
        return 0;
    const int index =
        found->is_string()
            ? choices.indexOf(QString::fromStdString(found->get_ref<const std::string &>()))
            : -1;
    if (index < 0)
        fail(placeOf(key), expected, *found);
    return index;
}

const Json *JsonRecord::array(const char *key)
{
    const Json *found = value(key);
    if (found && !found->is_array())
        fail(placeOf(key), tr("a list"), *found);
    return found;
}

UnknownKeys JsonRecord::rest() const
{
    UnknownKeys rest;
    for (const auto &[key, value] : m_object.items()) {
        if (m_asked.count(key) != 0)
            continue;
        if (isTooDeep(value))
            throw SceneFault{QLatin1Char('/') + QString::fromStdString(key),
                             tr("expected at most %1 levels of nesting, found more")
                                 .arg(sceneformat::MaxUnknownLevels)};
        rest.append(
            {QByteArray::fromStdString(Json(key).dump()), QByteArray::fromStdString(value.dump())});
    }
    return rest;
}

QString JsonRecord::describe(const Json &value)
{
    switch (value.type()) {
    case Json::value_t::null:
        return tr("null");
    case Json::value_t::object:
        return tr("an object");
    case Json::value_t::array:
        return tr("a list of %1").arg(value.size());
    case Json::value_t::string:
        return tr("the text %1").arg(quoted(value.get_ref<const std::string &>()));
    default:
        return QString::fromStdString(value.dump());
    }
}

void JsonRecord::fail(const QString &place, const QString &expected, const Json &found)
{
    throw SceneFault{place, tr("expected %1, found %2").arg(expected, describe(found))};
}

} // namespace viewer
