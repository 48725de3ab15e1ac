#include "LanguageTexts.h"

#include "tstranslate/LanguageFile.h"
#include "tstranslate/Translator.h"

#include <QFile>
#include <QFileInfo>
#include <QXmlStreamReader>

using namespace tessark::trans;

namespace trel::console {

namespace {

/// Reads the messages of a source file.
class SourceReader
{
public:
    explicit SourceReader(QIODevice& device)
        : m_xml(&device)
    {}

    LanguageTexts read()
    {
        if (!m_xml.readNextStartElement() || m_xml.name() != QLatin1String("TS")) {
            m_result.error = QStringLiteral("is not a language file");
            return m_result;
        }
        m_result.language = m_xml.attributes().value(QLatin1String("language")).toString();
        while (m_xml.readNextStartElement()) {
            if (m_xml.name() == QLatin1String("context")) {
                readGroup();
            } else {
                m_xml.skipCurrentElement();
            }
        }
        if (m_xml.hasError()) {
            m_result.error = QStringLiteral("is damaged in line %1: %2")
                                 .arg(m_xml.lineNumber())
                                 .arg(m_xml.errorString());
        }
        return m_result;
    }

private:
    void readGroup()
    {
        QString group;
        while (m_xml.readNextStartElement()) {
            if (m_xml.name() == QLatin1String("name")) {
                group = m_xml.readElementText();
            } else if (m_xml.name() == QLatin1String("message")) {
                readMessage(group);
            } else {
                m_xml.skipCurrentElement();
            }
        }
    }

    void readMessage(const QString& group)
    {
        LanguageText text;
        text.group = group;
        text.isPlural = m_xml.attributes().value(QLatin1String("numerus")) == QLatin1String("yes");
        bool isInUse = true;
        while (m_xml.readNextStartElement()) {
            if (m_xml.name() == QLatin1String("source")) {
                text.key = m_xml.readElementText();
            } else if (m_xml.name() == QLatin1String("comment")) {
                text.context = m_xml.readElementText();
            } else if (m_xml.name() == QLatin1String("translation")) {
                const QStringRef type = m_xml.attributes().value(QLatin1String("type"));
                isInUse = type != QLatin1String("obsolete") && type != QLatin1String("vanished");
                text.isFinished = type != QLatin1String("unfinished");
                readForms(text);
            } else {
                m_xml.skipCurrentElement();
            }
        }
        // What the Linguist keeps of former versions does not reach the compiled file.
        if (isInUse) {
            m_result.texts.push_back(text);
        }
    }

    /// The text of a translation, or the texts of its forms.
    void readForms(LanguageText& text)
    {
        QString single;
        while (m_xml.readNext() != QXmlStreamReader::EndElement && !m_xml.hasError()) {
            if (m_xml.isCharacters()) {
                single += m_xml.text();
            } else if (m_xml.isStartElement()) {
                text.forms.append(textWithin());
            }
        }
        if (text.forms.isEmpty()) {
            text.forms.append(single);
        }
        text.text = text.forms.first();
    }

    /// The text of an element and of all within it. Elements may be nested to any depth, so that
    /// the reader's own way, which calls itself for each, would run out of stack.
    QString textWithin()
    {
        QString text;
        for (int depth = 1; depth > 0 && !m_xml.hasError();) {
            switch (m_xml.readNext()) {
            case QXmlStreamReader::StartElement:
                ++depth;
                break;
            case QXmlStreamReader::EndElement:
                --depth;
                break;
            case QXmlStreamReader::Characters:
            case QXmlStreamReader::EntityReference:
                text += m_xml.text();
                break;
            default:
                break;
            }
        }
        return text;
    }

    QXmlStreamReader m_xml;
    LanguageTexts m_result;
};

/// Reads a compiled language. A file may leave the names of some texts away where others tell them
/// apart, and is refused then.
LanguageTexts readCompiledTexts(const QString& file)
{
    LanguageTexts result;
    const std::optional<LanguageFile> compiled = readLanguageFile(file);
    // What the editor would not load is not worth a look.
    if (!compiled || !Translator().load(file)) {
        result.error = QStringLiteral("is damaged, and the editor would not load it");
        return result;
    }
    result.language = compiled->language;
    for (const LanguageMessage& message : compiled->messages) {
        if (!message.hasKey) {
            result.error =
                QStringLiteral("does not name all of its texts; its source file (.ts) does");
            return result;
        }
        LanguageText text;
        text.group = message.group;
        text.context = message.context;
        text.key = message.key;
        // Of the forms of a plural the first is shown where no number is given.
        text.text = message.forms.first();
        text.forms = message.forms;
        text.isPlural = message.forms.size() > 1;
        result.texts.push_back(text);
    }
    return result;
}

} // namespace

LanguageTexts readLanguageTexts(const QString& file)
{
    LanguageTexts result;
    QFile source(file);
    // A pipe or a device would block, or never end.
    if (!QFileInfo::exists(file)) {
        result.error = QStringLiteral("does not exist");
    } else if (!QFileInfo(file).isFile()) {
        result.error = QStringLiteral("is not a language file");
    } else if (!source.open(QIODevice::ReadOnly)) {
        result.error = QStringLiteral("cannot be read: %1").arg(source.errorString());
    } else if (isLanguageFile(source.peek(kLanguageFileMagicSize))) {
        return readCompiledTexts(file);
    } else {
        return SourceReader(source).read();
    }
    return result;
}

} // namespace trel::console
