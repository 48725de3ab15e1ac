#include "PostgresServer.h"

#include <QCoreApplication>
#include <QProcess>

#include <cstdio>

/// with_server PROGRAM [ARGUMENT...]: runs a program while a server is there for it, whose address
/// it finds in its environment. Gives its exit code; 99 where there is no server.
int main(int argc, char** argv)
{
    constexpr int noServer = 99;
    const QCoreApplication application(argc, argv);
    QStringList words = QCoreApplication::arguments().mid(1);
    const PostgresServer server;
    if (words.isEmpty() || !server.isRunning()) {
        std::fputs("with_server: there is no server, or nothing to run with it\n", stderr);
        return noServer;
    }
    const QString address = server.address(QString());
    qputenv("TREL_TEST_SERVER", address.section(QLatin1Char('?'), 0, 0).toUtf8());
    const QString program = words.takeFirst();
    return QProcess::execute(program, words);
}
