// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/ProgressReport.h"

#include <QDir>

#include <algorithm>
#include <chrono>
#include <cstdio>

namespace viewer {

ProgressReport::ProgressReport(const QString &sentence, const QString &file)
    : m_sentence(sentence)
    , m_file(QDir::toNativeSeparators(file))
    , m_thread([this] { report(); })
{
}

ProgressReport::~ProgressReport()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_isOver = true;
    }
    m_end.notify_one();
    m_thread.join();
}

void ProgressReport::report()
{
    constexpr std::chrono::seconds mostRarely(60);
    const auto start = std::chrono::steady_clock::now();
    std::chrono::seconds due(2);
    std::unique_lock<std::mutex> lock(m_mutex);
    while (!m_end.wait_until(lock, start + due, [this] { return m_isOver; })) {
        const QString line = m_sentence.arg(m_file, QString::number(due.count()));
        std::fprintf(stderr, "%s\n", qPrintable(line));
        due += std::min(due, mostRarely);
    }
}

} // namespace viewer
