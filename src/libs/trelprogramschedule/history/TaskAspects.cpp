#include "TaskAspects.h"

#include "ScheduleLimits.h"

#include <algorithm>
#include <limits>
#include <tuple>

namespace trel::mediadispatch {

namespace {

/// Whole numbers take a byte for each seven bits, small negative ones as few as small others.
class Writer
{
public:
    explicit Writer(std::size_t expected) { m_bytes.reserve(static_cast<int>(expected)); }

    void count(std::size_t value) { bits(value); }
    void number(std::int64_t value)
    {
        const auto plain = static_cast<std::uint64_t>(value);
        bits(value < 0 ? ~(plain << 1) : plain << 1);
    }
    void text(const std::string& text)
    {
        count(text.size());
        m_bytes.append(text.data(), static_cast<int>(text.size()));
    }
    const QByteArray& bytes() const { return m_bytes; }

private:
    void bits(std::uint64_t value)
    {
        constexpr std::uint64_t more = 0x80;
        for (; value >= more; value >>= 7) {
            m_bytes.append(static_cast<char>(value | more));
        }
        m_bytes.append(static_cast<char>(value));
    }

    QByteArray m_bytes;
};

/// Reads what a Writer has written. Behind the first value that is none, all others are empty.
class Reader
{
public:
    explicit Reader(const QByteArray& bytes)
        : m_next(bytes.constBegin())
        , m_end(bytes.constEnd())
    {}

    bool isWhole() const { return m_isSound && m_next == m_end; }

    /// Of things that take a byte or more each, and of which there are not more than are left.
    std::size_t count(std::size_t& left)
    {
        const std::uint64_t value = bits();
        if (value > left || value > static_cast<std::uint64_t>(m_end - m_next)) {
            fail();
            return 0;
        }
        left -= value;
        return value;
    }
    std::int64_t number()
    {
        const std::uint64_t value = bits();
        return static_cast<std::int64_t>((value & 1) != 0 ? ~(value >> 1) : value >> 1);
    }
    int whole()
    {
        const std::int64_t value = number();
        if (value < std::numeric_limits<int>::min() || value > std::numeric_limits<int>::max()) {
            fail();
            return 0;
        }
        return static_cast<int>(value);
    }
    std::string text()
    {
        std::size_t left = std::numeric_limits<std::size_t>::max();
        const std::size_t size = count(left);
        std::string text(m_next, m_next + size);
        m_next += size;
        return text;
    }

private:
    void fail()
    {
        m_isSound = false;
        m_next = m_end;
    }
    std::uint64_t bits()
    {
        constexpr unsigned more = 0x80;
        constexpr int mostBits = 64;
        std::uint64_t value = 0;
        for (int shift = 0; shift < mostBits && m_next != m_end; shift += 7) {
            const auto byte = static_cast<unsigned char>(*m_next++);
            value |= static_cast<std::uint64_t>(byte & (more - 1)) << shift;
            if ((byte & more) == 0) {
                return value;
            }
        }
        fail();
        return 0;
    }

    const char* m_next;
    const char* m_end;
    bool m_isSound = true;
};

/// What a task may still hold of everything.
struct Room
{
    std::size_t plans = kMostPlans;
    std::size_t entries = kMostEntries;
    std::size_t values = kMostServiceValues;
};

/// Truth values of a plan, by bits. They stand in the stores.
enum PlanFlag { Conflict = 1, NoDuration = 2, FlagA = 4, FlagB = 8 };

int flagsOf(const PlayPlan& plan)
{
    return (plan.isConflict ? Conflict : 0) | (plan.hasNoDuration ? NoDuration : 0) |
           (plan.serviceFlagA ? FlagA : 0) | (plan.serviceFlagB ? FlagB : 0);
}

auto fieldsOf(const PlayPlan& plan)
{
    return std::tie(plan.id, plan.mode, plan.startTime, plan.endTime, plan.times, plan.serviceCount,
                    plan.endAction, plan.isConflict, plan.weeks, plan.serviceTime,
                    plan.hasNoDuration, plan.serviceFlagA, plan.serviceFlagB);
}

void writeFields(const PlayPlan& plan, Writer& writer)
{
    writer.number(plan.id);
    writer.number(plan.mode);
    writer.text(plan.startTime);
    writer.text(plan.endTime);
    writer.number(plan.times);
    writer.number(plan.serviceCount);
    writer.number(plan.endAction);
    writer.text(plan.weeks);
    writer.text(plan.serviceTime);
    writer.number(flagsOf(plan));
}

void readFields(Reader& reader, PlayPlan& plan)
{
    plan.id = reader.whole();
    plan.mode = reader.whole();
    plan.startTime = reader.text();
    plan.endTime = reader.text();
    plan.times = reader.whole();
    plan.serviceCount = reader.whole();
    plan.endAction = reader.whole();
    plan.weeks = reader.text();
    plan.serviceTime = reader.text();
    const int flags = reader.whole();
    plan.isConflict = (flags & Conflict) != 0;
    plan.hasNoDuration = (flags & NoDuration) != 0;
    plan.serviceFlagA = (flags & FlagA) != 0;
    plan.serviceFlagB = (flags & FlagB) != 0;
}

void writeLists(const PlayPlan& plan, Writer& writer)
{
    writer.count(plan.programs.size());
    for (const struProgInfo& entry : plan.programs) {
        writer.number(entry.progIndex);
        writer.number(entry.isInvalid ? 1 : 0);
        writer.text(entry.progName);
        writer.number(entry.playCount);
    }
    writer.count(plan.serviceList.size());
    for (const std::int64_t value : plan.serviceList) {
        writer.number(value);
    }
}

void readLists(Reader& reader, Room& room, PlayPlan& plan)
{
    plan.programs.resize(reader.count(room.entries));
    for (struProgInfo& entry : plan.programs) {
        entry.progIndex = reader.whole();
        entry.isInvalid = reader.number() != 0;
        entry.progName = reader.text();
        entry.playCount = reader.whole();
    }
    plan.serviceList.resize(reader.count(room.values));
    for (std::int64_t& value : plan.serviceList) {
        value = reader.number();
    }
}

template <typename IsSame>
bool haveSamePlans(const PlayTask& a, const PlayTask& b, const IsSame& isSamePlan)
{
    return std::equal(a.plans.begin(), a.plans.end(), b.plans.begin(), b.plans.end(), isSamePlan);
}

} // namespace

bool isSame(TaskAspect aspect, const PlayTask& a, const PlayTask& b)
{
    switch (aspect) {
    case TaskAspect::Dates:
        return a.startDate == b.startDate && a.endDate == b.endDate;
    case TaskAspect::Fields:
        return haveSamePlans(a, b, [](const PlayPlan& one, const PlayPlan& other) {
            return fieldsOf(one) == fieldsOf(other);
        });
    case TaskAspect::Lists:
        return haveSamePlans(a, b, [](const PlayPlan& one, const PlayPlan& other) {
            return one.programs == other.programs && one.serviceList == other.serviceList;
        });
    }
    return false;
}

QByteArray aspectBytes(TaskAspect aspect, const PlayTask& task)
{
    constexpr std::size_t sizeOfDates = 32;
    constexpr std::size_t sizeOfPlan = 64;
    Writer writer(aspect == TaskAspect::Dates ? sizeOfDates : sizeOfPlan * (task.plans.size() + 1));
    if (aspect == TaskAspect::Dates) {
        writer.text(task.startDate);
        writer.text(task.endDate);
        return writer.bytes();
    }
    writer.count(task.plans.size());
    for (const PlayPlan& plan : task.plans) {
        if (aspect == TaskAspect::Fields) {
            writeFields(plan, writer);
        } else {
            writeLists(plan, writer);
        }
    }
    return writer.bytes();
}

bool readAspect(TaskAspect aspect, const QByteArray& bytes, PlayTask& task)
{
    Reader reader(bytes);
    if (aspect == TaskAspect::Dates) {
        task.startDate = reader.text();
        task.endDate = reader.text();
        return reader.isWhole();
    }
    Room room;
    task.plans.resize(reader.count(room.plans));
    for (PlayPlan& plan : task.plans) {
        if (aspect == TaskAspect::Fields) {
            readFields(reader, plan);
        } else {
            readLists(reader, room, plan);
        }
    }
    return reader.isWhole();
}

} // namespace trel::mediadispatch
