// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>

/// Prints a Markdown table of the module beside its floor, one row an operation and shape, one
/// column a size, with the ratio of the two and the growth between the two largest sizes. Of several
/// repetitions the fastest counts, which other work on the machine has disturbed least.
///
/// Names of benchmarks are "operation|shape and view|size|who", where who is "module" or "floor".
class RatioReporter : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context &context) override;
    void ReportRuns(const std::vector<Run> &runs) override;
    void Finalize() override;

private:
    struct Times
    {
        double module = 0.0; ///< milliseconds
        double floor = 0.0;
    };

    std::vector<std::string> m_order;
    std::map<std::string, std::map<int, Times>> m_rows;
};
