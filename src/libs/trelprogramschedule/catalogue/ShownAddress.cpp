#include "ShownAddress.h"

#include <QRegularExpression>

namespace trel::mediadispatch {

namespace {

/// Where the part with the user and the host begins; -1 for the path of a file.
int authorityStart(const QString& address)
{
    const int mark = address.indexOf(QLatin1String("://"));
    return mark < 0 || address.indexOf(QLatin1Char('/')) < mark ? -1 : mark + 3;
}

/// Whether a port, and behind it a path or a query, begins the text. Live sources have no
/// fragments, so that a number sign is part of a password.
bool beginsWithPort(const QStringRef& text)
{
    static const QRegularExpression port(QStringLiteral("^[0-9]+([/?]|$)"));
    return port.match(text).hasMatch();
}

/// The sign that ends user and password; -1 when there are none.
int userEnd(const QString& address, int start)
{
    static const QRegularExpression delimiter(QStringLiteral("[/?#]"));
    const int found = address.indexOf(delimiter, start);
    const int end = found < 0 ? address.size() : found;
    const int sign = address.midRef(start, end - start).lastIndexOf(QLatin1Char('@'));
    if (sign >= 0) {
        return start + sign;
    }
    // Somebody typed a password as it is, with a sign in it that ends the host of an address. What
    // stands behind the colon tells, since it can be no port.
    const int colon = address.indexOf(QLatin1Char(':'), start);
    const bool isHost = colon < 0 || colon > end || address.at(start) == QLatin1Char('[') ||
                        beginsWithPort(address.midRef(colon + 1));
    const int last = address.lastIndexOf(QLatin1Char('@'));
    return isHost || last < end ? -1 : last;
}

} // namespace

QString shownAddress(const QString& address)
{
    const int start = authorityStart(address);
    const int end = start < 0 ? -1 : userEnd(address, start);
    const int colon = end < 0 ? -1 : address.indexOf(QLatin1Char(':'), start);
    if (colon < 0 || colon > end) {
        return address;
    }
    return address.left(colon) + address.mid(end);
}

} // namespace trel::mediadispatch
