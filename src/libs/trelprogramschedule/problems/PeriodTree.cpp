#include "trelprogramschedule/problems/PeriodTree.h"

#include <algorithm>
#include <tuple>
#include <utility>

// A tree in the order of starts, in which each node knows the latest end below it, so that a branch
// in which every period ends too early is left at its top. A node has a number that depends on its
// id alone and is larger than those below it: as the numbers are as good as drawn by lot, the tree
// stays as flat as one that was built at random.

namespace trel::mediadispatch {

struct PeriodTree::Node
{
    Node(int itsId, Period itsPeriod)
        : id(itsId)
        , period(std::move(itsPeriod))
        , rank(rankOf(itsId))
        , latestEnd(period.end)
    {}

    static std::uint64_t rankOf(int id)
    {
        std::uint64_t mixed = static_cast<std::uint32_t>(id) + 0x9E3779B97F4A7C15U;
        mixed = (mixed ^ (mixed >> 30U)) * 0xBF58476D1CE4E5B9U;
        mixed = (mixed ^ (mixed >> 27U)) * 0x94D049BB133111EBU;
        return mixed ^ (mixed >> 31U);
    }

    bool isBefore(int otherId, const Period& other) const
    {
        return std::tie(period.start, id) < std::tie(other.start, otherId);
    }

    void update()
    {
        latestEnd = period.end;
        for (const Branch* branch : {&left, &right}) {
            if (*branch && latestEnd < (*branch)->latestEnd) {
                latestEnd = (*branch)->latestEnd;
            }
        }
    }

    using Branch = std::unique_ptr<Node>;

    /// What stands before a place, and the rest.
    static std::pair<Branch, Branch> split(Branch tree, int id, const Period& period)
    {
        if (!tree) {
            return {};
        }
        if (tree->isBefore(id, period)) {
            auto [before, rest] = split(std::move(tree->right), id, period);
            tree->right = std::move(before);
            tree->update();
            return {std::move(tree), std::move(rest)};
        }
        auto [before, rest] = split(std::move(tree->left), id, period);
        tree->left = std::move(rest);
        tree->update();
        return {std::move(before), std::move(tree)};
    }

    /// All of the first stands before all of the second.
    static Branch join(Branch first, Branch second)
    {
        if (!first || !second) {
            return first ? std::move(first) : std::move(second);
        }
        if (first->rank < second->rank) {
            second->left = join(std::move(first), std::move(second->left));
            second->update();
            return second;
        }
        first->right = join(std::move(first->right), std::move(second));
        first->update();
        return first;
    }

    static void erase(Branch& tree, int id, const Period& period)
    {
        if (!tree) {
            return;
        }
        if (tree->id == id && tree->period == period) {
            tree = join(std::move(tree->left), std::move(tree->right));
            return;
        }
        erase(tree->isBefore(id, period) ? tree->right : tree->left, id, period);
        tree->update();
    }

    static bool visit(const Branch& tree, const Period& period, const Visitor& visitor)
    {
        if (!tree || tree->latestEnd < period.start) {
            return true;
        }
        if (!visit(tree->left, period, visitor)) {
            return false;
        }
        if (period.end < tree->period.start) {
            return true; // What stands behind starts no earlier.
        }
        return (!periodsOverlap(tree->period, period) || visitor(tree->id, tree->period)) &&
               visit(tree->right, period, visitor);
    }

    int id;
    Period period;
    std::uint64_t rank;
    std::string latestEnd; ///< Of all below, this one included.
    Branch left;
    Branch right;
};

PeriodTree::PeriodTree() = default;
PeriodTree::~PeriodTree() = default;
PeriodTree::PeriodTree(PeriodTree&&) noexcept = default;
PeriodTree& PeriodTree::operator=(PeriodTree&&) noexcept = default;

void PeriodTree::insert(int id, const Period& period)
{
    auto [before, behind] = Node::split(std::move(m_root), id, period);
    m_root = Node::join(Node::join(std::move(before), std::make_unique<Node>(id, period)),
                        std::move(behind));
}

void PeriodTree::erase(int id, const Period& period)
{
    Node::erase(m_root, id, period);
}

void PeriodTree::visitOverlapping(const Period& period, const Visitor& visitor) const
{
    Node::visit(m_root, period, visitor);
}

} // namespace trel::mediadispatch
