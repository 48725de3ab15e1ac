#pragma once

#include "trelprogramschedule/asrun/AsRunDatabase.h"
#include "trelprogramschedule/asrun/AsRunHash.h"
#include "trelprogramschedule_export.h"

#include <QByteArray>
#include <QString>

#include <functional>
#include <vector>

namespace trel::mediadispatch {

/// A place at which a chain of records is not what was written.
struct AsRunBreak
{
    enum class Kind {
        Changed,     ///< Records `first` to `last`; where there are several, one of them at least.
        Missing,     ///< Records `first` to `last` were taken out.
        Swapped,     ///< Records `first` and `last` stand in each other's place.
        Added,       ///< Records `first` to `last` were put in.
        OtherScreen, ///< Record `first` is one of another screen.
        Head,        ///< What is noted of the last record, which is `first`, does not fit it.
    };

    Kind kind = Kind::Changed;
    qint64 first = 0;
    qint64 last = 0;
    Instant moment = 0; ///< When the first of them was on screen, or the one before it.
    QString otherScreen;
};

/// Follows a chain of records, one by one, and tells where it is broken.
///
/// It finds everything that was not made by working out all hashes from there on once more, with
/// those of the head. Against that only a number and a hash help that were written down elsewhere.
class TRELPROGRAMSCHEDULE_EXPORT AsRunChain
{
public:
    /// Begins behind the anchor of a screen.
    explicit AsRunChain(const AsRunScreen& screen);
    /// Begins with a record in the middle, behind one that has this hash.
    AsRunChain(const AsRunScreen& screen, qint64 first, const QByteArray& before);

    /// The next record that is there.
    void add(const AsRunRecord& record);
    /// To be called behind the last record of the screen; not where only a part was read.
    void finish();

    /// A record of a screen by its number; one with the number 0 where there is none.
    using Lookup = std::function<AsRunRecord(const QString& screen, qint64 number)>;
    /// Finds out more about the breaks: which records are swapped, and which come from one of the
    /// other screens.
    void explain(const Lookup& lookup, const std::vector<AsRunScreen>& others);

    /// In the order of their places, a thousand at most.
    std::vector<AsRunBreak> breaks() const;
    /// How many there are.
    qint64 count() const { return m_count; }
    /// There are more than are kept.
    bool isCutShort() const { return m_count > static_cast<qint64>(m_found.size()); }
    qint64 records() const { return m_records; }

private:
    struct Found
    {
        AsRunBreak place;
        AsRunRecord record; ///< Of Changed, the first.
        QByteArray before;  ///< The hash in front of it.
    };

    bool fits(const QByteArray& before, const AsRunRecord& record, qint64 number);
    bool goesOn(const AsRunRecord& record);
    bool followsSwap(const AsRunRecord& record);
    void noteSwap();
    void notePutIn(qint64 first);
    void accept(const AsRunRecord& record);
    void note(AsRunBreak::Kind kind, qint64 first, qint64 last, Instant moment);
    void noteInFront(const AsRunRecord& record);
    void noteChanged(const AsRunRecord& record);
    void explainSwaps();
    bool areSwapped(const Found& a, const Found& b);
    void dropFollower(std::size_t of, const QByteArray& before);
    void explainScreens(const Lookup& lookup, const std::vector<AsRunScreen>& others);

    AsRunScreen m_screen;
    AsRunHasher m_hasher;
    QByteArray m_before;         ///< As it stands in the record before.
    QByteArray m_worked;         ///< As it was worked out for that one, where it is another.
    QByteArray m_good;           ///< Of the last record that fits.
    qint64 m_goodNumber;         ///< Its number, as it was written.
    qint64 m_next;               ///< The number that the next record has to have.
    qint64 m_shift = 0;          ///< What has to be added to numbers because others were taken out.
    qint64 m_unfitting = 0;      ///< How many records since then do not fit.
    QByteArray m_firstUnfitting; ///< What stands in the first of them.
    QByteArray m_putIn;          ///< The same of those that were put in right before the last.
    bool m_afterPutIn = false;
    Instant m_moment = 0; ///< Of the record before.
    QByteArray m_atHead;  ///< The hash of the record that has the head's number.
    bool m_isHeadGood = false;
    qint64 m_records = 0;
    qint64 m_count = 0;
    std::vector<Found> m_found;
};

} // namespace trel::mediadispatch
