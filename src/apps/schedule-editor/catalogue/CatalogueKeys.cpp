#include "catalogue/CatalogueKeys.h"

#include "catalogue/ProgramWords.h"
#include "catalogue/SearchText.h"

#include <QCollator>

#include <algorithm>
#include <numeric>

using namespace trel::mediadispatch;

namespace trel::desktop {

std::vector<int> textRanks(const std::vector<QString>& texts, const QLocale& locale,
                           const follow::Cancellation& cancellation)
{
    QCollator collator(locale);
    collator.setNumericMode(true);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    std::vector<QCollatorSortKey> keys;
    keys.reserve(texts.size());
    for (const QString& text : texts) {
        if (cancellation.isCancelled()) {
            return {};
        }
        keys.push_back(collator.sortKey(text));
    }
    std::vector<std::size_t> order(texts.size());
    std::iota(order.begin(), order.end(), 0);
    std::sort(order.begin(), order.end(),
              [&keys](std::size_t a, std::size_t b) { return keys[a].compare(keys[b]) < 0; });
    std::vector<int> ranks(texts.size());
    int rank = 0;
    for (std::size_t i = 0; i < order.size(); ++i) {
        rank += i > 0 && keys[order[i - 1]].compare(keys[order[i]]) < 0 ? 1 : 0;
        ranks[order[i]] = rank;
    }
    return ranks;
}

CatalogueKeys::CatalogueKeys(const follow::SharedCatalogue& catalogue, const QLocale& locale,
                             const follow::Cancellation& cancellation)
{
    std::vector<QString> names;
    std::vector<QString> folders;
    for (const auto& [index, program] : *catalogue) {
        if (cancellation.isCancelled()) {
            return;
        }
        names.push_back(programwords::name(program));
        folders.push_back(programwords::folder(program));
        // No word that is searched for has the end of a line in it.
        m_texts.push_back(foldedText(names.back() + QLatin1Char('\n') + folders.back()));
    }
    m_names = textRanks(names, locale, cancellation);
    m_folders = textRanks(folders, locale, cancellation);
}

} // namespace trel::desktop
