#pragma once

#include "bundle/BundleReader.h"
#include "bundle/BundleWriter.h"

#include <QBuffer>
#include <QCryptographicHash>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <map>

/// A folder with media of two programs, and a bundle of them. Nothing of it is a film: a bundle
/// takes any bytes.
class BundleFixture
{
public:
    BundleFixture()
    {
        add(7, "News", QByteArray(100000, 'n'));
        add(3, "Weather", "sunny");
        trel::mediadispatch::PlayTask task;
        task.id = 1;
        task.plans.emplace_back().programs = {{7, false, "News", 1}, {3, false, "Weather", 2}};
        contents.tasks = {{1, task}};
    }

    QString path(const char* name) const { return folder.filePath(QLatin1String(name)); }
    QString bundle() const { return path("all.bundle"); }

    /// A program with its file.
    void add(int index, const char* name, const QByteArray& bytes)
    {
        trel::mediadispatch::NamedProgram& program = contents.programs.emplace_back();
        program.progIndex = index;
        program.name = name;
        program.path = path(name).toStdString() + ".mp4";
        program.size = bytes.size();
        program.sha256 = hashOf(bytes);
        contents.files[program.sha256] = QString::fromStdString(program.path);
        writeFile(QString::fromStdString(program.path), bytes);
    }

    /// Writes the bundle and gives its bytes.
    QByteArray written() const
    {
        const trel::mediadispatch::BundleFault fault = writeBundle(bundle(), contents);
        [&] { QVERIFY2(!fault, qPrintable(englishClause(fault))); }();
        return contentOf(bundle());
    }

    static std::string hashOf(const QByteArray& bytes)
    {
        return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex().toStdString();
    }
    static void writeFile(const QString& path, const QByteArray& bytes)
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(bytes), qint64(bytes.size()));
    }
    static QByteArray contentOf(const QString& path)
    {
        QFile file(path);
        [&] { QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(path)); }();
        return file.readAll();
    }

    QTemporaryDir folder;
    trel::mediadispatch::BundleContents contents;
};

/// Keeps what it gets, by its hash; nothing of what is not wanted.
class KeepingSink final : public trel::mediadispatch::BundleSink
{
public:
    using BundleFault = trel::mediadispatch::BundleFault;

    explicit KeepingSink(bool isWanting = true)
        : m_isWanting(isWanting)
    {}

    BundleFault begin(const trel::mediadispatch::BundleMedia& media, bool& isWanted) override
    {
        m_hash = media.sha256;
        m_now.clear();
        isWanted = m_isWanting;
        return {};
    }
    BundleFault write(const char* bytes, std::size_t size) override
    {
        m_now.append(bytes, static_cast<int>(size));
        return {};
    }
    BundleFault end() override
    {
        kept[m_hash] = m_now;
        return {};
    }

    std::map<std::string, QByteArray> kept;

private:
    bool m_isWanting;
    std::string m_hash;
    QByteArray m_now;
};

/// What comes of reading a bundle to its end: the reason, or "read".
inline QString readText(QByteArray bytes, trel::mediadispatch::BundleSink& sink)
{
    QBuffer device(&bytes);
    [&] { QVERIFY(device.open(QIODevice::ReadOnly)); }();
    trel::mediadispatch::BundleReader reader(device);
    trel::mediadispatch::BundleFault fault = reader.open();
    if (!fault) {
        fault = reader.readMedia(sink);
    }
    return fault ? englishClause(fault) : QStringLiteral("read");
}
