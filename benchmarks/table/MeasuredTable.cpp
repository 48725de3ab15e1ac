#include "MeasuredTable.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <functional>
#include <stdexcept>

namespace bench {

namespace {

/// The marker line of a table: of the one without a name, or of another.
std::string marker(const std::string& name, const char* end)
{
    return "<!-- table" + (name.empty() ? name : ' ' + name) + ": " + end + " -->\n";
}

enum Column { CaseColumn, SizeColumn, RatioColumn, TargetColumn, MetColumn, ColumnCount };
using Cells = std::array<std::string, ColumnCount>;

constexpr Column kNumbers[] = {RatioColumn, TargetColumn};

bool isNumber(std::size_t column)
{
    return std::find(std::begin(kNumbers), std::end(kNumbers), column) != std::end(kNumbers);
}

/// Two decimals, and more where nothing would be left of them.
std::string format(double value)
{
    const int decimals = value > 0.0 && value < 0.1 ? 5 : 2;
    std::array<char, 32> text = {};
    std::snprintf(text.data(), text.size(), "%.*f", decimals, value);
    return text.data();
}

std::vector<Cells> cellsOf(const MeasuredTable& table)
{
    std::vector<Cells> lines = {{"Case", "Size", "Ratio", "Target", "Met"}};
    for (const MeasuredRow& row : table) {
        lines.push_back({row.name, row.size, format(row.ratio), format(row.target),
                         row.isMet() ? "yes" : "no"});
    }
    return lines;
}

/// How near a row comes to what it may be at most; above one it is missed.
double shareOfTarget(const MeasuredRow& row)
{
    return row.ratio / row.target;
}

/// A row for each case, the one that comes nearest to its target or misses it by most.
MeasuredTable nearestRows(const MeasuredTable& table)
{
    MeasuredTable nearest;
    for (const MeasuredRow& row : table) {
        const auto known =
            std::find_if(nearest.begin(), nearest.end(),
                         [&row](const MeasuredRow& other) { return other.name == row.name; });
        if (known == nearest.end()) {
            nearest.push_back(row);
        } else if (shareOfTarget(*known) < shareOfTarget(row)) {
            *known = row;
        }
    }
    return nearest;
}

/// "27 of 29 rows meet their target."
std::string summary(const MeasuredTable& table)
{
    const auto met = std::count_if(table.begin(), table.end(), std::mem_fn(&MeasuredRow::isMet));
    return std::to_string(met) + " of " + std::to_string(table.size()) + " rows meet their target.";
}

MeasuredRow readRow(const nlohmann::json& result)
{
    const std::string name = result.at("run_name").get<std::string>();
    if (result.value("error_occurred", false)) {
        throw std::runtime_error(name + ": " + result.value("error_message", std::string()));
    }
    const std::size_t slash = name.find('/');
    MeasuredRow row;
    row.name = name.substr(0, slash);
    row.size = name.substr(slash + 1, name.find('/', slash + 1) - slash - 1);
    row.ratio = result.at("ratio").get<double>();
    row.target = result.at("target").get<double>();
    return row;
}

} // namespace

MeasuredTable readResults(const std::string& json)
{
    MeasuredTable table;
    try {
        const nlohmann::json results = nlohmann::json::parse(json);
        for (const nlohmann::json& result : results.at("benchmarks")) {
            table.push_back(readRow(result));
        }
    } catch (const nlohmann::json::exception& error) {
        throw std::runtime_error(std::string("These are no results: ") + error.what());
    }
    return table;
}

std::string toText(const MeasuredTable& table)
{
    const std::vector<Cells> lines = cellsOf(table);
    std::array<std::size_t, ColumnCount> widths = {};
    for (const Cells& cells : lines) {
        for (std::size_t column = 0; column < ColumnCount; ++column) {
            widths[column] = std::max(widths[column], cells[column].size());
        }
    }
    std::string text;
    for (const Cells& cells : lines) {
        std::string line;
        for (std::size_t column = 0; column < ColumnCount; ++column) {
            const std::string blanks(widths[column] - cells[column].size(), ' ');
            line += isNumber(column) ? blanks + cells[column] : cells[column] + blanks;
            line += "  ";
        }
        text += line.substr(0, line.find_last_not_of(' ') + 1) + '\n';
    }
    return text;
}

std::string toJson(const MeasuredTable& table)
{
    auto rows = nlohmann::ordered_json::array();
    for (const MeasuredRow& row : table) {
        rows.push_back({{"case", row.name},
                        {"size", row.size},
                        {"ratio", row.ratio},
                        {"target", row.target},
                        {"met", row.isMet()}});
    }
    return rows.dump(2) + '\n';
}

std::string toMarkdown(const MeasuredTable& table, const std::string& machine)
{
    const std::vector<Cells> lines = cellsOf(nearestRows(table));
    std::string text;
    for (std::size_t line = 0; line < lines.size(); ++line) {
        for (const std::string& cell : lines[line]) {
            text += "| " + cell + ' ';
        }
        text += "|\n";
        if (line == 0) {
            for (std::size_t column = 0; column < ColumnCount; ++column) {
                text += isNumber(column) ? "|---:" : "|---";
            }
            text += "|\n";
        }
    }
    return text + '\n' + summary(table) + " Measured on " + machine + ".\n";
}

std::string withTable(const std::string& document, const std::string& markdown,
                      const std::string& name)
{
    const std::string first = marker(name, "start");
    const std::size_t start = document.find(first);
    const std::size_t end = document.find(marker(name, "end"));
    if (start == std::string::npos || end == std::string::npos || end < start) {
        throw std::runtime_error("The document has no marker lines to put the table between.");
    }
    return document.substr(0, start) + first + '\n' + markdown + '\n' + document.substr(end);
}

} // namespace bench
