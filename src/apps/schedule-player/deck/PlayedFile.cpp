#include "deck/PlayedFile.h"

#include "trelprogramschedule/faults/FaultWords.h"

#include <cerrno>

#include <sys/stat.h>
#include <unistd.h>

using namespace trel::mediadispatch;

namespace trel::player {

using screen::DeckFault;
using screen::DeckTrouble;

namespace {

DeckTrouble troubleOf(FaultCode code)
{
    switch (code) {
    case FaultCode::FileMissing:
        return DeckTrouble::Missing;
    case FaultCode::NoPermission:
    case FaultCode::NotAFile:
        return DeckTrouble::Refused;
    default:
        return DeckTrouble::Unreadable;
    }
}

} // namespace

PlayedFile::PlayedFile(const QString& path)
    : m_file(path)
{}

DeckFault PlayedFile::fault() const
{
    const Fault fault = m_file.fault();
    return fault ? DeckFault{troubleOf(fault.code), englishClause(fault)} : DeckFault();
}

std::int64_t PlayedFile::size() const
{
    struct stat seen = {};
    return ::fstat(m_file.descriptor(), &seen) == 0 ? seen.st_size : -1;
}

std::int64_t PlayedFile::read(char* room, std::uint64_t count)
{
    ssize_t got = -1;
    do {
        got = ::pread(m_file.descriptor(), room, count, m_place);
    } while (got < 0 && errno == EINTR);
    if (got > 0) {
        m_place += got;
    }
    return got;
}

bool PlayedFile::seek(std::int64_t place)
{
    if (place < 0) {
        return false;
    }
    m_place = place;
    return true;
}

} // namespace trel::player
