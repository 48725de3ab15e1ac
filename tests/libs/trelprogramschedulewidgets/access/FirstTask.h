#pragma once

#include "EditorWindow.h"

#include "PlanList.h"
#include "PlanTaskWidget.h"
#include "ScheduleText.h"
#include "support/RecordingService.h"

#include <QApplication>
#include <QDir>

/// The editor on screen in a language, without a task, over a catalogue of three programs: for the
/// first task of an operator. Of this the tests say how it is made.
class FirstTask
{
public:
    explicit FirstTask(const QString& language)
    {
        RecordingService& service = RecordingService::instance();
        service.reset();
        service.addProgram(1, "Film", 60000.0);
        service.addProgram(2, "News", 30000.0);
        service.addProgram(3, "Weather", 10000.0);
        m_window.dialog.loadLanguageFiles({QStringLiteral(LANGUAGE_DIR "/%1.qm").arg(language)});
        m_window.dialog.switchLanguage(language);
        m_window.dialog.translate();
        m_window.dialog.slotShow();
        comeBack();
        m_clock.advance(2000);
    }

    trel::mediadispatch::scheduleControlUI& dialog() { return m_window.dialog; }
    trel::mediadispatch::centerWidget& panel() const { return m_window.panel(); }
    /// After another window no window manager gives the keys back to the one below.
    void comeBack()
    {
        m_window.dialog.activateWindow();
        QTRY_COMPARE(QApplication::activeWindow(), &m_window.dialog);
    }
    /// A box of days takes a press that follows its last one at once for a part of it.
    void wait() { m_clock.advance(1000); }

    /// The tasks when it has been saved, each as a line; what is not saved yet is none.
    static QStringList saved()
    {
        QStringList lines;
        const RecordingService& service = RecordingService::instance();
        if (service.count(QStringLiteral("save")) == 1) {
            for (const auto& [id, task] : service.working) {
                lines.append(line(task));
            }
        }
        return lines;
    }

    /// That is the first task: two dates, two programs, a time and two days.
    static QString wanted()
    {
        return QStringLiteral("1 2024.04.01-2024.04.30 "
                              "[id 1 time 10:00:00-11:30:00 x1 days 1,3 end 0 <2x1,1x1>]");
    }

    static QStringList languages()
    {
        QStringList names;
        const QStringList files =
            QDir(QStringLiteral(LANGUAGE_DIR)).entryList({QStringLiteral("*.qm")}, QDir::Files);
        for (const QString& file : files) {
            names.append(file.left(file.indexOf(QLatin1Char('.'))));
        }
        return names;
    }

private:
    ClockAfterStart m_clock;
    EditorWindow m_window;
};
