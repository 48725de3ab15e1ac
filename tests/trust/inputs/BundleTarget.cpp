#include "BundleTarget.h"

#include "FuzzTarget.h"
#include "QuickFolder.h"

#include "trelprogramschedule/bundle/BundleFolder.h"
#include "trelprogramschedule/bundle/BundleReader.h"

#include <QBuffer>
#include <QCryptographicHash>
#include <QDir>
#include <QDirIterator>
#include <QFile>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <random>

using namespace trel::mediadispatch;

namespace trust {

namespace {

/// The form of an archive.
constexpr std::size_t kBlock = 512;
constexpr std::size_t kSumPlace = 148;
constexpr std::size_t kSumSize = 8;
constexpr std::size_t kMarkPlace = 257;
constexpr char kMark[] = "ustar";

/// What a sentence may take at most: two names, and what stands around them.
constexpr int kLongestSentence = 2000;

/// Everything below a folder but folders, by its path.
QStringList filesIn(const QString& folder)
{
    QStringList files;
    QDirIterator next(folder, QDir::Files | QDir::Hidden | QDir::System,
                      QDirIterator::Subdirectories);
    while (next.hasNext()) {
        files.append(next.next());
    }
    files.sort();
    return files;
}

QByteArray hashOf(const QString& path)
{
    QFile file(path);
    QCryptographicHash hash(QCryptographicHash::Sha256);
    expect(file.open(QIODevice::ReadOnly) && hash.addData(&file), "what was put there is a file");
    return hash.result().toHex();
}

void expectSentence(const BundleFault& fault)
{
    const QString text = englishClause(fault);
    expect(!text.isEmpty() && text.size() <= kLongestSentence, "a reason has a bounded length");
}

/// All that the schedule names, also what the bundle does not have.
std::map<std::string, NamedProgram> wantedOf(const BundleReader& reader)
{
    std::map<std::string, NamedProgram> wanted;
    for (const NamedProgram& program : reader.schedule().programs) {
        wanted.try_emplace(program.sha256, program);
    }
    return wanted;
}

void expectFiles(const BundleFolder& folder, const QString& root, const QString& media)
{
    QStringList told;
    for (const auto& [hash, file] : folder.files()) {
        expect(hashOf(file.path).toStdString() == hash, "a file has its hash");
        expect(QFileInfo(file.path).path() == media, "a file stands in the folder");
        told.append(file.path);
    }
    told.sort();
    expect(filesIn(root) == told, "nothing else lies around");
}

} // namespace

void tryBundle(const QByteArray& input)
{
    static const QuickFolder scratch;
    QByteArray bytes = input;
    QBuffer device(&bytes);
    expect(device.open(QIODevice::ReadOnly), "the input can be read");
    BundleReader reader(device);
    if (const BundleFault fault = reader.open()) {
        expectSentence(fault);
        return;
    }
    expect(reader.schedule().isNamed && !reader.schedule().fault, "a bundle has a schedule");
    const QString media = scratch.filePath(QStringLiteral("media"));
    {
        BundleFolder folder(media, wantedOf(reader));
        const BundleFault fault = reader.readMedia(folder);
        if (fault) {
            expectSentence(fault);
        } else {
            expectFiles(folder, scratch.path(), media);
        }
    }
    expect(filesIn(scratch.path()).isEmpty(), "what is not kept goes again");
}

namespace {

bool isHead(const std::uint8_t* block)
{
    return std::memcmp(block + kMarkPlace, kMark, sizeof kMark - 1) == 0;
}

void mendSum(std::uint8_t* block)
{
    std::memset(block + kSumPlace, ' ', kSumSize);
    unsigned sum = 0;
    for (std::size_t i = 0; i < kBlock; ++i) {
        sum += block[i];
    }
    char digits[kSumSize] = {};
    std::snprintf(digits, sizeof digits, "%06o", sum);
    std::memcpy(block + kSumPlace, digits, kSumSize - 1);
}

void mendSums(std::uint8_t* data, std::size_t size)
{
    for (std::size_t place = 0; place + kBlock <= size; place += kBlock) {
        if (isHead(data + place)) {
            mendSum(data + place);
        }
    }
}

/// Puts the hash of the second entry where the first one tells it.
void mendHash(std::uint8_t* data, std::size_t size)
{
    constexpr std::size_t digits = 64;
    constexpr int sizePlace = 124;
    constexpr int sizeDigits = 11;
    const auto bytes =
        QByteArray::fromRawData(reinterpret_cast<const char*>(data), static_cast<int>(size));
    const int head = bytes.indexOf("schedule.json");
    const QByteArray label = "\"scheduleSha256\": \"";
    const int place = bytes.indexOf(label);
    if (head < 0 || place < 0 || static_cast<std::size_t>(head) + kBlock > size ||
        static_cast<std::size_t>(place + label.size()) + digits > size) {
        return;
    }
    const int length = bytes.mid(head + sizePlace, sizeDigits).toInt(nullptr, 8);
    const QByteArray content = bytes.mid(head + static_cast<int>(kBlock), std::max(length, 0));
    const QByteArray hash = QCryptographicHash::hash(content, QCryptographicHash::Sha256).toHex();
    std::memcpy(data + place + label.size(), hash.constData(), digits);
}

} // namespace

std::size_t mutateBundle(std::uint8_t* data, std::size_t size, std::size_t mostSize, unsigned seed)
{
    std::mt19937 chance(seed);
    const auto below = [&chance](std::size_t end) {
        return chance() % std::max<std::size_t>(end, 1);
    };
    if (size > 0) {
        data[below(size)] = static_cast<std::uint8_t>(chance());
    }
    if (below(4) == 0) {
        // Some blocks once more at the end, or an end less.
        const std::size_t blocks = std::min(size, mostSize - size) / kBlock;
        const std::size_t piece = below(blocks + 1) * kBlock;
        std::memmove(data + size, data + below((size - piece) / kBlock + 1) * kBlock, piece);
        size = below(2) == 0 ? size + piece : below(size + 1);
    }
    if (below(4) != 0) {
        mendHash(data, size);
        mendSums(data, size);
    }
    return size;
}

} // namespace trust
