#include "catalogue/CatalogueRows.h"

#include "catalogue/CatalogueKeys.h"
#include "catalogue/SearchText.h"

#include <algorithm>

using namespace trel::mediadispatch;

namespace trel::desktop {

namespace {

/// A program with its place in the order of the indexes.
struct Candidate
{
    const ProgramIten* program = nullptr;
    std::size_t place = 0;
    double number = 0.0; ///< What is sorted by.
};

class Choice
{
public:
    Choice(const CatalogueWish& wish, const RowFacts& facts)
        : m_wish(wish)
        , m_facts(facts)
        , m_words(wish.search)
    {}

    bool takes(const Candidate& candidate) const
    {
        const ProgramIten& program = *candidate.program;
        return (!m_wish.kind || program.kind == *m_wish.kind) &&
               (!m_wish.isOnlyMissing || program.isNull) &&
               (!m_wish.isOnlyUnused || !isUsed(program.progIndex)) &&
               (m_words.isEmpty() || m_words.areIn(m_facts.keys->text(candidate.place)));
    }

private:
    bool isUsed(int program) const
    {
        return std::binary_search(m_facts.used.begin(), m_facts.used.end(), program);
    }

    const CatalogueWish& m_wish;
    const RowFacts& m_facts;
    SearchWords m_words;
};

/// Programs without a length come before those with the shortest.
double lengthOf(const ProgramIten& program)
{
    return hasOwnLength(program) && program.durationMs >= 0.0 ? program.durationMs : -1.0;
}

double numberOf(const Candidate& candidate, ProgramColumn column, const RowFacts& facts)
{
    switch (column) {
    case ProgramColumn::Name:
        return facts.keys->nameRank(candidate.place);
    case ProgramColumn::Folder:
        return facts.keys->folderRank(candidate.place);
    case ProgramColumn::Kind:
        return facts.kindRanks.at(static_cast<std::size_t>(candidate.program->kind));
    case ProgramColumn::Length:
        return lengthOf(*candidate.program);
    case ProgramColumn::Index:
        return candidate.program->progIndex;
    }
    return 0.0;
}

void sortBy(const CatalogueWish::Sort& sort, const RowFacts& facts,
            std::vector<Candidate>& candidates)
{
    for (Candidate& candidate : candidates) {
        candidate.number = numberOf(candidate, sort.column, facts);
    }
    const bool isAscending = sort.order == Qt::AscendingOrder;
    std::stable_sort(candidates.begin(), candidates.end(),
                     [isAscending](const Candidate& a, const Candidate& b) {
                         return isAscending ? a.number < b.number : b.number < a.number;
                     });
}

std::vector<Candidate> candidatesOf(const follow::SharedCatalogue& catalogue, const Choice& choice,
                                    const follow::Cancellation& cancellation)
{
    std::vector<Candidate> candidates;
    std::size_t place = 0;
    for (const auto& [index, program] : *catalogue) {
        if (cancellation.isCancelled()) {
            break;
        }
        const Candidate candidate{&program, place++};
        if (choice.takes(candidate)) {
            candidates.push_back(candidate);
        }
    }
    return candidates;
}

} // namespace

ProgramRows rowsOf(const follow::SharedCatalogue& catalogue, const CatalogueWish& wish,
                   const RowFacts& facts, const follow::Cancellation& cancellation)
{
    std::vector<Candidate> candidates = candidatesOf(catalogue, Choice(wish, facts), cancellation);
    // Each pass keeps what those before it have done, so that the first wish comes last.
    for (auto sort = wish.sorts.rbegin(); sort != wish.sorts.rend(); ++sort) {
        if (cancellation.isCancelled()) {
            break;
        }
        sortBy(*sort, facts, candidates);
    }
    ProgramRows rows;
    rows.reserve(candidates.size());
    for (const Candidate& candidate : candidates) {
        rows.push_back(candidate.program);
    }
    return rows;
}

} // namespace trel::desktop
