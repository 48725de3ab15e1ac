#pragma once

#include "follow/NewestWork.h"
#include "follow/ScheduleEdits.h"

#include <QLocale>
#include <QString>

#include <vector>

namespace trel::desktop {

/// What of a catalogue is compared and searched, worked out once so that every search and every
/// order of it is quick: a place in the order of the language for each text. Does not change, so
/// that threads may share it.
class CatalogueKeys
{
public:
    /// Costs n log n, and a pass of the rules of the language for each text. Cancelled, it is not
    /// to be used.
    CatalogueKeys(const follow::SharedCatalogue& catalogue, const QLocale& locale,
                  const follow::Cancellation& cancellation = {});

    // By the place of a program in the order of the indexes, from 0.

    /// Name and folder as searches compare them.
    const QString& text(std::size_t place) const { return m_texts[place]; }
    /// Where the name stands among all; the same for names that the language holds equal.
    int nameRank(std::size_t place) const { return m_names[place]; }
    int folderRank(std::size_t place) const { return m_folders[place]; }

private:
    std::vector<QString> m_texts;
    std::vector<int> m_names;
    std::vector<int> m_folders;
};

/// Where each of some texts stands in the order of a language, with numbers in them by their value;
/// texts that the language holds equal stand at the same place.
std::vector<int> textRanks(const std::vector<QString>& texts, const QLocale& locale,
                           const follow::Cancellation& cancellation = {});

} // namespace trel::desktop
