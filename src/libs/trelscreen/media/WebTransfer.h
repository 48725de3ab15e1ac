#pragma once

#include "trelscreen/media/MediaTransfer.h"

#include <QFile>
#include <QNetworkAccessManager>
#include <QPointer>
#include <QUrl>

class QNetworkReply;

namespace trel::screen {

/// Fetches files from a web server that hands out, below an address, files by their hash. Asks only
/// for what is missing, where the server can do that.
class WebTransfer : public MediaTransfer
{
    Q_OBJECT

public:
    explicit WebTransfer(const QUrl& base, QObject* parent = nullptr);
    ~WebTransfer() override;

    void start(const mediadispatch::ProgramContent& content, const QString& part) override;
    void stop() override;

private:
    void takeHead();
    void takeSome();
    void finish();
    void end(MediaTrouble trouble, const QString& words = {});

    QUrl m_base;
    QNetworkAccessManager m_network;
    QPointer<QNetworkReply> m_reply; ///< Of what is fetched now.
    QFile m_to;
    qint64 m_size = 0;      ///< That the file has to have.
    bool m_isRight = false; ///< The answer is the file, or its missing part.
};

} // namespace trel::screen
