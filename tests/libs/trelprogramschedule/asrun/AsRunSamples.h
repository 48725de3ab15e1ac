#pragma once

#include "trelprogramschedule/asrun/AsRunDatabase.h"
#include "trelprogramschedule/asrun/AsRunRecord.h"
#include "trelprogramschedule/faults/FaultWords.h"

#include <QTemporaryDir>
#include <QtTest>

#include <vector>

/// 2026-03-02 00:00:00 UTC.
inline constexpr trel::mediadispatch::Instant kAsRunStart = 1772409600000;

/// A picture of ten seconds, the count-th since the start.
inline trel::mediadispatch::AsRunRecord sampleRecord(int count)
{
    constexpr qint64 length = 10'000;
    trel::mediadispatch::AsRunRecord record;
    record.revision = 3;
    record.schedule = QByteArray(32, 's');
    record.picture = trel::mediadispatch::ScreenPicture::Playing;
    record.taskId = 1;
    record.planId = 2;
    record.planRow = 0;
    record.entry = count % 5;
    record.play = 0;
    record.run = count / 5;
    record.progIndex = 1 + count % 5;
    record.program = QStringLiteral("Program %1 \u00e4").arg(record.progIndex);
    record.plannedBegin = kAsRunStart + count * length;
    record.plannedEnd = record.plannedBegin + length;
    record.begins = record.plannedBegin + 4;
    record.ends = record.plannedEnd + 4;
    record.steadyBegin = 100 + count * length;
    record.steadyEnd = record.steadyBegin + length;
    record.boot = QByteArray(16, 'b');
    record.late = 4;
    return record;
}

inline std::vector<trel::mediadispatch::AsRunRecord> sampleRecords(int count, int first = 0)
{
    std::vector<trel::mediadispatch::AsRunRecord> records;
    for (int at = first; at < first + count; ++at) {
        records.push_back(sampleRecord(at));
    }
    return records;
}

/// An as-run database in a folder of its own.
class AsRunFixture
{
public:
    AsRunFixture() { open(trel::mediadispatch::StoreOpenMode::CreateIfMissing); }

    void open(trel::mediadispatch::StoreOpenMode mode)
    {
        const auto result = database.open(path, mode);
        QVERIFY2(result, qPrintable(englishText(result)));
    }

    void append(const std::vector<trel::mediadispatch::AsRunRecord>& records,
                qint64 firstSequence = 1, const QString& screen = QStringLiteral("hall"),
                const QByteArray& source = QByteArray("player"))
    {
        const auto result = database.append(screen, source, firstSequence, records, {});
        QVERIFY2(result, qPrintable(englishText(result)));
    }

    std::vector<trel::mediadispatch::AsRunRecord>
    read(const trel::mediadispatch::AsRunNumbers& numbers,
         const QString& screen = QStringLiteral("hall"))
    {
        std::vector<trel::mediadispatch::AsRunRecord> records;
        const auto result =
            database.visit(screen, numbers, [&](const trel::mediadispatch::AsRunRecord& record) {
                records.push_back(record);
                return true;
            });
        [&] { QVERIFY2(result, qPrintable(englishText(result))); }();
        return records;
    }

    trel::mediadispatch::AsRunScreen screen(int place = 0)
    {
        std::vector<trel::mediadispatch::AsRunScreen> screens;
        const auto result = database.screens(screens);
        [&] { QVERIFY2(result, qPrintable(englishText(result))); }();
        return screens.at(static_cast<std::size_t>(place));
    }

    QTemporaryDir folder;
    QString path =
        trel::mediadispatch::AsRunDatabase::pathFor(folder.filePath(QStringLiteral("schedule.db")));
    trel::mediadispatch::AsRunDatabase database;
};

inline constexpr trel::mediadispatch::AsRunNumbers kAllNumbers{
    1, std::numeric_limits<qint64>::max() - 1};
