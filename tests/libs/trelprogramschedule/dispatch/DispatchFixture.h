#pragma once

#include "ScheduleWriting.h"
#include "StateWriting.h"
#include "libs/trelprogramschedule/StoreFixture.h"
#include "support/TestClock.h"
#include "trelprogramschedule/dispatch/ScreenDispatch.h"

#include <QFile>

/// A clock that also counts how often its zone was asked for: once whenever the dispatch builds its
/// timeline, and once whenever it is woken.
class CountingClock : public TestClock
{
public:
    using TestClock::TestClock;

    QTimeZone zone() const override
    {
        ++m_looks;
        return TestClock::zone();
    }

    /// Since the last call.
    int takeLooks() { return std::exchange(m_looks, 0); }

private:
    mutable int m_looks = 0;
};

/// A store with the programs A of 10 s, B of 4 s, the image C, and D of 6 s, on a clock that stands
/// on 2024.03.04, a Monday.
class DispatchFixture : public StoreFixture
{
public:
    explicit DispatchFixture(const char* timeOfDay)
        : clock(moment(timeOfDay))
        , dispatch(host.dispatch())
    {
        for (const char letter : {'A', 'B', 'C', 'D'}) {
            const QString name = QString(QLatin1Char(letter));
            touch(name);
            sources.push_back({name, file(name), 0.0, trel::mediadispatch::ProgramKind::Video});
        }
        sources[0].durationMs = 10000.0;
        sources[1].durationMs = 4000.0;
        sources[2].kind = trel::mediadispatch::ProgramKind::Image;
        sources[3].durationMs = 6000.0;
        QVERIFY(host.addPrograms(sources).store);
        QObject::connect(&dispatch, &trel::mediadispatch::ScreenDispatch::changed, &m_context,
                         [this](const trel::mediadispatch::ScreenState& state) {
                             m_told.append(lineOf(state));
                         });
    }

    static QDateTime moment(const char* timeOfDay, int day = 4)
    {
        return {QDate(2024, 3, day),
                QTime::fromString(QLatin1String(timeOfDay), QStringLiteral("hh:mm:ss"))};
    }

    /// Of one task from that day on for a week, its plans as scheduleFromText has them.
    void saveAndStart(const char* plans)
    {
        saveTask(plans);
        manager.slotOpen();
    }
    void saveTask(const char* plans)
    {
        save(scheduleFromText(
            QStringLiteral("1 2024.03.04-2024.03.10 / %1").arg(QLatin1String(plans))));
    }

    QString file(const QString& name) const
    {
        return folder.filePath(name + QStringLiteral(".mp4"));
    }
    void touch(const QString& name) const
    {
        QFile made(file(name));
        QVERIFY(made.open(QIODevice::WriteOnly));
    }

    /// What is on screen, and for how long, as "08:00:00 plays A to 08:00:10".
    QString onScreen() const { return lineOf(dispatch.state()); }
    /// What changed() has told since the last call.
    QStringList takeTold() { return std::exchange(m_told, {}); }

    /// The program that an insertion plays, for the plan with the id 1.
    trel::mediadispatch::PlayPlan inserted(const char* plan, bool isOneProgram = false) const
    {
        trel::mediadispatch::PlayPlan made = planFromText(QLatin1String(plan));
        made.serviceFlagA = true;
        made.serviceFlagB = isOneProgram;
        return made;
    }
    void insert(const trel::mediadispatch::PlayPlan& plan)
    {
        manager.setInsertPlanTask(1, plan.id, plan, true);
    }
    void insertDelayed(const trel::mediadispatch::PlayPlan& plan)
    {
        manager.setInsertPlanTaskDelayExcute(1, plan.id, plan);
    }

    CountingClock clock;
    trel::mediadispatch::ScreenDispatch& dispatch;
    std::vector<trel::mediadispatch::MediaSource> sources;

private:
    QString lineOf(const trel::mediadispatch::ScreenState& state) const
    {
        using trel::mediadispatch::ScreenPicture;
        QString text = clock.now().toString(QStringLiteral("hh:mm:ss "));
        if (state.picture == ScreenPicture::Black) {
            text += QStringLiteral("black");
        } else {
            text +=
                QLatin1String(state.isPlaying() ? "plays " : "frozen ") + letterOf(state.progIndex);
        }
        if (state.isInserted()) {
            text += QStringLiteral(" inserted");
        }
        if (state.until != trel::mediadispatch::kNever) {
            text +=
                QStringLiteral(" to ") +
                QDateTime::fromMSecsSinceEpoch(state.until).toString(QStringLiteral("hh:mm:ss"));
        }
        return text;
    }

    QStringList m_told;
    QObject m_context;
};

/// Lines as written in a test.
inline QStringList lines(std::initializer_list<const char*> texts)
{
    QStringList strings;
    for (const char* text : texts) {
        strings.append(QString::fromLatin1(text));
    }
    return strings;
}
