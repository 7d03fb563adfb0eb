// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/scene/JsonBounds.h"

#include "viewer/scene/SceneFormat.h"

namespace viewer {

QString JsonBounds::fault()
{
    for (int i = 0; i < m_text.size(); ++i) {
        if (m_text.at(i) == '"') {
            i = endOfString(i);
            continue;
        }
        const QString fault = take(m_text.at(i));
        if (!fault.isEmpty())
            return tr("byte %1: %2").arg(i + 1).arg(fault);
    }
    return {};
}

int JsonBounds::endOfString(int quote) const
{
    int i = quote + 1;
    while (i < m_text.size() && m_text.at(i) != '"')
        i += m_text.at(i) == '\\' ? 2 : 1;
    return i;
}

QString JsonBounds::take(char c)
{
    const bool opens = c == '[' || c == '{';
    if (!opens && c != ',') {
        if ((c == ']' || c == '}') && !m_open.empty())
            m_open.pop_back();
        return {};
    }
    if (++m_values > sceneformat::MaxValues)
        return tr("expected at most %L1 values, found more").arg(sceneformat::MaxValues);
    if (opens)
        m_open.push_back({c == '{', 0});
    else if (!m_open.empty() && ++m_open.back().commas >= sceneformat::MaxKeys
             && m_open.back().isObject)
        return tr("expected at most %L1 keys in an object, found more").arg(sceneformat::MaxKeys);
    if (m_open.size() > std::size_t(sceneformat::MaxNesting))
        return tr("expected at most %L1 levels of nesting, found more")
            .arg(sceneformat::MaxNesting);
    return {};
}

} // namespace viewer
