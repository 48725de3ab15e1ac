#include "CompiledTexts.h"

#include "tstranslate/Translator.h"

#include <QDataStream>
#include <QFile>
#include <QTextCodec>

#include <optional>

namespace {

const QByteArray kMagic = QByteArrayLiteral("\x3c\xb8\x64\x18\xca\xef\x9c\x95"
                                            "\xcd\x21\x1c\xbf\x60\xa1\xbd\xdd");
constexpr quint8 kMessages = 0x69;
constexpr quint8 kLanguage = 0xa7;

enum Tag : quint8 {
    TagEnd = 1,
    TagTranslation = 3,
    TagSourceText = 6,
    TagContext = 7,
    TagComment = 8,
};

QString utf16(const QByteArray& bigEndian)
{
    return QTextCodec::codecForName("UTF-16BE")->toUnicode(bigEndian);
}

/// A section of a file that is known to be whole; empty where there is none.
QByteArray sectionOf(const QByteArray& file, quint8 wanted)
{
    QDataStream stream(file);
    stream.skipRawData(kMagic.size());
    while (!stream.atEnd()) {
        quint8 section = 0;
        QByteArray content;
        stream >> section >> content;
        if (section == wanted || stream.status() != QDataStream::Ok) {
            return content;
        }
    }
    return QByteArray();
}

/// The next message; none for one without a name.
std::optional<LanguageText> readMessage(QDataStream& stream)
{
    LanguageText text;
    bool isNamed = false;
    quint8 tag = 0;
    for (stream >> tag; tag != TagEnd && stream.status() == QDataStream::Ok; stream >> tag) {
        QByteArray content;
        stream >> content;
        switch (tag) {
        case TagTranslation:
            text.forms.append(utf16(content));
            break;
        case TagSourceText:
            text.key = QString::fromUtf8(content);
            isNamed = true;
            break;
        case TagContext:
            text.group = QString::fromUtf8(content);
            break;
        case TagComment:
            text.context = QString::fromUtf8(content);
            break;
        default:
            break;
        }
    }
    // Of the forms of a plural the first is shown where no number is given.
    text.text = text.forms.value(0);
    text.isPlural = text.forms.size() > 1;
    return isNamed ? std::make_optional(text) : std::nullopt;
}

} // namespace

bool isCompiledLanguage(const QByteArray& start)
{
    return start == kMagic;
}

LanguageTexts readCompiledTexts(const QString& file)
{
    LanguageTexts result;
    QFile source(file);
    // What the editor would not load is not worth a look.
    if (!tessark::trans::Translator().load(file) || !source.open(QIODevice::ReadOnly)) {
        result.error = QStringLiteral("is damaged, and the editor would not load it");
        return result;
    }
    const QByteArray content = source.readAll();
    const QByteArray messages = sectionOf(content, kMessages);
    result.language = QString::fromUtf8(sectionOf(content, kLanguage));
    QDataStream stream(messages);
    while (!stream.atEnd() && stream.status() == QDataStream::Ok) {
        const std::optional<LanguageText> text = readMessage(stream);
        if (!text) {
            result.error =
                QStringLiteral("does not name all of its texts; its source file (.ts) does");
            return result;
        }
        result.texts.push_back(*text);
    }
    return result;
}
