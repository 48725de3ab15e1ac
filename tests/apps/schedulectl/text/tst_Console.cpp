#include "support/TestProgram.h"
#include "text/Console.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <cstdio>
#include <functional>

#include <fcntl.h>
#include <unistd.h>

using trel::console::Console;

namespace {

/// What is written to a stream of the process meanwhile.
QByteArray written(std::FILE* stream, const std::function<void(Console&)>& action)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("stream"));
    std::fflush(stream);
    const int file =
        ::open(QFile::encodeName(path).constData(), O_CREAT | O_WRONLY | O_CLOEXEC, 0600);
    const int former = ::fcntl(::fileno(stream), F_DUPFD_CLOEXEC, 3);
    ::dup2(file, ::fileno(stream));
    {
        Console console;
        action(console);
        console.flush();
    }
    std::fflush(stream);
    ::dup2(former, ::fileno(stream));
    ::close(former);
    ::close(file);
    QFile result(path);
    return result.open(QIODevice::ReadOnly) ? result.readAll() : QByteArray();
}

} // namespace

/// Whatever a command hands over, a terminal gets nothing that it would obey.
class tst_Console : public QObject
{
    Q_OBJECT

private slots:
    void resultsAreEscaped();
    void whatIsToldIsEscaped();
};

void tst_Console::resultsAreEscaped()
{
    const QString text = QStringLiteral("a\x1B[2Jb\nc\u202Ed");
    QCOMPARE(written(stdout, [&](Console& console) { console.write(text); }),
             QByteArray("a\\x1b[2Jb\nc\\u202ed"));
    QCOMPARE(written(stdout, [&](Console& console) { console.writeLine(text); }),
             QByteArray("a\\x1b[2Jb\\nc\\u202ed\n"));
}

void tst_Console::whatIsToldIsEscaped()
{
    const QString text = QStringLiteral("a\x1B[2Jb\nc");
    QCOMPARE(written(stderr, [&](Console& console) { console.tell(text); }),
             QByteArray("schedulectl: a\\x1b[2Jb\\nc\n"));
    QCOMPARE(written(stderr, [&](Console& console) { console.tellLine(text); }),
             QByteArray("a\\x1b[2Jb\\nc\n"));
}

TREL_TEST(tst_Console, trel::tests::NoApplication)
#include "tst_Console.moc"
