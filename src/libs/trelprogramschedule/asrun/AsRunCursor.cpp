#include "AsRunCursor.h"

namespace trel::mediadispatch {

AsRunCursor::AsRunCursor(AsRunDatabase& database, const QString& screen,
                         const AsRunNumbers& numbers)
    : m_database(database)
    , m_screen(screen)
    , m_rest(numbers)
{}

const AsRunRecord* AsRunCursor::next()
{
    if (m_at == m_records.size()) {
        m_at = 0;
        m_records.clear();
        if (!m_rest.isEmpty() && m_result) {
            m_result = m_database.readSome(m_screen, m_rest, m_records);
        }
    }
    return m_result && m_at < m_records.size() ? &m_records[m_at++] : nullptr;
}

} // namespace trel::mediadispatch
