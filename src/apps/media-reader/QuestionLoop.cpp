#include "QuestionLoop.h"

#include "Confinement.h"
#include "Drawing.h"
#include "FirstPicture.h"
#include "ImagePicture.h"
#include "InputFile.h"
#include "MediaInput.h"
#include "MediaProbe.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <string>
#include <vector>

#include <sys/socket.h>
#include <unistd.h>

using namespace trel::mediadispatch;

namespace trel::mediareader {

namespace {

bool isSound(const wire::Question& question)
{
    const bool isForFacts = question.wish == wire::Wish::Facts;
    const bool isForPicture =
        question.wish == wire::Wish::FilmPicture || question.wish == wire::Wish::ImagePicture;
    const auto isSide = [](std::uint32_t side) { return side >= 1 && side <= wire::kLongestSide; };
    return question.magic == wire::kMagic &&
           (isForFacts || (isForPicture && isSide(question.width) && isSide(question.height)));
}

/// The descriptors that came with a message.
std::vector<int> descriptorsIn(msghdr& message)
{
    const cmsghdr* const header = CMSG_FIRSTHDR(&message);
    if (header == nullptr || header->cmsg_level != SOL_SOCKET || header->cmsg_type != SCM_RIGHTS) {
        return {};
    }
    std::vector<int> descriptors((header->cmsg_len - CMSG_LEN(0)) / sizeof(int));
    std::memcpy(descriptors.data(), CMSG_DATA(header), descriptors.size() * sizeof(int));
    return descriptors;
}

/// In the bound, and with its dots as they travel.
QImage readyToSend(const QImage& image, const QSize& bound)
{
    const bool fits = image.width() <= bound.width() && image.height() <= bound.height();
    return (fits || image.isNull() ? image : image.scaled(bound, Qt::KeepAspectRatio))
        .convertToFormat(QImage::Format_ARGB32);
}

} // namespace

bool QuestionLoop::greet(bool isFiltered) const
{
    wire::Greeting greeting;
    greeting.isFiltered = isFiltered ? 1 : 0;
    return send(&greeting, sizeof greeting);
}

void QuestionLoop::run() const
{
    wire::Question question;
    for (int descriptor = receive(question); descriptor >= 0; descriptor = receive(question)) {
        confinement::allowProcessorTime(question.seconds);
        if (!answer(question, InputFile(descriptor))) {
            return;
        }
    }
}

int QuestionLoop::receive(wire::Question& question) const
{
    iovec part = {&question, sizeof question};
    alignas(cmsghdr) char control[CMSG_SPACE(sizeof(int))] = {};
    msghdr message = {};
    message.msg_iov = &part;
    message.msg_iovlen = 1;
    message.msg_control = control;
    message.msg_controllen = sizeof control;
    ssize_t count = -1;
    do {
        count = ::recvmsg(m_line, &message, MSG_CMSG_CLOEXEC | MSG_WAITALL);
    } while (count < 0 && errno == EINTR);
    if (count < 0) {
        return -1;
    }
    const std::vector<int> descriptors = descriptorsIn(message);
    if (count == static_cast<ssize_t>(sizeof question) && isSound(question) &&
        descriptors.size() == 1) {
        return descriptors.front();
    }
    std::for_each(descriptors.begin(), descriptors.end(), ::close);
    return -1;
}

bool QuestionLoop::answer(const wire::Question& question, const InputFile& file) const
{
    const std::string suffix(question.suffix,
                             std::find(question.suffix, std::end(question.suffix), '\0'));
    const NameHint hint = {question.isNamedAsMedia != 0, suffix.c_str()};
    wire::Answer answer;
    answer.number = question.number;
    QImage image;
    if (question.wish == wire::Wish::Facts) {
        const ProbedMedia probed = probeMedia(file, hint);
        answer.verdict = probed.verdict;
        answer.kind = probed.kind;
        answer.durationMs = probed.durationMs;
    } else if (question.wish == wire::Wish::ImagePicture && !m_hasFonts && isDrawing(file)) {
        answer.verdict = wire::Verdict::Drawing;
    } else {
        image = picture(question, file, hint);
        answer.verdict = image.isNull() ? wire::Verdict::UnreadablePicture : wire::Verdict::Taken;
        answer.width = static_cast<std::uint32_t>(image.width());
        answer.height = static_cast<std::uint32_t>(image.height());
    }
    return send(&answer, sizeof answer) &&
           (image.isNull() ||
            send(image.constBits(), static_cast<std::size_t>(image.sizeInBytes())));
}

QImage QuestionLoop::picture(const wire::Question& question, const InputFile& file,
                             const NameHint& hint) const
{
    const QSize bound(static_cast<int>(question.width), static_cast<int>(question.height));
    return readyToSend(question.wish == wire::Wish::ImagePicture
                           ? imagePicture(file, hint, bound)
                           : firstPicture(file, hint, bound, question.positionMs),
                       bound);
}

bool QuestionLoop::send(const void* bytes, std::size_t count) const
{
    const auto* next = static_cast<const char*>(bytes);
    while (count > 0) {
        const ssize_t sent = ::send(m_line, next, count, MSG_NOSIGNAL);
        if (sent < 0 && errno != EINTR) {
            return false;
        }
        if (sent > 0) {
            next += sent;
            count -= static_cast<std::size_t>(sent);
        }
    }
    return true;
}

} // namespace trel::mediareader
