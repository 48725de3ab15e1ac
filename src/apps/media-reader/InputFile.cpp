#include "InputFile.h"

#include <cerrno>

#include <unistd.h>

namespace trel::mediareader {

InputFile::InputFile(int descriptor)
    : m_descriptor(descriptor)
    , m_size(::lseek(descriptor, 0, SEEK_END))
{}

InputFile::~InputFile()
{
    ::close(m_descriptor);
}

std::int64_t InputFile::readAt(std::int64_t place, void* room, std::int64_t count) const
{
    ssize_t read = -1;
    do {
        read = ::pread(m_descriptor, room, static_cast<std::size_t>(count), place);
    } while (read < 0 && errno == EINTR);
    return read;
}

} // namespace trel::mediareader
