#include "catalogue/CatalogueOrder.h"

#include "catalogue/CatalogueKeys.h"
#include "catalogue/ProgramWords.h"

#include <mutex>
#include <utility>

using namespace trel::mediadispatch;

namespace trel::desktop {

namespace {

/// So many programs are searched and sorted by their texts within a frame.
constexpr std::size_t kFewTexts = 1000;

std::array<int, 5> kindRanks(const QLocale& locale)
{
    std::vector<QString> words;
    words.reserve(5);
    for (int kind = 0; kind < 5; ++kind) {
        words.push_back(programwords::kind(static_cast<ProgramKind>(kind)));
    }
    const std::vector<int> ranks = textRanks(words, locale);
    std::array<int, 5> result{};
    std::copy(ranks.begin(), ranks.end(), result.begin());
    return result;
}

} // namespace

/// The keys of the catalogue that was last asked for. They are worked out to the end even when the
/// wish that needs them is given up, since the next one, a letter later, needs the same.
struct CatalogueOrder::KeyStore
{
    std::shared_ptr<const CatalogueKeys> keysOf(const follow::SharedCatalogue& wanted,
                                                const QLocale& wantedLocale)
    {
        const std::lock_guard<std::mutex> lock(mutex);
        if (catalogue != wanted || locale != wantedLocale || keys == nullptr) {
            keys = std::make_shared<CatalogueKeys>(wanted, wantedLocale);
            catalogue = wanted;
            locale = wantedLocale;
        }
        return keys;
    }

    std::mutex mutex;
    follow::SharedCatalogue catalogue;
    QLocale locale;
    std::shared_ptr<const CatalogueKeys> keys;
};

CatalogueOrder::CatalogueOrder(QObject* parent)
    : QObject(parent)
    , m_catalogue(std::make_shared<follow::SharedCatalogue::element_type>())
    , m_store(std::make_shared<KeyStore>())
{
    m_facts.kindRanks = kindRanks(m_locale);
}

CatalogueOrder::~CatalogueOrder() = default;

void CatalogueOrder::setCatalogue(const follow::SharedCatalogue& catalogue)
{
    m_catalogue = catalogue != nullptr ? catalogue
                                       : std::make_shared<follow::SharedCatalogue::element_type>();
    order();
}

void CatalogueOrder::setLocale(const QLocale& locale)
{
    if (m_locale != locale) {
        m_locale = locale;
        setKindWords();
    }
}

void CatalogueOrder::setKindWords()
{
    m_facts.kindRanks = kindRanks(m_locale);
    order();
}

void CatalogueOrder::setWish(const CatalogueWish& wish)
{
    m_wish = wish;
    order();
}

void CatalogueOrder::setUsed(std::vector<int> used)
{
    if (m_facts.used != used) {
        m_facts.used = std::move(used);
        order();
    }
}

void CatalogueOrder::order()
{
    const auto work =
        [this, catalogue = m_catalogue, wish = m_wish, facts = m_facts, locale = m_locale,
         store = m_store](
            const follow::Cancellation& cancellation) mutable -> follow::NewestWork::Outcome {
        if (wish.isOfTexts()) {
            facts.keys = store->keysOf(catalogue, locale);
        }
        auto rows = std::make_shared<ProgramRows>(rowsOf(catalogue, wish, facts, cancellation));
        // Runs in the thread of the windows, and not once this has gone.
        return [this, catalogue, rows] { emit ordered(catalogue, *rows); };
    };
    const bool isShort = !m_wish.isOfTexts() || m_catalogue->size() <= kFewTexts;
    if (isShort && !m_work.isBusy()) {
        m_work.carryOut(work);
    } else {
        m_work.start(work);
    }
}

} // namespace trel::desktop
