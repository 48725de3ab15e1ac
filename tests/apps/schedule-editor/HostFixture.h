#pragma once

#include "EditorWindow.h"
#include "Languages.h"
#include "look/Themes.h"
#include "scheduleControlUI.h"
#include "service/scheduleManage.h"
#include "trelprogramschedule/ScheduleHost.h"

#include <QAbstractButton>
#include <QTableView>
#include <QTemporaryDir>
#include <QtTest>

/// The host's windows on a database in a folder of its own, in English.
struct HostFixture
{
    HostFixture()
        : host(trel::mediadispatch::ScheduleHost::instance())
        , manager(trel::mediadispatch::scheduleManage::getInstance())
        , database(folder.filePath(QStringLiteral("screen.db")))
        , editor(quietEditor())
        , languages(QStringLiteral(LANGUAGES), *editor)
        , themes(*qApp)
        , window(*editor, languages, themes)
    {
        languages.select(QStringLiteral("en_US"));
    }

    ~HostFixture() { host.close(); }
    Q_DISABLE_COPY(HostFixture)

    /// Shows the editor as the host does, without the wait of the first second.
    void showEditor()
    {
        editor->show();
        editor->clearAndInitialize();
    }

    /// Shows the editor with the demonstration's schedule, its first card open.
    void showDemonstration()
    {
        QCOMPARE(window.openDatabase(database, QStringLiteral(DEMONSTRATION)), QString());
        showEditor();
        firstCard()->findChild<QAbstractButton*>(QStringLiteral("title"))->setChecked(false);
        QCoreApplication::processEvents();
    }

    QWidget* firstCard() const
    {
        return editor->findChild<QWidget*>(QStringLiteral("PlanTaskWidget"));
    }
    QTableView* firstTable() const
    {
        return firstCard()->findChild<QTableView*>(QStringLiteral("schedule"));
    }

    /// What stands in a cell of it.
    QWidget* cell(int row, int column) const
    {
        const QTableView* table = firstTable();
        return table->indexWidget(table->model()->index(row, column));
    }

    /// Copies of the demonstration's media, which a test may lose.
    QString copyMedia(const QString& name)
    {
        QDir target(folder.path());
        target.mkpath(name);
        target.cd(name);
        const QDir media(QStringLiteral(DEMONSTRATION "/media"));
        const QStringList files = media.entryList(QDir::Files);
        for (const QString& file : files) {
            QFile::copy(media.filePath(file), target.filePath(file));
        }
        return target.path();
    }

    QTemporaryDir folder;
    trel::mediadispatch::ScheduleHost& host;
    trel::mediadispatch::scheduleManage& manager;
    QString database;
    std::unique_ptr<trel::mediadispatch::scheduleControlUI> editor;
    trel::desktop::Languages languages;
    trel::desktop::Themes themes;
    trel::desktop::EditorWindow window;

private:
    /// The editor has two connections without a receiver, and says so when it is made.
    static std::unique_ptr<trel::mediadispatch::scheduleControlUI> quietEditor()
    {
        const QRegularExpression refused(QStringLiteral("invalid nullptr parameter"));
        QTest::ignoreMessage(QtWarningMsg, refused);
        QTest::ignoreMessage(QtWarningMsg, refused);
        return std::make_unique<trel::mediadispatch::scheduleControlUI>();
    }
};
