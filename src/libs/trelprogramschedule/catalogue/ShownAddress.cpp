#include "ShownAddress.h"

#include <QRegularExpression>

#include <algorithm>
#include <iterator>
#include <utility>

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

/// Parts of the names of parameters that hold a secret: rather one value too many is hidden.
constexpr const char* kSecretNames[] = {"pass", "pwd",    "secret", "token", "key",
                                        "sig",  "auth",   "cred",   "hmac",  "jwt",
                                        "hash", "ticket", "nonce",  "otp",   "session"};

/// The text behind as many encodings as anybody may have put around it.
QString decoded(QString text)
{
    constexpr int most = 4;
    for (int round = 0; round < most; ++round) {
        QString inner = QString::fromUtf8(QByteArray::fromPercentEncoding(text.toUtf8()));
        if (inner == text) {
            break;
        }
        text = std::move(inner);
    }
    return text;
}

bool isSecretName(const QString& name)
{
    static const QRegularExpression decoration(QStringLiteral("[^a-z0-9]"));
    const QString letters = decoded(name).toLower().remove(decoration);
    return std::any_of(std::begin(kSecretNames), std::end(kSecretNames),
                       [&](const char* part) { return letters.contains(QLatin1String(part)); });
}

/// Whether a value holds parameters, or an address, of its own with a secret in them.
bool holdsSecret(const QString& value)
{
    static const QRegularExpression inner(QStringLiteral("([^=:&;,?#/]+)[=:]"));
    const QString text = decoded(value);
    for (auto match = inner.globalMatch(text); match.hasNext();) {
        if (isSecretName(match.next().captured(1))) {
            return true;
        }
    }
    static const QRegularExpression user(QStringLiteral("://[^/@]*:[^/@]*@"));
    return user.match(text).hasMatch();
}

/// Parameters, with the signs between them.
QString withoutSecrets(const QString& parameters)
{
    static const QRegularExpression parameter(QStringLiteral("([^?#&;=]+)=([^&;]*)"));
    QString shown;
    int end = 0;
    for (auto matches = parameter.globalMatch(parameters); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        const bool isSecret = !match.captured(2).isEmpty() &&
                              (isSecretName(match.captured(1)) || holdsSecret(match.captured(2)));
        shown += parameters.midRef(end, match.capturedStart(2) - end);
        shown += isSecret ? QStringLiteral("***") : match.captured(2);
        end = match.capturedEnd(2);
    }
    return shown + parameters.midRef(end);
}

/// Hides what stands in the parameters, from the first sign that begins some.
QString withHiddenParameters(const QString& address, int start)
{
    static const QRegularExpression begin(QStringLiteral("[?#;]"));
    const int found = address.indexOf(begin, start);
    return found < 0 ? address : address.left(found) + withoutSecrets(address.mid(found));
}

} // namespace

QString shownAddress(const QString& address)
{
    const int start = authorityStart(address);
    if (start < 0) {
        return address;
    }
    const int end = userEnd(address, start);
    const int colon = end < 0 ? -1 : address.indexOf(QLatin1Char(':'), start);
    if (colon < 0 || colon > end) {
        return withHiddenParameters(address, start);
    }
    const QString shown = address.left(colon) + address.mid(end);
    // A sign that looks like a part of the password may be the one that begins the parameters.
    static const QRegularExpression begin(QStringLiteral("[?#;]"));
    const bool isBeginGone = address.mid(colon, end - colon).contains(begin);
    return isBeginGone ? shown.left(colon) + withoutSecrets(shown.mid(colon))
                       : withHiddenParameters(shown, colon);
}

} // namespace trel::mediadispatch
