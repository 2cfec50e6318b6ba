#pragma once

#include <cstdio>
#include <string>
#include <vector>

namespace o7::bench {

/// What a figure is held against.
struct Goal
{
    enum Kind
    {
        None,        ///< only told
        RatioAtMost, ///< median / baseline median
        ValueAtMost  ///< median itself
    };
    Kind kind = None;
    double limit = 0;
};

/// One measured figure: all runs of it, and all runs of its raw baseline (empty: there is none).
struct Figure
{
    std::string name;       ///< of the measurement, as ./bench knows it
    std::string parameters; ///< what exactly was measured
    std::string unit;
    std::vector<double> runs;
    std::vector<double> baseline;
    Goal goal;
};

double median(std::vector<double> values);

/// Prints figures as a table with a verdict and, when a file is given, as one JSON object a line.
class Report
{
public:
    /// @param jsonPath  empty for none. Throws std::runtime_error when it cannot be written.
    explicit Report(const std::string& jsonPath);
    ~Report();
    Report(const Report&) = delete;
    Report& operator=(const Report&) = delete;

    void add(const Figure& figure);
    /// A line of explanation between the rows.
    void note(const std::string& text);

private:
    void printRow(const Figure& figure, double value, double base) const;
    void writeJson(const Figure& figure) const;

    std::FILE* m_json = nullptr;
};

} // namespace o7::bench
