#include "StoreTarget.h"

#include "FuzzTarget.h"

#include "QuickFolder.h"
#include "service/scheduleManage.h"
#include "trelprogramschedule/ScheduleHost.h"
#include "trelprogramschedule/catalogue/ProgramImporter.h"
#include "trelprogramschedule/faults/FaultWords.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <cstring>
#include <random>

#include <sys/stat.h>

using namespace trel::mediadispatch;

namespace trust {

namespace {

constexpr std::size_t kHeadSize = 100;
constexpr std::size_t kSmallestPage = 512;
constexpr std::size_t kPageSizePlace = 16;
/// Stands between the pages of a database and those of its log, which an input may hold as well.
const QByteArray kLogMark = QByteArrayLiteral("--the log of the database--");

const QuickFolder& folder()
{
    static const QuickFolder instance;
    return instance;
}

void write(const QString& path, const QByteArray& content)
{
    QFile file(path);
    expect(file.open(QIODevice::WriteOnly) && file.write(content) == content.size(),
           "the input can be written to a file");
}

QByteArray read(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void clear()
{
    QDir dir(folder().path());
    for (const QString& name : dir.entryList(QDir::Files | QDir::Hidden)) {
        dir.remove(name);
    }
}

/// Reads everything there is to read.
void look(const std::map<int, PlayTask>& tasks)
{
    scheduleManage& manager = scheduleManage::getInstance();
    std::vector<int> indexes;
    for (const auto& [index, program] : manager.getPrograms()) {
        expect(index == program.progIndex, "a program stands under its index");
        indexes.push_back(index);
    }
    ScheduleHost::instance().plansWith(indexes);
    for (const auto& [id, task] : tasks) {
        expect(id == task.id, "a task stands under its id");
        for (const PlayPlan& plan : task.plans) {
            for (const struProgInfo& entry : plan.programs) {
                manager.getProgramNameByProgIndex(entry.progIndex);
            }
        }
    }
}

void change(const QString& path)
{
    ScheduleHost& host = ScheduleHost::instance();
    scheduleManage& manager = scheduleManage::getInstance();
    if (!host.open(path, ScheduleHost::OpenMode::MustExist)) {
        return;
    }
    PlayTask task;
    task.id = 7;
    task.startDate = "2024.01.01";
    task.endDate = "2024.01.31";
    task.plans.resize(1);
    task.plans.front().id = 1;
    MediaSource source;
    source.path = QStringLiteral("rtsp://host/one");
    source.name = QStringLiteral("one");
    const ImportResult added = host.addPrograms({source});
    const StoreResult replaced = host.replaceSchedule({{7, task}});
    const auto programs = manager.getPrograms();
    host.close();
    if (added.store && replaced) {
        const StoreResult opened = host.open(path, ScheduleHost::OpenMode::MustExist);
        if (!opened) {
            fault(QStringLiteral("what was written cannot be read: %1").arg(englishText(opened)));
        }
        const auto tasks = manager.getgTaskMap();
        expect(tasks.size() == 1 && tasks.begin()->second == task, "a change is there, whole");
        expect(manager.getPrograms().size() == programs.size(), "the catalog is there");
        host.close();
    }
}

} // namespace

void tryStore(const QByteArray& input)
{
    clear();
    const QString path = folder().filePath(QStringLiteral("schedule.db"));
    const int mark = input.indexOf(kLogMark);
    write(path, input.left(mark));
    if (mark >= 0) {
        write(path + QStringLiteral("-wal"), input.mid(mark + kLogMark.size()));
    }
    ScheduleHost& host = ScheduleHost::instance();
    const StoreResult opened = host.open(path, ScheduleHost::OpenMode::ReadOnly);
    if (opened) {
        look(scheduleManage::getInstance().getgTaskMap());
    } else {
        expect(!englishText(opened).isEmpty(), "a refusal has a sentence");
    }
    host.close();
    expect(read(path) == input.left(mark), "a store that is only read stays as it is");
    if (opened) {
        change(path);
    } else {
        host.open(path, ScheduleHost::OpenMode::MustExist);
        host.close();
        expect(input.isEmpty() || read(path) == input.left(mark),
               "a file that is refused stays as it is");
    }
}

namespace {

/// As the file has it; the smallest one where that is none.
std::size_t pageSizeOf(const std::uint8_t* data)
{
    const std::size_t size = std::size_t(data[kPageSizePlace]) << 8 | data[kPageSizePlace + 1];
    return size < kSmallestPage ? kSmallestPage : size;
}

} // namespace

std::size_t mutateStore(std::uint8_t* data, std::size_t size, std::size_t mostSize, unsigned seed)
{
    if (size < kHeadSize) {
        return size;
    }
    std::mt19937 chance(seed);
    const auto below = [&chance](std::size_t end) {
        return chance() % std::max<std::size_t>(end, 1);
    };
    const std::size_t pageSize = pageSizeOf(data);
    const std::size_t pages = std::max<std::size_t>(size / pageSize, 1);
    const std::size_t page = below(pages) * pageSize;
    const std::size_t pageEnd = std::min(page + pageSize, size);
    const std::size_t pageHead = page + (page == 0 ? kHeadSize : 0);
    const auto flip = [&](std::size_t place) {
        if (place < size) {
            constexpr std::uint8_t telling[] = {0x00, 0x01, 0x7F, 0x80, 0xFF, 0x0D, 0x05, 0x0A};
            data[place] = below(2) == 0 ? telling[below(sizeof telling)]
                                        : static_cast<std::uint8_t>(chance());
        }
    };
    switch (below(6)) {
    case 0: // The head of the file: sizes, lists of free pages, versions.
        flip(16 + below(kHeadSize - 16));
        break;
    case 1: // The head of a page: its kind, and where its cells are.
        flip(pageHead + below(12));
        break;
    case 2: // The table of the cells.
        flip(pageHead + 8 + below(64));
        break;
    case 3: // A cell: its length, its number, its kinds, its content.
        flip(page + below(pageEnd - page));
        break;
    case 4: { // One page in the place of another.
        const std::size_t other = below(pages) * pageSize;
        const std::size_t count = std::min(pageEnd - page, size - std::min(other, size));
        std::memmove(data + page, data + other, count);
        break;
    }
    default: // A page more, or one less.
        if (below(2) == 0 && size > pageSize) {
            return size - pageSize;
        }
        if (size + pageSize <= mostSize) {
            std::memmove(data + size, data + page, pageEnd - page);
            return size + pageEnd - page;
        }
        break;
    }
    return size;
}

} // namespace trust
