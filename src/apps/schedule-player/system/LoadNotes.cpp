#include "system/LoadNotes.h"

#include "common/DisplayText.h"
#include "deck/PlayedAddress.h"
#include "system/OwnPlace.h"

#include <QDateTime>

#include <algorithm>
#include <array>
#include <cstdlib>

namespace trel::player {

namespace {

constexpr std::size_t kLongestMedia = 1024; // bytes
/// A player that was there for longer was not brought down by what it started with.
constexpr qint64 kSoon = 60'000; // milliseconds
constexpr quint32 kMark = 0x53504c31;

} // namespace

struct LoadNotes::Content
{
    quint32 mark;
    qint32 times;   ///< Sudden ends in a row before this player.
    qint64 started; ///< Milliseconds since 1970.
    std::array<std::array<char, kLongestMedia>, 2> media; ///< UTF-8, ended by 0.
};

LoadNotes::LoadNotes(const QString& store, const QString& screen)
    : m_file(ownPlaceOf(store + QLatin1Char('\n') + screen, QStringLiteral("loads")))
{
    const qint64 size = sizeof(Content);
    if (!m_file.open(QIODevice::ReadWrite) ||
        !m_file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner) ||
        !m_file.resize(size)) {
        return;
    }
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): pages are as aligned as can be
    m_content = reinterpret_cast<Content*>(m_file.map(0, size));
    if (m_content == nullptr) {
        return;
    }
    readFormer();
    *m_content = {};
    m_content->mark = kMark;
    m_content->times = m_formerEnd ? m_formerEnd->times : 0;
    m_content->started = QDateTime::currentMSecsSinceEpoch();
}

LoadNotes::~LoadNotes()
{
    if (m_content != nullptr) {
        m_file.remove();
    }
}

void LoadNotes::readFormer()
{
    if (m_content->mark != kMark) {
        return;
    }
    SuddenEnd end;
    for (std::array<char, kLongestMedia>& media : m_content->media) {
        media.back() = 0;
        if (media.front() != 0) {
            end.loaded += QString::fromUtf8(media.data());
        }
    }
    const bool wasSoon = std::abs(QDateTime::currentMSecsSinceEpoch() - m_content->started) < kSoon;
    end.times = wasSoon ? std::max(m_content->times, 0) + 1 : 1;
    m_formerEnd = end;
}

void LoadNotes::note(int deck, const QString& media)
{
    if (m_content == nullptr) {
        return;
    }
    QByteArray bytes = withoutSecrets(media).toUtf8();
    bytes.truncate(static_cast<int>(kLongestMedia) - 1);
    std::array<char, kLongestMedia>& room = m_content->media.at(static_cast<std::size_t>(deck));
    room.fill(0);
    std::copy(bytes.cbegin(), bytes.cend(), room.begin());
}

QString LoadNotes::words(const SuddenEnd& end)
{
    QStringList names;
    for (const QString& media : end.loaded) {
        names += hosts::inQuotes(hosts::printable(media));
    }
    QString line = QStringLiteral("the player before this one ended without notice");
    if (end.times > 1) {
        line += QStringLiteral(", %1 times in a row").arg(end.times);
    }
    return names.isEmpty()
               ? line + QStringLiteral("; it had loaded nothing")
               : line + QStringLiteral("; it had loaded ") + names.join(QStringLiteral(" and "));
}

} // namespace trel::player
