#include "AsRunRows.h"

#include <algorithm>

namespace trel::mediadispatch {

namespace {

/// In the order of the table, which writing and reading follow.
enum Column {
    Number,
    Kind,
    Revision,
    Schedule,
    Picture,
    TaskId,
    PlanId,
    PlanRow,
    Entry,
    Play,
    Run,
    Insertion,
    ProgIndex,
    Program,
    PlannedBegin,
    PlannedEnd,
    Begins,
    Ends,
    SteadyBegin,
    SteadyEnd,
    Boot,
    Shown,
    Outcome,
    Late,
    Why,
    Hash,
};

constexpr char kAdd[] = "INSERT INTO record VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?,"
                        " ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)";
constexpr char kRead[] =
    "SELECT number, kind, revision, schedule, picture, task_id, plan_id, plan_row, entry, play,"
    " run, insertion, prog_index, program, planned_begin, planned_end, begins, ends,"
    " steady_begin, steady_end, boot, shown, outcome, late, why, hash"
    " FROM record WHERE screen_id = ? AND number BETWEEN ? AND ? ORDER BY number LIMIT ?";
constexpr char kBegun[] = "SELECT min(number), max(number) FROM record"
                          " WHERE screen_id = ? AND begins >= ? AND begins < ?";
constexpr char kBefore[] = "SELECT number, kind, ends FROM record"
                           " WHERE screen_id = ? AND begins < ? ORDER BY begins DESC, number DESC";

} // namespace

AsRunRows::AsRunRows(const StoreConnection& connection, const QString& path)
    : m_words(connection, path)
    , m_add(connection, path, kAdd)
    , m_read(connection, path, kRead)
    , m_begun(connection, path, kBegun)
    , m_before(connection, path, kBefore)
{}

void AsRunRows::add(qint64 screenId, const AsRunRecord& record)
{
    m_add.bind(1, screenId);
    const auto put = [this](Column column, qint64 value) { m_add.bind(column + 2, value); };
    put(Number, record.number);
    put(Kind, static_cast<int>(record.kind));
    put(Revision, record.revision);
    put(Schedule, m_words.number(record.schedule));
    put(Picture, static_cast<int>(record.picture));
    put(TaskId, record.taskId);
    put(PlanId, record.planId);
    put(PlanRow, record.planRow);
    put(Entry, record.entry);
    put(Play, record.play);
    put(Run, record.run);
    put(Insertion, record.insertion);
    put(ProgIndex, record.progIndex);
    put(Program, m_words.number(record.program.toUtf8()));
    put(PlannedBegin, record.plannedBegin);
    put(PlannedEnd, record.plannedEnd);
    put(Begins, record.begins);
    put(Ends, record.ends);
    put(SteadyBegin, record.steadyBegin);
    put(SteadyEnd, record.steadyEnd);
    put(Boot, m_words.number(record.boot));
    put(Shown, static_cast<int>(record.shown));
    put(Outcome, static_cast<int>(record.outcome));
    put(Late, record.late);
    put(Why, m_words.number(record.why.toUtf8()));
    m_add.bindBytes(Hash + 2, record.hash);
    m_add.run();
}

void AsRunRows::read(qint64 screenId, const AsRunNumbers& numbers, std::size_t most,
                     std::vector<AsRunRecord>& records)
{
    m_read.bind(1, screenId);
    m_read.bind(2, numbers.first);
    m_read.bind(3, numbers.last);
    m_read.bind(4, static_cast<qint64>(most));
    std::size_t count = 0;
    while (m_read.next()) {
        if (count == records.size()) {
            records.emplace_back();
        }
        take(records[count++]);
    }
    records.resize(count);
    m_rowsRead += static_cast<qint64>(count);
}

void AsRunRows::take(AsRunRecord& record)
{
    const auto get = [this](Column column) { return m_read.number(column); };
    const auto small = [this](Column column) { return static_cast<int>(m_read.number(column)); };
    record.number = get(Number);
    record.kind = static_cast<AsRunKind>(small(Kind));
    record.revision = get(Revision);
    record.schedule = m_words.word(get(Schedule)).bytes;
    record.picture = static_cast<ScreenPicture>(small(Picture));
    record.taskId = small(TaskId);
    record.planId = small(PlanId);
    record.planRow = small(PlanRow);
    record.entry = small(Entry);
    record.play = small(Play);
    record.run = get(Run);
    record.insertion = get(Insertion);
    record.progIndex = small(ProgIndex);
    record.program = m_words.word(get(Program)).text;
    record.plannedBegin = get(PlannedBegin);
    record.plannedEnd = get(PlannedEnd);
    record.begins = get(Begins);
    record.ends = get(Ends);
    record.steadyBegin = get(SteadyBegin);
    record.steadyEnd = get(SteadyEnd);
    record.boot = m_words.word(get(Boot)).bytes;
    record.shown = static_cast<AsRunShown>(small(Shown));
    record.outcome = static_cast<AsRunOutcome>(small(Outcome));
    record.late = get(Late);
    record.why = m_words.word(get(Why)).text;
    record.hash = m_read.bytes(Hash);
}

AsRunNumbers AsRunRows::numbersBegun(qint64 screenId, Instant from, Instant to)
{
    m_begun.bind(1, screenId);
    m_begun.bind(2, from);
    m_begun.bind(3, to);
    AsRunNumbers numbers;
    if (m_begun.next() && m_begun.number(0) > 0) {
        numbers = {m_begun.number(0), m_begun.number(1)};
    }
    m_begun.reset();
    return numbers;
}

AsRunNumbers AsRunRows::numbersIn(qint64 screenId, Instant from, Instant to)
{
    AsRunNumbers numbers = numbersBegun(screenId, from, to);
    const auto include = [&numbers](qint64 number) {
        numbers = numbers.isEmpty() ? AsRunNumbers{number, number}
                                    : AsRunNumbers{std::min(numbers.first, number),
                                                   std::max(numbers.last, number)};
    };
    // One picture follows the other, so that what was on before the one that was on is over.
    m_before.bind(1, screenId);
    m_before.bind(2, std::min(from, to));
    while (m_before.next()) {
        if (m_before.number(2) > from) {
            include(m_before.number(0));
        } else if (m_before.number(1) != static_cast<int>(AsRunKind::ScheduleTaken)) {
            break;
        }
    }
    m_before.reset();
    return numbers;
}

} // namespace trel::mediadispatch
