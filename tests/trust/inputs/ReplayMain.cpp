// Usage: PROGRAM TARGET FILE-OR-FOLDER...
//
// Gives a target the inputs of its corpus, one after the other, without a fuzzer: what was found
// once is tested for good, by any compiler.

#include "FuzzTarget.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTextCodec>

#include <cstdio>

namespace {

QStringList inputsOf(const QStringList& paths)
{
    QStringList files;
    for (const QString& path : paths) {
        if (!QFileInfo(path).isDir()) {
            files.append(path);
            continue;
        }
        const QFileInfoList inFolder = QDir(path).entryInfoList(QDir::Files, QDir::Name);
        for (const QFileInfo& file : inFolder) {
            files.append(file.filePath());
        }
    }
    return files;
}

} // namespace

int main(int argc, char* argv[])
{
    qputenv("TZ", "Europe/Berlin");
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const trust::FuzzTarget& target = trust::targetNamed(arguments.value(1));
    const QStringList files = inputsOf(arguments.mid(2));
    for (const QString& path : files) {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly)) {
            std::fprintf(stderr, "%s cannot be read\n", qUtf8Printable(path));
            return 1;
        }
        // Stands last in the log where the input ends the program.
        std::fprintf(stderr, "%s\n", qUtf8Printable(path));
        target.run(file.readAll());
    }
    std::printf("%s: %d inputs\n", target.name, static_cast<int>(files.size()));
    return files.isEmpty() ? 1 : 0;
}
