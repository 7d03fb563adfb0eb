// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "bench/RatioReporter.h"

#include <algorithm>
#include <cstdio>
#include <set>
#include <sstream>

namespace {

std::vector<std::string> split(const std::string &text, char separator)
{
    std::vector<std::string> parts;
    std::istringstream stream(text);
    for (std::string part; std::getline(stream, part, separator);)
        parts.push_back(part);
    return parts;
}

} // namespace

bool RatioReporter::ReportContext(const Context &context)
{
    (void)context;
    return true;
}

void RatioReporter::ReportRuns(const std::vector<Run> &runs)
{
    for (const Run &run : runs) {
        const std::vector<std::string> parts = split(run.run_name.function_name, '|');
        const std::string row = parts.at(0) + " | " + parts.at(1);
        if (std::find(m_order.begin(), m_order.end(), row) == m_order.end())
            m_order.push_back(row);
        Times &times = m_rows[row][std::stoi(parts.at(2))];
        double &best = parts.at(3) == "module" ? times.module : times.floor;
        if (run.run_type == Run::RT_Iteration)
            best =
                best > 0.0 ? std::min(best, run.GetAdjustedRealTime()) : run.GetAdjustedRealTime();
    }
    std::fprintf(stderr, ".");
}

void RatioReporter::Finalize()
{
    std::set<int> sizes;
    for (const auto &row : m_rows) {
        for (const auto &cell : row.second)
            sizes.insert(cell.first);
    }

    std::printf("\n| operation | tree |");
    for (const int size : sizes)
        std::printf(" %d: ms | floor | ratio |", size);
    std::printf(" growth |\n|---|---|");
    for (std::size_t i = 0; i < sizes.size(); ++i)
        std::printf("---:|---:|---:|");
    std::printf("---:|\n");

    for (const std::string &name : m_order) {
        std::printf("| %s |", name.c_str());
        double previous = 0.0;
        double growth = 0.0;
        for (const int size : sizes) {
            const auto cell = m_rows[name].find(size);
            if (cell == m_rows[name].end()) {
                std::printf(" | | |");
                continue;
            }
            const Times &times = cell->second;
            std::printf(" %.2f | %.2f | %.1f |", times.module, times.floor,
                        times.module / times.floor);
            growth = previous > 0.0 ? times.module / previous : 0.0;
            previous = times.module;
        }
        std::printf(" %.1f |\n", growth);
    }
}
