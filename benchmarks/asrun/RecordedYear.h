#pragma once

#include "trelprogramschedule/asrun/AsRunDatabase.h"

#include <QTemporaryDir>

namespace bench {

/// A database with the records of one screen, which has played a list of five programs from a
/// moment on, one after the other, as its schedule says.
class RecordedYear
{
public:
    RecordedYear(trel::mediadispatch::Instant begin, int records);

    QString path() const { return m_folder.filePath(QStringLiteral("store-as-run")); }
    int records() const { return m_records; }

private:
    QTemporaryDir m_folder;
    int m_records;
};

/// 2026-01-01 00:00:00 UTC.
inline constexpr trel::mediadispatch::Instant kYear = 1767225600000;
inline constexpr qint64 kDay = 86'400'000;

/// Throws where the database refuses.
void expect(const trel::mediadispatch::StoreResult& result);

/// The only screen of a database.
trel::mediadispatch::AsRunScreen onlyScreen(trel::mediadispatch::AsRunDatabase& database);

} // namespace bench
