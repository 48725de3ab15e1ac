#pragma once

#include <QString>
#include <QtGlobal>

/// Whether a message only tells what the platform without a screen, on which the tests run, cannot
/// do.
inline bool isPlatformNote(const QString& message)
{
    return message.startsWith(QLatin1String("This plugin does not support "));
}

/// Keeps such messages out of the log of a test for as long as it lives. Instances nest.
class NoPlatformNotes
{
public:
    NoPlatformNotes()
    {
        if (s_depth++ == 0) {
            s_former = qInstallMessageHandler(&NoPlatformNotes::pass);
        }
    }

    ~NoPlatformNotes()
    {
        if (--s_depth == 0) {
            qInstallMessageHandler(s_former);
        }
    }

    Q_DISABLE_COPY(NoPlatformNotes)

private:
    static void pass(QtMsgType type, const QMessageLogContext& context, const QString& text)
    {
        if (!isPlatformNote(text)) {
            s_former(type, context, text);
        }
    }

    inline static int s_depth = 0;
    inline static QtMessageHandler s_former = nullptr;
};
