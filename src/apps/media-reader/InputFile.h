#pragma once

#include <cstdint>

namespace trel::mediareader {

/// A file that was handed over open. It is read from any place, and closed with the object.
class InputFile
{
public:
    explicit InputFile(int descriptor);
    ~InputFile();
    InputFile(const InputFile&) = delete;
    InputFile& operator=(const InputFile&) = delete;

    /// In bytes, when it was handed over.
    std::int64_t size() const { return m_size; }
    /// Reads up to so many bytes from a place. How many there were, 0 at the end, -1 on a failure.
    std::int64_t readAt(std::int64_t place, void* room, std::int64_t count) const;

private:
    const int m_descriptor;
    const std::int64_t m_size;
};

} // namespace trel::mediareader
