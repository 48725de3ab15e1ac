#pragma once

#include <QString>
#include <QStringList>

#include <vector>

/// Takes the toolkit's messages for as long as it lives, instead of the log of the test. Only one
/// may live at a time.
class MessageLog
{
public:
    struct Message
    {
        QtMsgType type;
        QString text;
        QString file;
        int line;
        QString function;
    };

    MessageLog();
    ~MessageLog();
    MessageLog(const MessageLog&) = delete;
    MessageLog& operator=(const MessageLog&) = delete;

    const std::vector<Message>& messages() const { return m_messages; }
    /// The texts of all messages of whatever type, in order.
    QStringList texts() const;
    /// The texts of everything worse than a debug line or a note.
    QStringList warnings() const;
    void clear() { m_messages.clear(); }

private:
    static void take(QtMsgType type, const QMessageLogContext& context, const QString& text);

    std::vector<Message> m_messages;
    QtMessageHandler m_former;
};
