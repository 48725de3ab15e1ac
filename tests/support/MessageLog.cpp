#include "support/MessageLog.h"

#include "support/PlatformNotes.h"

namespace {

MessageLog* s_log = nullptr;

} // namespace

MessageLog::MessageLog()
{
    Q_ASSERT(!s_log);
    s_log = this;
    m_former = qInstallMessageHandler(&MessageLog::take);
}

MessageLog::~MessageLog()
{
    qInstallMessageHandler(m_former);
    s_log = nullptr;
}

QStringList MessageLog::texts() const
{
    QStringList texts;
    for (const Message& message : m_messages)
        texts << message.text;
    return texts;
}

QStringList MessageLog::warnings() const
{
    QStringList texts;
    for (const Message& message : m_messages) {
        if (message.type != QtDebugMsg && message.type != QtInfoMsg)
            texts << message.text;
    }
    return texts;
}

void MessageLog::take(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if (isPlatformNote(text))
        return;
    s_log->m_messages.push_back({type, text, QString::fromUtf8(context.file), context.line,
                                 QString::fromUtf8(context.function)});
}
