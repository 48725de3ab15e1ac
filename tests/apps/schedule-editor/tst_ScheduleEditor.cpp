#include "support/TestProgram.h"

#include <QCoreApplication>
#include <QDir>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

/// The program as a user starts it, on a machine without a display.
class tst_ScheduleEditor : public QObject
{
    Q_OBJECT

private slots:
    void offScreenItDrawsAndSummarises();
    void thePictureOfNoNameIsTheUsersOwn();
    void theSecondStartFindsTheSameSchedule();
    void importsFromTheCommandLine();
    void aStoreThatCannotBeOpenedEndsWithOne();
    void misuseEndsWithTwo();
    void helpAndVersionEndWithNothing_data();
    void helpAndVersionEndWithNothing();

private:
    struct Run
    {
        int status = -1;
        QString out;
        QString err;
    };

    Run start(const QStringList& arguments) const
    {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
            environment.remove(QLatin1String(name));
        }
        environment.insert(QStringLiteral("XDG_DATA_HOME"), m_folder.path());
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), m_folder.path());
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(EDITOR), arguments);
        if (!process.waitForFinished(60000)) {
            process.kill();
            process.waitForFinished();
        }
        return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
                QString::fromUtf8(process.readAllStandardOutput()),
                QString::fromUtf8(process.readAllStandardError())};
    }

    QString file(const char* name) const { return m_folder.filePath(QLatin1String(name)); }

    QTemporaryDir m_folder;
};

void tst_ScheduleEditor::offScreenItDrawsAndSummarises()
{
    const Run run =
        start({QStringLiteral("--database"), file("T.db"), QStringLiteral("--screenshot"),
               file("shot.png"), QStringLiteral("--demonstration"), QStringLiteral(DEMONSTRATION)});

    QCOMPARE(run.status, 0);
    QVERIFY2(run.out.contains(QStringLiteral("There is no display; running off screen.")),
             qPrintable(run.out));
    QVERIFY(run.out.contains(QStringLiteral("3 tasks, 8 programs")));
    QVERIFY(run.out.contains(file("shot.png")));
    const QImage picture(file("shot.png"));
    QVERIFY(picture.width() >= 1140);
    QVERIFY(picture.height() >= 600);
}

/// Where no file is named: in the user's own folder, under another name each time.
void tst_ScheduleEditor::thePictureOfNoNameIsTheUsersOwn()
{
    const QDir folder(m_folder.filePath(QStringLiteral("trel/schedule")));
    const QStringList pictures{QStringLiteral("schedule-editor-??????.png")};
    for (int run = 1; run <= 2; ++run) {
        QCOMPARE(start({}).status, 0);
        const QFileInfoList found = folder.entryInfoList(pictures, QDir::Files);
        QCOMPARE(found.size(), run);
        QVERIFY(found.first().size() > 0);
        QVERIFY(!(found.first().permissions() & (QFile::ReadGroup | QFile::ReadOther)));
    }
}

void tst_ScheduleEditor::theSecondStartFindsTheSameSchedule()
{
    const QStringList arguments{QStringLiteral("--screenshot"), file("again.png"),
                                QStringLiteral("--demonstration"), QStringLiteral(DEMONSTRATION)};
    const Run first = start(arguments);
    const Run second = start(arguments);

    QCOMPARE(first.status, 0);
    QCOMPARE(second.status, 0);
    QCOMPARE(second.out, first.out);
}

void tst_ScheduleEditor::importsFromTheCommandLine()
{
    const Run run =
        start({QStringLiteral("--database"), file("imports.db"), QStringLiteral("--screenshot"),
               file("imports.png"), QStringLiteral(DEMONSTRATION "/media")});

    QCOMPARE(run.status, 0);
    QVERIFY2(run.out.contains(QStringLiteral("0 tasks, 8 programs")), qPrintable(run.out));
}

void tst_ScheduleEditor::aStoreThatCannotBeOpenedEndsWithOne()
{
    const Run run =
        start({QStringLiteral("--database"), m_folder.filePath(QStringLiteral("no/such/T.db"))});

    QCOMPARE(run.status, 1);
    QVERIFY2(run.err.contains(QStringLiteral("no/such")), qPrintable(run.err));
}

void tst_ScheduleEditor::misuseEndsWithTwo()
{
    const Run run = start({QStringLiteral("--frob")});

    QCOMPARE(run.status, 2);
    QVERIFY(run.err.contains(QStringLiteral("frob")));
}

void tst_ScheduleEditor::helpAndVersionEndWithNothing_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<QString>("words");

    QTest::newRow("help") << QStringLiteral("--help") << QStringLiteral("[MEDIA...]");
    QTest::newRow("version") << QStringLiteral("--version") << QStringLiteral(", Qt 5.");
}

void tst_ScheduleEditor::helpAndVersionEndWithNothing()
{
    QFETCH(QString, option);
    QFETCH(QString, words);

    const Run run = start({option});

    QCOMPARE(run.status, 0);
    QVERIFY2(run.out.contains(words), qPrintable(run.out));
    QCOMPARE(run.err, QString());
}

TREL_TEST(tst_ScheduleEditor, QCoreApplication)
#include "tst_ScheduleEditor.moc"
