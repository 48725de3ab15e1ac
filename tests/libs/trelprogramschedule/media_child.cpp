// A program that holds the service itself, for tests that put it beside another reader of media
// files, or beside none. Tells line by line what it finds in the files that it is given. With
// --wait it tells the id of its reader instead, once that has read the file, and stays.

#include "catalogue/ProgramImporter.h"
#include "media/MediaReaderClient.h"
#include "media/PictureRequest.h"
#include "trelprogramschedule/faults/FaultWords.h"

#include <QCoreApplication>
#include <QFile>
#include <QTextStream>

#include <cstdio>

#include <unistd.h>

using namespace trel::mediadispatch;

namespace {

/// The one process that this one has started.
QByteArray child()
{
    QFile list(QStringLiteral("/proc/self/task/%1/children").arg(::getpid()));
    list.open(QIODevice::ReadOnly);
    return list.readAll();
}

[[noreturn]] void readAndStay(const QString& path)
{
    MediaReaderClient client(MediaReaderClient::Purpose::Facts, mediaReading());
    client.facts(path, true, {});
    QTextStream(stdout) << child() << '\n';
    for (;;) {
        ::pause();
    }
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList paths = QCoreApplication::arguments().mid(1);
    if (paths.value(0) == QLatin1String("--wait")) {
        readAndStay(paths.value(1));
    }
    QTextStream out(stdout);
    const ImportScan scan = scanMedia(paths);
    for (const MediaSource& source : scan.sources) {
        out << "source " << source.path << ' ' << source.durationMs << '\n';
    }
    for (const ImportRefusal& refusal : scan.refusals) {
        out << "refusal " << refusal.path << ": " << englishSentence(refusal.fault) << '\n';
    }
    for (const QString& path : paths) {
        const std::atomic<bool> isCancelled(false);
        const MediaPicture picture =
            readPicture(path, ProgramKind::Video, QSize(160, 160), isCancelled);
        out << "picture " << picture.size.width() << 'x' << picture.size.height() << '\n';
    }
    return 0;
}
