#include "tstranslate/LanguageFile.h"

#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QSet>
#include <QtEndian>

#include <map>
#include <utility>

namespace tessark::trans {

namespace {

const QByteArray kMagic = QByteArrayLiteral("\x3c\xb8\x64\x18\xca\xef\x9c\x95"
                                            "\xcd\x21\x1c\xbf\x60\xa1\xbd\xdd");

/// Stands in the place of a length.
const QByteArray kUntranslated = QByteArrayLiteral("\xff\xff\xff\xff");

enum Section : char {
    Contexts = '\x2f',
    Hashes = '\x42',
    Messages = '\x69',
    NumerusRules = '\x88',
    LanguageName = '\xa7',
};

enum Tag : quint8 {
    TagEnd = 1,
    TagTranslation = 3,
    TagSourceText = 6,
    TagContext = 7,
    TagComment = 8,
};

constexpr int kHashEntrySize = 8;
constexpr int kContextUnit = 2; ///< Offsets in the table of contexts count pairs of bytes.

/// Takes values from the front of some bytes, and notes when there are too few.
class Reader
{
public:
    explicit Reader(const QByteArray& bytes)
        : m_bytes(bytes)
    {}

    bool atEnd() const { return m_position == m_bytes.size(); }
    bool failed() const { return m_failed; }
    int position() const { return m_position; }

    template <typename Number>
    Number number()
    {
        const int size = int(sizeof(Number));
        if (!has(size)) {
            return 0;
        }
        const auto value = qFromBigEndian<Number>(m_bytes.constData() + m_position);
        m_position += size;
        return value;
    }

    /// Bytes with their length before them; they are not copied.
    QByteArray block()
    {
        const auto length = number<quint32>();
        if (length > quint32(m_bytes.size()) || !has(int(length))) {
            m_failed = true;
            return QByteArray();
        }
        const char* start = m_bytes.constData() + m_position;
        m_position += int(length);
        return QByteArray::fromRawData(start, int(length));
    }

    /// As block(), for a text that may have been left untranslated.
    QByteArray translation()
    {
        if (m_bytes.mid(m_position, kUntranslated.size()) == kUntranslated) {
            m_position += kUntranslated.size();
            return QByteArray();
        }
        return block();
    }

    void skip(int count)
    {
        if (has(count)) {
            m_position += count;
        }
    }

private:
    bool has(int count)
    {
        m_failed = m_failed || m_bytes.size() - m_position < count;
        return !m_failed;
    }

    const QByteArray& m_bytes;
    int m_position = 0;
    bool m_failed = false;
};

/// A text, and what is checked of it against the table that leads to it.
struct Record
{
    LanguageMessage message;
    quint32 hash = 0;
    bool hasAllParts = false; ///< A compressed file drops the parts that its hash stands for.
};

QString utf16(const QByteArray& bigEndian)
{
    QString text(bigEndian.size() / int(sizeof(QChar)), Qt::Uninitialized);
    qFromBigEndian<quint16>(bigEndian.constData(), text.size(), text.data());
    return text;
}

/// The hash by which a text is found, of its source text followed by its disambiguation.
class TextHash
{
public:
    void add(const QByteArray& text)
    {
        for (const char character : text) {
            if (character == '\0') {
                break;
            }
            m_value = (m_value << 4) + quint8(character);
            const quint32 high = m_value & 0xf0000000;
            m_value ^= high >> 24;
            m_value &= ~high;
        }
    }

    quint32 value() const { return m_value == 0 ? 1 : m_value; }

private:
    quint32 m_value = 0;
};

std::optional<Record> readRecord(Reader& reader)
{
    Record record;
    QByteArray source;
    QByteArray comment;
    for (auto tag = reader.number<quint8>(); tag != TagEnd; tag = reader.number<quint8>()) {
        switch (tag) {
        case TagTranslation: {
            const QByteArray form = reader.translation();
            if (form.size() % int(sizeof(QChar)) != 0) {
                return std::nullopt;
            }
            record.message.forms.append(utf16(form));
            break;
        }
        case TagSourceText:
            source = reader.block();
            record.message.key = QString::fromUtf8(source);
            record.message.hasKey = true;
            break;
        case TagContext:
            record.message.group = QString::fromUtf8(reader.block());
            break;
        case TagComment:
            comment = reader.block();
            record.message.context = QString::fromUtf8(comment);
            record.hasAllParts = true;
            break;
        default:
            return std::nullopt;
        }
    }
    if (record.message.forms.isEmpty()) {
        return std::nullopt;
    }
    TextHash hash;
    hash.add(source);
    hash.add(comment);
    record.hash = hash.value();
    return record;
}

using Sections = QHash<char, QByteArray>;
using Records = std::map<quint32, Record>; ///< By offset in the section of messages.

/// The sections fill the file to its last byte. One that names further files is refused with all
/// unknown ones: what a language file has to say stands in it.
std::optional<Sections> splitSections(const QByteArray& bytes)
{
    static const QSet<char> known{Contexts, Hashes, Messages, NumerusRules, LanguageName};
    Sections sections;
    Reader reader(bytes);
    reader.skip(kMagic.size());
    while (!reader.failed() && !reader.atEnd()) {
        const char section = char(reader.number<quint8>());
        if (!known.contains(section) || sections.contains(section)) {
            return std::nullopt;
        }
        sections.insert(section, reader.block());
    }
    return reader.failed() ? std::nullopt : std::make_optional(sections);
}

std::optional<Records> readRecords(const QByteArray& messages)
{
    Records records;
    Reader reader(messages);
    while (!reader.failed() && !reader.atEnd()) {
        const auto start = quint32(reader.position());
        std::optional<Record> record = readRecord(reader);
        if (!record) {
            return std::nullopt;
        }
        records.emplace(start, *std::move(record));
    }
    return reader.failed() ? std::nullopt : std::make_optional(records);
}

/// The table is in the order of its hashes and leads to each text once.
bool entriesMatch(const QByteArray& hashes, const Records& records)
{
    if (hashes.isEmpty() || hashes.size() != int(records.size()) * kHashEntrySize) {
        return false;
    }
    Reader reader(hashes);
    quint32 former = 0;
    while (!reader.atEnd()) {
        const auto hash = reader.number<quint32>();
        const auto found = records.find(reader.number<quint32>());
        const bool leads =
            found != records.end() && (!found->second.hasAllParts || found->second.hash == hash);
        if (hash < former || !leads) {
            return false;
        }
        former = hash;
    }
    return true;
}

/// Names behind their lengths, the last one followed by a zero.
bool chainEnds(Reader chain)
{
    while (!chain.failed()) {
        const int length = chain.number<quint8>();
        if (length == 0) {
            break;
        }
        chain.skip(length);
    }
    return !chain.failed();
}

/// A compressed file has a hash table of its contexts, with a chain of names for each entry that is
/// not zero.
bool contextsEndInside(const QByteArray& contexts)
{
    Reader table(contexts);
    const int chains = table.number<quint16>();
    for (int i = 0; i < chains; ++i) {
        const int offset = table.number<quint16>();
        Reader chain(contexts);
        chain.skip(kContextUnit * (1 + chains + offset));
        if (offset != 0 && !chainEnds(chain)) {
            return false;
        }
    }
    return chains > 0 && !table.failed();
}

/// The texts of a file that is whole.
std::optional<LanguageFile> parsed(const QByteArray& bytes)
{
    const std::optional<Sections> sections = splitSections(bytes);
    if (!sections ||
        (sections->contains(Contexts) && !contextsEndInside(sections->value(Contexts)))) {
        return std::nullopt;
    }
    std::optional<Records> records = readRecords(sections->value(Messages));
    if (!records || !entriesMatch(sections->value(Hashes), *records)) {
        return std::nullopt;
    }
    LanguageFile file{bytes, QString::fromUtf8(sections->value(LanguageName)), {}};
    for (auto& [offset, record] : *records) {
        file.messages.push_back(std::move(record.message));
    }
    return file;
}

} // namespace

bool isLanguageFile(const QByteArray& start)
{
    return start.startsWith(kMagic);
}

std::optional<LanguageFile> readLanguageFile(const QString& file)
{
    // A pipe or a device would block, or never end.
    QFile source(file);
    if (!QFileInfo(file).isFile() || !source.open(QIODevice::ReadOnly) ||
        !isLanguageFile(source.peek(kLanguageFileMagicSize))) {
        return std::nullopt;
    }
    const QByteArray bytes = source.readAll();
    return source.error() == QFileDevice::NoError ? parsed(bytes) : std::nullopt;
}

} // namespace tessark::trans
