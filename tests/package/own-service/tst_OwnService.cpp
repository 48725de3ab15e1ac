#include "Station.h"

#include <scheduleControlUI.h>
#include <service/scheduleManage.h>

#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

using namespace trel::mediadispatch;

namespace {

void click(const QWidget& editor, const char* name)
{
    QTest::mouseClick(editor.findChild<QPushButton*>(QLatin1String(name)), Qt::LeftButton);
}

} // namespace

/// The service of the example behind the editor of the package.
class tst_OwnService : public QObject
{
    Q_OBJECT

private slots:
    void theClassHasItsMetaObject();
    void keepsWhatIsSaved();
    void tellsOfASaveThatIsRefused();
    void startsWhatIsSaved();
    void refusesWhatIsNoSchedule();

private:
    QTemporaryDir m_folder;
    QString m_path = m_folder.filePath(QStringLiteral("station.json"));
    Station& m_station = Station::instance();

    /// The editor, shown on a copy of the example's schedule.
    std::unique_ptr<scheduleControlUI> opened()
    {
        QFile::remove(m_path);
        if (!QFile::copy(QStringLiteral(SCHEDULE), m_path) ||
            !QFile::setPermissions(m_path, QFile::ReadOwner | QFile::WriteOwner)) {
            qFatal("cannot write %s", qPrintable(m_path));
        }
        if (const QString reason = m_station.file.open(m_path); !reason.isEmpty()) {
            qFatal("%s", qPrintable(reason));
        }
        auto editor = std::make_unique<scheduleControlUI>();
        editor->translate();
        // What is asked for in the first second is dropped.
        [&] { QTRY_VERIFY((editor->slotShow(), editor->isVisible())); }();
        return editor;
    }
};

void tst_OwnService::theClassHasItsMetaObject()
{
    QSignalSpy changes(&scheduleManage::getInstance(), &scheduleManage::sigProgIndexChanged);
    QVERIFY(changes.isValid());
    emit scheduleManage::getInstance().sigProgIndexChanged();
    QCOMPARE(changes.size(), 1);
}

void tst_OwnService::keepsWhatIsSaved()
{
    const auto editor = opened();
    QCOMPARE(m_station.working.size(), std::size_t(2));
    const ScheduleFile::Tasks before = m_station.file.tasks();
    // The list takes no new task in the second after it was read.
    const auto isAdded = [&] {
        if (m_station.working.size() < 3) {
            click(*editor, "pushButtonAddTask");
        }
        return m_station.working.size() == 3;
    };
    QTRY_VERIFY(isAdded());
    click(*editor, "pushButtonSave");
    QVERIFY(!editor->isVisible());

    ScheduleFile read;
    QCOMPARE(read.open(m_path), QString());
    QCOMPARE(read.programs().size(), std::size_t(4));
    QCOMPARE(read.tasks().size(), std::size_t(3));
    for (const auto& [id, task] : before) {
        QVERIFY(read.tasks().at(id) == task);
    }
}

void tst_OwnService::tellsOfASaveThatIsRefused()
{
    const auto editor = opened();
    QString told;
    m_station.refused = [&told](const QString& reason) { told = reason; };
    QVERIFY(QFile::remove(m_path));
    QVERIFY(QDir().mkdir(m_path));
    click(*editor, "pushButtonSave");
    QVERIFY2(told.startsWith(m_path), qPrintable(told));
    QVERIFY(QDir().rmdir(m_path));
    m_station.refused = nullptr;
}

void tst_OwnService::startsWhatIsSaved()
{
    const auto editor = opened();
    QVERIFY(scheduleManage::getInstance().getScheduleState());
    click(*editor, "pushButtonStart");
    QVERIFY(!scheduleManage::getInstance().getScheduleState());
    int index = -1;
    const PlayPlan plan = scheduleManage::getInstance().getNowUsePlan(1, 2, index);
    QCOMPARE(index, 1);
    // Ten runs of two minutes.
    QCOMPARE(QString::fromStdString(plan.endTime), QStringLiteral("12:20:00"));
}

void tst_OwnService::refusesWhatIsNoSchedule()
{
    const QString path = m_folder.filePath(QStringLiteral("none.json"));
    ScheduleFile file;
    QVERIFY(file.open(path).startsWith(path));
    QFile broken(path);
    QVERIFY(broken.open(QIODevice::WriteOnly) && broken.write("{ \"programs\": [") > 0);
    broken.close();
    QVERIFY(file.open(path).contains(QStringLiteral("at byte")));
}

QTEST_MAIN(tst_OwnService)
#include "tst_OwnService.moc"
