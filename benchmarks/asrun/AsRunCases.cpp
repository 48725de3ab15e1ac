#include "AsRunCases.h"

#include "Comparison.h"
#include "PlainRecords.h"
#include "RecordedYear.h"
#include "trelprogramschedule/asrun/AsRunTotals.h"
#include "trelprogramschedule/asrun/AsRunVerification.h"

#include <QFileInfo>
#include <QLocale>

#include <memory>
#include <stdexcept>

using namespace trel::mediadispatch;

namespace bench {

namespace {

constexpr double kAgainstReading = 3.0;
constexpr double kAgainstDay = 2.0;
constexpr double kAgainstBytes = 1.0;
constexpr int kYearRecords = 2'000'000;
constexpr int kMonthRecords = 165'000;
/// Of the last days of which a month still has all, so that what was before counts.
constexpr int kDayOfYear = 25;

/// A database that is made when it is needed first.
class Records
{
public:
    Records(Instant begin, int records)
        : m_begin(begin)
        , m_records(records)
    {}

    const RecordedYear& made()
    {
        if (!m_year) {
            m_year = std::make_unique<RecordedYear>(m_begin, m_records);
        }
        return *m_year;
    }

    double verify(Instant from, Instant to, int times = 1)
    {
        const QString path = made().path();
        return processorSeconds([&] {
            for (int round = 0; round < times; ++round) {
                AsRunDatabase database;
                expect(database.open(path, StoreOpenMode::ReadOnly));
                AsRunVerdict verdict;
                expect(verifyAsRun(database, onlyScreen(database), from, to, verdict));
                if (!verdict.isGood() || verdict.records == 0) {
                    throw std::runtime_error("The records are not what they were made.");
                }
            }
        });
    }

    double list()
    {
        const QString path = made().path();
        return processorSeconds([&] {
            AsRunDatabase database;
            expect(database.open(path, StoreOpenMode::ReadOnly));
            qint64 count = 0;
            expect(database.visit(QStringLiteral("hall"), {1, m_records},
                                  [&count](const AsRunRecord& record) {
                                      count += record.number > 0 ? 1 : 0;
                                      return true;
                                  }));
            if (count != m_records) {
                throw std::runtime_error("Not all records were read.");
            }
        });
    }

    double total()
    {
        const QString path = made().path();
        return processorSeconds([&] {
            AsRunDatabase database;
            expect(database.open(path, StoreOpenMode::ReadOnly));
            AsRunTotals totals;
            expect(compareAsRun(database, onlyScreen(database), kEver, kNever,
                                AsRunComparison::Gaps::ByPlay, [&](const AsRunStretch& stretch) {
                                    totals.add(stretch);
                                    return true;
                                }));
        });
    }

    double readPlainly()
    {
        const std::string path = made().path().toStdString();
        return processorSeconds([&] { m_hashed = hashPlainly(path); });
    }

    double bytes() { return static_cast<double>(QFileInfo(made().path()).size()) / m_records; }

    double hashedBytes()
    {
        readPlainly();
        return static_cast<double>(m_hashed) / m_records;
    }

private:
    Instant m_begin;
    int m_records;
    std::unique_ptr<RecordedYear> m_year;
    std::int64_t m_hashed = 0;
};

void addWhole(int count, bool isLong)
{
    const auto records = std::make_shared<Records>(kYear, count);
    const std::string size =
        QLocale(QLocale::English).toString(count).toStdString() + " records of a screen";
    const std::string group = "as-run " + std::to_string(count);
    const int rounds = isLong ? 3 : 9;
    const auto floor = [records] { return records->readPlainly(); };
    add({"Verify the as-run, against reading and hashing its rows", size, kAgainstReading,
         [records] { return records->verify(kEver, kNever); }, floor, rounds, isLong, group});
    add({"Add up the as-run, against reading and hashing its rows", size, kAgainstReading,
         [records] { return records->total(); }, floor, rounds, isLong, group});
    add({"List the as-run, against reading and hashing its rows", size, kAgainstReading,
         [records] { return records->list(); }, floor, rounds, isLong, group});
    add({"Size of an as-run record, against the bytes that are hashed", size, kAgainstBytes,
         [records] { return records->bytes(); }, [records] { return records->hashedBytes(); }, 1,
         isLong, group});
    const Instant day = kYear + kDayOfYear * kDay;
    constexpr int dayRecords = 6000; // A little more than a day.
    const auto alone = std::make_shared<Records>(day, dayRecords);
    constexpr int times = 20;
    add({"Verify a day out of the as-run, against a day alone", size, kAgainstDay,
         [records, day] { return records->verify(day + 1000, day + kDay, times); },
         [alone, day] { return alone->verify(day + 1000, day + kDay, times); }, rounds, isLong,
         group});
}

} // namespace

void addAsRunCases()
{
    addWhole(kMonthRecords, false);
    addWhole(kYearRecords, true);
}

} // namespace bench
