#include "FuzzTarget.h"
#include "TextTargets.h"

#include "trelprogramschedule/catalogue/ShownAddress.h"

#include <QStringList>

using namespace trel::mediadispatch;

namespace trust {

namespace {

const QString kSecret = QStringLiteral("Geheimnis");

/// Takes pieces from the front of the input.
class Pieces
{
public:
    explicit Pieces(const QByteArray& input)
        : m_rest(input)
    {}

    unsigned byte()
    {
        const unsigned value = m_rest.isEmpty() ? 0 : static_cast<quint8>(m_rest.front());
        m_rest.remove(0, 1);
        return value;
    }
    /// Up to so many characters, without those that would begin another part of an address.
    QString text(int most, const char* without)
    {
        const QByteArray piece = m_rest.left(most);
        m_rest.remove(0, most);
        QString text = QString::fromUtf8(piece);
        for (; *without != '\0'; ++without) {
            text.remove(QLatin1Char(*without));
        }
        return text;
    }
    QString rest() const { return QString::fromUtf8(m_rest); }

private:
    QByteArray m_rest;
};

/// The name of a parameter for a secret, written in another way.
QString disguised(const QString& name, Pieces& pieces)
{
    QString written;
    for (const QChar letter : name) {
        constexpr unsigned manners = 8;
        switch (pieces.byte() % manners) {
        case 1:
            written += letter.toUpper();
            break;
        case 2:
            written += QStringLiteral("%") + QString::number(letter.unicode(), 16);
            break;
        case 3:
            written += QLatin1Char('_');
            written += letter;
            break;
        case 4:
            written += QStringLiteral("%25") + QString::number(letter.unicode(), 16).toUpper();
            break;
        default:
            written += letter;
            break;
        }
    }
    return written;
}

void expectHidden(const QString& address)
{
    if (shownAddress(address).contains(kSecret)) {
        fault(QStringLiteral("a secret is shown: %1 as %2").arg(address, shownAddress(address)));
    }
}

} // namespace

void tryAddress(const QByteArray& input)
{
    static const QStringList names = {QStringLiteral("passphrase"), QStringLiteral("pwd"),
                                      QStringLiteral("token"),      QStringLiteral("key"),
                                      QStringLiteral("secret"),     QStringLiteral("sig"),
                                      QStringLiteral("auth")};
    const QString plain = QString::fromUtf8(input);
    const QString shown = shownAddress(plain);
    // Whatever the address is, hiding takes away and puts *** in its place.
    expect(shown.size() <= plain.size() + 3 * plain.count(QLatin1Char('=')),
           "an address that is shown is not longer than its secrets make it");
    if (!plain.contains(QLatin1String("://"))) {
        expect(shown == plain, "the path of a file is shown as it is");
    }

    Pieces pieces(input);
    const QString name = disguised(names.at(int(pieces.byte()) % names.size()), pieces);
    // What follows a colon and is no port makes it the one in front of a password.
    const QString host = QStringLiteral("rtsp://host") + pieces.text(8, "?#;@:") + QLatin1Char('/');
    const QString before = pieces.text(12, "&;=#?");
    const QString inside = pieces.text(6, "&;");
    const QString behind = QLatin1Char('&') + pieces.rest();
    expectHidden(host + QLatin1Char('?') + before + QLatin1Char('&') + name + QLatin1Char('=') +
                 inside + kSecret + behind);

    Pieces user(input);
    const QString login = user.text(8, ":/?#@[");
    // Digits up to a slash would be the port of an address without a password.
    const QString password = QLatin1Char('x') + user.text(12, "@") + kSecret;
    expectHidden(QStringLiteral("srt://") + login + QLatin1Char(':') + password +
                 QStringLiteral("@host/") + user.text(20, "@"));
}

} // namespace trust
