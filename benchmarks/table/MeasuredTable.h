#pragma once

#include <string>
#include <vector>

namespace bench {

/// One ratio, and what it may be at most.
struct MeasuredRow
{
    std::string name;
    std::string size;
    double ratio = 0.0;
    double target = 0.0;

    bool isMet() const { return ratio <= target; }
};

using MeasuredTable = std::vector<MeasuredRow>;

/// Reads the results that a benchmark program has written as JSON. Throws std::runtime_error when
/// it is none, or when a benchmark has failed.
MeasuredTable readResults(const std::string& json);

/// For the terminal, in columns.
std::string toText(const MeasuredTable& table);
/// An array with an object a row: case, size, ratio, target, met.
std::string toJson(const MeasuredTable& table);
/// For a document: a row for each case, at the size that comes nearest to its target or misses it
/// by most, and below it how many of all rows meet theirs, and on which machine.
std::string toMarkdown(const MeasuredTable& table, const std::string& machine);

/// The document with what stands between its two marker lines replaced; a document may have several
/// tables, each but one with a name in its marker lines. Throws std::runtime_error for a document
/// without them.
std::string withTable(const std::string& document, const std::string& markdown,
                      const std::string& name = {});

} // namespace bench
