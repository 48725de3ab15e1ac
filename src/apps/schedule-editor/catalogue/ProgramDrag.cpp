#include "catalogue/ProgramDrag.h"

#include <QCoreApplication>
#include <QDataStream>
#include <QMimeData>
#include <QVector>

#include <memory>

namespace trel::desktop::programdrag {

namespace {

/// More than any catalogue has, so that no garbage takes memory.
constexpr int kMostPrograms = 1000000;

} // namespace

QString mimeType()
{
    return QStringLiteral("application/x-trel-programs");
}

QMimeData* make(const std::vector<int>& programs)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out << qint64(QCoreApplication::applicationPid()) << static_cast<qint32>(programs.size());
    for (const int program : programs) {
        out << static_cast<qint32>(program);
    }
    auto data = std::make_unique<QMimeData>();
    data->setData(mimeType(), bytes);
    return data.release();
}

std::vector<int> programs(const QMimeData* data)
{
    if (data == nullptr || !data->hasFormat(mimeType())) {
        return {};
    }
    QDataStream in(data->data(mimeType()));
    qint64 process = 0;
    qint32 count = 0;
    in >> process >> count;
    if (process != QCoreApplication::applicationPid() || count < 0 || count > kMostPrograms) {
        return {};
    }
    std::vector<int> programs;
    for (qint32 i = 0; i < count && in.status() == QDataStream::Ok; ++i) {
        qint32 program = 0;
        in >> program;
        programs.push_back(program);
    }
    return in.status() == QDataStream::Ok && in.atEnd() ? programs : std::vector<int>();
}

} // namespace trel::desktop::programdrag
