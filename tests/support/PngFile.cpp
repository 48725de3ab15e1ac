#include "PngFile.h"

#include <QtEndian>

#include <array>

namespace {

/// Zeros that one block of compressed data stands for: one, and 254 repetitions of 258.
constexpr int kZerosInBlock = 1 + 254 * 258;

QByteArray number(quint32 value)
{
    QByteArray bytes(4, 0);
    qToBigEndian(value, bytes.data());
    return bytes;
}

quint32 checksum(const QByteArray& bytes)
{
    quint32 sum = ~quint32(0);
    for (const char byte : bytes) {
        sum ^= static_cast<quint8>(byte);
        for (int bit = 0; bit < 8; ++bit) {
            sum = (sum >> 1) ^ ((sum & 1) != 0 ? 0xedb88320U : 0U);
        }
    }
    return ~sum;
}

/// Bits in the order in which compressed data holds them.
class Bits
{
public:
    void addNumber(int value, int count)
    {
        for (int bit = 0; bit < count; ++bit) {
            add((value >> bit & 1) != 0);
        }
    }
    void addCode(const char* code)
    {
        for (; *code != 0; ++code) {
            add(*code == '1');
        }
    }
    QByteArray bytes() const { return m_bytes; }

private:
    void add(bool bit)
    {
        if (m_count % 8 == 0) {
            m_bytes.append('\0');
        }
        if (bit) {
            const int last = m_bytes.size() - 1;
            m_bytes[last] = static_cast<char>(m_bytes.at(last) | 1 << m_count % 8);
        }
        ++m_count;
    }

    QByteArray m_bytes;
    int m_count = 0;
};

/// Ends at the end of a byte, so that blocks can follow one another.
QByteArray blockOfZeros()
{
    Bits bits;
    bits.addNumber(0, 1);     // Not the last block.
    bits.addNumber(1, 2);     // With the codes that need not be told.
    bits.addCode("00110000"); // A zero.
    for (int repetition = 0; repetition < 254; ++repetition) {
        bits.addCode("11000101"); // The longest repetition,
        bits.addCode("00000");    // of the byte before.
    }
    bits.addCode("0000000");
    return bits.bytes();
}

QByteArray lastBlock(int zeros)
{
    Bits bits;
    bits.addNumber(1, 8); // The last block, stored as it is.
    bits.addNumber(zeros, 16);
    bits.addNumber(~zeros, 16);
    return bits.bytes() + QByteArray(zeros, '\0');
}

} // namespace

PngFile::PngFile(QFile& file)
    : m_file(file)
{}

bool PngFile::write(const QString& path, const QSize& size, Layout layout)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        return false;
    }
    PngFile png(file);
    file.write("\x89PNG\r\n\x1a\n");
    QByteArray header =
        number(static_cast<quint32>(size.width())) + number(static_cast<quint32>(size.height()));
    header += QByteArray("\x08\x02\0\0", 4); // Eight bits each of red, green and blue.
    header += layout == Layout::Passes ? '\1' : '\0';
    png.writeChunk("IHDR", header);
    const qint64 rowSize = 1 + qint64{3} * size.width();
    png.writeZeros(layout == Layout::Passes ? rowSize : rowSize * size.height());
    png.writeChunk("IEND", {});
    return file.flush();
}

void PngFile::writeChunk(const char* type, const QByteArray& content)
{
    const QByteArray body = type + content;
    m_file.write(number(static_cast<quint32>(content.size())) + body + number(checksum(body)));
}

void PngFile::writeZeros(qint64 count)
{
    writeChunk("IDAT", QByteArray("\x78\x01"));
    const QByteArray block = "IDAT" + blockOfZeros();
    const QByteArray chunk =
        number(static_cast<quint32>(block.size() - 4)) + block + number(checksum(block));
    for (qint64 written = 0; written < count / kZerosInBlock; ++written) {
        m_file.write(chunk);
    }
    constexpr qint64 modulus = 65521;
    const auto sum = static_cast<quint32>(count % modulus) << 16 | 1;
    writeChunk("IDAT", lastBlock(static_cast<int>(count % kZerosInBlock)) + number(sum));
}
