#pragma once

#include <QByteArray>
#include <QDataStream>
#include <QString>

#include <map>

/// Writes compiled Linguist files byte by byte, the way the toolkit's compiler does and also in
/// ways that it never would.
class QmBytes
{
public:
    QmBytes& language(const QByteArray& name)
    {
        m_language = name;
        return *this;
    }

    QmBytes& text(const QByteArray& key, const QString& translation,
                  const QByteArray& group = QByteArrayLiteral("G"),
                  const QByteArray& context = QByteArrayLiteral("C"))
    {
        QByteArray utf16;
        QDataStream stream(&utf16, QIODevice::WriteOnly);
        for (const QChar character : translation) {
            stream << character.unicode();
        }
        return record(key, context,
                      field(3, utf16) + field(8, context) + field(6, key) + field(7, group) +
                          '\x01');
    }

    /// A text whose record the caller has written.
    QmBytes& record(const QByteArray& key, const QByteArray& context, const QByteArray& bytes)
    {
        m_offsets.emplace(hash(key + context), quint32(m_messages.size()));
        m_messages += bytes;
        return *this;
    }

    /// One more section at the end of the file.
    QmBytes& section(char tag, const QByteArray& bytes)
    {
        m_more += field(tag, bytes);
        return *this;
    }

    QByteArray bytes() const
    {
        QByteArray table;
        QDataStream stream(&table, QIODevice::WriteOnly);
        for (const auto& [hash, offset] : m_offsets) {
            stream << hash << offset;
        }
        QByteArray file = magic();
        if (!m_language.isEmpty()) {
            file += field('\xa7', m_language);
        }
        return file + field('\x42', table) + field('\x69', m_messages) + m_more;
    }

    static QByteArray magic()
    {
        return QByteArrayLiteral(
            "\x3c\xb8\x64\x18\xca\xef\x9c\x95\xcd\x21\x1c\xbf\x60\xa1\xbd\xdd");
    }

    /// A tag, a length and the bytes.
    static QByteArray field(char tag, const QByteArray& bytes)
    {
        QByteArray length;
        QDataStream(&length, QIODevice::WriteOnly) << quint32(bytes.size());
        return tag + length + bytes;
    }

    static quint32 hash(const QByteArray& text)
    {
        quint32 value = 0;
        for (const char character : text) {
            value = (value << 4) + quint8(character);
            const quint32 high = value & 0xf0000000;
            value ^= high >> 24;
            value &= ~high;
        }
        return value == 0 ? 1 : value;
    }

private:
    QByteArray m_language;
    QByteArray m_messages;
    QByteArray m_more;
    std::multimap<quint32, quint32> m_offsets;
};
