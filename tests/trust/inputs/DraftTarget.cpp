#include "DraftTarget.h"

#include "FuzzTarget.h"

#include "trelprogramschedule/draft/DraftRecords.h"

#include <QtEndian>

#include <algorithm>
#include <cstring>
#include <random>

using namespace trel::mediadispatch;

namespace trust {

namespace {

bool areFiled(const DraftTasks& tasks)
{
    return std::all_of(tasks.begin(), tasks.end(), [](const auto& entry) {
        return !entry.second || entry.second->id == entry.first;
    });
}

/// Before a record stand a mark, the length and the checksum of its content.
constexpr char kMark[] = "\xF7TrD";
constexpr std::size_t kMarkSize = 4;
constexpr std::size_t kFrameHead = 12;

std::uint32_t checksumOf(const std::uint8_t* data, std::size_t size)
{
    std::uint32_t sum = 0xFFFFFFFFU;
    for (std::size_t i = 0; i < size; ++i) {
        sum ^= data[i];
        for (int bit = 0; bit < 8; ++bit) {
            sum = (sum & 1U) != 0 ? sum >> 1U ^ 0xEDB88320U : sum >> 1U;
        }
    }
    return ~sum;
}

void mendChecksums(std::uint8_t* data, std::size_t size)
{
    for (std::size_t place = 0; place + kFrameHead <= size;) {
        const auto length = qFromBigEndian<quint32>(data + place + kMarkSize);
        if (std::memcmp(data + place, kMark, kMarkSize) != 0 ||
            length > size - place - kFrameHead) {
            ++place;
            continue;
        }
        const std::uint8_t* const content = data + place + kFrameHead;
        qToBigEndian(checksumOf(content, length), data + place + 2 * kMarkSize);
        place += kFrameHead + length;
    }
}

std::size_t sizeOf(const Draft& draft)
{
    return draft.tasks.size() + draft.canceled.size();
}

} // namespace

void tryDraft(const QByteArray& input)
{
    const Draft draft = readDraft(input);
    expect(areFiled(draft.tasks) && areFiled(draft.canceled), "a task stands under its id");
    expect((draft.state == DraftState::Empty) == input.isEmpty(), "no bytes are an empty draft");
    const bool isNone = draft.state == DraftState::TooNew || draft.state == DraftState::Foreign;
    expect(!isNone || sizeOf(draft) == 0, "of what is no draft nothing is offered");
    // A draft that is cut off is told, and what stands behind a whole one is told.
    if (draft.state == DraftState::Whole) {
        const Draft cut = readDraft(input.left(input.size() - 1));
        expect(cut.state != DraftState::Whole || input.size() == 1, "a missing end is told");
        const Draft longer = readDraft(input + 'x');
        expect(longer.state == DraftState::Damaged && longer.tasks == draft.tasks &&
                   longer.canceled == draft.canceled,
               "what stands behind a draft takes nothing of it");
    }
}

std::size_t mutateDraft(std::uint8_t* data, std::size_t size, std::size_t mostSize, unsigned seed)
{
    std::mt19937 chance(seed);
    const auto below = [&chance](std::size_t end) {
        return chance() % std::max<std::size_t>(end, 1);
    };
    if (size > 0) {
        data[below(size)] = static_cast<std::uint8_t>(chance());
    }
    if (below(4) == 0) {
        // A piece once more at the end, or an end less.
        const std::size_t piece = below(std::min(size, mostSize - size) + 1);
        std::memmove(data + size, data + below(size - piece + 1), piece);
        size = below(2) == 0 ? size + piece : below(size + 1);
    }
    if (below(4) != 0) {
        mendChecksums(data, size);
    }
    return size;
}

} // namespace trust
