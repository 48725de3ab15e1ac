#pragma once

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <cstdint>
#include <vector>

namespace trust {

/// Something that reads what comes from elsewhere, and what has to hold of it whatever that is.
struct FuzzTarget
{
    /// Changes an input in its place, within a size, and returns the new size. The seed is all that
    /// it may draw its chances from.
    using Mutate = std::size_t (*)(std::uint8_t* data, std::size_t size, std::size_t mostSize,
                                   unsigned seed);

    const char* name;
    /// Returns when all is well, and calls fault() where it is not.
    void (*run)(const QByteArray& input);
    /// Null for a target whose inputs are mere bytes.
    Mutate mutate = nullptr;
};

/// The targets of this program.
const std::vector<FuzzTarget>& targets();

/// The one of a name; ends the program with a list of the names where there is none.
const FuzzTarget& targetNamed(const QString& name);

/// Tells what does not hold and ends the program as a crash does, so that the input is kept.
[[noreturn]] void fault(const QString& what);

inline void expect(bool holds, const char* what)
{
    if (!holds) {
        fault(QString::fromUtf8(what));
    }
}

/// A file of this process alone that holds an input, under a name by which it can be opened.
class InputFile
{
public:
    explicit InputFile(const QByteArray& content);
    ~InputFile();
    Q_DISABLE_COPY(InputFile)

    const QString& path() const { return m_path; }

private:
    int m_handle;
    QString m_path;
};

} // namespace trust
