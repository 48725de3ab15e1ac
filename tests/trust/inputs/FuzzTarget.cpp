#include "FuzzTarget.h"

#include <QStringList>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include <sys/mman.h>
#include <unistd.h>

namespace trust {

const FuzzTarget& targetNamed(const QString& name)
{
    const auto found =
        std::find_if(targets().begin(), targets().end(), [&name](const FuzzTarget& target) {
            return QLatin1String(target.name) == name;
        });
    if (found != targets().end()) {
        return *found;
    }
    std::fprintf(stderr, "There is no target \"%s\"; there are:\n", qUtf8Printable(name));
    for (const FuzzTarget& target : targets()) {
        std::fprintf(stderr, "  %s\n", target.name);
    }
    std::exit(2);
}

void fault(const QString& what)
{
    std::fprintf(stderr, "FAULT: %s\n", qUtf8Printable(what));
    std::abort();
}

InputFile::InputFile(const QByteArray& content)
    : m_handle(::memfd_create("input", MFD_CLOEXEC))
    , m_path(QStringLiteral("/proc/self/fd/%1").arg(m_handle))
{
    const ssize_t written =
        ::write(m_handle, content.constData(), static_cast<std::size_t>(content.size()));
    expect(written == content.size(), "the input can be written to memory");
}

InputFile::~InputFile()
{
    ::close(m_handle);
}

} // namespace trust
