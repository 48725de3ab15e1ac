#include "AsRunWords.h"

namespace trel::mediadispatch {

namespace {

/// A database has some hundred of them. One that was made to have millions shall not fill the
/// memory.
constexpr std::size_t kMostKept = 4096;

} // namespace

AsRunWords::AsRunWords(const StoreConnection& connection, const QString& path)
    : m_read(connection, path, "SELECT bytes FROM word WHERE id = ?")
    , m_find(connection, path, "SELECT id FROM word WHERE bytes = ?")
    , m_add(connection, path, "INSERT INTO word (bytes) VALUES (?) RETURNING id")
{}

const AsRunWords::Word& AsRunWords::word(qint64 number)
{
    static const Word none;
    if (number == 0) {
        return none;
    }
    if (const auto known = m_words.find(number); known != m_words.end()) {
        return known->second;
    }
    m_read.bind(1, number);
    Word word;
    if (m_read.next()) {
        word.bytes = m_read.bytes(0);
        word.text = QString::fromUtf8(word.bytes);
    }
    m_read.reset();
    if (m_words.size() >= kMostKept) {
        m_words.clear();
    }
    return m_words.emplace(number, std::move(word)).first->second;
}

qint64 AsRunWords::number(const QByteArray& bytes)
{
    if (bytes.isEmpty()) {
        return 0;
    }
    m_find.bindBytes(1, bytes);
    StoreStatement* found = &m_find;
    if (!m_find.next()) {
        m_add.bindBytes(1, bytes);
        m_add.next();
        found = &m_add;
    }
    const qint64 number = found->number(0);
    found->reset();
    return number;
}

} // namespace trel::mediadispatch
