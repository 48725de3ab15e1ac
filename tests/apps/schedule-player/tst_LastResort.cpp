#include "support/TestProgram.h"
#include "system/LastResort.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QtTest>

#include <sys/wait.h>
#include <unistd.h>

using trel::player::endProcessAfter;
using namespace std::chrono_literals;

class tst_LastResort : public QObject
{
    Q_OBJECT

private slots:
    void endsAProcessThatHangs();
    void leavesAProcessAloneThatEnds();

private:
    /// What a process ends with, and after how many milliseconds.
    template <typename Function>
    static std::pair<int, qint64> endOf(Function&& function)
    {
        QElapsedTimer timer;
        timer.start();
        const pid_t child = ::fork();
        if (child == 0) {
            function();
        }
        int status = 0;
        ::waitpid(child, &status, 0);
        return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, timer.elapsed()};
    }
};

void tst_LastResort::endsAProcessThatHangs()
{
    const auto [status, length] = endOf([] {
        ::alarm(20);
        endProcessAfter(200ms, 5);
        endProcessAfter(1h, 6);
        for (;;) {
            ::pause();
        }
    });
    QCOMPARE(status, 5);
    QVERIFY2(length >= 200 && length < 10'000, qPrintable(QString::number(length)));
}

void tst_LastResort::leavesAProcessAloneThatEnds()
{
    const auto [status, length] = endOf([] {
        endProcessAfter(1h, 5);
        ::_exit(3);
    });
    QCOMPARE(status, 3);
    QVERIFY(length < 10'000);
}

TREL_TEST(tst_LastResort, QCoreApplication)
#include "tst_LastResort.moc"
