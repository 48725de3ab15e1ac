#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

namespace trel::mediadispatch {

/// A period of validity, both days included. Days compare as bytes.
struct Period
{
    std::string start; ///< kDateFormat.
    std::string end;   ///< kDateFormat.
};

inline bool operator==(const Period& a, const Period& b)
{
    return a.start == b.start && a.end == b.end;
}

/// Whether neither of two periods ends before the other starts. So empty days overlap each other
/// and nothing else.
inline bool periodsOverlap(const Period& a, const Period& b)
{
    return b.start <= a.end && a.start <= b.end;
}

/// Periods by the ids of their tasks, which come and go at the cost of the logarithm of their
/// number. A search costs as much for each period that it finds.
class PeriodTree
{
public:
    PeriodTree();
    ~PeriodTree();
    PeriodTree(PeriodTree&&) noexcept;
    PeriodTree& operator=(PeriodTree&&) noexcept;

    /// The period must not be there yet.
    void insert(int id, const Period& period);
    /// Both as they were inserted. Nothing where they are not there.
    void erase(int id, const Period& period);

    /// False ends the visit.
    using Visitor = std::function<bool(int id, const Period& period)>;
    /// Visits the periods that overlap one, in the order of their starts; the visitor must not
    /// change the tree.
    void visitOverlapping(const Period& period, const Visitor& visitor) const;

private:
    struct Node;
    std::unique_ptr<Node> m_root;
};

} // namespace trel::mediadispatch
