#include "FuzzTarget.h"

#include "Confinement.h"
#include "QuestionLoop.h"
#include "trelprogramschedule/media/MediaProtocol.h"

#include <QBuffer>
#include <QImage>

#include <algorithm>
#include <array>
#include <bitset>
#include <cmath>
#include <cstring>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/socket.h>
#include <unistd.h>

extern "C" {
#include <libavutil/log.h>
}

using namespace trel::mediadispatch;
using namespace trel::mediareader;

// Its own would bound this process, with all inputs that follow.
void confinement::allowProcessorTime(unsigned /*seconds*/) {}

namespace trust {

namespace {

constexpr int kFewQuestions = 8;

/// What stands before each question of an input.
struct Envelope
{
    int descriptors = 0; ///< How many files come beside it.
    int file = 0;        ///< Which one that is.

    explicit Envelope(std::uint8_t byte)
        : descriptors(byte < 192 ? 1 : byte % 3)
        , file(byte)
    {}
};

struct Asked
{
    Envelope envelope;
    wire::Question question;
};

QByteArray smallPicture()
{
    QImage image(12, 8, QImage::Format_ARGB32);
    image.fill(Qt::darkCyan);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    expect(buffer.open(QIODevice::WriteOnly) && image.save(&buffer, "png"), "a picture is made");
    return bytes;
}

QByteArray smallSound()
{
    // A head for one channel of 8,000 samples a second, a byte each.
    return QByteArray("RIFF\xC4\x00\x00\x00WAVEfmt \x10\x00\x00\x00\x01\x00\x01\x00"
                      "\x40\x1F\x00\x00\x40\x1F\x00\x00\x01\x00\x08\x00"
                      "data\xA0\x00\x00\x00",
                      44) +
           QByteArray(160, '\x7F');
}

/// Files that the libraries for media read well, since those are not what is tried here. The last
/// one, a drawing, is taken apart by the program itself and comes from the input.
int fileOf(int number, const QByteArray& drawing)
{
    static const std::array<QByteArray, 3> files = {smallPicture(), smallSound(), QByteArray()};
    const auto place = static_cast<std::size_t>(number) % (files.size() + 1);
    const QByteArray content = place < files.size() ? files.at(place) : "<svg " + drawing;
    const int file = ::memfd_create("media", MFD_CLOEXEC);
    expect(::write(file, content.constData(), static_cast<std::size_t>(content.size())) ==
               content.size(),
           "a file can be written to memory");
    return file;
}

void ask(int line, const Asked& asked, int length, const QByteArray& drawing)
{
    iovec part = {const_cast<wire::Question*>(&asked.question), static_cast<std::size_t>(length)};
    alignas(cmsghdr) std::array<char, CMSG_SPACE(2 * sizeof(int))> control = {};
    msghdr message = {};
    message.msg_iov = &part;
    message.msg_iovlen = 1;
    std::array<int, 2> files = {-1, -1};
    const auto count = static_cast<std::size_t>(asked.envelope.descriptors);
    std::generate_n(files.begin(), count, [&] { return fileOf(asked.envelope.file, drawing); });
    if (count > 0) {
        message.msg_control = control.data();
        message.msg_controllen = CMSG_SPACE(count * sizeof(int));
        cmsghdr* const header = CMSG_FIRSTHDR(&message);
        header->cmsg_level = SOL_SOCKET;
        header->cmsg_type = SCM_RIGHTS;
        header->cmsg_len = CMSG_LEN(count * sizeof(int));
        std::memcpy(CMSG_DATA(header), files.data(), count * sizeof(int));
    }
    expect(::sendmsg(line, &message, MSG_NOSIGNAL) == length, "a question can be asked");
    std::for_each(files.begin(), files.begin() + asked.envelope.descriptors, ::close);
}

bool isAPicture(const wire::Question& question)
{
    return question.wish == wire::Wish::FilmPicture || question.wish == wire::Wish::ImagePicture;
}

bool isToBeAnswered(const Asked& asked)
{
    const wire::Question& question = asked.question;
    const auto isSide = [](std::uint32_t side) { return side > 0 && side <= wire::kLongestSide; };
    return question.magic == wire::kMagic && asked.envelope.descriptors == 1 &&
           (question.wish == wire::Wish::Facts ||
            (isAPicture(question) && isSide(question.width) && isSide(question.height)));
}

QByteArray allFrom(int line)
{
    QByteArray all;
    std::array<char, 4096> bytes = {};
    for (ssize_t count = 1; count > 0;) {
        count = ::read(line, bytes.data(), bytes.size());
        all.append(bytes.data(), static_cast<int>(std::max<ssize_t>(count, 0)));
    }
    return all;
}

template <typename Record>
Record taken(QByteArray& bytes)
{
    Record record;
    expect(bytes.size() >= int(sizeof record), "a record is sent whole");
    std::memcpy(&record, bytes.constData(), sizeof record);
    bytes.remove(0, sizeof record);
    return record;
}

void checkAnswer(const wire::Question& question, QByteArray& bytes)
{
    const auto answer = taken<wire::Answer>(bytes);
    const bool isTaken = answer.verdict == wire::Verdict::Taken;
    expect(answer.magic == wire::kMagic && answer.number == question.number,
           "an answer is to its question");
    expect(answer.verdict >= wire::Verdict::Taken && answer.verdict <= wire::kLastVerdict,
           "a verdict is one");
    if (!isAPicture(question)) {
        expect(isTaken == (answer.kind != wire::Kind::None) && answer.kind <= wire::kLastKind,
               "what was taken, and nothing else, has a kind");
        expect(std::isfinite(answer.durationMs) && answer.durationMs >= 0.0, "a length is one");
        expect(answer.width == 0 && answer.height == 0, "facts bring no picture");
        return;
    }
    expect(answer.kind == wire::Kind::None, "a picture has no kind");
    expect(isTaken == (answer.width > 0) && isTaken == (answer.height > 0),
           "what was taken, and nothing else, has a picture");
    expect(answer.width <= question.width && answer.height <= question.height,
           "a picture keeps in its bound");
    const qint64 size = qint64(answer.width) * answer.height * 4;
    expect(bytes.size() >= size, "a picture has as many dots as its size says");
    bytes.remove(0, static_cast<int>(size));
}

/// Which of the first descriptors are open.
std::bitset<64> openDescriptors()
{
    std::bitset<64> open;
    for (std::size_t descriptor = 0; descriptor < open.size(); ++descriptor) {
        open[descriptor] = ::fcntl(static_cast<int>(descriptor), F_GETFD) >= 0;
    }
    return open;
}

/// Whatever the service may ask, the program that reads media answers it in full and in order, up
/// to the first question that makes no sense. An input is its questions, each behind a byte about
/// its file, and the last one may be cut short; its first byte says how many there are, and what
/// stands behind them is a drawing.
void tryRequest(const QByteArray& input)
{
    av_log_set_level(AV_LOG_QUIET);
    const int count = input.isEmpty() ? 0 : static_cast<quint8>(input.front()) % kFewQuestions;
    constexpr int size = sizeof(wire::Question);
    const QByteArray drawing = input.mid(1 + count * (1 + size));
    std::array<int, 2> line = {};
    const std::bitset<64> openBefore = openDescriptors();
    expect(::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, line.data()) == 0,
           "there is a line");
    std::vector<wire::Question> answered;
    bool isGoingOn = true;
    for (int place = 1; place + 1 < input.size() && place <= 1 + (count - 1) * (1 + size);
         place += 1 + size) {
        Asked asked = {Envelope(static_cast<std::uint8_t>(input.at(place))), {}};
        const QByteArray bytes = input.mid(place + 1, size);
        std::memcpy(&asked.question, bytes.constData(), static_cast<std::size_t>(bytes.size()));
        ask(line[0], asked, bytes.size(), drawing);
        isGoingOn = isGoingOn && bytes.size() == size && isToBeAnswered(asked);
        if (isGoingOn) {
            answered.push_back(asked.question);
        }
    }
    ::shutdown(line[0], SHUT_WR);
    const QuestionLoop loop(line[1], false);
    expect(loop.greet(false), "the program greets");
    loop.run();
    ::close(line[1]);
    QByteArray bytes = allFrom(line[0]);
    ::close(line[0]);
    const auto greeting = taken<wire::Greeting>(bytes);
    expect(greeting.magic == wire::kMagic && greeting.version == wire::kVersion,
           "the program says who it is");
    for (const wire::Question& question : answered) {
        checkAnswer(question, bytes);
    }
    expect(bytes.isEmpty(), "nothing is answered that was not asked");
    expect(openDescriptors() == openBefore, "no file stays open");
}

} // namespace

const std::vector<FuzzTarget>& targets()
{
    static const std::vector<FuzzTarget> all = {{"request", tryRequest}};
    return all;
}

} // namespace trust
