#pragma once

#include "../HostFixture.h"
#include "EditorMenus.h"
#include "libs/trelprogramschedule/dispatch/ScheduleWriting.h"
#include "libs/trelprogramschedule/effect/OtherProgram.h"
#include "support/TestClock.h"
#include "trelprogramschedule/catalogue/ProgramImporter.h"
#include "trelprogramschedule/dispatch/ScreenDispatch.h"
#include "trelprogramschedule/dispatch/ScreenTimeline.h"

#include <QAction>
#include <QHelpEvent>
#include <QLabel>
#include <QToolTip>

/// Set before the windows come.
struct MondayMorning
{
    TestClock clock{QDateTime(QDate(2024, 3, 4), QTime(8, 0, 3))};
};

/// The host's window on a store with the programs “Opening” of 10 s, “News” of 4 s, the image
/// “Poster” and “Spot” of 6 s, which texts of schedules call A to D, on Monday, 2024.03.04, at
/// 08:00:03.
struct EffectFixture : MondayMorning, HostFixture
{
    explicit EffectFixture(const char* plans = "08:00:00-08:01:00 A B D",
                           const QStringList& names = {
                               QStringLiteral("Opening"), QStringLiteral("News"),
                               QStringLiteral("Poster"), QStringLiteral("Spot")})
    {
        using trel::mediadispatch::MediaSource;
        using trel::mediadispatch::ProgramKind;
        QCOMPARE(window.openDatabase(database), QString());
        std::vector<MediaSource> sources;
        for (const QString& name : names) {
            const QString file = folder.filePath(QString::number(sources.size()));
            QFile made(file);
            QVERIFY(made.open(QIODevice::WriteOnly));
            sources.push_back({name, file, 0.0, ProgramKind::Video});
        }
        sources[0].durationMs = 10000.0;
        sources[1].durationMs = 4000.0;
        sources[2].kind = ProgramKind::Image;
        sources[3].durationMs = 6000.0;
        QVERIFY(host.addPrograms(sources).store);
        save(QStringLiteral("1 2024.03.04-2024.03.10 / %1").arg(QLatin1String(plans)));
        window.show();
    }

    void save(const QString& schedule)
    {
        QVERIFY(host.replaceSchedule(scheduleFromText(schedule)));
    }
    /// As the editor's button.
    void start() { manager.slotOpen(); }
    trel::mediadispatch::PlayPlan inserted(const char* plan, bool isOneProgram = false) const
    {
        trel::mediadispatch::PlayPlan made = planFromText(QLatin1String(plan));
        made.serviceFlagA = true;
        made.serviceFlagB = isOneProgram;
        made.endAction = trel::mediadispatch::FreezeCurrentFrame;
        return made;
    }
    /// As the chooser's menu.
    void insert(const trel::mediadispatch::PlayPlan& plan)
    {
        manager.setInsertPlanTask(1, plan.id, plan, true);
    }
    void insertDelayed(const trel::mediadispatch::PlayPlan& plan)
    {
        manager.setInsertPlanTaskDelayExcute(1, plan.id, plan);
    }
    /// Cuts in what another program asks for.
    void insertElsewhere(OtherProgram& other, const trel::mediadispatch::PlayPlan& plan)
    {
        trel::mediadispatch::ScreenInsertion request;
        request.taskId = 1;
        request.planId = plan.id;
        request.plan = plan;
        QVERIFY(other.write(
            host.dispatch().timeline().withInsertion({}, request, clock.msecsSinceEpoch(), false),
            other.effect().revision));
    }

    QLabel& label(const char* name) const
    {
        auto* found = window.findChild<QLabel*>(QLatin1String(name));
        if (found == nullptr) {
            qFatal("There is no label %s.", name);
        }
        return *found;
    }
    /// "-" for a label that cannot be seen.
    QString text(const char* name) const
    {
        return label(name).isVisible() ? label(name).text() : QStringLiteral("-");
    }
    QString toolTip(const char* name) const
    {
        QToolTip::hideText();
        QHelpEvent event(QEvent::ToolTip, QPoint(2, 2), label(name).mapToGlobal({2, 2}));
        QCoreApplication::sendEvent(&label(name), &event);
        return QToolTip::text();
    }
    const trel::desktop::EditorMenus& menus() const
    {
        return *window.findChild<trel::desktop::EditorMenus*>();
    }
};
