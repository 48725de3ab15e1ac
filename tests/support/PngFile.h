#pragma once

#include <QFile>
#include <QSize>
#include <QString>

/// Writes a black picture of any size without ever holding it in memory.
class PngFile
{
public:
    enum class Layout {
        Stripes,
        Passes, ///< Interlaced, and only the beginning of the data.
    };

    /// False when the file cannot be written.
    static bool write(const QString& path, const QSize& size, Layout layout = Layout::Stripes);

private:
    explicit PngFile(QFile& file);

    void writeChunk(const char* type, const QByteArray& content);
    void writeZeros(qint64 count);

    QFile& m_file;
};
