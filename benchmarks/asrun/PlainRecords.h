#pragma once

#include <cstdint>
#include <string>

namespace bench {

/// Reads all records of a database through the C interface of SQLite, every column of them, and
/// works out the chain of their hashes; compares and keeps nothing. Returns the bytes that were
/// hashed.
std::int64_t hashPlainly(const std::string& path);

} // namespace bench
