// Takes the place of the program that reads media. What it does wrong is the name under which it is
// called, so that a test copies or links it under one: "silent", "stuck", "garbage" and so on.

#include "trelprogramschedule/media/MediaProtocol.h"

#include <cstring>
#include <limits>
#include <string>

#include <sys/socket.h>
#include <unistd.h>

using namespace trel::mediadispatch::wire;

namespace {

void sendBytes(const void* bytes, std::size_t count)
{
    if (::send(kDescriptor, bytes, count, MSG_NOSIGNAL) < 0) {
        ::_exit(0);
    }
}

template <typename Record>
void sendRecord(const Record& record)
{
    sendBytes(&record, sizeof record);
}

[[noreturn]] void sleepForEver()
{
    for (;;) {
        ::pause();
    }
}

Question receive()
{
    Question question;
    // The file beside it is of no interest.
    if (::recv(kDescriptor, &question, sizeof question, MSG_WAITALL) !=
        static_cast<ssize_t>(sizeof question)) {
        ::_exit(0);
    }
    return question;
}

/// What a reader that works would say of a film of a second.
Answer film(const Question& question)
{
    Answer answer;
    answer.number = question.number;
    answer.verdict = Verdict::Taken;
    if (question.wish == Wish::Facts) {
        answer.kind = Kind::Video;
        answer.durationMs = 1000.0;
    } else {
        answer.width = 2;
        answer.height = 1;
    }
    return answer;
}

/// An answer with one thing wrong in it.
Answer spoilt(const std::string& manner, const Question& question)
{
    Answer answer = film(question);
    if (manner == "magic") {
        answer.magic = 1;
    } else if (manner == "number") {
        ++answer.number;
    } else if (manner == "verdict") {
        answer.verdict = static_cast<Verdict>(200);
    } else if (manner == "drawing") {
        answer.verdict = Verdict::Drawing;
        answer.kind = Kind::None;
        answer.durationMs = 0.0;
        answer.width = 0;
        answer.height = 0;
    } else if (manner == "kind") {
        answer.kind = static_cast<Kind>(200);
    } else if (manner == "no-kind") {
        answer.kind = Kind::None;
    } else if (manner == "negative") {
        answer.durationMs = -1.0;
    } else if (manner == "nan") {
        answer.durationMs = std::numeric_limits<double>::quiet_NaN();
    } else if (manner == "infinite") {
        answer.durationMs = std::numeric_limits<double>::infinity();
    } else if (manner == "huge") {
        answer.width = 0xffffffff;
        answer.height = 0xffffffff;
    } else if (manner == "flat") {
        answer.height = 0;
    } else if (manner == "picture") {
        answer.width = 1;
        answer.height = 1;
    }
    return answer;
}

[[noreturn]] void misbehave(const std::string& manner)
{
    if (manner == "silent") {
        sleepForEver();
    }
    Greeting greeting;
    greeting.isFiltered = 1;
    if (manner == "old") {
        ++greeting.version;
    }
    sendRecord(greeting);
    for (;;) {
        const Question question = receive();
        if (manner == "stuck") {
            sleepForEver();
        }
        if (manner == "busy") {
            for (volatile bool goesOn = true; goesOn;) {
            }
        }
        if (manner == "dying") {
            ::_exit(3);
        }
        if (manner == "garbage") {
            sendBytes(std::string(500, 'x').data(), 500);
            continue;
        }
        if (manner == "slow") {
            const Answer answer = film(question);
            for (std::size_t i = 0; i < sizeof answer; ++i) {
                sendBytes(reinterpret_cast<const char*>(&answer) + i, 1);
                ::sleep(1);
            }
            continue;
        }
        sendRecord(spoilt(manner, question));
        if (question.wish != Wish::Facts && manner != "half" && manner != "drawing") {
            const unsigned dots[] = {0xff112233, 0xff445566};
            sendBytes(dots, sizeof dots);
        }
        if (manner == "half") {
            ::_exit(3);
        }
        if (manner == "talking") {
            sendBytes(std::string(100000, 'x').data(), 100000);
        }
    }
}

} // namespace

int main(int /*argc*/, char** argv)
{
    const char* const slash = std::strrchr(argv[0], '/');
    misbehave(slash == nullptr ? argv[0] : slash + 1);
}
