#pragma once

#include <cstdint>
#include <type_traits>

/// What the service and the program that reads media say to each other. Both stand on one machine
/// and come from one build, so that the records travel as they lie in memory; the version tells
/// builds apart. Every record has one size and no text in it. What comes from the other side is
/// checked in full before it is used, by both.
///
/// The program greets once. Then the service asks, each question with the open file beside it, and
/// the program answers in the same order. Behind the answer to a question for a picture follow its
/// dots, four bytes each.
namespace trel::mediadispatch::wire {

/// Goes up with every change in this file.
constexpr std::uint32_t kVersion = 2;
constexpr std::uint32_t kMagic = 0x7472656d;

/// The number of the descriptor on which the program finds the service.
constexpr int kDescriptor = 3;
/// The most dots of a picture that travel: those of a square of this side.
constexpr std::uint32_t kLongestSide = 8192;
/// The most letters of a suffix that travel.
constexpr int kSuffixLetters = 8;

/// What the program is started for, its only argument.
constexpr char kFacts[] = "facts";
constexpr char kPictures[] = "pictures";
constexpr char kDrawings[] = "drawings";

struct Greeting
{
    std::uint32_t magic = kMagic;
    std::uint32_t version = kVersion;
    /// 1 when the system refuses the program all calls that reading an open file does not need.
    std::uint32_t isFiltered = 0;
    std::uint32_t reserved = 0;
};

enum class Wish : std::uint8_t {
    Facts = 1,
    FilmPicture,
    ImagePicture,
};

struct Question
{
    std::uint32_t magic = kMagic;
    std::uint32_t number = 0; ///< Comes back with the answer.
    Wish wish = Wish::Facts;
    /// The name of the file speaks for it as well.
    std::uint8_t isNamedAsMedia = 0;
    std::uint16_t seconds = 0; ///< The most processor time for it.
    /// The room for a picture.
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    /// Small letters and digits, filled up with zeros; empty when the name has another suffix.
    char suffix[kSuffixLetters] = {};
    /// How far into the film its picture is wanted, in milliseconds; 0 for its first.
    std::uint32_t positionMs = 0;
};

enum class Verdict : std::uint8_t {
    Taken = 1,
    NoMedia,
    OtherFormat,
    Unreadable,
    UnreadablePicture,
    NoContent,
    NoLength,
    /// It takes a program that was started for drawings, which brings fonts along.
    Drawing,
};
constexpr Verdict kLastVerdict = Verdict::Drawing;

enum class Kind : std::uint8_t {
    None = 0,
    Video,
    Audio,
    Image,
};
constexpr Kind kLastKind = Kind::Image;

struct Answer
{
    std::uint32_t magic = kMagic;
    std::uint32_t number = 0;
    Verdict verdict = Verdict::NoMedia;
    Kind kind = Kind::None; ///< For a question for facts that were taken, and none else.
    std::uint16_t reserved = 0;
    /// The size of the picture that follows; nothing follows when they are 0.
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    std::uint32_t padding = 0;
    double durationMs = 0.0;
};

static_assert(std::is_trivially_copyable_v<Greeting> && sizeof(Greeting) == 16);
static_assert(std::is_trivially_copyable_v<Question> && sizeof(Question) == 32);
static_assert(std::is_trivially_copyable_v<Answer> && sizeof(Answer) == 32);

} // namespace trel::mediadispatch::wire
