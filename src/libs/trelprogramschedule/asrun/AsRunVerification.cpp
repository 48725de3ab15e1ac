#include "AsRunVerification.h"

#include "AsRunCursor.h"

#include <algorithm>

namespace trel::mediadispatch {

namespace {

/// How often it is begun once more because records went because of their age meanwhile.
constexpr int kMostRounds = 5;

AsRunRecord recordOf(AsRunDatabase& database, const QString& screen, qint64 number)
{
    AsRunRecord found;
    database.visit(screen, {number, number}, [&found](const AsRunRecord& record) {
        found = record;
        return false;
    });
    return found;
}

/// The part of a chain that is looked at.
struct Part
{
    AsRunNumbers numbers;
    Instant from = kEver;
};

/// Which records there are between two moments; all that are there where no moments are given. The
/// time before the first record of a screen is no hole.
StoreResult partOf(AsRunDatabase& database, const AsRunScreen& screen, Instant from, Instant to,
                   Part& part)
{
    part.from = from;
    if (from == kEver && to == kNever) {
        part.numbers = {screen.firstStored, screen.lastStored};
        return {};
    }
    StoreResult result = database.numbersIn(screen.name, from, to, part.numbers);
    if (result && part.numbers.first == screen.firstStored) {
        part.from = std::max(from, recordOf(database, screen.name, screen.firstStored).begins);
    }
    return result;
}

AsRunComparison::Contents contentsOf(AsRunDatabase& database, StoreResult& result)
{
    return [&database, &result](const QByteArray& hash) {
        QByteArray contents;
        if (!hash.isEmpty() && result) {
            result = database.readContents(hash, contents);
        }
        return contents;
    };
}

/// The chain of these records: from the anchor, or from the record before the first.
AsRunChain chainOf(AsRunDatabase& database, const AsRunScreen& screen, const AsRunNumbers& numbers,
                   bool isWhole)
{
    if (isWhole || numbers.first <= screen.anchorNumber + 1) {
        return AsRunChain(screen);
    }
    const AsRunRecord before = recordOf(database, screen.name, numbers.first - 1);
    return AsRunChain(screen, numbers.first, before.hash);
}

StoreResult verifyOnce(AsRunDatabase& database, const AsRunScreen& screen, Instant from, Instant to,
                       AsRunVerdict& verdict)
{
    Part part;
    if (StoreResult result = partOf(database, screen, from, to, part); !result) {
        return result;
    }
    const AsRunNumbers& numbers = part.numbers;
    const bool isAll = from == kEver && to == kNever;
    verdict = AsRunVerdict();
    verdict.screen = screen;
    verdict.isWhole = isAll || (!numbers.isEmpty() && numbers.last == screen.lastStored);
    AsRunChain chain = chainOf(database, screen, numbers, isAll);
    AsRunCursor cursor(database, screen.name, numbers);
    AsRunJudge judge;
    StoreResult contents;
    const auto next = [&] {
        const AsRunRecord* const record = cursor.next();
        if (record != nullptr) {
            chain.add(*record);
            judge.see(*record);
        }
        return record;
    };
    AsRunComparison comparison(next, contentsOf(database, contents), AsRunComparison::Gaps::AsOne);
    comparison.visit(part.from, to, [&judge](const AsRunStretch& stretch) {
        judge.add(stretch);
        return true;
    });
    judge.finish();
    while (next() != nullptr) {
    }
    if (!cursor.result()) {
        return cursor.result();
    }
    if (verdict.isWhole) {
        chain.finish();
    }
    std::vector<AsRunScreen> others;
    if (chain.count() > 0) {
        database.screens(others);
    }
    chain.explain([&database](const QString& name,
                              qint64 number) { return recordOf(database, name, number); },
                  others);
    verdict.records = chain.records();
    verdict.breaks = chain.breaks();
    // Those that follow each other are told as one.
    verdict.breakCount =
        chain.isCutShort() ? chain.count() : static_cast<qint64>(verdict.breaks.size());
    verdict.deviations = judge.deviations();
    verdict.deviationCount = judge.count();
    verdict.times = judge.times();
    return contents;
}

} // namespace

StoreResult verifyAsRun(AsRunDatabase& database, const AsRunScreen& screen, Instant from,
                        Instant to, AsRunVerdict& verdict)
{
    AsRunScreen current = screen;
    for (int round = 1;; ++round) {
        StoreResult result = verifyOnce(database, current, from, to, verdict);
        if (!result || verdict.isGood() || round == kMostRounds) {
            return result;
        }
        // Records may have gone because of their age while they were read.
        std::vector<AsRunScreen> screens;
        result = database.screens(screens);
        const auto now = std::find_if(screens.begin(), screens.end(), [&](const AsRunScreen& one) {
            return one.name == screen.name;
        });
        if (!result || now == screens.end() || now->anchorNumber == current.anchorNumber) {
            return result;
        }
        current = *now;
    }
}

StoreResult compareAsRun(AsRunDatabase& database, const AsRunScreen& screen, Instant from,
                         Instant to, AsRunComparison::Gaps gaps,
                         const AsRunComparison::Visitor& visitor)
{
    Part part;
    if (StoreResult result = partOf(database, screen, from, to, part); !result) {
        return result;
    }
    const AsRunNumbers& numbers = part.numbers;
    AsRunCursor cursor(database, screen.name, numbers);
    StoreResult contents;
    AsRunComparison comparison([&cursor] { return cursor.next(); }, contentsOf(database, contents),
                               gaps);
    comparison.visit(part.from, to, visitor);
    return cursor.result() ? contents : cursor.result();
}

} // namespace trel::mediadispatch
