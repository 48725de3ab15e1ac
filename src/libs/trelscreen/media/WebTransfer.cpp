#include "WebTransfer.h"

#include <QNetworkReply>
#include <QNetworkRequest>
#include <QRegularExpression>

#include <utility>

using namespace trel::mediadispatch;

namespace trel::screen {

namespace {

/// What waits in memory at most; the server waits meanwhile.
constexpr qint64 kBuffer = 4LL * 1024 * 1024;
/// A server from which nothing comes for so long, in milliseconds, is given up.
constexpr int kPatience = 30'000;

constexpr int kWhole = 200;
constexpr int kPart = 206;
constexpr int kGone = 410;
constexpr int kNotThere = 404;
constexpr int kNoSuchPart = 416;

QUrl urlOf(QUrl base, const ProgramContent& content)
{
    QString path = base.path();
    if (!path.endsWith(QLatin1Char('/'))) {
        path += QLatin1Char('/');
    }
    base.setPath(path + QString::fromLatin1(content.sha256));
    return base;
}

int statusOf(const QNetworkReply& reply)
{
    return reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
}

/// Where the part begins that a server sends; negative where it does not say.
qint64 beginOf(const QNetworkReply& reply)
{
    static const QRegularExpression range(QStringLiteral("^bytes +(\\d+)-"));
    const QRegularExpressionMatch match =
        range.match(QString::fromLatin1(reply.rawHeader("Content-Range")));
    return match.hasMatch() ? match.captured(1).toLongLong() : -1;
}

} // namespace

WebTransfer::WebTransfer(const QUrl& base, QObject* parent)
    : MediaTransfer(parent)
    , m_base(base)
    , m_network(this)
{}

WebTransfer::~WebTransfer()
{
    WebTransfer::stop();
}

void WebTransfer::start(const ProgramContent& content, const QString& part)
{
    stop();
    m_size = content.size;
    m_isRight = false;
    m_to.setFileName(part);
    if (!m_to.open(QIODevice::WriteOnly | QIODevice::Append)) {
        const QString words = m_to.errorString();
        QMetaObject::invokeMethod(
            this, [this, words] { end(MediaTrouble::NotWritable, words); }, Qt::QueuedConnection);
        return;
    }
    QNetworkRequest request(urlOf(m_base, content));
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::NoLessSafeRedirectPolicy);
    // The bytes themselves, since they are counted.
    request.setRawHeader("Accept-Encoding", "identity");
    request.setTransferTimeout(kPatience);
    if (m_to.size() > 0) {
        request.setRawHeader("Range", "bytes=" + QByteArray::number(m_to.size()) + '-');
    }
    m_reply = m_network.get(request);
    m_reply->setReadBufferSize(kBuffer);
    connect(m_reply, &QNetworkReply::metaDataChanged, this, &WebTransfer::takeHead);
    connect(m_reply, &QNetworkReply::readyRead, this, &WebTransfer::takeSome);
    connect(m_reply, &QNetworkReply::finished, this, &WebTransfer::finish);
}

void WebTransfer::stop()
{
    if (QNetworkReply* const reply = std::exchange(m_reply, nullptr)) {
        reply->disconnect(this);
        reply->abort();
        reply->deleteLater();
    }
    m_to.close();
}

/// A server that knows no parts sends all of it once more.
void WebTransfer::takeHead()
{
    const int status = statusOf(*m_reply);
    if (status == kPart) {
        m_isRight = beginOf(*m_reply) == m_to.size();
    } else if (status == kWhole) {
        m_isRight = m_to.resize(0) && m_to.seek(0);
    }
}

void WebTransfer::takeSome()
{
    const QByteArray piece = m_reply->readAll();
    if (!m_isRight) {
        return;
    }
    if (m_to.size() + piece.size() > m_size) {
        end(MediaTrouble::OtherContent);
        return;
    }
    if (m_to.write(piece) != piece.size() || !m_to.flush()) {
        end(m_to.error() == QFileDevice::ResourceError ? MediaTrouble::NoRoom
                                                       : MediaTrouble::NotWritable,
            m_to.errorString());
    }
}

void WebTransfer::finish()
{
    const int status = statusOf(*m_reply);
    const QString words = m_reply->errorString();
    const bool isDone = m_reply->error() == QNetworkReply::NoError && m_isRight;
    // What came before the line was cut counts as well.
    if (m_isRight && m_reply->bytesAvailable() > 0) {
        takeSome();
        if (!m_reply) {
            return;
        }
    }
    if (isDone) {
        // One that ends early is asked for the rest.
        end(m_to.size() == m_size ? MediaTrouble::None : MediaTrouble::Broken);
    } else if (status == kNotThere || status == kGone) {
        end(MediaTrouble::NotThere, words);
    } else if (status == kNoSuchPart) {
        // There is more of it here than there.
        end(MediaTrouble::OtherContent, words);
    } else {
        end(MediaTrouble::Broken, words);
    }
}

void WebTransfer::end(MediaTrouble trouble, const QString& words)
{
    stop();
    emit ended(trouble, words);
}

} // namespace trel::screen
