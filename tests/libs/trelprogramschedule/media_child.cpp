// A program that holds the service itself, for tests that put it beside another module for media
// files, or beside none. Tells line by line what it finds in the files that it is given.

#include "catalogue/ProgramImporter.h"
#include "media/PictureRequest.h"

#include <QCoreApplication>
#include <QTextStream>

#include <cstdio>

using namespace trel::mediadispatch;

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList paths = QCoreApplication::arguments().mid(1);
    QTextStream out(stdout);
    const ImportScan scan = scanMedia(paths);
    for (const MediaSource& source : scan.sources) {
        out << "source " << source.path << ' ' << source.durationMs << '\n';
    }
    for (const ImportRefusal& refusal : scan.refusals) {
        out << "refusal " << refusal.path << ": " << refusal.reason << '\n';
    }
    for (const QString& path : paths) {
        const std::atomic<bool> isCancelled(false);
        const MediaPicture picture = firstPicture(path, QSize(160, 160), isCancelled);
        out << "picture " << picture.size.width() << 'x' << picture.size.height() << '\n';
    }
    return 0;
}
