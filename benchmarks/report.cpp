#include "report.h"

#include <algorithm>
#include <stdexcept>

namespace o7::bench {

namespace {

double quantile(std::vector<double> values, double share)
{
    if (values.empty())
        return 0;
    std::sort(values.begin(), values.end());
    const double place = share * static_cast<double>(values.size() - 1);
    const auto lower = static_cast<std::size_t>(place);
    const std::size_t upper = std::min(lower + 1, values.size() - 1);
    const double rest = place - static_cast<double>(lower);
    return values[lower] + (values[upper] - values[lower]) * rest;
}

std::string goalText(const Goal& goal)
{
    char text[32] = "-";
    if (goal.kind == Goal::RatioAtMost)
        std::snprintf(text, sizeof text, "<= %.2f x", goal.limit);
    else if (goal.kind == Goal::ValueAtMost)
        std::snprintf(text, sizeof text, "<= %g", goal.limit);
    return text;
}

const char* verdict(const Goal& goal, double value, double base)
{
    if (goal.kind == Goal::None)
        return "";
    const double measured = goal.kind == Goal::RatioAtMost ? value / base : value;
    return measured <= goal.limit ? "holds" : "falls short";
}

} // namespace

double median(std::vector<double> values)
{
    return quantile(std::move(values), 0.5);
}

Report::Report(const std::string& jsonPath)
{
    if (!jsonPath.empty()) {
        m_json = std::fopen(jsonPath.c_str(), "a");
        if (!m_json)
            throw std::runtime_error("cannot write " + jsonPath);
    }
    std::printf("%-46s %12s %12s %8s %10s  %s\n", "figure", "median", "baseline", "ratio", "goal",
                "verdict");
}

Report::~Report()
{
    if (m_json)
        std::fclose(m_json);
}

void Report::note(const std::string& text)
{
    std::printf("  %s\n", text.c_str());
    std::fflush(stdout);
}

void Report::add(const Figure& figure)
{
    printRow(figure, median(figure.runs), median(figure.baseline));
    if (m_json)
        writeJson(figure);
}

void Report::printRow(const Figure& figure, double value, double base) const
{
    const std::string title = figure.name + " " + figure.parameters + " [" + figure.unit + "]";
    std::printf("%-46s %12.4g ", title.c_str(), value);
    if (figure.baseline.empty())
        std::printf("%12s %8s", "-", "-");
    else
        std::printf("%12.4g %8.3f", base, value / base);
    std::printf(" %10s  %s\n", goalText(figure.goal).c_str(), verdict(figure.goal, value, base));
    std::fflush(stdout);
}

void Report::writeJson(const Figure& figure) const
{
    std::fprintf(m_json,
                 "{\"name\":\"%s\",\"parameters\":\"%s\",\"unit\":\"%s\",\"median\":%.6g,"
                 "\"quartiles\":[%.6g,%.6g],\"runs\":%zu",
                 figure.name.c_str(), figure.parameters.c_str(), figure.unit.c_str(),
                 median(figure.runs), quantile(figure.runs, 0.25), quantile(figure.runs, 0.75),
                 figure.runs.size());
    if (!figure.baseline.empty())
        std::fprintf(m_json, ",\"baseline\":%.6g,\"ratio\":%.4g", median(figure.baseline),
                     median(figure.runs) / median(figure.baseline));
    std::fprintf(m_json, "}\n");
    std::fflush(m_json);
}

} // namespace o7::bench
