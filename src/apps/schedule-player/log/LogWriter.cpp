#include "LogWriter.h"

#include <cstdio>

namespace trel::player {

void LogWriter::write(const QString& line)
{
    const QByteArray bytes = line.toUtf8() + '\n';
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stderr);
    std::fflush(stderr);
}

} // namespace trel::player
