#include "service/ProgramOffers.h"

#include <utility>

namespace trel::mediadispatch {

std::vector<struProgInfo> offeredPrograms(std::map<int, ProgramIten> catalogue)
{
    std::vector<struProgInfo> offers;
    offers.reserve(catalogue.size());
    for (auto& [key, program] : catalogue) {
        if (!program.isNull) {
            offers.push_back({program.progIndex, false, std::move(program.progName), 1});
        }
    }
    return offers;
}

} // namespace trel::mediadispatch
