#include "deck/MpvFile.h"

#include "deck/PlayedFile.h"

#include <QFileInfo>

namespace trel::player {

namespace {

constexpr char kProtocol[] = "schedule-player";
constexpr int kMostLettersOfSuffix = 8;

/// What the name of a file says about its content: letters and digits alone, which cannot be taken
/// for anything but a suffix.
QByteArray suffixOf(const QString& path)
{
    QByteArray suffix;
    for (const char letter : QFileInfo(path).suffix().toLower().toLatin1()) {
        const bool isPlain = (letter >= 'a' && letter <= 'z') || (letter >= '0' && letter <= '9');
        if (!isPlain || suffix.size() == kMostLettersOfSuffix) {
            return {};
        }
        suffix += letter;
    }
    return suffix;
}

std::int64_t readFile(void* file, char* room, std::uint64_t count)
{
    return static_cast<PlayedFile*>(file)->read(room, count);
}

std::int64_t seekFile(void* file, std::int64_t place)
{
    return static_cast<PlayedFile*>(file)->seek(place) ? place : std::int64_t{MPV_ERROR_GENERIC};
}

std::int64_t sizeOfFile(void* file)
{
    const std::int64_t size = static_cast<PlayedFile*>(file)->size();
    return size < 0 ? std::int64_t{MPV_ERROR_UNSUPPORTED} : size;
}

/// The file belongs to the playback.
void closeFile(void* /*file*/) {}

int openFile(void* file, char* /*address*/, mpv_stream_cb_info* info)
{
    info->cookie = file;
    info->read_fn = &readFile;
    info->seek_fn = &seekFile;
    info->size_fn = &sizeOfFile;
    info->close_fn = &closeFile;
    return 0;
}

} // namespace

QByteArray offerFile(mpv_handle* handle, PlayedFile& file, const QString& path)
{
    mpv_stream_cb_add_ro(handle, kProtocol, &file, &openFile);
    return QByteArray(kProtocol) + "://media." + suffixOf(path);
}

} // namespace trel::player
