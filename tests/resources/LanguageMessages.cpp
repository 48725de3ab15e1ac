#include "LanguageMessages.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QXmlStreamReader>

namespace {

Message readTranslation(QXmlStreamReader& xml)
{
    Message message;
    message.isFinished = !xml.attributes().hasAttribute(QStringLiteral("type"));
    QString text;
    while (!xml.atEnd() && !(xml.readNext() == QXmlStreamReader::EndElement &&
                             xml.name() == QLatin1String("translation"))) {
        if (xml.isStartElement() && xml.name() == QLatin1String("numerusform")) {
            message.forms.append(xml.readElementText());
        } else if (xml.isCharacters()) {
            text += xml.text();
        }
    }
    if (message.forms.isEmpty()) {
        message.forms.append(text);
    }
    return message;
}

} // namespace

Messages readMessages(const QString& file)
{
    QFile source(file);
    if (!source.open(QIODevice::ReadOnly)) {
        qFatal("cannot read %s", qPrintable(file));
    }
    Messages messages;
    QString context;
    QString text;
    bool isPlural = false;
    QXmlStreamReader xml(&source);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        if (xml.name() == QLatin1String("name")) {
            context = xml.readElementText();
        } else if (xml.name() == QLatin1String("message")) {
            isPlural = xml.attributes().hasAttribute(QStringLiteral("numerus"));
        } else if (xml.name() == QLatin1String("source")) {
            text = xml.readElementText();
        } else if (xml.name() == QLatin1String("translation")) {
            Message message = readTranslation(xml);
            message.isPlural = isPlural;
            messages.insert(context + QLatin1String(": ") + text, message);
        }
    }
    return messages;
}

Messages readEditorLanguage(const QString& language)
{
    return readMessages(QStringLiteral(LANGUAGE_SOURCE_DIR "/%1.ts").arg(language));
}

Messages readHostLanguage(const QString& language)
{
    return readMessages(
        QStringLiteral(LANGUAGE_SOURCE_DIR "/host/schedule-editor_%1.ts").arg(language));
}

const Messages& messagesOfTheCode()
{
    static const Messages messages = [] {
        const QTemporaryDir folder;
        const QString file = folder.filePath(QStringLiteral("host.ts"));
        QProcess process;
        process.start(QStringLiteral(LUPDATE),
                      {QStringLiteral("-silent"), QStringLiteral("-locations"),
                       QStringLiteral("none"), QStringLiteral(HOST_SOURCE_DIR),
                       QStringLiteral(COMMON_SOURCE_DIR), QStringLiteral(PROMPT_SOURCE_DIR),
                       QStringLiteral("-ts"), file});
        if (!process.waitForFinished() || process.exitCode() != 0) {
            qFatal("lupdate failed");
        }
        return readMessages(file);
    }();
    return messages;
}
