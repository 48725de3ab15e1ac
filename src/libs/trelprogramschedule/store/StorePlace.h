#pragma once

#include "trelprogramschedule_export.h"

#include <QString>

namespace trel::mediadispatch {

/// Where a store is: in a file, or under a name on a server. What is shown of it never holds a
/// password, since an address that has one is refused.
class TRELPROGRAMSCHEDULE_EXPORT StorePlace
{
public:
    /// Why a text is no place of a store.
    enum class Flaw {
        None,
        Password, ///< The address holds one, or what may be one.
        Form,     ///< It is no postgresql://[user@]host[:port]/database?schedule=NAME.
        Name,     ///< The name of the schedule is empty, too long, or has characters that hide.
    };

    /// The most bytes that the name of a schedule on a server has in UTF-8.
    static constexpr int kLongestName = 48;

    StorePlace() = default;
    /// Reads a path, or an address: whatever begins as one is never taken for a path.
    explicit StorePlace(const QString& text);

    /// Whether a text is an address, a faulty one too. Its scheme may be postgres: as well, which
    /// other programs take.
    static bool isAddress(const QString& text);
    /// What every address begins with in its usual form.
    static QString scheme();

    /// None for every path.
    Flaw flaw() const { return m_flaw; }
    bool isOnServer() const { return m_isOnServer; }
    /// The path as it was given, or the address in its usual form. Empty where it is faulty.
    QString text() const { return m_text; }

    // The parts of an address without a flaw.

    QString host() const { return m_host; }
    /// -1 where none is given.
    int port() const { return m_port; }
    /// Empty where none is given.
    QString user() const { return m_user; }
    QString database() const { return m_database; }
    QString schedule() const { return m_schedule; }

private:
    Flaw readAddress(const QString& text);

    Flaw m_flaw = Flaw::None;
    bool m_isOnServer = false;
    QString m_text;
    QString m_host;
    int m_port = -1;
    QString m_user;
    QString m_database;
    QString m_schedule;
};

} // namespace trel::mediadispatch
