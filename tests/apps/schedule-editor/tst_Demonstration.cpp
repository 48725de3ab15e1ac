#include "Demonstration.h"
#include "service/scheduleManage.h"
#include "support/TestProgram.h"
#include "trelprogramschedule/ScheduleHost.h"

#include <QCoreApplication>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>
#include <set>

using namespace trel::desktop;
using namespace trel::mediadispatch;

class tst_Demonstration : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void fillsAnEmptyStore();
    void everyEntryNamesItsProgram();
    void theFirstTaskBeginsToday();
    void tasksKeepTheirLengthsAndGaps();
    void mediaStayWhenTheFolderGoes();
    void aFolderWithoutAScheduleIsNamed();
    void aBrokenScheduleIsNamedAndNothingIsTakenIn();

private:
    static QString demonstration() { return QStringLiteral(DEMONSTRATION); }
    static QDate date(const std::string& text)
    {
        return QDate::fromString(QString::fromStdString(text), kDateFormat);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    ScheduleHost& m_host = ScheduleHost::instance();
};

void tst_Demonstration::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_host.open(m_folder->filePath(QStringLiteral("new.db"))));
}

void tst_Demonstration::cleanup()
{
    m_host.close();
}

void tst_Demonstration::fillsAnEmptyStore()
{
    QCOMPARE(fillWithDemonstration(demonstration()), QString());

    QCOMPARE(scheduleManage::getInstance().getPrograms().size(), std::size_t(8));
    QCOMPARE(scheduleManage::getInstance().getgTaskMap().size(), std::size_t(3));
    QVERIFY(!m_host.hasUnsavedChanges());
}

void tst_Demonstration::everyEntryNamesItsProgram()
{
    fillWithDemonstration(demonstration());

    const std::map<int, ProgramIten> programs = scheduleManage::getInstance().getPrograms();
    for (const auto& [id, task] : scheduleManage::getInstance().getgTaskMap()) {
        for (const PlayPlan& plan : task.plans) {
            for (const struProgInfo& entry : plan.programs) {
                const auto program = programs.find(entry.progIndex);
                QVERIFY(program != programs.end());
                QCOMPARE(QString::fromStdString(entry.progName),
                         QString::fromStdString(program->second.progName));
                QVERIFY(!program->second.isNull);
            }
        }
    }
}

void tst_Demonstration::theFirstTaskBeginsToday()
{
    const QDate before = QDate::currentDate();
    fillWithDemonstration(demonstration());
    const QDate after = QDate::currentDate();

    const QDate first = date(scheduleManage::getInstance().getgTaskMap().begin()->second.startDate);
    QVERIFY(first == before || first == after);
}

void tst_Demonstration::tasksKeepTheirLengthsAndGaps()
{
    fillWithDemonstration(demonstration());

    QDate free;
    for (const auto& [id, task] : scheduleManage::getInstance().getgTaskMap()) {
        QVERIFY(date(task.startDate) <= date(task.endDate));
        QVERIFY(free.isNull() || date(task.startDate) == free);
        free = date(task.endDate).addDays(1);
    }
}

void tst_Demonstration::mediaStayWhenTheFolderGoes()
{
    fillWithDemonstration(demonstration());

    for (const auto& [index, program] : scheduleManage::getInstance().getPrograms()) {
        const QString path = QString::fromStdString(program.mediaPath);
        QVERIFY2(path.startsWith(m_folder->path()), qPrintable(path));
        QVERIFY(QFile::exists(path));
    }
}

void tst_Demonstration::aFolderWithoutAScheduleIsNamed()
{
    const QString error = fillWithDemonstration(m_folder->filePath(QStringLiteral("nowhere")));

    QVERIFY2(error.contains(QStringLiteral("nowhere/schedule.json")), qPrintable(error));
}

void tst_Demonstration::aBrokenScheduleIsNamedAndNothingIsTakenIn()
{
    QFile file(m_folder->filePath(QStringLiteral("schedule.json")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("{ \"format\": ");
    file.close();

    const QString error = fillWithDemonstration(m_folder->path());

    QVERIFY2(error.contains(QStringLiteral("schedule.json")), qPrintable(error));
    QVERIFY(scheduleManage::getInstance().getPrograms().empty());
}

TREL_TEST(tst_Demonstration, QCoreApplication)
#include "tst_Demonstration.moc"
