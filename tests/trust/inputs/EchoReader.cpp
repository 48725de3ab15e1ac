// Takes the place of the program that reads media: what stands in the file that it is asked about
// is its answer, byte by byte.

#include "trelprogramschedule/media/MediaProtocol.h"

#include <cstring>

#include <sys/socket.h>
#include <unistd.h>

using namespace trel::mediadispatch::wire;

namespace {

/// The file beside a question; -1 when there is no more question.
int receive()
{
    Question question;
    iovec part = {&question, sizeof question};
    alignas(cmsghdr) char control[CMSG_SPACE(sizeof(int))] = {};
    msghdr message = {};
    message.msg_iov = &part;
    message.msg_iovlen = 1;
    message.msg_control = control;
    message.msg_controllen = sizeof control;
    if (::recvmsg(kDescriptor, &message, MSG_WAITALL) != static_cast<ssize_t>(sizeof question)) {
        return -1;
    }
    const cmsghdr* const header = CMSG_FIRSTHDR(&message);
    int file = -1;
    if (header != nullptr) {
        std::memcpy(&file, CMSG_DATA(header), sizeof file);
    }
    return file;
}

} // namespace

int main()
{
    const Greeting greeting = {kMagic, kVersion, 1, 0};
    if (::send(kDescriptor, &greeting, sizeof greeting, MSG_NOSIGNAL) < 0) {
        return 0;
    }
    const int file = receive();
    char bytes[4096];
    for (off_t place = 0;;) {
        const ssize_t count = ::pread(file, bytes, sizeof bytes, place);
        if (count <= 0 ||
            ::send(kDescriptor, bytes, static_cast<std::size_t>(count), MSG_NOSIGNAL) < 0) {
            return 0;
        }
        place += count;
    }
}
