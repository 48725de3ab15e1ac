#include "StorePlace.h"

#include <QRegularExpression>
#include <QUrl>
#include <QUrlQuery>

#include <algorithm>

namespace trel::mediadispatch {

namespace {

const QString kScheduleKey = QStringLiteral("schedule");

/// Nothing that hides from the eye, or that a text for the server could end at.
bool isShown(const QString& text)
{
    return std::all_of(text.begin(), text.end(), [](QChar character) {
        return character.isPrint() && character.category() != QChar::Other_Format;
    });
}

bool isPort(int port)
{
    constexpr int none = -1;
    constexpr int last = 65535;
    return port == none || (port > 0 && port <= last);
}

/// Whether something stands where a password would, whatever else is wrong with the address.
bool mayHoldPassword(const QString& text)
{
    static const QRegularExpression inAuthority(QStringLiteral("^[^/]*//[^/?#]*:[^/?#]*@"));
    static const QRegularExpression inQuery(QStringLiteral("[?&][^=&]*pass[^=&]*="),
                                            QRegularExpression::CaseInsensitiveOption);
    return inAuthority.match(text).hasMatch() || inQuery.match(text).hasMatch();
}

/// The one part behind the host.
QString databaseOf(const QUrl& url)
{
    const QString path = url.path(QUrl::FullyDecoded);
    return path.startsWith(QLatin1Char('/')) ? path.mid(1) : QString();
}

QString addressOf(const StorePlace& place)
{
    QUrl url;
    url.setScheme(QStringLiteral("postgresql"));
    url.setUserName(place.user(), QUrl::DecodedMode);
    url.setHost(place.host());
    url.setPort(place.port());
    url.setPath(QLatin1Char('/') + place.database(), QUrl::DecodedMode);
    QUrlQuery query;
    query.addQueryItem(kScheduleKey,
                       QString::fromLatin1(QUrl::toPercentEncoding(place.schedule())));
    url.setQuery(query);
    return url.toString(QUrl::FullyEncoded);
}

} // namespace

StorePlace::StorePlace(const QString& text)
    : m_isOnServer(isAddress(text))
{
    if (!m_isOnServer) {
        m_text = text;
        return;
    }
    m_flaw = readAddress(text);
    if (m_flaw == Flaw::None) {
        m_text = addressOf(*this);
    }
}

bool StorePlace::isAddress(const QString& text)
{
    return text.startsWith(scheme(), Qt::CaseInsensitive) ||
           text.startsWith(QLatin1String("postgres:"), Qt::CaseInsensitive);
}

QString StorePlace::scheme()
{
    return QStringLiteral("postgresql:");
}

StorePlace::Flaw StorePlace::readAddress(const QString& text)
{
    if (mayHoldPassword(text)) {
        return Flaw::Password;
    }
    const QUrl url(text, QUrl::StrictMode);
    const QUrlQuery query(url);
    const bool isQueryFit =
        query.queryItems().size() == 1 && query.hasQueryItem(kScheduleKey) && !url.hasFragment();
    m_host = url.host();
    m_port = url.port();
    m_user = url.userName(QUrl::FullyDecoded);
    if (m_user.contains(QLatin1Char(':'))) {
        return Flaw::Password;
    }
    m_database = databaseOf(url);
    const bool isPlaceFit = !m_host.isEmpty() && !m_database.isEmpty() && isPort(m_port) &&
                            !m_database.contains(QLatin1Char('/')) && isShown(m_user) &&
                            isShown(m_database);
    if (!url.isValid() || !isQueryFit || !isPlaceFit) {
        return Flaw::Form;
    }
    m_schedule = query.queryItemValue(kScheduleKey, QUrl::FullyDecoded);
    const int size = m_schedule.toUtf8().size();
    return size == 0 || size > kLongestName || !isShown(m_schedule) ? Flaw::Name : Flaw::None;
}

} // namespace trel::mediadispatch
