// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QTest>

#include <random>

/// Seeds of random tests. A run of every day repeats the same few; KX_LONG_TESTS=1 takes many, from
/// a first one of its own; KX_TEST_SEED=n makes n the first in both. Each seed is the name of a row,
/// and so printed with its result.
namespace seeds {

inline bool isLongRun()
{
    return qEnvironmentVariableIntValue("KX_LONG_TESTS") > 0;
}

inline quint32 first()
{
    const QString given = qEnvironmentVariable("KX_TEST_SEED");
    if (!given.isEmpty())
        return given.toUInt();
    return isLongRun() ? quint32(std::random_device()()) : 1U;
}

/// Adds the column "seed" and its rows to the data of a test function.
inline void addRows(quint32 shortRun, quint32 longRun)
{
    QTest::addColumn<quint32>("seed");
    const quint32 start = first();
    for (quint32 i = 0; i < (isLongRun() ? longRun : shortRun); ++i)
        QTest::addRow("seed %u", start + i) << start + i;
}

} // namespace seeds
